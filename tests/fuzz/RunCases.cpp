// Gives a target every kept case: the files of the directory that the command line names.

#include "tests/fuzz/FuzzTarget.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

void run(const std::filesystem::path &file)
{
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    std::fprintf(stderr, "%s\n", file.filename().c_str()); // The last one is the one that crashed.
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(content.data()), content.size());
}

} // namespace

int main(int argc, char **argv)
try {
    require(argc == 2, "usage: one directory");
    int cases = 0;
    for (const auto &entry : std::filesystem::directory_iterator(argv[1])) {
        run(entry.path());
        ++cases;
    }
    std::fprintf(stderr, "%d cases\n", cases);
    return cases > 0 ? 0 : 1;
} catch (const std::exception &error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
