#include "tests/sdk/support/TemporaryDirectory.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
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
{
    std::ostringstream content;
    // If a process ends while its file in /proc is being read, this sets only the state of the stream.
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}
