// Measures the Image Viewer on one camera. Prints one number per line.
//
// usage: bench_view CAMERA first                    ms from the window to its first picture
//        bench_view CAMERA shown FORMAT RATE SECONDS   % of a core of viewer and host, with the picture
//        fitted into
//                                                   1200 x 800 pixels; images shown per second; images lost
//        bench_view CAMERA record FOLDER RATE SECONDS  images lost; images recorded per second; ms that 99.9
//        % of the
//                                                   events of the GUI thread wait at most
//        bench_view CAMERA memory                   bytes of both processes while streaming, minus the
//        buffers
//
// A RATE of 0 is as fast as the camera can.

#include "bench/programs/HostProcess.h"
#include "bench/programs/Timing.h"
#include "tests/imageviewer/ViewerUnderTest.h"
#include "tools/imageviewer/files/RecordingControl.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

constexpr double shortExposure = 20; // Microseconds.

void setUp(ViewerUnderTest &viewer, const std::string &format, double rate)
{
    LivePauser pauser(viewer.window().stream());
    bool isDone = false;
    const auto prepare = [&](CvxCPP::Device &device) -> CvxCPP::CvxResult {
        if (const auto result = device.WriteString("PixelFormat", format); !result)
            return result;
        if (const auto result = device.WriteFloat("ExposureTime", shortExposure); !result)
            return result;
        if (const auto result = device.WriteBoolean("AcquisitionFrameRateEnable", rate > 0);
            !result || rate == 0)
            return result;
        return device.WriteFloat("AcquisitionFrameRate", rate);
    };
    pauser.pauseFor(prepare, &viewer.window(), [&](const CvxCPP::CvxResult &result) {
        if (!result)
            qFatal("%s", result.text.c_str());
        isDone = true;
    });
    await([&] { return isDone; });
    viewer.awaitNewPicture();
}

std::uint64_t missing(const CvxCPP::StreamStatistics &statistics)
{
    return statistics.lost + statistics.incomplete + statistics.underruns;
}

void measureShown(ViewerUnderTest &viewer, double seconds)
{
    LiveStream &stream = viewer.window().stream();
    const std::string host = hostProcess();
    const auto used = [&] { return processorTime(RUSAGE_SELF) + processorTimeOf(host); };
    const auto shown = [&] { return viewer.find<PictureFeed>()->shownCount(); };
    const std::uint64_t lostBefore = missing(stream.statistics()), shownBefore = shown();
    const double before = used();
    const auto start = Clock::now();
    processEvents(static_cast<int>(seconds * 1000));
    const double elapsed = microsecondsSince(start);
    std::printf("%f\n%f\n%llu\n", (used() - before) / elapsed * 100,
        static_cast<double>(shown() - shownBefore) / (elapsed / 1e6),
        static_cast<unsigned long long>(missing(stream.statistics()) - lostBefore));
}

/// Posts an event every two milliseconds and returns how long each has waited, in milliseconds.
class EventProbe : public QObject
{
public:
    EventProbe() : m_thread([this] { post(); }) { }
    ~EventProbe() override
    {
        m_isEnding = true;
        m_thread.join();
    }

    double wait(double share)
    {
        std::sort(m_waits.begin(), m_waits.end());
        return m_waits.at(
            static_cast<std::size_t>(std::floor(share * static_cast<double>(m_waits.size() - 1))));
    }

private:
    void post()
    {
        for (; !m_isEnding; std::this_thread::sleep_for(std::chrono::milliseconds(2))) {
            QMetaObject::invokeMethod(
                this, [this, start = Clock::now()] { m_waits.push_back(microsecondsSince(start) / 1000); },
                Qt::QueuedConnection);
        }
    }

    std::atomic<bool> m_isEnding{false};
    std::vector<double> m_waits;
    std::thread m_thread;
};

void measureRecording(ViewerUnderTest &viewer, const QString &folder, double seconds)
{
    auto *const recording = viewer.find<RecordingControl>();
    RecordingOptions options;
    options.folder = folder;
    options.pattern = QStringLiteral("bench");
    options.format = RecordingFormat::Raw;
    options.maxSeconds = seconds;
    RecordingResult outcome;
    bool isFinished = false;
    QObject::connect(recording, &RecordingControl::finished, recording, [&](const RecordingResult &result) {
        outcome = result;
        isFinished = true;
    });
    EventProbe probe;
    recording->start(options);
    while (!isFinished)
        processEvents(10);
    const RecordingProgress &progress = outcome.progress;
    std::printf("%llu\n%f\n%f\n",
        static_cast<unsigned long long>(
            progress.lost + progress.underruns + progress.incomplete + progress.skipped + progress.unwritten),
        static_cast<double>(progress.images) / progress.seconds, probe.wait(0.999));
}

void measureMemory(ViewerUnderTest &viewer)
{
    processEvents(5000); // Every buffer is used.
    const double buffers
        = static_cast<double>(viewer.canvas().picture().image->GetSize()) * ViewerWindow::streamBuffers;
    std::printf("%f\n", memoryOf("self") + memoryOf(hostProcess()) - buffers);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3)
        return EXIT_FAILURE;
    const QString mode = arguments.at(2);
    const auto start = Clock::now();
    ViewerUnderTest viewer(arguments.at(1));
    viewer.awaitPicture();
    if (mode == QLatin1String("first")) {
        std::printf("%f\n", microsecondsSince(start) / 1000);
        return EXIT_SUCCESS;
    }
    viewer.window().resize(viewer.window().size() + QSize(1200, 800) - viewer.canvas().size());
    if (mode == QLatin1String("shown")) {
        setUp(viewer, arguments.at(3).toStdString(), arguments.at(4).toDouble());
        measureShown(viewer, arguments.at(5).toDouble());
    } else if (mode == QLatin1String("record")) {
        setUp(viewer, "Mono8", arguments.at(4).toDouble());
        measureRecording(viewer, arguments.at(3), arguments.at(5).toDouble());
    } else if (mode == QLatin1String("memory")) {
        setUp(viewer, "Mono8", 0);
        measureMemory(viewer);
    }
    return EXIT_SUCCESS;
}
