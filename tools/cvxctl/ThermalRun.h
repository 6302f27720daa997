#pragma once

#include "tools/cvxctl/MeasureRun.h"
#include "tools/kit/measure/thermal/TemperatureReader.h"
#include "tools/kit/measure/thermal/ThermalMonitor.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

struct ThermalOptions
{
    MeasureOptions measure;
    double interval = 1;
    double seconds = 0; // 0 is without end.
    std::string log;
    std::string output;
    std::optional<double> warning;
    std::optional<double> alarm;
    double hysteresis = 1;
    bool isUntilSteady = false;
    bool isStreaming = false;
    bool isDark = false;
    bool isJson = false;
};

/// Returns a number with this many decimals.
std::string decimals(double value, int count);

/// Returns the name of a place for people.
std::string placeName(const std::string &place);

/// One line on standard error that is replaced at each reading, if standard error is a terminal.
class ThermalProgress
{
public:
    ThermalProgress();
    void update(const ThermalMonitor &monitor);
    void endLine();

private:
    const bool m_isTerminal;
    bool m_hasLine = false;
};

/// Reads the temperatures of one camera until the command ends.
class ThermalRun
{
public:
    /// @param frames Null without a stream.
    ThermalRun(CvxCPP::Device &device, FrameSource *frames, const ThermalOptions &options);

    /// Returns why the camera cannot be monitored; empty after a monitoring.
    Sentence run();

    /// The result of a successful run().
    const ThermalMonitor &monitor() const { return *m_monitor; }
    bool isComplete() const { return m_isComplete; } ///< False if Ctrl-C came before the end.

private:
    double elapsed() const;
    std::string openLog();
    bool isDone();
    bool waitUntil(double seconds);
    void read();
    void measureDark(double seconds);
    void reportMissingImages(double seconds);
    void report(const std::string &text);

    CvxCPP::Device &m_device;
    FrameSource *const m_frames;
    const ThermalOptions &m_options;
    TemperatureSource m_source;
    std::optional<ThermalMonitor> m_monitor;
    std::chrono::steady_clock::time_point m_begin;
    std::shared_ptr<const CvxCPP::Image> m_newest;
    DarkMeter m_meter;
    bool m_awaitsImage = true; // No image has come, and that was not reported.
    // The last messages, which are not repeated.
    std::string m_readProblem;
    std::string m_logProblem;
    std::string m_darkProblem;
    ThermalProgress m_progress;
    bool m_isComplete = false;
};
