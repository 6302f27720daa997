#include "sdk/testing/Gate.h"
#include "tests/kit/camera/OpenableCamera.h"
#include "tests/kit/live/LiveImage.h"
#include "tests/kit/live/StreamingDevice.h"
#include "tools/kit/live/LiveStream.h"

#include <QtTest>

#include <optional>
#include <thread>

using namespace CvxCPP;
using State = LiveStream::State;

namespace {

constexpr int bound = 10000; // Milliseconds.

/// Remembers the frame IDs of its images.
class RecordingSink : public ImageSink
{
public:
    std::function<void()> beforeTake;

    void take(const std::shared_ptr<const Image> &image) override
    {
        if (beforeTake)
            beforeTake();
        const std::lock_guard lock(m_mutex);
        m_ids.push_back(image->GetInfo().frameId);
    }

    std::vector<std::uint64_t> ids() const
    {
        const std::lock_guard lock(m_mutex);
        return m_ids;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<std::uint64_t> m_ids;
};

using Ids = std::vector<std::uint64_t>;

/// An opened camera with a stream that is not started.
struct OpenStream
{
    OpenStream() { open(camera); }

    void open(const std::shared_ptr<OpenableCamera> &other)
    {
        connection.open(OpenableCamera::entry(other), CvxAccessControl);
        QVERIFY(
            QTest::qWaitFor([this] { return connection.state() == CameraConnection::State::Open; }, bound));
    }

    void start()
    {
        stream.start(8);
        QVERIFY(QTest::qWaitFor([this] { return stream.state() == State::Running; }, bound));
    }

    void deliver(std::uint64_t id) const { device->stream()->deliver(LiveImage::make(id)); }

    std::shared_ptr<StreamingDevice> device = std::make_shared<StreamingDevice>();
    std::shared_ptr<OpenableCamera> camera = std::make_shared<OpenableCamera>("CAM-1", device);
    RecordingSink sink;
    CameraConnection connection;
    LiveStream stream{connection};
};

} // namespace

class TestLiveStream : public QObject
{
    Q_OBJECT

private slots:
    void everyImageReachesEverySink();
    void imagesThatArrivedBeforeTheStopAreTaken();
    void statisticsRemainAfterTheStop();
    void failedStartSaysWhy();
    void startWithoutCameraFails();
    void streamThatEndsByItselfFails();
    void lostCameraKeepsTheStreamRunning();
    void startIsRepeatedWhenTheCameraIsBack();
    void pauseStopsCallsAndStarts();
    void failedCallOfAPauseIsReported();
    void pauseWithoutStreamOnlyCalls();
    void pauseFollowsAPendingStart();
    void pauseThatCannotStartAgainFails();
    void anotherCameraStopsTheStream();
    void removedSinkWaitsForItsImageAndGetsNoOther();
    void destructionStopsTheStream();
};

void TestLiveStream::everyImageReachesEverySink()
{
    OpenStream test;
    RecordingSink later;
    test.stream.addSink(&test.sink);
    const QSignalSpy changes(&test.stream, &LiveStream::stateChanged);
    test.start();
    QCOMPARE(changes.count(), 2); // Starting, Running.
    test.stream.addSink(&later);
    for (std::uint64_t id = 1; id <= 3; ++id)
        test.deliver(id);
    QTRY_COMPARE_WITH_TIMEOUT(test.sink.ids(), (Ids{1, 2, 3}), bound);
    QTRY_COMPARE_WITH_TIMEOUT(later.ids(), (Ids{1, 2, 3}), bound);
    QCOMPARE(test.stream.statistics().delivered, std::uint64_t(3));
}

void TestLiveStream::imagesThatArrivedBeforeTheStopAreTaken()
{
    CvxScripted::Gate gate;
    OpenStream test;
    test.sink.beforeTake = [&gate] { gate.pass(); };
    test.stream.addSink(&test.sink);
    test.start();
    test.deliver(1);
    test.deliver(2);
    QVERIFY(gate.waitForArrival());
    test.stream.stop();
    QCOMPARE(test.stream.state(), State::Stopping);
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Stopped, bound);
    QCOMPARE(test.sink.ids(), (Ids{1, 2}));
}

