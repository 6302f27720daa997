#include "tools/cvxctl/ThermalRun.h"

#include "sdk/imagefile/Sidecar.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/kit/measure/thermal/ThermalResult.h"

#include <algorithm>
#include <cstdio>
#include <thread>
#include <unistd.h>

using namespace CvxCPP;

std::string decimals(double value, int count)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", count, value);
    return text;
}

std::string placeName(const std::string &place)
{
    return place.empty() ? "camera" : printable(place);
}

ThermalProgress::ThermalProgress() : m_isTerminal(isatty(STDERR_FILENO) != 0) { }

void ThermalProgress::update(const ThermalMonitor &monitor)
{
    if (!m_isTerminal)
        return;
    std::string line;
    for (const PlaceMonitor &place : monitor.places()) {
        const PlaceReport &report = place.report();
        line += (line.empty() ? "" : "   ") + placeName(place.place()) + ' '
            + (report.celsius ? decimals(*report.celsius, 2) + " degC" : "no reading");
        if (report.slope)
            line += ' ' + decimals(report.slope->perMinute, 2) + " K/min";
        if (report.forecast && report.state != ThermalState::Steady)
            line += " -> " + decimals(report.forecast->end, 1);
        line += std::string(" ") + (report.state == ThermalState::Unknown ? "..." : stateName(report.state));
    }
    std::fprintf(stderr, "\r\x1B[K%s", line.c_str());
    m_hasLine = true;
}

void ThermalProgress::endLine()
{
    if (m_hasLine)
        std::fputc('\n', stderr);
    m_hasLine = false;
}

ThermalRun::ThermalRun(Device &device, FrameSource *frames, const ThermalOptions &options)
    : m_device(device), m_frames(frames), m_options(options)
{ }

Sentence ThermalRun::run()
{
    if (Sentence problem = findTemperatures(m_device, m_source); !problem.isEmpty())
        return problem;
    m_monitor.emplace(m_source.places, utcNow());
    m_monitor->setThresholds({m_options.warning, m_options.alarm, m_options.hysteresis});
    if (!m_options.log.empty()) {
        if (const std::string problem = openLog(); !problem.empty())
            return untranslated(problem);
    }
    m_begin = std::chrono::steady_clock::now();
    for (double next = 0; !isDone(); next = std::max(next + m_options.interval, elapsed())) {
        if (!waitUntil(next))
            break;
        read();
    }
    m_progress.endLine();
    return {};
}

double ThermalRun::elapsed() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_begin).count();
}

std::string ThermalRun::openLog()
{
    std::string problem = m_monitor->log().open(m_options.log, m_monitor->placeNames());
    if (problem.empty() && m_monitor->log().path() != m_options.log)
        printError(
            "\"" + m_options.log + "\" is another file; the log is \"" + m_monitor->log().path() + "\"");
    return problem;
}

/// Returns true when the time is over or the camera is steady.
bool ThermalRun::isDone()
{
    const bool isOver = m_options.seconds > 0 && elapsed() >= m_options.seconds;
    const bool isSteady = m_options.isUntilSteady && m_monitor->isSteady();
    const bool hasEnd = m_options.seconds > 0 || m_options.isUntilSteady;
    m_isComplete = isOver || isSteady || !hasEnd;
    return isOver || isSteady;
}

/// Returns false if Ctrl-C was pressed. Takes the images that arrive meanwhile.
bool ThermalRun::waitUntil(double seconds)
{
    constexpr std::chrono::milliseconds slice{50};
    while (!isInterrupted() && elapsed() < seconds) {
        std::shared_ptr<const Image> image;
        const CvxResult result = m_frames ? m_frames->next(slice, image) : CvxResult{CvxErrorClosed, {}};
        if (result && image->GetInfo().isComplete)
            m_newest = image;
        if (!result && result.code != CvxErrorTimeout) // Only a time-out has taken time.
            std::this_thread::sleep_for(slice);
    }
    return !isInterrupted();
}

void ThermalRun::read()
{
    const TemperatureReading reading = readTemperatures(m_device, m_source);
    const double now = elapsed();
    if (m_options.isDark)
        measureDark(now);
    const auto changes = m_monitor->add(now, utcNow(), reading.celsius);
    if (reading.problem.text != m_readProblem) {
        m_readProblem = reading.problem.text;
        report(m_readProblem.empty() ? "the temperatures can be read again" : m_readProblem);
    }
    for (const ThermalMonitor::AlertChange &change : changes)
        report(placeName(change.place) + ": " + alertName(change.level) + " at " + decimals(change.celsius, 2)
            + " degC");
    if (const std::string &problem = m_monitor->log().problem(); problem != m_logProblem) {
        m_logProblem = problem;
        report(problem.empty() ? "the log goes on" : problem);
    }
    m_progress.update(*m_monitor);
}

void ThermalRun::measureDark(double seconds)
{
    if (!m_newest) {
        reportMissingImages(seconds);
        return;
    }
    DarkLevel level;
    Sentence problem = m_meter.measure(rawImage(*m_newest), level);
    m_newest.reset();
    m_awaitsImage = false;
    if (problem.isEmpty()) {
        m_monitor->setDark(level);
        problem = DarkMeter::hint(level);
    }
    if (const std::string text = toEnglish(problem); text != m_darkProblem) {
        m_darkProblem = text;
        report(text);
    }
}

void ThermalRun::reportMissingImages(double seconds)
{
    constexpr double longestWait = 10;
    if (!m_awaitsImage || seconds < longestWait)
        return;
    m_awaitsImage = false;
    report("The camera has sent no image, so the dark level cannot be measured. Trigger it, or set "
           "TriggerMode to "
           "Off.");
}

void ThermalRun::report(const std::string &text)
{
    m_progress.endLine();
    if (!text.empty())
        printError(text);
}
