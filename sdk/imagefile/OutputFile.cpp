#include "sdk/imagefile/OutputFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Advice
{
    int error;
    const char *text;
};

constexpr Advice advices[] = {
    {ENOSPC, "free some space or choose another folder"},
    {EDQUOT, "free some space or choose another folder"},
    {EFBIG, "choose another file system, or raise the limit of the file size (ulimit -f)"},
    {EROFS, "choose a folder that can be written"},
    {EACCES, "choose a folder that you may write to"},
    {EPERM, "choose a folder that you may write to"},
    {ENOENT, "create the folder first"},
    {ENOTDIR, "create the folder first"},
    {EISDIR, "give the name of a file"},
    {ESPIPE, "write this format to a regular file"},
};

std::string adviceFor(int error)
{
    for (const Advice &advice : advices) {
        if (advice.error == error)
            return std::string("; ") + advice.text;
    }
    return {};
}

} // namespace

OutputFile::~OutputFile()
{
    if (m_descriptor < 0)
        return;
    close(m_descriptor);
    if (!m_hiddenPath.empty())
        unlink(m_hiddenPath.c_str());
}

bool OutputFile::create(const std::string &path)
{
    m_path = path;
    return open(path, isSpecialFile(path) ? O_WRONLY : O_RDWR | O_CREAT | O_TRUNC);
}

bool OutputFile::createHidden(const std::string &path)
{
    if (isSpecialFile(path))
        return create(path);
    std::error_code error;
    const bool isLink = std::filesystem::is_symlink(path, error) && std::filesystem::exists(path, error);
    m_path = isLink ? std::filesystem::canonical(path, error).string() : path; // The link stays a link.
    const std::string hiddenPath = m_path + ".part" + std::to_string(getpid());
    if (!open(hiddenPath, O_RDWR | O_CREAT | O_TRUNC))
        return false;
    m_hiddenPath = hiddenPath;
    return true;
}

bool OutputFile::open(const std::string &path, int flags)
{
    constexpr mode_t readableAndWritable = 0666; // The umask takes away what others may not do.
    m_descriptor = ::open(path.c_str(), flags | O_CLOEXEC, readableAndWritable);
    return m_descriptor >= 0 || failWithErrno();
}

bool OutputFile::append(const void *data, std::size_t size)
{
    if (!m_problem.empty())
        return false;
    lseek(m_descriptor, 0, SEEK_END); // A pipe has no position.
    const auto *bytes = static_cast<const std::uint8_t *>(data);
    while (size > 0) {
        const ssize_t written = ::write(m_descriptor, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return failWithErrno();
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool OutputFile::write(std::uint64_t position, const void *data, std::size_t size)
{
    if (!m_problem.empty())
        return false;
    const auto *bytes = static_cast<const std::uint8_t *>(data);
    while (size > 0) {
        const ssize_t written = pwrite(m_descriptor, bytes, size, static_cast<off_t>(position));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return failWithErrno();
        bytes += written;
        position += static_cast<std::uint64_t>(written);
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool OutputFile::read(std::uint64_t position, void *data, std::size_t size)
{
    if (!m_problem.empty())
        return false;
    const ssize_t count = pread(m_descriptor, data, size, static_cast<off_t>(position));
    if (count < 0)
        return failWithErrno();
    return static_cast<std::size_t>(count) == size || fail("the file is shorter than it was");
}

std::uint64_t OutputFile::size() const
{
    const off_t end = lseek(m_descriptor, 0, SEEK_END);
    return end < 0 ? 0 : static_cast<std::uint64_t>(end);
}

void OutputFile::truncate(std::uint64_t size)
{
    if (ftruncate(m_descriptor, static_cast<off_t>(size)) != 0)
        failWithErrno();
}

bool OutputFile::publish()
{
    if (!m_problem.empty() || m_descriptor < 0)
        return false;
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    if (close(descriptor) != 0) // A network file system reports a full disk here.
        failWithErrno();
    if (m_hiddenPath.empty())
        return m_problem.empty();
    if (m_problem.empty() && rename(m_hiddenPath.c_str(), m_path.c_str()) == 0)
        return true;
    failWithErrno();
    unlink(m_hiddenPath.c_str());
    return false;
}

bool OutputFile::fail(const std::string &reason)
{
    if (m_problem.empty())
        m_problem = "\"" + m_path + "\" cannot be written: " + reason;
    return false;
}

bool OutputFile::failWithErrno()
{
    const int error = errno;
    return fail(std::strerror(error) + adviceFor(error));
}

bool isSpecialFile(const std::string &path)
{
    struct stat status
    { };
    return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}
