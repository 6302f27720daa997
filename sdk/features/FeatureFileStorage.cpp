#include "sdk/features/FeatureFileStorage.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t maxFileSize = 17U << 20U; // parseFeatureFile() refuses less.

/// Closes the file at the end of the scope.
class OpenedFile
{
public:
    OpenedFile(const std::string &path, int flags)
        : m_descriptor(::open(path.c_str(), flags | O_CLOEXEC, 0666))
    { }
    ~OpenedFile() { close(); }
    OpenedFile(const OpenedFile &) = delete;
    OpenedFile &operator=(const OpenedFile &) = delete;

    int descriptor() const { return m_descriptor; }

    /// Also reports errors that the system has postponed until now.
    bool close()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int m_descriptor;
};

std::string failure(const std::string &path, const char *action)
{
    return "The file \"" + path + "\" cannot be " + action + ": " + std::strerror(errno) + '.';
}

bool isOtherThanFile(const std::string &path)
{
    struct stat status
    { };
    return ::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

bool writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

std::variant<FeatureFile, std::string> readFeatureFile(const std::string &path)
{
    if (isOtherThanFile(path)) // A pipe could block for ever.
        return "\"" + path + "\" is not a file.";
    const OpenedFile file(path, O_RDONLY);
    if (file.descriptor() < 0)
        return failure(path, "opened");
    std::string text;
    constexpr std::size_t partSize = 1U << 16U;
    for (ssize_t count = 1; count > 0 && text.size() < maxFileSize;) {
        const std::size_t size = text.size();
        text.resize(size + partSize);
        count = ::read(file.descriptor(), text.data() + size, partSize);
        if (count < 0)
            return failure(path, "read");
        text.resize(size + static_cast<std::size_t>(count));
    }
    auto parsed = parseFeatureFile(text);
    if (auto *const refusal = std::get_if<std::string>(&parsed))
        *refusal = path + ": " + *refusal;
    return parsed;
}

std::string writeFeatureFile(const std::string &path, const std::string &text)
{
    if (isOtherThanFile(path))
        return "\"" + path + "\" is not a file.";
    const std::string temporary = path + '.' + std::to_string(::getpid()) + ".part";
    OpenedFile file(temporary, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW);
    if (file.descriptor() < 0)
        return failure(path, "created");
    const bool isWritten = writeAll(file.descriptor(), text) && ::fsync(file.descriptor()) == 0
        && file.close() && ::rename(temporary.c_str(), path.c_str()) == 0;
    if (isWritten)
        return {};
    const std::string problem = failure(path, "written");
    ::unlink(temporary.c_str());
    return problem;
}
