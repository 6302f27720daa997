#include "sdk/image/PixelFormat.h"
#include "sdk/imagefile/DiskSpace.h"
#include "sdk/imagefile/Recorder.h"
#include "tools/cvxctl/Assignment.h"
#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/CorrectOption.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/RecordProgress.h"
#include "tools/cvxctl/Terminal.h"

#include <algorithm>
#include <chrono>
#include <cinttypes>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <limits>

using namespace CvxCPP;

namespace {

using RecordClock = std::chrono::steady_clock;

struct RecordOptions
{
    std::string camera;
    std::string file;
    std::vector<std::string> assignments;
    std::vector<std::string> corrections; // Files.
    std::uint64_t frames = 0; // 0 is without end.
    double seconds = 0; // 0 is without end.
    unsigned buffers = 32;
    bool isJson = false;
};

/// How the images were taken.
struct Taking
{
    std::uint64_t images = 0;
    double seconds = 0;
    bool isComplete = false; // False if Ctrl-C or a failure of the file came first.
    bool isCameraLost = false; // At the end.
    StreamStatistics statistics;
};

/// Returns the number of images if frames or seconds limit it and, for seconds, the camera has a fixed rate.
std::optional<double> expectedImages(Device &device, const RecordOptions &options)
{
    std::optional<double> images;
    if (options.frames > 0)
        images = static_cast<double>(options.frames);
    bool isRateFixed = true;
    double rate = 0;
    if (!device.ReadBoolean("AcquisitionFrameRateEnable", isRateFixed))
        isRateFixed = true; // Cameras without this feature always obey the rate.
    std::string trigger;
    const bool isTriggered = device.ReadString("TriggerMode", trigger) && trigger == "On";
    if (options.seconds > 0 && isRateFixed && !isTriggered && device.ReadFloat("AcquisitionFrameRate", rate))
        images = std::min(images.value_or(std::numeric_limits<double>::max()), options.seconds * rate);
    return images;
}

/// Returns the size and the place of the images that the camera is going to send.
ImageInfo announcedImage(Device &device, std::uint32_t pixelFormat, std::int64_t width, std::int64_t height)
{
    std::int64_t offsetX = 0; // Stays 0 if the camera lacks the feature.
    std::int64_t offsetY = 0;
    static_cast<void>(device.ReadInteger("OffsetX", offsetX));
    static_cast<void>(device.ReadInteger("OffsetY", offsetY));
    ImageInfo region;
    region.pixelFormat = pixelFormat;
    region.width = static_cast<std::uint32_t>(width);
    region.height = static_cast<std::uint32_t>(height);
    region.offsetX = static_cast<std::uint32_t>(offsetX);
    region.offsetY = static_cast<std::uint32_t>(offsetY);
    return region;
}

/// Returns why the camera's images cannot be recorded in this file, as far as the camera says that before
/// the stream starts.
std::string findProblem(Device &device, const RecordOptions &options, const CorrectionSource &correction)
{
    std::string name;
    std::int64_t width = 0;
    std::int64_t height = 0;
    if (!device.ReadString("PixelFormat", name) || !device.ReadInteger("Width", width)
        || !device.ReadInteger("Height", height))
        return {};
    const PixelFormat *const format = findPixelFormat(name);
    if (!format)
        return {}; // The images contain the code, which the recorder checks.
    RecordedSize size = recordedSize(
        options.file, format->code, static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height));
    if (!size.problem.empty())
        return std::move(size.problem);
    if (std::string problem
        = correctionProblem(correction, announcedImage(device, format->code, width, height));
        !problem.empty())
        return problem;
    const std::optional<double> images = expectedImages(device, options);
    std::optional<std::uint64_t> usable = usableSpace(options.file);
    std::error_code error;
    if (usable && std::filesystem::is_regular_file(options.file, error))
        *usable += std::filesystem::file_size(options.file, error); // The file is emptied first.
    const double needed = images.value_or(0) * static_cast<double>(size.bytes);
    if (!usable || needed <= static_cast<double>(*usable))
        return {};
    return "the recording needs about " + byteText(static_cast<std::uint64_t>(std::min(needed, 1e18)))
        + ", but only " + byteText(*usable) + " can be used for \"" + options.file
        + "\"; record less, free some space or choose another folder";
}

/// Passes images to the recorder until there are enough, the time is over, Ctrl-C is pressed or the file
/// fails.
ExitStatus takeImages(Stream &stream, Recorder &recorder, const RecordOptions &options, Taking &taking)
{
    constexpr std::chrono::milliseconds slice{100};
    const std::uint64_t frames
        = options.frames > 0 ? options.frames : std::numeric_limits<std::uint64_t>::max();
    const auto start = RecordClock::now();
    const auto elapsed = [&] { return std::chrono::duration<double>(RecordClock::now() - start).count(); };
    RecordProgress progress(stream, recorder, options.file);
    ExitStatus failure = exitSuccess;
    while (!isInterrupted() && recorder.problem().empty()) {
        taking.isComplete = taking.images == frames || (options.seconds > 0 && elapsed() >= options.seconds);
        if (taking.isComplete)
            break;
        std::shared_ptr<const Image> image;
        const CvxResult result = stream.WaitForImage(slice, image);
        if (result) {
            recorder.add(std::move(image));
            ++taking.images;
        } else if (result.code == CvxErrorDeviceLost && !taking.isCameraLost) {
            progress.endLine();
            printError(result.text);
        } else if (result.code != CvxErrorTimeout && result.code != CvxErrorDeviceLost) {
            progress.endLine();
            failure = reportFailure(result);
            break;
        }
        taking.isCameraLost = result.code == CvxErrorDeviceLost || (taking.isCameraLost && !result);
        progress.update();
    }
    taking.isComplete = taking.isComplete || (options.frames == 0 && options.seconds <= 0);
    taking.seconds = elapsed();
    const CvxResult read = stream.GetStatistics(taking.statistics);
    return read || failure != exitSuccess ? failure : reportFailure(read);
}

