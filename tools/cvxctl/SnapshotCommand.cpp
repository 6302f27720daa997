#include "sdk/imagefile/ImageFileWriter.h"
#include "sdk/imagefile/Sidecar.h"
#include "tools/cvxctl/Assignment.h"
#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/CorrectOption.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"

#include <algorithm>
#include <chrono>
#include <map>

using namespace CvxCPP;

namespace {

using SnapshotClock = std::chrono::steady_clock;

struct SnapshotOptions
{
    std::string camera;
    std::string file;
    std::string format; // Empty: the name of the file says it.
    std::vector<std::string> assignments;
    std::vector<std::string> corrections; // Files.
    unsigned count = 1;
    double interval = 0; // Seconds.
    double timeout = 10; // Seconds.
    bool isJson = false;
};

const std::map<std::string, ImageFileFormat> snapshotFormats{{"png8", ImageFileFormat::Png8},
    {"png16", ImageFileFormat::Png16}, {"tiff", ImageFileFormat::Tiff}, {"raw", ImageFileFormat::Raw}};

SnapshotClock::duration durationOf(double seconds)
{
    return std::chrono::duration_cast<SnapshotClock::duration>(std::chrono::duration<double>(seconds));
}

/// Waits for a complete image that arrives at `due` or later. Incomplete images are skipped.
ExitStatus takeImage(
    Stream &stream, SnapshotClock::time_point due, double timeout, std::shared_ptr<const Image> &image)
{
    constexpr std::chrono::milliseconds slice{100};
    const auto end = std::max(due, SnapshotClock::now()) + durationOf(timeout);
    std::string loss; // Why the camera is lost; empty if it is not.
    while (!isInterrupted()) {
        const CvxResult result = stream.WaitForImage(slice, image);
        if (result || result.code == CvxErrorDeviceLost)
            loss = result.text;
        if (result && image->GetInfo().isComplete
            && std::chrono::nanoseconds(image->GetInfo().receivedAt) >= due.time_since_epoch())
            return exitSuccess;
        if (!result && result.code != CvxErrorTimeout && result.code != CvxErrorDeviceLost)
            return reportFailure(result);
        if (SnapshotClock::now() < end)
            continue;
        printError(loss.empty()
                ? "no complete image has arrived; does the camera wait for a trigger (TriggerMode)?"
                : loss);
        return exitLost;
    }
    return exitInterrupted;
}

ImageFileFormat snapshotFormat(const SnapshotOptions &options)
{
    return options.format.empty() ? imageFileFormat(options.file) : snapshotFormats.at(options.format);
}

/// Saves `count` images. `files` gets the record of each saved one.
ExitStatus saveImages(Stream &stream, const SnapshotOptions &options, const CameraRecord &camera,
    ImageFileWriter &writer, nlohmann::ordered_json &files)
{
    const ImageFileFormat format = snapshotFormat(options);
    SnapshotClock::time_point due; // The first image is due at once.
    for (unsigned number = 1; number <= options.count; ++number) {
        std::shared_ptr<const Image> image;
        if (const ExitStatus status = takeImage(stream, due, options.timeout, image))
            return status;
        if (number == 1)
            due = SnapshotClock::time_point(std::chrono::nanoseconds(image->GetInfo().receivedAt));
        due += durationOf(options.interval);
        const std::string file
            = options.count == 1 ? options.file : numberedPath(options.file, number, options.count);
        if (const std::string problem = writer.write(*image, file, format, camera); !problem.empty()) {
            printError(problem);
            return exitFailure;
        }
        files.push_back({{"file", file}, {"format", formatText(format)}});
        files.back().update(imageJson(*image));
    }
    return exitSuccess;
}

ExitStatus run(const SnapshotOptions &options)
{
    CorrectionSource correction;
    if (const ExitStatus status
        = readCorrectionFiles(options.corrections, snapshotFormat(options), correction))
        return status;
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessControl))
        return status;
    if (const ExitStatus status = writeAssignments(session.device(), options.assignments))
        return status;
    const CameraRecord camera = readCameraRecord(*session.camera().camera, session.device());
    if (const std::string problem = cameraProblem(correction, camera); !problem.empty()) {
        printError(problem);
        return exitFailure;
    }
    ImageFileWriter writer;
    writer.setCorrection(std::move(correction));
    constexpr unsigned buffers = 3;
    std::shared_ptr<Stream> stream;
    if (const CvxResult result = session.device().StartStream(buffers, StreamPolicy::NewestImage, stream);
        !result)
        return reportFailure(result);
    auto files = nlohmann::ordered_json::array();
    const ExitStatus status = saveImages(*stream, options, camera, writer, files);
    const CvxResult stopped = stream->Stop();
    if (options.isJson && !files.empty())
        printJson(options.count == 1 ? files.front() : files);
    return status != exitSuccess || stopped ? status : reportFailure(stopped);
}

} // namespace

void addSnapshotCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<SnapshotOptions>();
    CLI::App *const command = program.add_subcommand("snapshot",
        "Save one image or several. FILE.json beside each image contains the camera, its settings and the "
        "times.\n"
        "png8, png16: for the eye; Bayer pictures become colour pictures, and the range of the values is "
        "stretched to that of the file. tiff: the measured values; Bayer pictures stay a pattern, whose "
        "order FILE.json names. raw: the bytes that the camera has sent");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("FILE", options->file, "Name of the file, which is replaced if it exists")
        ->required();
    command
        ->add_option("--format", options->format,
            "png8, png16, tiff or raw; by default, the name of the file decides: png8 for .png, tiff for "
            ".tif and .tiff, otherwise raw")
        ->check(CLI::IsMember(&snapshotFormats));
    command
        ->add_option("--count", options->count,
            "Number of images; the files get numbers: image-0001.png, image-0002.png ...")
        ->check(CLI::Range(1, 1'000'000))
        ->capture_default_str();
    command->add_option("--interval", options->interval, "Seconds from one image to the next")
        ->check(CLI::Range(0.0, 86400.0))
        ->capture_default_str();
    addSetOption(*command, options->assignments);
    addCorrectOption(*command, options->corrections);
    command->add_option("--timeout", options->timeout, "Seconds to wait for a complete image")
        ->check(CLI::Range(0.0, 3600.0))
        ->capture_default_str();
    command->add_flag("--json", options->isJson,
        "Print width, height, pixel format and so on as JSON; a list if --count is more than 1");
    command->callback([options, &status] { status = run(*options); });
}
