#include "sdk/doctor/FileTree.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

FileTree::FileTree(std::string root) : m_root(std::move(root)) { }

bool FileTree::exists(const std::string &path) const
{
    std::error_code error;
    return std::filesystem::exists(m_root + path, error);
}

std::optional<std::string> FileTree::read(const std::string &path) const
{
    std::ifstream file(m_root + path, std::ios::binary);
    if (!file)
        return std::nullopt;
    std::string text;
    std::getline(file, text, '\0'); // Unlike an iterator, does not throw if the system refuses to read.
    if (file.bad())
        return std::nullopt;
    text.erase(text.find_last_not_of(" \t\r\n") + 1);
    return text;
}

std::optional<std::int64_t> FileTree::number(const std::string &path) const
{
    const auto text = read(path);
    if (!text)
        return std::nullopt;
    std::int64_t number = 0;
    const auto result = std::from_chars(text->data(), text->data() + text->size(), number);
    return result.ec == std::errc() ? std::optional(number) : std::nullopt;
}

std::vector<std::string> FileTree::names(const std::string &directory) const
{
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(m_root + directory, error), end; !error && entry != end;
         entry.increment(error))
        names.push_back(entry->path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string FileTree::linkName(const std::string &path) const
{
    std::error_code error;
    return std::filesystem::read_symlink(m_root + path, error).filename().string();
}

bool FileTree::canReadAndWrite(const std::string &path) const
{
    return faccessat(AT_FDCWD, (m_root + path).c_str(), R_OK | W_OK, AT_EACCESS) == 0;
}

bool FileTree::isGroupWritable(const std::string &path) const
{
    struct stat status
    { };
    constexpr gid_t rootGroup = 0; // The system's default for devices is 0664 and this group.
    return ::stat((m_root + path).c_str(), &status) == 0 && (status.st_mode & S_IWGRP) != 0
        && status.st_gid != rootGroup;
}
