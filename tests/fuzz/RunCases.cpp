// Runs a fuzz target on every file of the directory that the command line names.

#include "tests/fuzz/FuzzTarget.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

int main(int argc, char **argv)
{
    require(argc == 2, "usage: one directory");
    int cases = 0;
    for (const auto &entry : std::filesystem::directory_iterator(argv[1])) {
        // After a crash, the last printed line names the file.
        std::fprintf(stderr, "%s\n", entry.path().filename().c_str());
        std::ifstream stream(entry.path(), std::ios::binary);
        const std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(content.data()), content.size());
        ++cases;
    }
    std::fprintf(stderr, "%d cases\n", cases);
    return cases > 0 ? 0 : 1;
}
