#include "tests/imageviewer/files/RecordedCamera.h"

#include <sys/stat.h>

using State = RecordingControl::State;

/// Recordings contain what they should and say what they lack.
class TestRecordingControl : public QObject
{
    Q_OBJECT

private slots:
    void everyImageIsRecordedUntilTheNumberIsReached_data();
    void everyImageIsRecordedUntilTheNumberIsReached();
    void lossesDuringTheRecordingAreWritten();
    void restartedStreamAndNewFormatAreRecorded();
    void lostCameraIsAwaited();
    void fullDiskKeepsWhatWasRecorded();
    void recordingThatCannotBeginSaysWhy_data();
    void recordingThatCannotBeginSaysWhy();
    void slowDiskKeepsNoBuffers();
    void summaryNamesEveryLoss();
};

namespace {

QVector<int> numbersTo(int last)
{
    QVector<int> numbers;
    for (int number = 1; number <= last; ++number)
        numbers << number;
    return numbers;
}

} // namespace

void TestRecordingControl::everyImageIsRecordedUntilTheNumberIsReached_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("name");
    QTest::newRow("raw") << int(RecordingFormat::Raw) << "a1.raw";
    QTest::newRow("BigTIFF") << int(RecordingFormat::BigTiff) << "a1.tif";
}

void TestRecordingControl::everyImageIsRecordedUntilTheNumberIsReached()
{
    QFETCH(const int, format);
    QFETCH(const QString, name);
    constexpr int count = 300;
    RecordedCamera camera;
    RecordingOptions options;
    options.format = static_cast<RecordingFormat>(format);
    options.maxImages = count;
    QVERIFY(camera.begin(options));
    camera.deliver(1, count + 20);
    const RecordingResult result = camera.result();
    QCOMPARE(result.path, camera.path(name));
    QCOMPARE(result.problem, QString());
    QCOMPARE(result.progress.images, std::uint64_t(count));
    QVERIFY(RecordingSummary::lossText(result.progress).isEmpty());
    const QJsonObject sidecar = camera.json(name + QStringLiteral(".json"));
    QCOMPARE(sidecar[QStringLiteral("recording")][QStringLiteral("images")].toInt(), count);
    QCOMPARE(sidecar[QStringLiteral("settings")][QStringLiteral("ExposureTime")].toDouble(), 1500.0);
    if (result.path.endsWith(QStringLiteral(".raw")))
        QCOMPARE(camera.frameIds(name), numbersTo(count));
    else // Each image has its frame ID in its description.
        QCOMPARE(camera.content(name).count("\"frameId\":"), count);
    QCOMPARE(camera.control.state(), State::Idle);
}

void TestRecordingControl::lossesDuringTheRecordingAreWritten()
{
    RecordedCamera camera;
    QVERIFY(camera.waitUntilOpen() && camera.startStream());
    camera.device->stream()->setCounters(lossCounters(10, 1)); // Before the recording.
    RecordingOptions options = rawRecording();
    options.folder = camera.folder.path();
    options.pattern = QStringLiteral("a{number}");
    camera.control.start(options);
    QTRY_COMPARE_WITH_TIMEOUT(camera.control.state(), State::Recording, 10000);
    auto incomplete = numberedImage(1);
    incomplete->info.isComplete = false;
    camera.device->stream()->deliver(incomplete);
    QVERIFY(camera.waitForImages(1));
    camera.device->stream()->setCounters(lossCounters(13, 2, 1));
    camera.control.stop();
    const RecordingProgress progress = camera.result().progress;
    QCOMPARE(progress.lost, 3U);
    QCOMPARE(progress.underruns, 1U);
    QCOMPARE(progress.incomplete, 1U);
    const QJsonObject recording
        = camera.json(QStringLiteral("a1.raw.json"))[QStringLiteral("recording")].toObject();
    QCOMPARE(recording[QStringLiteral("lost")].toInt(), 3);
    QCOMPARE(recording[QStringLiteral("underruns")].toInt(), 1);
    QCOMPARE(recording[QStringLiteral("incomplete")].toInt(), 1);
}

void TestRecordingControl::restartedStreamAndNewFormatAreRecorded()
{
    RecordedCamera camera;
    QVERIFY(camera.begin(rawRecording()));
    camera.deliver(1, 2);
    QVERIFY(camera.waitForImages(2));
    camera.device->stream()->setCounters(lossCounters(4, 0, 2));
    bool isDone = false;
    camera.stream.pauseFor([](CvxCPP::Device &) { return CvxCPP::CvxResult{}; }, this,
        [&](const CvxCPP::CvxResult &) { isDone = true; });
    QTRY_VERIFY_WITH_TIMEOUT(isDone, 10000);
    QCOMPARE(camera.control.state(), State::Recording);
    camera.device->stream()->deliver(
        std::make_shared<MadeUpImage>(rgb8Format, 2, 2, std::vector<std::uint8_t>(12)));
    QVERIFY(camera.waitForImages(3));
    camera.control.stop();
    const RecordingResult result = camera.result();
    QCOMPARE(result.progress.lost, 4U); // Also those before the restart.
    QVERIFY(result.hasFormatChanged);
    QCOMPARE(camera.content(QStringLiteral("a1.raw")).size(), 2 * 16 + 12);
}

