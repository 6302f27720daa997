#include "tests/sdk/support/TemporaryDirectory.h"

#include <cstdlib>
#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>
#include <system_error>

TemporaryDirectory::TemporaryDirectory()
{
    std::string name = (std::filesystem::temp_directory_path() / "cvxcpp-test-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no temporary directory");
    m_path = std::filesystem::canonical(name);
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
}

void writeFile(const std::filesystem::path &path, const std::string &content)
{
    const std::filesystem::path draft = path.string() + ".draft";
    std::ofstream(draft, std::ios::binary) << content;
    std::filesystem::rename(draft, path);
}

std::string readFile(const std::filesystem::path &path)
try {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
} catch (const std::ios_base::failure &) {
    return {}; // A process may end while its file in /proc is being read.
}
