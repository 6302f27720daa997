#include "tests/fuzz/Installation.h"

#include "tests/fuzz/FuzzTarget.h"

#include <fcntl.h>
#include <set>
#include <unistd.h>

namespace fs = std::filesystem;

const Installation &Installation::get()
{
    static const Installation installation;
    return installation;
}

Installation::Installation()
{
    // In memory where that is possible: a fuzzer writes the document thousands of times a second.
    const fs::path shared = "/dev/shm";
    std::string name
        = (fs::is_directory(shared) ? shared : fs::temp_directory_path()).string() + "/corvix-fuzz-XXXXXX";
    require(mkdtemp(name.data()) != nullptr, "there is a temporary directory");
    m_root = name;
    for (const char *directory : {"cti", "more", "bin/own", "bin/more", "a"})
        fs::create_directories(m_root / directory);
}

Installation::~Installation()
{
    std::error_code ignored;
    fs::remove_all(m_root, ignored);
}

void Installation::writeDocument(const std::string &content) const
{
    const int file = open(document().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    require(file >= 0 && write(file, content.data(), content.size()) == static_cast<ssize_t>(content.size()),
        "the document is written");
    close(file);
}

void Installation::requireDirectories(const std::vector<std::string> &directories) const
{
    require(!directories.empty(), "there is a directory to search");
    require(std::set<std::string>(directories.begin(), directories.end()).size() == directories.size(),
        "no directory is there twice");
    for (const std::string &directory : directories) {
        require(!directory.empty() && directory.front() == '/', "a directory is absolute");
        require(directory.find('\0') == std::string::npos, "a directory's name ends where it ends");
    }
}
