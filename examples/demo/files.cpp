#include "examples/demo/files.h"

#include "examples/demo/failure.h"

#include <fstream>
#include <iterator>
#include <system_error>

std::vector<unsigned char> readBytes(const std::filesystem::path& file) {
    const std::string name = "'" + file.string() + "'";
    std::error_code unknown;
    if (std::filesystem::is_directory(file, unknown)) throw Failure(name + " is a folder, not a picture.");
    std::ifstream in(file, std::ios::binary);
    if (!in) throw Failure(name + " cannot be opened for reading.");
    std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad()) throw Failure(name + " cannot be read to its end.");
    return bytes;
}

void writeText(const std::filesystem::path& file, const std::string& text) {
    std::ofstream out(file, std::ios::binary);
    out << text;
    out.close();
    if (!out) throw Failure("'" + file.string() + "' cannot be written.");
}

void makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!std::filesystem::is_directory(folder, error))
        throw Failure("The folder '" + folder.string() + "' cannot be made.");
}
