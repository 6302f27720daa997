#pragma once

#include <filesystem>
#include <string>

/// A directory of the test's own, which is removed with everything in it.
class TemporaryDirectory
{
public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory &) = delete;
    TemporaryDirectory &operator=(const TemporaryDirectory &) = delete;

    const std::filesystem::path &path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// Writes a file in one go: readers see the old content or the new.
void writeFile(const std::filesystem::path &path, const std::string &content);
std::string readFile(const std::filesystem::path &path);
