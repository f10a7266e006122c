// usage: archive_exchange FILE         the file holds what this system writes, and what it reads is what went
// in
//        archive_exchange --make FILE  writes that file; for a change of the format, which docs/format.md tells
#include "tests/border/everything.h"

#include "gkcntr.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace {

using Bytes = std::vector<unsigned char>;

Bytes contentOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + file);
    return Bytes(std::istreambuf_iterator<char>(in), {});
}

int make(const std::string& file) {
    const Bytes bytes = writeEverything();
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    return out ? 0 : 1;
}

int check(const std::string& file) {
    const Bytes bytes = contentOf(file);
    if (writeEverything() != bytes) {
        std::cerr << file << " does not hold what is written here\n";
        return 1;
    }
    if (readAndRewrite(bytes) != bytes) {
        std::cerr << file << " changes when it is read and written again\n";
        return 1;
    }
    std::cout << bytes.size() << " bytes, as written here\n";
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    try {
        if (arguments.size() == 2 && arguments[0] == "--make") return make(arguments[1]);
        if (arguments.size() == 1) return check(arguments[0]);
        std::cerr << "usage: archive_exchange [--make] FILE\n";
    } catch (const gkException& error) {
        std::cerr << "error number " << error.errorNumber() << '\n';
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 2;
}