void printSummary(const RecordOptions &options, const Taking &taking, const RecorderCounters &counters)
{
    const StreamStatistics &statistics = taking.statistics;
    if (options.isJson) {
        printJson({{"file", options.file}, {"images", counters.written}, {"bytes", counters.bytes},
            {"seconds", taking.seconds}, {"incomplete", counters.incomplete}, {"lost", statistics.lost},
            {"underruns", statistics.underruns}, {"unwritten", counters.unwritten},
            {"reopened", statistics.reopenCount}});
        return;
    }
    std::printf("%" PRIu64 " images, %s in %.1f s\n", counters.written, byteText(counters.bytes).c_str(),
        taking.seconds);
}

/// Names what the recording lacks. Returns true if it lacks nothing.
bool checkLosses(const Taking &taking, const RecorderCounters &counters)
{
    struct Loss
    {
        std::uint64_t count;
        const char *text;
    };
    const Loss losses[] = {
        {taking.statistics.lost, "lost (gaps in the frame IDs)"},
        {taking.statistics.underruns, "underruns (no buffer was free; use more --buffers or a faster disk)"},
        {counters.incomplete, "incomplete"},
        {counters.unwritten, "not written"},
        {taking.statistics.reopenCount, "times without the camera, until it was opened again"},
    };
    std::string text;
    for (const Loss &loss : losses) {
        if (loss.count > 0)
            text += (text.empty() ? "" : ", ") + std::to_string(loss.count) + " " + loss.text;
    }
    if (!text.empty())
        printError("the recording has gaps: " + text);
    return text.empty();
}

/// Returns the exit status of a recording that has ended without a failure of the stream.
ExitStatus judge(const Taking &taking, const RecorderCounters &counters, const std::string &problem)
{
    const bool hasAllImages = checkLosses(taking, counters);
    if (!problem.empty()) {
        printError(problem);
        return exitFailure;
    }
    if (taking.isCameraLost)
        return exitLost;
    if (!hasAllImages)
        return exitImagesMissing;
    if (taking.images == 0 && !isInterrupted()) {
        printError("no image has arrived; does the camera wait for a trigger (TriggerMode)?");
        return exitLost;
    }
    return taking.isComplete ? exitSuccess : exitInterrupted;
}

ExitStatus run(const RecordOptions &options)
{
    for (const int signal : {SIGXFSZ, SIGPIPE}) // The recorder reports the write that has failed.
        std::signal(signal, SIG_IGN);
    CorrectionSource correction;
    const bool isTiff = imageFileFormat(options.file) == ImageFileFormat::Tiff;
    if (const ExitStatus status = readCorrectionFiles(
            options.corrections, isTiff ? ImageFileFormat::Tiff : ImageFileFormat::Raw, correction))
        return status;
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessControl))
        return status;
    if (const ExitStatus status = writeAssignments(session.device(), options.assignments))
        return status;
    const CameraRecord camera = readCameraRecord(*session.camera().camera, session.device());
    std::string problem = findProblem(session.device(), options, correction);
    if (problem.empty())
        problem = cameraProblem(correction, camera);
    Recorder recorder;
    recorder.setCorrection(std::move(correction));
    if (problem.empty())
        problem = recorder.open(options.file, camera);
    if (!problem.empty()) {
        printError(problem);
        return exitFailure;
    }
    std::shared_ptr<Stream> stream;
    if (const CvxResult result
        = session.device().StartStream(options.buffers, StreamPolicy::EveryImage, stream);
        !result)
        return reportFailure(result);
    Taking taking;
    ExitStatus status = takeImages(*stream, recorder, options, taking);
    const CvxResult stopped = stream->Stop();
    problem = recorder.finish(taking.statistics);
    const RecorderCounters counters = recorder.counters();
    printSummary(options, taking, counters);
    if (status == exitSuccess)
        status = judge(taking, counters, problem);
    else
        checkLosses(taking, counters);
    return status != exitSuccess || stopped ? status : reportFailure(stopped);
}

} // namespace

void addRecordCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<RecordOptions>();
    CLI::App *const command = program.add_subcommand("record",
        "Record images until --frames, --seconds or Ctrl-C. If the name of the file ends in .tif or .tiff, "
        "it "
        "becomes a BigTIFF file with the measured values; Bayer pictures stay a pattern. Otherwise, the file "
        "contains the bytes of all images, and FILE.csv says where each image begins. FILE.json contains the "
        "camera, its settings and the losses. Exit status 8 means that the recording has gaps");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("FILE", options->file, "Name of the file, which is replaced if it exists")
        ->required();
    command->add_option("--frames", options->frames, "End after this number of images")
        ->check(CLI::PositiveNumber);
    command->add_option("--seconds", options->seconds, "End after this time")->check(CLI::PositiveNumber);
    command
        ->add_option(
            "--buffers", options->buffers, "Number of buffers; images wait in them while the disk is slow")
        ->check(CLI::Range(2, 256))
        ->capture_default_str();
    addSetOption(*command, options->assignments);
    addCorrectOption(*command, options->corrections);
    command->add_flag("--json", options->isJson, "Print the counters as JSON");
    command->callback([options, &status] { status = run(*options); });
}
