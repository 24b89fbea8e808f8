// Runs a fuzz target's entry point once on every file given, or on every file of a folder
// given, so that the committed corpora replay as a test in every build, sanitizers included,
// whatever the compiler.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    std::vector<std::filesystem::path> files;
    for (int i = 1; i < argc; ++i) {
        std::error_code error;
        if (std::filesystem::is_directory(argv[i], error)) {
            for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
                if (entry.is_regular_file()) {
                    files.push_back(entry.path());
                }
            }
        } else if (std::filesystem::is_regular_file(argv[i], error)) {
            files.emplace_back(argv[i]);
        } else {
            std::fprintf(stderr, "%s: no such file or folder\n", argv[i]);
            return 1;
        }
    }
    // A corpus that went missing would otherwise pass as an empty one.
    if (files.empty()) {
        std::fprintf(stderr, "no input to replay\n");
        return 1;
    }
    std::sort(files.begin(), files.end());
    for (const auto& path : files) {
        std::ifstream in(path, std::ios::binary);
        if (!in) {
            std::fprintf(stderr, "%s: cannot open\n", path.c_str());
            return 1;
        }
        const std::vector<char> bytes((std::istreambuf_iterator<char>(in)),
                                      std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("replayed %zu inputs\n", files.size());
    return 0;
}
