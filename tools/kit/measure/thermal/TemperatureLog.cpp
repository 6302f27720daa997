#include "tools/kit/measure/thermal/TemperatureLog.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Returns the text as one cell of a CSV file.
std::string csvCell(const std::string &text)
{
    if (text.find_first_of(",\"\n\r") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char character : text)
        quoted += character == '"' ? "\"\"" : std::string(1, character);
    return quoted + '"';
}

std::string csvNumber(const std::optional<double> &value, int decimals)
{
    if (!value)
        return {};
    std::array<char, 64> text{};
    const auto end
        = std::to_chars(text.data(), text.data() + text.size(), *value, std::chars_format::fixed, decimals);
    return end.ec == std::errc() ? std::string(text.data(), end.ptr) : std::string();
}

std::string headerOf(const std::vector<std::string> &places)
{
    std::string header = "time";
    for (const std::string &place : places)
        header += ',' + csvCell((place.empty() ? "temperature" : place) + " [degC]");
    return header + ",dark level,event\n";
}

std::string reasonOf(int error, const std::string &path)
{
    std::string text = "\"" + path + "\" cannot be written: " + std::strerror(error);
    if (error == ENOSPC || error == EDQUOT)
        text += "; free some space, and the log goes on";
    return text;
}

bool startsWith(int descriptor, const std::string &header)
{
    std::string begin(header.size(), '\0');
    return pread(descriptor, begin.data(), begin.size(), 0) == static_cast<ssize_t>(begin.size())
        && begin == header;
}

/// Removes what follows the last line feed: the rest of a line that was being written when the power failed.
bool removeHalfLine(int descriptor, off_t size)
{
    char last = 0;
    off_t end = size;
    while (end > 0 && pread(descriptor, &last, 1, end - 1) == 1 && last != '\n')
        --end;
    return end == size || ftruncate(descriptor, end) == 0;
}

std::string numbered(const std::string &path, int number)
{
    const std::filesystem::path whole(path);
    const std::filesystem::path name
        = whole.stem().string() + '-' + std::to_string(number) + whole.extension().string();
    return (whole.parent_path() / name).string();
}

} // namespace

TemperatureLog::~TemperatureLog()
{
    close();
}

void TemperatureLog::close()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
    m_problem.clear();
    m_lostLines = 0;
}

std::string TemperatureLog::open(const std::string &path, const std::vector<std::string> &places)
{
    constexpr int mostFiles = 1000;
    close();
    m_header = headerOf(places);
    bool isOther = true; // The name belongs to another file.
    for (int number = 1; isOther && number < mostFiles; ++number) {
        m_path = number == 1 ? path : numbered(path, number);
        errno = 0;
        if (tryOpen(m_path))
            return {};
        isOther = errno == EEXIST;
    }
    const std::string reason = reasonOf(errno, m_path);
    close();
    return reason;
}

/// Opens a file that is a log of the same places, or none yet. Fails with EEXIST if it is something else.
bool TemperatureLog::tryOpen(const std::string &path)
{
    constexpr mode_t readableAndWritable = 0666; // The umask takes away what others may not do.
    const int descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC, readableAndWritable);
    if (descriptor < 0)
        return false;
    struct stat file
    { };
    const bool isRegular = fstat(descriptor, &file) == 0 && S_ISREG(file.st_mode);
    const bool isOurs = isRegular && (file.st_size == 0 || startsWith(descriptor, m_header));
    if (!isOurs || !removeHalfLine(descriptor, file.st_size)) {
        ::close(descriptor);
        errno = isOurs ? EIO : EEXIST;
        return false;
    }
    m_descriptor = descriptor;
    if (file.st_size > 0 || write(m_header))
        return true;
    const int error = errno;
    ::close(m_descriptor);
    m_descriptor = -1;
    errno = error;
    return false;
}

/// Writes the whole line or nothing; a part of it is removed again.
bool TemperatureLog::write(const std::string &line)
{
    const off_t end = lseek(m_descriptor, 0, SEEK_END);
    const ssize_t written = ::write(m_descriptor, line.data(), line.size());
    if (written == static_cast<ssize_t>(line.size()))
        return true;
    const int error = written < 0 ? errno : ENOSPC;
    if (written > 0 && ftruncate(m_descriptor, end) != 0)
        errno = error; // The next start of the log removes the rest of the line.
    errno = error;
    return false;
}

void TemperatureLog::append(const std::string &time, const std::vector<std::optional<double>> &celsius,
    const std::optional<double> &darkLevel, const std::string &event)
{
    constexpr int temperatureDecimals = 3;
    constexpr int darkDecimals = 4;
    std::string line = time;
    for (const std::optional<double> &value : celsius)
        line += ',' + csvNumber(value, temperatureDecimals);
    line += ',' + csvNumber(darkLevel, darkDecimals) + ',' + csvCell(event) + '\n';
    struct stat file
    { };
    errno = 0;
    if (m_descriptor >= 0 && fstat(m_descriptor, &file) == 0 && file.st_nlink == 0) {
        ::close(m_descriptor); // Somebody has deleted the file.
        m_descriptor = -1;
    }
    if ((m_descriptor >= 0 || tryOpen(m_path)) && write(line)) {
        m_problem.clear();
        return;
    }
    m_problem = reasonOf(errno, m_path);
    ++m_lostLines;
}