void TestLiveStream::statisticsRemainAfterTheStop()
{
    OpenStream test;
    test.start();
    test.deliver(1);
    test.stream.stop();
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Stopped, bound);
    QCOMPARE(test.stream.statistics().delivered, std::uint64_t(1));
    test.connection.close();
    QCOMPARE(test.stream.statistics().delivered, std::uint64_t(1));
    QVERIFY(!test.device->stream()); // Its buffers are released.
}

void TestLiveStream::failedStartSaysWhy()
{
    OpenStream test;
    test.device->failNextStart({CvxErrorInUse, "Another program uses the stream."});
    test.stream.start(8);
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Failed, bound);
    QCOMPARE(test.stream.problem(), QStringLiteral("Another program uses the stream."));
    test.start();
    QCOMPARE(test.stream.problem(), QString());
}

void TestLiveStream::startWithoutCameraFails()
{
    CameraConnection connection;
    LiveStream stream(connection);
    stream.start(8);
    QTRY_COMPARE_WITH_TIMEOUT(stream.state(), State::Failed, bound);
    QVERIFY(!stream.problem().isEmpty());
}

void TestLiveStream::streamThatEndsByItselfFails()
{
    OpenStream test;
    test.stream.addSink(&test.sink);
    test.start();
    test.deliver(1);
    test.device->stream()->end({CvxErrorClosed, "The producer has ended the stream."});
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Failed, bound);
    QCOMPARE(test.stream.problem(), QStringLiteral("The producer has ended the stream."));
    QCOMPARE(test.sink.ids(), (Ids{1}));
    test.start();
    QCOMPARE(QString::fromStdString(test.device->record()), QStringLiteral("start 8, stop, start 8"));
}

void TestLiveStream::lostCameraKeepsTheStreamRunning()
{
    OpenStream test;
    test.stream.addSink(&test.sink);
    test.start();
    const QSignalSpy changes(&test.stream, &LiveStream::stateChanged);
    test.device->lose("The cable was pulled.");
    test.device->stream()->failOnce({CvxErrorDeviceLost, "The camera is lost."});
    QTRY_COMPARE_WITH_TIMEOUT(test.connection.state(), CameraConnection::State::Lost, bound);
    test.device->reopen();
    test.deliver(5);
    QTRY_COMPARE_WITH_TIMEOUT(test.sink.ids(), (Ids{5}), bound);
    QTRY_COMPARE_WITH_TIMEOUT(test.connection.state(), CameraConnection::State::Open, bound);
    QCOMPARE(test.stream.state(), State::Running);
    QCOMPARE(changes.count(), 0);
}

void TestLiveStream::startIsRepeatedWhenTheCameraIsBack()
{
    OpenStream test;
    test.device->lose("The cable was pulled.");
    QTRY_COMPARE_WITH_TIMEOUT(test.connection.state(), CameraConnection::State::Lost, bound);
    test.device->failNextStart({CvxErrorDeviceLost, "The camera is lost."});
    test.stream.start(8);
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Failed, bound);
    test.device->reopen();
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Running, bound);
}

void TestLiveStream::pauseStopsCallsAndStarts()
{
    OpenStream test;
    test.stream.addSink(&test.sink);
    test.start();
    test.deliver(1);
    std::optional<CvxResult> result;
    test.stream.pauseFor(
        [&test](Device &) {
            test.device->note("call after image " + std::to_string(test.sink.ids().size()));
            return CvxResult();
        },
        this, [&result](const CvxResult &done) { result = done; });
    QCOMPARE(test.stream.state(), State::Stopping);
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Running, bound);
    QCOMPARE(QString::fromStdString(test.device->record()),
        QStringLiteral("start 8, stop, call after image 1, start 8"));
    QVERIFY(result && *result);
    test.deliver(2);
    QTRY_COMPARE_WITH_TIMEOUT(test.sink.ids(), (Ids{1, 2}), bound);
}

void TestLiveStream::failedCallOfAPauseIsReported()
{
    OpenStream test;
    test.start();
    CvxResult result;
    test.stream.pauseFor(
        [](Device &) {
            return CvxResult{CvxErrorOutOfRange, "Too wide."};
        },
        this, [&result](const CvxResult &done) { result = done; });
    QTRY_COMPARE_WITH_TIMEOUT(result.code, CvxErrorOutOfRange, bound);
    QCOMPARE(test.stream.state(), State::Running);
}

