#include "sdk/simulator/SceneFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t maximumFileSize = 16U << 20U; // Bytes; some 100,000 devices.

/// File times advance in steps, up to two seconds on some file systems: within one step a file can change
/// twice under the same stamp.
constexpr std::time_t coarsestFileTime = 2; // Seconds

/// An open file, closed at the end.
class Descriptor
{
public:
    explicit Descriptor(const std::filesystem::path &path)
        // Non-blocking, or a pipe of this name would hold up every list.
        : m_number(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    { }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return m_number; }

private:
    int m_number;
};

[[noreturn]] void throwSystemError(const char *what)
{
    throw std::runtime_error(std::string(what) + ": " + std::strerror(errno));
}

struct stat statusOf(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        throwSystemError("its state cannot be read");
    if (!S_ISREG(status.st_mode))
        throw std::runtime_error("it is not a regular file");
    return status;
}

std::string readAll(int descriptor)
{
    std::string text;
    char block[1U << 16U];
    for (;;) {
        const ssize_t count = TEMP_FAILURE_RETRY(::read(descriptor, block, sizeof block));
        if (count < 0)
            throwSystemError("it cannot be read");
        if (count == 0)
            return text;
        text.append(block, static_cast<std::size_t>(count));
        if (text.size() > maximumFileSize)
            throw std::runtime_error("it is larger than 16 MiB");
    }
}

bool sameTime(const timespec &left, const timespec &right)
{
    return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

} // namespace

SceneFile::Stamp::Stamp(const struct stat &status)
    : device(status.st_dev),
      inode(status.st_ino),
      size(status.st_size),
      modified(status.st_mtim),
      changed(status.st_ctim)
{ }

bool SceneFile::Stamp::operator==(const Stamp &other) const
{
    return device == other.device && inode == other.inode && size == other.size
        && sameTime(modified, other.modified) && sameTime(changed, other.changed);
}

SceneFile::SceneFile(std::filesystem::path path)
    : m_path(std::move(path)), m_lastGood(std::make_shared<const Scene>(defaultScene()))
{ }

std::shared_ptr<const Scene> SceneFile::current()
{
    const std::lock_guard lock(m_mutex);
    try {
        update();
    } catch (const std::runtime_error &problem) {
        reportProblem(problem.what());
    }
    return m_missing ? std::make_shared<const Scene>(defaultScene()) : m_lastGood;
}

void SceneFile::update()
{
    const Descriptor file(m_path);
    m_missing = file.number() < 0 && (errno == ENOENT || errno == ENOTDIR);
    if (m_missing) {
        m_stamp.reset();
        m_reported.clear();
        return;
    }
    if (file.number() < 0)
        throwSystemError("it cannot be opened");
    updateFrom(file.number());
}

void SceneFile::updateFrom(int descriptor)
{
    const Stamp stamp(statusOf(descriptor));
    if (m_stamp && *m_stamp == stamp)
        return;
    m_stamp.reset();

    // Taken before reading. A change that is too fresh for the next one to get another stamp is read again.
    const std::time_t now = std::time(nullptr);
    const bool settled = stamp.changed.tv_sec + coarsestFileTime < now;
    parse(descriptor);
    if (settled)
        m_stamp = stamp;
}

void SceneFile::parse(int descriptor)
{
    m_lastGood = std::make_shared<const Scene>(parseScene(readAll(descriptor)));
    m_reported.clear();
}

void SceneFile::reportProblem(const std::string &problem)
{
    if (problem == m_reported)
        return;
    constexpr std::size_t longest = 500; // Bytes; the parser quotes what it has read, however much that is.
    std::fprintf(
        stderr, "Camera simulator: %s is not used: %s\n", m_path.c_str(), problem.substr(0, longest).c_str());
    m_reported = problem;
}
