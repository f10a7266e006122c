#include "tests/hostile/reading.h"

#include "platform/core/archive/archive.h"
#include "tests/hostile/content.h"
#include "tests/hostile/counted_memory.h"

#include <algorithm>
#include <typeinfo>

namespace {

// A loading archive like gkArchiveMemory, with bytes of its own, that counts how often it is asked for some.
class CountingArchive : public gkArchive {
public:
    CountingArchive(const std::vector<unsigned char>& bytes, std::size_t& steps)
        : gkArchive(Direction::eLoad), bytes_(bytes), steps_(steps) {
        open();
    }

protected:
    void putBytes(const unsigned char*, std::size_t) override { throw WrongDirection(); }
    void getBytes(unsigned char* bytes, std::size_t count) override {
        ++steps_;
        std::copy_n(bytes_.data() + position_, count, bytes);
        position_ += count;
    }
    std::size_t bytesLeft() const override { return bytes_.size() - position_; }

private:
    const std::vector<unsigned char> bytes_;
    std::size_t position_ = 0;
    std::size_t& steps_;
};

void readInto(hostile::Reading& reading, const std::string& kind, const std::vector<unsigned char>& bytes) {
    const std::unique_ptr<hostile::Content> content = hostile::empty(kind);
    const counted::Memory memory;
    try {
        CountingArchive in(bytes, reading.steps);
        content->pass(in);
        in.finish();
        reading.isRead = true;
    } catch (const gkArchive::Errors& error) {
        reading.error = typeid(error).name();
    }
    reading.peak = memory.peak();
    reading.requests = memory.requests();
    content->untie();
}

} // namespace

namespace hostile {

Reading read(const std::string& kind, const std::vector<unsigned char>& bytes) {
    Reading reading;
    readInto(reading, kind, bytes); // once for what stays for the process's life: registrations, locale
    reading = Reading();
    reading.error.reserve(256);
    const counted::Memory memory;
    readInto(reading, kind, bytes);
    reading.kept = memory.kept();
    return reading;
}

std::string beyondBounds(const Reading& reading, std::size_t bytes) {
    if (reading.peak > 16 * bytes + kMemoryAnyway) return std::to_string(reading.peak) + " bytes of memory";
    if (reading.requests > bytes + 64) return std::to_string(reading.requests) + " requests for memory";
    if (reading.steps > bytes + 64) return std::to_string(reading.steps) + " steps";
    if (reading.kept > 0) return std::to_string(reading.kept) + " bytes are kept";
    return "";
}

} // namespace hostile
