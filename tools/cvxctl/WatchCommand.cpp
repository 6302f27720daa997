#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"

#include <chrono>
#include <cstdio>
#include <unistd.h>

using namespace CvxCPP;
using Clock = std::chrono::steady_clock;

namespace {

struct WatchOptions
{
    std::string camera;
    double seconds = 0; // 0 is without end.
    unsigned buffers = 8;
    bool isJson = false;
};

nlohmann::ordered_json toJson(const StreamStatistics &counters)
{
    return {{"images", counters.delivered}, {"incomplete", counters.incomplete}, {"lost", counters.lost},
        {"underruns", counters.underruns}, {"bytes", counters.bytes},
        {"imagesPerSecond", counters.imagesPerSecond}, {"bytesPerSecond", counters.bytesPerSecond},
        {"reopened", counters.reopenCount}};
}

/// Prints one line of counters. On a terminal, the line replaces the previous one.
void print(const StreamStatistics &counters, bool isJson)
{
    if (isJson) {
        std::printf("%s\n", toJson(counters).dump().c_str());
    } else {
        constexpr double megabyte = 1e6;
        std::printf("%s%llu images  %.1f images/s  %.1f MB/s  %llu incomplete  %llu lost  %llu underruns  "
                    "%u reopened%s",
            isatty(STDOUT_FILENO) != 0 ? "\r\x1B[K" : "", static_cast<unsigned long long>(counters.delivered),
            counters.imagesPerSecond, counters.bytesPerSecond / megabyte,
            static_cast<unsigned long long>(counters.incomplete),
            static_cast<unsigned long long>(counters.lost),
            static_cast<unsigned long long>(counters.underruns), counters.reopenCount,
            isatty(STDOUT_FILENO) != 0 ? "" : "\n");
    }
    std::fflush(stdout);
}

/// Takes images until the time is over or Ctrl-C is pressed, and prints the counters every second.
ExitStatus watch(Stream &stream, const WatchOptions &options)
{
    using namespace std::chrono_literals;
    const auto start = Clock::now();
    const auto end = options.seconds > 0
        ? start + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(options.seconds))
        : Clock::time_point::max();
    auto nextLine = start + 1s;
    StreamStatistics counters;
    bool isLost = false;
    while (!isInterrupted() && Clock::now() < end) {
        std::shared_ptr<const Image> image;
        const CvxResult result = stream.WaitForImage(100ms, image);
        if (result.code == CvxErrorDeviceLost && !isLost)
            printError(result.text);
        isLost = result.code == CvxErrorDeviceLost || (isLost && !result);
        if (!result && result.code != CvxErrorTimeout && result.code != CvxErrorDeviceLost)
            return reportFailure(result);
        if (Clock::now() < nextLine)
            continue;
        nextLine += 1s;
        if (const CvxResult read = stream.GetStatistics(counters); !read)
            return reportFailure(read);
        print(counters, options.isJson);
    }
    if (const CvxResult result = stream.GetStatistics(counters); !result)
        return reportFailure(result);
    print(counters, options.isJson);
    if (!options.isJson && isatty(STDOUT_FILENO) != 0)
        std::printf("\n");
    return isLost ? exitLost : exitSuccess;
}

ExitStatus run(const WatchOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessControl))
        return status;
    std::shared_ptr<Stream> stream;
    if (const CvxResult result
        = session.device().StartStream(options.buffers, StreamPolicy::EveryImage, stream);
        !result)
        return reportFailure(result);
    const ExitStatus status = watch(*stream, options);
    const CvxResult result = stream->Stop();
    return status == exitSuccess && !result ? reportFailure(result) : status;
}

} // namespace

void addWatchCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<WatchOptions>();
    CLI::App *const command = program.add_subcommand("watch",
        "Stream images without keeping them, and print the counters every second until Ctrl-C. Exit status 6 "
        "means "
        "that the camera was gone at the end");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("--seconds", options->seconds, "End after this time")->check(CLI::PositiveNumber);
    command->add_option("--buffers", options->buffers, "Number of buffers")
        ->check(CLI::Range(2, 256))
        ->capture_default_str();
    command->add_flag("--json", options->isJson, "Print one JSON object per line");
    command->callback([options, &status] { status = run(*options); });
}
