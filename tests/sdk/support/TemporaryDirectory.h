#pragma once

#include <filesystem>
#include <string>

/// A temporary directory for one test. The destructor removes it with its contents.
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

/// Replaces a file atomically: a reader gets either the old or the new content.
void writeFile(const std::filesystem::path &path, const std::string &content);

/// Returns the content of a file, or an empty string if the file cannot be read.
std::string readFile(const std::filesystem::path &path);
