#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// A table of readings (CSV) that grows without end. Each line is in the file when append() returns, so
/// nothing is lost if the program crashes. A full disk or a deleted file does not end the log: each later
/// line is tried again.
class TemperatureLog
{
public:
    TemperatureLog() = default;
    ~TemperatureLog();
    TemperatureLog(const TemperatureLog &) = delete;
    TemperatureLog &operator=(const TemperatureLog &) = delete;

    /// Continues the file if it is a log of the same places, after removing half a line at its end. If the
    /// file is something else, creates "NAME-2.csv" and so on. Returns why that failed; empty if it
    /// succeeded.
    std::string open(const std::string &path, const std::vector<std::string> &places);

    void close();

    bool isOpen() const { return m_descriptor >= 0; }
    const std::string &path() const { return m_path; }

    /// Appends a line.
    /// @param time UTC, for example of utcNow().
    /// @param celsius One value per place; a place without value stays empty.
    /// @param event What has happened, for example "alarm"; usually empty.
    void append(const std::string &time, const std::vector<std::optional<double>> &celsius,
        const std::optional<double> &darkLevel, const std::string &event);

    /// Why the last line could not be written, for people; empty if it was.
    const std::string &problem() const { return m_problem; }

    std::uint64_t lostLines() const { return m_lostLines; }

private:
    bool tryOpen(const std::string &path);
    bool write(const std::string &line);

    std::string m_path;
    std::string m_header;
    std::string m_problem;
    std::uint64_t m_lostLines = 0;
    int m_descriptor = -1;
};
