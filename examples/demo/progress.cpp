#include "examples/demo/progress.h"

#include <iostream>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

constexpr std::chrono::milliseconds kBetweenLines(5000);
constexpr const char* kClearLine = "\r\x1b[K";

bool errorsGoToATerminal() {
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return isatty(2) != 0;
#endif
}

} // namespace

Progress::Progress() : isTerminal_(errorsGoToATerminal()), last_(std::chrono::steady_clock::now()) {}

Progress::~Progress() { clear(); }

void Progress::clear() {
    if (isTerminal_) std::cerr << kClearLine << std::flush;
}

void Progress::tell(const std::string& what) {
    if (isTerminal_) {
        std::cerr << kClearLine << what << std::flush;
        return;
    }
    const auto now = std::chrono::steady_clock::now();
    if (now - last_ < kBetweenLines) return;
    last_ = now;
    std::cerr << "demo: " << what << '\n';
}

void Progress::tell(const std::string& what, std::size_t done, std::size_t all) {
    tell(what + ' ' + std::to_string(done) + " of " + std::to_string(all));
}
