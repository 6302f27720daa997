#pragma once

#include <filesystem>
#include <string>

/// A directory of the test, which is removed with everything in it.
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

/// Writes a file in one step: readers see the old content or the new one.
void writeFile(const std::filesystem::path &path, const std::string &content);

/// Returns the content of a file; empty if it cannot be read.
std::string readFile(const std::filesystem::path &path);