void TestLiveStream::pauseWithoutStreamOnlyCalls()
{
    OpenStream test;
    bool isDone = false;
    test.stream.pauseFor(
        [&test](Device &) {
            test.device->note("call");
            return CvxResult();
        },
        this, [&isDone](const CvxResult &) { isDone = true; });
    QTRY_VERIFY_WITH_TIMEOUT(isDone, bound);
    QCOMPARE(QString::fromStdString(test.device->record()), QStringLiteral("call"));
    QCOMPARE(test.stream.state(), State::Stopped);
}

void TestLiveStream::pauseFollowsAPendingStart()
{
    OpenStream test;
    CvxScripted::Gate gate;
    const auto note = [&test, &gate](const std::string &text) {
        return [&test, &gate, text](Device &) {
            gate.pass();
            test.device->note(text);
            return CvxResult();
        };
    };
    QVector<State> states;
    connect(&test.stream, &LiveStream::stateChanged, this, [&] { states.append(test.stream.state()); });
    test.stream.start(8);
    test.stream.pauseFor(note("first"), this, {});
    test.stream.pauseFor(note("second"), this, {});
    test.stream.stop();
    QVERIFY(gate.waitForArrival());
    QCoreApplication::processEvents(); // The result of the start has arrived, but more calls follow.
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Stopped, bound);
    QCOMPARE(QString::fromStdString(test.device->record()),
        QStringLiteral("start 8, stop, first, start 8, stop, second, start 8, stop"));
    QCOMPARE(states, (QVector<State>{State::Starting, State::Stopping, State::Stopped}));
}

void TestLiveStream::pauseThatCannotStartAgainFails()
{
    OpenStream test;
    test.start();
    test.device->failNextStart({CvxErrorFailed, "There is no memory for the buffers."});
    test.stream.pauseFor([](Device &) { return CvxResult(); }, nullptr, {});
    QTRY_COMPARE_WITH_TIMEOUT(test.stream.state(), State::Failed, bound);
    QCOMPARE(test.stream.problem(), QStringLiteral("There is no memory for the buffers."));
}

void TestLiveStream::anotherCameraStopsTheStream()
{
    OpenStream test;
    test.stream.addSink(&test.sink);
    test.start();
    const std::shared_ptr<ScriptedStream> oldStream = test.device->stream();
    test.device->hangOnClose(); // Images of the old camera still arrive.
    const auto otherDevice = std::make_shared<StreamingDevice>();
    test.open(std::make_shared<OpenableCamera>("CAM-2", otherDevice));
    QCOMPARE(test.stream.state(), State::Stopped);
    oldStream->deliver(LiveImage::make(1));
    QTRY_COMPARE_WITH_TIMEOUT(
        QString::fromStdString(test.device->record()), QStringLiteral("start 8, stop"), bound);
    test.start();
    otherDevice->stream()->deliver(LiveImage::make(2));
    QTRY_COMPARE_WITH_TIMEOUT(test.sink.ids(), (Ids{2}), bound);
}

void TestLiveStream::removedSinkWaitsForItsImageAndGetsNoOther()
{
    CvxScripted::Gate gate;
    OpenStream test;
    RecordingSink other;
    test.sink.beforeTake = [&gate] { gate.pass(); };
    test.stream.addSink(&test.sink);
    test.stream.addSink(&other);
    test.start();
    test.deliver(1);
    QVERIFY(gate.waitForArrival());
    std::thread opener([&gate] { gate.open(); });
    test.stream.removeSink(&test.sink);
    const Ids taken = test.sink.ids();
    opener.join();
    QCOMPARE(taken, (Ids{1}));
    test.deliver(2);
    QTRY_COMPARE_WITH_TIMEOUT(other.ids(), (Ids{1, 2}), bound);
    QCOMPARE(test.sink.ids(), (Ids{1}));
}

void TestLiveStream::destructionStopsTheStream()
{
    OpenStream test;
    auto stream = std::make_unique<LiveStream>(test.connection);
    stream->start(4);
    QTRY_COMPARE_WITH_TIMEOUT(stream->state(), State::Running, bound);
    stream.reset();
    QTRY_COMPARE_WITH_TIMEOUT(
        QString::fromStdString(test.device->record()), QStringLiteral("start 4, stop"), bound);
}

QTEST_GUILESS_MAIN(TestLiveStream)
#include "TestLiveStream.moc"
