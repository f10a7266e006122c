// usage: fuzz_replay_TARGET FOLDER    gives every file of the folder to the target, without a fuzzer
#include "tests/fuzz/target.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace {

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<char> contentOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::vector<char>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " FOLDER\n";
        return 2;
    }
    const std::vector<std::filesystem::path> files = filesIn(argv[1]);
    for (const std::filesystem::path& file : files) {
        std::cout << file.filename().string() << std::endl; // told before, for it may end here
        const std::vector<char> content = contentOf(file);
        const std::vector<std::uint8_t> bytes(content.begin(), content.end());
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    std::cout << files.size() << " inputs\n";
    return files.empty() ? 1 : 0;
}
