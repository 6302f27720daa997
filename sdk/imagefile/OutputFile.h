#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// A file that is being written. The first failure stays: every later call returns false, and problem() says
/// for people what failed and what to do.
class OutputFile
{
public:
    OutputFile() = default;
    /// Closes the file. A file that createHidden() created and publish() did not rename is deleted.
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    /// Creates the file or empties an existing one.
    bool create(const std::string &path);

    /// Creates the file under a temporary name in the same folder, so that nobody reads half a file. A path
    /// that is no regular file, for example a pipe, is written directly.
    bool createHidden(const std::string &path);

    /// Writes at the end of the file, or to the pipe.
    bool append(const void *data, std::size_t size);

    bool write(std::uint64_t position, const void *data, std::size_t size);
    bool read(std::uint64_t position, void *data, std::size_t size);

    /// Returns the size of the file, also if somebody else has changed it.
    std::uint64_t size() const;

    /// Cuts the file, also after a failure, so that no unfinished part stays.
    void truncate(std::uint64_t size);

    /// Closes the file and gives it its name.
    bool publish();

    /// Stores the text as the reason why the file cannot be written, unless there is one.
    bool fail(const std::string &reason);

    const std::string &problem() const { return m_problem; }

private:
    bool open(const std::string &path, int flags);
    bool failWithErrno();

    std::string m_path; // The name that the file is to have.
    std::string m_hiddenPath; // Empty if the file has its name already.
    std::string m_problem;
    int m_descriptor = -1;
};

/// Returns true if there is something of this name that is no regular file, for example a pipe or a device.
bool isSpecialFile(const std::string &path);
