// Uses the Image Viewer at random for some minutes: zooms, turns, freezes, changes pixel format and region,
// saves, records, unplugs the camera and kills its process. Fails if a picture does not come back, or if
// memory, descriptors or threads have grown.
//
// usage: viewer_soak MINUTES SEED FOLDER   within with-sdk; FOLDER is for the files, which are deleted

#include "bench/programs/Timing.h"
#include "tests/imageviewer/ViewerUnderTest.h"
#include "tests/toolundertest/SimulatedCameras.h"
#include "tools/imageviewer/files/RecordingControl.h"

#include <QApplication>
#include <QDir>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

constexpr double mebibyte = 1024 * 1024;

/// What the process uses.
struct Footprint
{
    double memory = 0; // MiB.
    double descriptors = 0;
    double threads = 0;
};

Footprint footprint()
{
    const auto count = [](const char *directory) {
        return double(QDir(QLatin1String(directory))
                          .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                          .size());
    };
    return {memoryOf("self") / mebibyte, count("/proc/self/fd"), count("/proc/self/task")};
}

class Session
{
public:
    Session(unsigned seed, const QString &folder)
        : m_random(seed),
          m_folder(folder),
          m_viewer(QStringLiteral("1002"),
              {{QStringLiteral("files/folder"), folder},
                  {QStringLiteral("files/recordingFormat"), int(RecordingFormat::Raw)}})
    {
        m_viewer.awaitPicture();
    }

    /// Does one random thing and waits until the picture goes on.
    void step()
    {
        struct Step
        {
            const char *name;
            void (Session::*run)();
        };
        constexpr Step steps[] = {{"zoom", &Session::zoom}, {"zoom", &Session::zoom},
            {"turn", &Session::turn}, {"freeze", &Session::freeze}, {"format", &Session::changeFormat},
            {"region", &Session::changeRegion}, {"snapshot", &Session::save}, {"record", &Session::record},
            {"unplug", &Session::unplug}, {"kill", &Session::killHost}};
        const Step &step = steps[pick(int(std::size(steps)))];
        std::fprintf(stderr, "%s\n", step.name);
        (this->*step.run)();
        m_viewer.awaitNewPicture();
    }

private:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }

    void run(double seconds)
    {
        const auto start = Clock::now();
        await([&] { return microsecondsSince(start) > seconds * 1e6; });
    }

    void zoom()
    {
        for (int count = pick(12); count > 0; --count) {
            m_viewer.canvas().zoomIn();
            run(0.02);
        }
        run(0.3);
        m_viewer.canvas().fit();
    }

    void turn()
    {
        m_viewer.canvas().rotateRight();
        m_viewer.canvas().mirrorHorizontally();
    }

    void freeze()
    {
        m_viewer.action(QStringLiteral("Freeze")).trigger();
        zoom();
        m_viewer.action(QStringLiteral("Freeze")).trigger();
    }

    void pauseFor(const CameraConnection::Call &call)
    {
        bool isDone = false;
        m_viewer.window().stream().pauseFor(
            call, &m_viewer.window(), [&](const CvxCPP::CvxResult &) { isDone = true; });
        await([&] { return isDone; });
    }

    void changeFormat()
    {
        const char *const formats[] = {"BayerRG8", "BayerRG12p", "BayerRG12", "BayerRG8"};
        const std::string format = formats[pick(int(std::size(formats)))];
        pauseFor([&](CvxCPP::Device &device) { return device.WriteString("PixelFormat", format); });
    }

    void changeRegion()
    {
        const std::int64_t width = 64 * (1 + pick(5));
        pauseFor([&](CvxCPP::Device &device) { return device.WriteInteger("Width", width); });
    }

    void save()
    {
        m_viewer.action(QStringLiteral("Save snapshot")).trigger();
        run(0.2);
    }

    void record()
    {
        auto *const recording = m_viewer.find<RecordingControl>();
        m_viewer.action(QStringLiteral("Record")).trigger();
        run(0.5);
        changeRegion();
        run(0.5);
        recording->stop();
        await([&] { return recording->state() == RecordingControl::State::Idle; });
        const QFileInfoList files = QDir(m_folder).entryInfoList(QDir::Files);
        for (const QFileInfo &file : files)
            QFile::remove(file.filePath());
    }

    void unplug()
    {
        m_cameras.plug({});
        awaitState(CameraConnection::State::Lost);
        m_cameras.plug({QStringLiteral("1002")});
        awaitState(CameraConnection::State::Open);
    }

    void killHost()
    {
        const auto reopenCount = [this] { return m_viewer.window().stream().statistics().reopenCount; };
        const std::uint32_t before = reopenCount();
        signalCameraHost(QStringLiteral("KILL"));
        await([&] { return reopenCount() > before; });
    }

    void awaitState(CameraConnection::State state)
    {
        await([&] { return m_viewer.window().connection().state() == state; });
    }

    std::mt19937 m_random;
    const QString m_folder;
    SimulatedCameras m_cameras;
    ViewerUnderTest m_viewer;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4)
        return EXIT_FAILURE;
    const double minutes = arguments.at(1).toDouble();
    SimulatedCameras().plug({QStringLiteral("1002")});
    Session session(arguments.at(2).toUInt(), arguments.at(3));
    Footprint middle, end;
    int steps = 0;
    const auto start = Clock::now();
    // The first half fills caches and the memory of the allocator.
    for (double elapsed = 0; elapsed < minutes * 60; elapsed = microsecondsSince(start) / 1e6, ++steps) {
        session.step();
        if (elapsed < minutes * 30)
            middle = footprint();
    }
    end = footprint();
    std::printf("%d steps; memory %.1f -> %.1f MiB, descriptors %.0f -> %.0f, threads %.0f -> %.0f\n", steps,
        middle.memory, end.memory, middle.descriptors, end.descriptors, middle.threads, end.threads);
    const bool hasGrown = end.memory > middle.memory + 16 || end.descriptors > middle.descriptors + 4
        || end.threads > middle.threads + 2;
    return hasGrown ? EXIT_FAILURE : EXIT_SUCCESS;
}
