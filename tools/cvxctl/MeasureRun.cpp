#include "tools/cvxctl/MeasureRun.h"

#include "tools/cvxctl/Assignment.h"
#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/kit/measure/run/StreamFrames.h"

#include <cstdio>
#include <optional>
#include <unistd.h>

using namespace CvxCPP;

namespace {

/// Shows on standard error how many steps of a measurement are done, if that is a terminal.
class StepLine
{
public:
    ~StepLine() { clear(); }

    void show(std::size_t done, std::size_t total)
    {
        if (!m_isTerminal || (m_hasLine && done == m_done && total == m_total))
            return;
        m_done = done;
        m_total = total;
        m_hasLine = done < total;
        std::fputs("\r\x1B[K", stderr);
        if (m_hasLine)
            std::fprintf(stderr, "%zu of %zu", done, total);
    }

    void clear()
    {
        if (m_hasLine)
            std::fputs("\r\x1B[K", stderr);
        m_hasLine = false;
    }

private:
    const bool m_isTerminal = isatty(STDERR_FILENO) != 0;
    bool m_hasLine = false;
    std::size_t m_done = 0;
    std::size_t m_total = 0;
};

std::optional<std::string> readText(Device &device, const std::string &name)
{
    std::string text;
    return device.ReadText(name, text) ? std::optional(text) : std::nullopt;
}

/// Writes the values of --set and knows what was there before.
class MeasureSettings
{
public:
    ExitStatus write(Device &device, const std::vector<std::string> &assignments)
    {
        for (const std::string &assignment : assignments) {
            const std::string name = assignedName(assignment);
            const std::optional<std::string> before = readText(device, name);
            if (const ExitStatus status = writeAssignment(device, assignment))
                return status;
            if (before)
                m_settings.push_back({name, *before, readText(device, name)});
        }
        return exitSuccess;
    }

    /// Leaves the settings alone that the measurement has set since. Prints an error for each value that the
    /// camera refuses.
    ExitStatus putBack(Device &device)
    {
        ExitStatus status = exitSuccess;
        for (auto setting = m_settings.rbegin(); setting != m_settings.rend(); ++setting) {
            const auto now = setting->written ? readText(device, setting->name) : std::nullopt;
            if (now && now != setting->written)
                continue;
            const CvxResult result = device.WriteText(setting->name, setting->before);
            if (!result)
                status = reportFailure(result);
        }
        return status;
    }

private:
    struct Setting
    {
        std::string name;
        std::string before;
        std::optional<std::string> written; // The written value, as the camera shows it.
    };
    std::vector<Setting> m_settings; // In the order of the writes.
};

/// Runs the work with a stream. Prints an error on failure.
ExitStatus runWork(CameraSession &session, const MeasureWork &work)
{
    Device &device = session.device();
    const CameraRecord camera = readCameraRecord(*session.camera().camera, device);
    constexpr unsigned buffers = 8;
    std::shared_ptr<Stream> stream;
    if (const CvxResult result = device.StartStream(buffers, StreamPolicy::EveryImage, stream); !result)
        return reportFailure(result);
    StreamFrames frames(*stream);
    StepLine line;
    const MeasureProgress progress = [&line](std::size_t done, std::size_t total) {
        line.show(done, total);
        return !isInterrupted();
    };
    const Sentence problem = work({device, frames, progress}, camera);
    line.clear();
    std::uint32_t reopenCount = 0;
    const bool isLost = device.GetState(reopenCount) != DeviceState::Open;
    const CvxResult stopped = stream->Stop();
    if (!problem.isEmpty())
        printError(toEnglish(problem));
    if (isInterrupted())
        return exitInterrupted;
    if (!problem.isEmpty())
        return isLost ? exitLost : exitFailure;
    return stopped ? exitSuccess : reportFailure(stopped);
}

} // namespace

void addMeasureOptions(CLI::App &command, MeasureOptions &options)
{
    command.add_option("CAMERA", options.camera, cameraHelp)->required();
    addSetOption(command, options.assignments);
}

ExitStatus runMeasurement(const MeasureOptions &options, const MeasureWork &work)
{
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessControl))
        return status;
    Device &device = session.device();
    if (const CvxResult begun = device.BeginTemporaryChanges(); !begun)
        return reportFailure(begun);
    MeasureSettings settings;
    ExitStatus status = settings.write(device, options.assignments);
    if (status == exitSuccess)
        status = runWork(session, work);
    const bool isKept = status == exitSuccess && options.keepsChanges;
    if (isKept)
        status = settings.putBack(device);
    const CvxResult ended
        = device.EndTemporaryChanges(isKept ? TemporaryChanges::Keep : TemporaryChanges::PutBack);
    if (ended)
        return status;
    const ExitStatus failure = reportFailure(ended);
    return status == exitSuccess ? failure : status;
}

ExitStatus askPerson(const std::string &request, const std::string &options)
{
    if (isatty(STDIN_FILENO) == 0) {
        printError(request + " Nobody can be asked, because standard input is not a terminal"
            + (options.empty() ? "; \"--help\" shows the options of this command."
                               : "; use " + options + '.'));
        return exitUsage;
    }
    std::fprintf(stderr, "%s Then press Return.\n", printable(request).c_str());
    for (int character = 0; character != '\n' && !isInterrupted(); character = std::getchar()) {
        if (character == EOF) {
            printError("the input has ended");
            return exitFailure;
        }
    }
    return isInterrupted() ? exitInterrupted : exitSuccess;
}
