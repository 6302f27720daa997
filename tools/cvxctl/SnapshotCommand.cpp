#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/ImageFile.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"

#include <chrono>

using namespace CvxCPP;

namespace {

struct SnapshotOptions
{
    std::string camera;
    std::string file;
    double timeout = 10; // Seconds.
    bool isJson = false;
};

bool isPng(const std::string &file)
{
    return file.size() >= 4 && file.compare(file.size() - 4, 4, ".png") == 0;
}

/// Waits for a complete image. Incomplete images are skipped.
ExitStatus takeImage(Stream &stream, double timeout, std::shared_ptr<const Image> &image)
{
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds slice{100};
    const auto end = Clock::now() + std::chrono::duration<double>(timeout);
    while (!isInterrupted()) {
        const CvxResult result = stream.WaitForImage(slice, image);
        if (result && image->GetInfo().isComplete)
            return exitSuccess;
        if (!result && result.code != CvxErrorTimeout && result.code != CvxErrorDeviceLost)
            return reportFailure(result);
        if (Clock::now() < end)
            continue;
        printError(!result && result.code == CvxErrorDeviceLost
                ? result.text
                : "no complete image has arrived; does the camera wait for a trigger (TriggerMode)?");
        return exitLost;
    }
    return exitInterrupted;
}

nlohmann::ordered_json toJson(const Image &image, const std::string &file)
{
    const ImageInfo &info = image.GetInfo();
    return {{"file", file}, {"width", info.width}, {"height", info.height}, {"offsetX", info.offsetX},
        {"offsetY", info.offsetY}, {"paddingX", info.paddingX}, {"pixelFormat", info.pixelFormat},
        {"timestamp", info.timestamp}, {"frameId", info.frameId}, {"bytes", image.GetSize()}};
}

ExitStatus run(const SnapshotOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessControl))
        return status;
    constexpr unsigned buffers = 3;
    std::shared_ptr<Stream> stream;
    if (const CvxResult result = session.device().StartStream(buffers, StreamPolicy::NewestImage, stream);
        !result)
        return reportFailure(result);
    std::shared_ptr<const Image> image;
    if (const ExitStatus status = takeImage(*stream, options.timeout, image))
        return status;
    const CvxResult stopped = stream->Stop();
    const std::string problem
        = isPng(options.file) ? writePng(*image, options.file) : writeRaw(*image, options.file);
    if (!problem.empty()) {
        printError(problem);
        return exitFailure;
    }
    if (options.isJson)
        printJson(toJson(*image, options.file));
    return stopped ? exitSuccess : reportFailure(stopped);
}

} // namespace

void addSnapshotCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<SnapshotOptions>();
    CLI::App *const command = program.add_subcommand("snapshot",
        "Save one image: as 8-bit PNG (Mono8, BayerRG8, RGB8) if the name of the file ends in .png, "
        "otherwise the "
        "bytes of the picture");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("FILE", options->file, "Name of the file, which is replaced if it exists")
        ->required();
    command->add_option("--timeout", options->timeout, "Seconds to wait for a complete image")
        ->check(CLI::Range(0.0, 3600.0))
        ->capture_default_str();
    command->add_flag("--json", options->isJson, "Print width, height, pixel format and so on as JSON");
    command->callback([options, &status] { status = run(*options); });
}