void TestRecordingControl::lostCameraIsAwaited()
{
    RecordedCamera camera;
    QVERIFY(camera.begin(rawRecording()));
    camera.deliver(1, 1);
    QVERIFY(camera.waitForImages(1));
    camera.device->lose("unplugged");
    QTRY_VERIFY_WITH_TIMEOUT(camera.control.isCameraLost(), 10000);
    camera.device->reopen();
    QTRY_VERIFY_WITH_TIMEOUT(!camera.control.isCameraLost(), 10000);
    camera.deliver(2, 2);
    QVERIFY(camera.waitForImages(2));
    camera.control.stop();
    QVERIFY(camera.result().wasCameraLost);
    QCOMPARE(camera.frameIds(QStringLiteral("a1.raw")), numbersTo(2));
}

void TestRecordingControl::fullDiskKeepsWhatWasRecorded()
{
    RecordedCamera camera;
    QVERIFY(camera.begin(rawRecording()));
    constexpr int fitting = 500;
    const FileSizeLimit limit(fitting * 16 + 8);
    camera.deliver(1, fitting + 1);
    const RecordingResult result = camera.result();
    QVERIFY2(
        result.problem.contains(QStringLiteral("choose another file system")), qPrintable(result.problem));
    QCOMPARE(result.progress.images + result.progress.unwritten, std::uint64_t(fitting + 1));
    const QVector<int> ids = camera.frameIds(QStringLiteral("a1.raw"));
    QVERIFY(!ids.isEmpty());
    QCOMPARE(ids, numbersTo(ids.size()));
    QCOMPARE(camera.content(QStringLiteral("a1.raw")).size(), 16 * ids.size());
}

void TestRecordingControl::recordingThatCannotBeginSaysWhy_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("hasStream");
    QTest::addColumn<QString>("text");
    QTest::newRow("read-only folder") << "/sys/kernel"
                                      << "a" << true << "choose a folder that";
    QTest::newRow("missing folder") << "/nowhere/deep"
                                    << "a" << true << "create the folder first";
    QTest::newRow("broken pattern") << ""
                                    << "{a}" << true << "not a placeholder";
    QTest::newRow("no stream") << ""
                               << "a" << false << "start the live picture";
}

void TestRecordingControl::recordingThatCannotBeginSaysWhy()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, pattern);
    QFETCH(const bool, hasStream);
    QFETCH(const QString, text);
    RecordedCamera camera;
    QVERIFY(camera.waitUntilOpen() && (!hasStream || camera.startStream()));
    RecordingOptions options = rawRecording();
    options.folder = folder.isEmpty() ? camera.folder.path() : folder;
    options.pattern = pattern;
    camera.control.start(options);
    const QString summary = RecordingSummary::text(camera.result());
    QVERIFY2(summary.contains(text), qPrintable(summary));
    QCOMPARE(camera.control.state(), State::Idle);
    QCOMPARE(camera.files(), QStringList());
}

void TestRecordingControl::slowDiskKeepsNoBuffers()
{
    constexpr unsigned maxHeld = 2;
    ImageKeeper keeper(maxHeld, 3 * 16);
    std::vector<std::shared_ptr<const CvxCPP::Image>> kept;
    std::vector<std::weak_ptr<const CvxCPP::Image>> buffers;
    for (std::uint64_t number = 0; number < 6; ++number) {
        const auto image = numberedImage(number);
        buffers.emplace_back(image);
        kept.push_back(keeper.keep(image));
    }
    for (std::size_t index = 0; index < kept.size(); ++index) {
        QCOMPARE(buffers[index].expired(), index >= maxHeld);
        QCOMPARE(kept[index] == nullptr, index == 5); // Two are held, and three are copied.
        if (kept[index])
            QCOMPARE(kept[index]->GetData()[15], std::uint8_t(index));
    }
    kept[3].reset(); // Room for one copy.
    QVERIFY(keeper.keep(numberedImage(7)));
    kept[0].reset();
    const auto next = numberedImage(8);
    QCOMPARE(keeper.keep(next)->GetData(), next->GetData()); // Room for one that is held.
}

void TestRecordingControl::summaryNamesEveryLoss()
{
    RecordingResult result;
    result.path = QStringLiteral("/tmp/a.tif");
    result.progress.images = 120;
    result.progress.seconds = 64.4;
    QCOMPARE(RecordingSummary::text(result),
        QStringLiteral("120 image(s) recorded in 01:04 to \"a.tif\". No image is missing."));
    result.progress.lost = 1;
    result.progress.underruns = 2;
    result.progress.skipped = 3;
    result.progress.unwritten = 4;
    result.progress.incomplete = 5;
    QCOMPARE(RecordingSummary::lossText(result.progress),
        QStringLiteral(
            "Lost or incomplete: 1 image(s) never arrived from the camera; 2 image(s) found no free buffer; "
            "3 image(s) could not be kept because the disk or the encoder is too slow; "
            "4 image(s) could not be written; 5 recorded image(s) are incomplete."));
    QVERIFY(!RecordingSummary::text(result).contains(QStringLiteral("No image is missing")));
}

QTEST_GUILESS_MAIN(TestRecordingControl)
#include "TestRecordingControl.moc"
