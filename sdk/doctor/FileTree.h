#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The files of the system, or a copy of some of them below another directory. All paths are absolute, for
/// example "/proc/modules".
class FileTree
{
public:
    /// @param root The directory that stands for "/"; empty for the system itself.
    explicit FileTree(std::string root = {});

    const std::string &root() const { return m_root; }

    bool exists(const std::string &path) const;

    /// Returns the content without the white space at its end. Returns nothing if the file cannot be read.
    std::optional<std::string> read(const std::string &path) const;

    /// Returns the decimal number in a file. Returns nothing if the file contains no number.
    std::optional<std::int64_t> number(const std::string &path) const;

    /// Returns the sorted names in a directory.
    std::vector<std::string> names(const std::string &directory) const;

    /// Returns the last name of the path to which a symbolic link leads; empty if there is no link.
    std::string linkName(const std::string &path) const;

    /// Returns true if this process may read and write the file.
    bool canReadAndWrite(const std::string &path) const;

    /// Returns true if the members of the file's group may write it, and the group is not root.
    bool isGroupWritable(const std::string &path) const;

private:
    std::string m_root;
};
