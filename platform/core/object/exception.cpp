#include "platform/core/object/exception.h"

#include "platform/core/archive/archive.h"

#include <ostream>
#include <sstream>

gkException::~gkException() = default;

void gkException::message_(std::wostream&) const {}

std::wstring gkException::message() const {
    std::wostringstream out;
    message_(out);
    return out.str();
}

void gkException::dispatchSerialize(gkArchive& ar) {
    if (haveVisited(ar)) return;
    unsigned char version = 0;
    ar || version;
    gkException::serialize_(ar, version);
    setVisited(ar);
}

void gkException::serialize_(gkArchive& ar, unsigned char version) {
    if (version != 0) throw gkArchive::UnknownVersion("gkException", 0);
    gkPersistent::dispatchSerialize(ar);
}

gkExceptionWithString::gkExceptionWithString(const wchar_t* text) : text_(text ? text : L"") {}

gkExceptionWithString::~gkExceptionWithString() = default;

void gkExceptionWithString::message_(std::wostream& out) const { out << text_; }
