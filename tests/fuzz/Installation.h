#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// An installation directory in which CvxC.xml is replaced again and again; there are some directories that
/// it may name. Removed at the end of the program.
class Installation
{
public:
    /// The one of this program.
    static const Installation &get();

    ~Installation();
    Installation(const Installation &) = delete;
    Installation &operator=(const Installation &) = delete;

    void writeDocument(const std::string &content) const;
    std::string document() const { return (m_root / "bin/CvxC.xml").string(); }
    std::string root() const { return m_root.string(); }

    /// What holds for every list of directories.
    void requireDirectories(const std::vector<std::string> &directories) const;

private:
    Installation();

    std::filesystem::path m_root;
};
