#include "platform/core/archive/archive.h"
#include "platform/core/archive/utf8.h"

#include <cstring>
#include <limits>

static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8,
              "doubles travel as their IEEE bytes");
static_assert(std::numeric_limits<float>::is_iec559 && sizeof(float) == 4, "floats travel as their IEEE bytes");

namespace {

constexpr std::uint64_t most32 = 0xFFFFFFFFu;

// Of what getText() has found to be UTF-8.
std::wstring decode(const std::string& utf8) {
    std::wstring wide;
    gk_Utf8::widen(utf8, wide);
    return wide;
}

} // namespace

void gkArchive::putNumber(std::uint64_t value, int bytes) {
    unsigned char out[8];
    for (int i = 0; i < bytes; ++i) out[i] = static_cast<unsigned char>(value >> (8 * i));
    putBytes(out, static_cast<std::size_t>(bytes));
}

std::uint64_t gkArchive::getNumber(int bytes) {
    unsigned char in[8];
    take(in, static_cast<std::size_t>(bytes));
    std::uint64_t value = 0;
    for (int i = 0; i < bytes; ++i) value |= static_cast<std::uint64_t>(in[i]) << (8 * i);
    return value;
}

void gkArchive::take(unsigned char* bytes, std::size_t count) {
    if (count > bytesLeft()) throw Truncated();
    getBytes(bytes, count);
}

gkArchive& gkArchive::operator||(bool& value) {
    if (isSaving()) {
        putNumber(value ? 1 : 0, 1);
        return *this;
    }
    const std::uint64_t read = getNumber(1);
    if (read > 1) throw BadValue(L"a bool is neither 0 nor 1");
    value = read == 1;
    return *this;
}

gkArchive& gkArchive::byte(unsigned char& value) {
    if (isSaving()) {
        putBytes(&value, 1);
    } else {
        take(&value, 1);
    }
    return *this;
}

gkArchive& operator||(gkArchive& ar, unsigned char& value) { return ar.byte(value); }

gkArchive& gkArchive::operator||(unsigned short& value) {
    if (isSaving()) {
        putNumber(value, 2);
    } else {
        value = static_cast<unsigned short>(getNumber(2));
    }
    return *this;
}

gkArchive& gkArchive::operator||(long& value) {
    if (isSaving()) {
        const std::int64_t wide = value;
        if (wide < std::numeric_limits<std::int32_t>::min() || wide > std::numeric_limits<std::int32_t>::max())
            throw ValueOutOfRange();
        putNumber(static_cast<std::uint64_t>(wide), 4);
    } else {
        const std::uint64_t read = getNumber(4);
        const std::int64_t wide = static_cast<std::int64_t>(read) - (read > 0x7FFFFFFFu ? 0x100000000 : 0);
        value = static_cast<long>(wide);
    }
    return *this;
}

gkArchive& gkArchive::operator||(unsigned long& value) {
    if (isSaving()) {
        const std::uint64_t wide = value;
        if (wide > most32) throw ValueOutOfRange();
        putNumber(wide, 4);
    } else {
        value = static_cast<unsigned long>(getNumber(4));
    }
    return *this;
}

gkArchive& gkArchive::operator||(float& value) {
    std::uint32_t bits = 0;
    if (isSaving()) {
        std::memcpy(&bits, &value, sizeof bits);
        putNumber(bits, 4);
    } else {
        bits = static_cast<std::uint32_t>(getNumber(4));
        std::memcpy(&value, &bits, sizeof bits);
    }
    return *this;
}

gkArchive& gkArchive::operator||(double& value) {
    std::uint64_t bits = 0;
    if (isSaving()) {
        std::memcpy(&bits, &value, sizeof bits);
        putNumber(bits, 8);
    } else {
        bits = getNumber(8);
        std::memcpy(&value, &bits, sizeof bits);
    }
    return *this;
}

void gkArchive::putText(const std::string& utf8) {
    if (!gk_Utf8::isValid(utf8)) throw BadValue(L"a text is not UTF-8");
    if (utf8.size() > most32) throw ValueOutOfRange();
    putNumber(utf8.size(), 4);
    putBytes(reinterpret_cast<const unsigned char*>(utf8.data()), utf8.size());
}

std::string gkArchive::getText() {
    const std::uint64_t count = getNumber(4);
    if (count > bytesLeft()) throw CountTooLarge();
    std::string utf8(static_cast<std::size_t>(count), '\0');
    take(reinterpret_cast<unsigned char*>(&utf8[0]), utf8.size());
    if (!gk_Utf8::isValid(utf8)) throw BadValue(L"a text is not UTF-8");
    return utf8;
}

gkArchive& gkArchive::operator||(std::string& value) {
    if (isSaving()) {
        putText(value);
    } else {
        value = getText();
    }
    return *this;
}

gkArchive& gkArchive::operator||(std::wstring& value) {
    if (isSaving()) {
        std::string utf8;
        if (!gk_Utf8::narrow(value, utf8)) throw BadValue(L"a text is not Unicode");
        putText(utf8);
    } else {
        value = decode(getText());
    }
    return *this;
}

std::size_t gkArchive::vectorHeader(std::size_t count, std::size_t leastBytes) {
    if (isSaving()) {
        if (count > most32) throw ValueOutOfRange();
        putNumber(0, 1);
        putNumber(count, 4);
        return count;
    }
    if (getNumber(1) != 0) throw UnknownVersion();
    const std::uint64_t read = getNumber(4);
    if (read > bytesLeft() / leastBytes) throw CountTooLarge();
    return static_cast<std::size_t>(read);
}
