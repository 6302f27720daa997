#include "tests/imageviewer/files/RecordedCamera.h"

#include <future>

using State = RecordingControl::State;

/// Recordings end when they should, also if they end before they have begun.
class TestRecordingEnd : public QObject
{
    Q_OBJECT

private slots:
    void timeLimitEndsWithoutImages();
    void spaceLimitEndsTheRecording();
    void closedCameraEndsTheRecording();
    void nextCameraKeepsTheLosses();
    void nextCameraIsNotRecorded_data();
    void nextCameraIsNotRecorded();
    void streamThatFailsEndsTheRecording();
};

void TestRecordingEnd::timeLimitEndsWithoutImages()
{
    RecordedCamera camera;
    RecordingOptions options = rawRecording();
    options.maxSeconds = 0.05;
    QVERIFY(camera.begin(options));
    camera.deliver(1, 1);
    QCOMPARE(camera.result().progress.images, 1U);
}

void TestRecordingEnd::spaceLimitEndsTheRecording()
{
    RecordedCamera camera;
    RecordingOptions options = rawRecording();
    options.minFreeBytes = std::uint64_t(1) << 60U;
    QVERIFY(camera.begin(options));
    camera.deliver(1, 1);
    const RecordingResult result = camera.result();
    QCOMPARE(result.problem, QString());
    QVERIFY(RecordingSummary::text(result).contains(QStringLiteral("free space")));
    QVERIFY(result.progress.spaceLeft.has_value());
}

void TestRecordingEnd::closedCameraEndsTheRecording()
{
    RecordedCamera camera;
    QVERIFY(camera.begin(rawRecording()));
    camera.deliver(1, 1);
    QVERIFY(camera.waitForImages(1));
    camera.connection.close();
    const RecordingResult result = camera.result();
    QVERIFY(result.problem.contains(QStringLiteral("closed")));
    QCOMPARE(result.progress.images, 1U);
}

void TestRecordingEnd::nextCameraKeepsTheLosses()
{
    RecordedCamera camera;
    QVERIFY(camera.begin(rawRecording()));
    camera.device->stream()->setCounters(lossCounters(4, 1)); // No image was delivered.
    camera.openOther();
    const RecordingResult result = camera.result();
    QVERIFY(result.problem.contains(QStringLiteral("closed")));
    QCOMPARE(result.progress.lost, 4U);
    QCOMPARE(result.progress.underruns, 1U);
}

void TestRecordingEnd::nextCameraIsNotRecorded_data()
{
    QTest::addColumn<bool>("isSettingsRead");
    QTest::newRow("while the settings are read") << false;
    QTest::newRow("while the file is created") << true;
}

void TestRecordingEnd::nextCameraIsNotRecorded()
{
    QFETCH(const bool, isSettingsRead);
    RecordedCamera camera;
    QVERIFY(camera.request(rawRecording()));
    if (isSettingsRead)
        camera.connection.run([](CvxCPP::Device &) { return CvxCPP::CvxResult{}; }, &camera.control,
            [&](const CvxCPP::CvxResult &) { camera.openOther(); });
    else
        camera.openOther();
    const RecordingResult result = camera.result();
    QCOMPARE(result.problem, QStringLiteral("the camera was closed"));
    QCOMPARE(result.progress.images, 0U);
    QCOMPARE(result.path.isEmpty(), !isSettingsRead);
}

void TestRecordingEnd::streamThatFailsEndsTheRecording()
{
    std::promise<void> permission;
    std::atomic<bool> isHeldUp = false;
    RecordedCamera camera;
    camera.device->beforeCall = [&, future = permission.get_future().share()](const std::string &) {
        if (isHeldUp)
            future.wait();
    };
    QVERIFY(camera.waitUntilOpen() && camera.startStream());
    isHeldUp = true;
    const bool isRequested = camera.request(rawRecording());
    QVERIFY(camera.device->stream()->Stop());
    const bool hasFailed
        = QTest::qWaitFor([&] { return camera.stream.state() == LiveStream::State::Failed; }, 10000);
    permission.set_value();
    QVERIFY(isRequested && hasFailed);
    QCOMPARE(camera.result().problem, QStringLiteral("The stream of the camera has ended"));
}

QTEST_GUILESS_MAIN(TestRecordingEnd)
#include "TestRecordingEnd.moc"
