#include "tests/fuzz/target.h"
#include "tests/hostile/content.h"

#include <exception>
#include <vector>

namespace fuzz {

int archive(const char* kind, const std::uint8_t* data, std::size_t size) {
    try {
        hostile::expectErrorOrEqual(kind, std::vector<unsigned char>(data, data + size));
    } catch (const std::exception& error) {
        demand(false, error.what());
    } catch (...) {
        demand(false, "the error is none of gkArchive::Errors");
    }
    return 0;
}

} // namespace fuzz
