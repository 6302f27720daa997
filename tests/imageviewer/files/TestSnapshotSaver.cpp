#include "tests/imageviewer/files/SavingTest.h"

#include <QImageReader>
#include <QSignalSpy>

#include <atomic>
#include <thread>

/// Single images become files with the values of the image.
class TestSnapshotSaver : public QObject
{
    Q_OBJECT

private slots:
    void fileHasTheRawValues();
    void nothingIsReplaced();
    void lostCameraHasTheLastSettings();
    void requestSurvivesAnotherCamera();
    void failuresSayWhatToDo_data();
    void failuresSayWhatToDo();
};

namespace {

std::shared_ptr<MadeUpImage> mono16Image()
{
    std::vector<std::uint8_t> bytes;
    for (unsigned index = 0; index < 4 * 3; ++index) {
        bytes.push_back(static_cast<std::uint8_t>(index * 17));
        bytes.push_back(static_cast<std::uint8_t>(index * 21));
    }
    auto image = std::make_shared<MadeUpImage>(mono16Format, 4, 3, bytes);
    image->info.frameId = 42;
    return image;
}

const QString namePattern = QStringLiteral("{camera}-{number}");

/// Saves an image and waits. Returns the failure, else the path.
QString savedAs(
    SnapshotSaver &saver, const std::shared_ptr<const CvxCPP::Image> &image, const SnapshotOptions &options)
{
    QSignalSpy saved(&saver, &SnapshotSaver::saved), failed(&saver, &SnapshotSaver::failed);
    saver.save(image, options);
    if (!QTest::qWaitFor([&] { return saved.count() + failed.count() > 0; }, 10000))
        return QStringLiteral("timeout");
    return saved.isEmpty() ? failed[0][0].toString() : saved[0][0].toString();
}

} // namespace

void TestSnapshotSaver::fileHasTheRawValues()
{
    SavingCamera camera;
    QVERIFY(camera.waitUntilOpen());
    SnapshotSaver saver(camera.records);
    QSignalSpy saved(&saver, &SnapshotSaver::saved);
    const auto image = mono16Image();
    const QByteArray bytes(reinterpret_cast<const char *>(image->GetData()), int(image->GetSize()));
    QCOMPARE(savedAs(saver, image, {camera.folder.path(), namePattern, ImageFileFormat::Raw}),
        camera.path(QStringLiteral("Model of Net-1-1.raw")));
    QCOMPARE(camera.content(QStringLiteral("Model of Net-1-1.raw")), bytes);
    const QJsonObject sidecar = camera.json(QStringLiteral("Model of Net-1-1.raw.json"));
    QCOMPARE(sidecar[QStringLiteral("image")][QStringLiteral("frameId")].toInt(), 42);
    QCOMPARE(sidecar[QStringLiteral("settings")][QStringLiteral("ExposureTime")].toDouble(), 1500.0);
    QVERIFY(sidecar[QStringLiteral("settingsTime")].isString());

    const QImage png(savedAs(saver, image, {camera.folder.path(), namePattern, ImageFileFormat::Png16}));
    QCOMPARE(png.format(), QImage::Format_Grayscale16);
    for (int y = 0; y < 3; ++y)
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(png.constScanLine(y)), 8), bytes.mid(y * 8, 8));
    QCOMPARE(qvariant_cast<QImage>(saved[1][1]).size(), QSize(4, 3));
}

void TestSnapshotSaver::nothingIsReplaced()
{
    SavingCamera camera;
    QVERIFY(camera.waitUntilOpen());
    QFile existing(camera.path(QStringLiteral("Model of Net-1-2.raw")));
    QVERIFY(existing.open(QIODevice::WriteOnly) && existing.write("mine") == 4);
    existing.close();
    SnapshotSaver saver(camera.records);
    QSignalSpy saved(&saver, &SnapshotSaver::saved);
    for (int count = 0; count < 6; ++count) // More than may occupy buffers of the stream.
        saver.save(numberedImage(1), {camera.folder.path(), namePattern, ImageFileFormat::Raw});
    QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 6, 10000);
    QCOMPARE(saver.pending(), 0);
    QCOMPARE(camera.content(QStringLiteral("Model of Net-1-2.raw")), QByteArray("mine"));
    QCOMPARE(camera.files().size(), 1 + 2 * 6);
}

void TestSnapshotSaver::lostCameraHasTheLastSettings()
{
    SavingCamera camera;
    QVERIFY(camera.waitUntilOpen());
    SnapshotSaver saver(camera.records);
    const SnapshotOptions options{camera.folder.path(), QStringLiteral("a{number}"), ImageFileFormat::Raw};
    savedAs(saver, numberedImage(1), options);
    camera.device->lose("unplugged");
    QTRY_COMPARE_WITH_TIMEOUT(camera.connection.state(), CameraConnection::State::Lost, 10000);
    QCOMPARE(savedAs(saver, numberedImage(2), options), camera.path(QStringLiteral("a2.raw")));
    const QJsonObject sidecar = camera.json(QStringLiteral("a2.raw.json"));
    QCOMPARE(sidecar[QStringLiteral("settings")][QStringLiteral("ExposureTime")].toDouble(), 1500.0);
    const QJsonObject earlier = camera.json(QStringLiteral("a1.raw.json"));
    QCOMPARE(sidecar[QStringLiteral("settingsTime")], earlier[QStringLiteral("settingsTime")]);
}

void TestSnapshotSaver::requestSurvivesAnotherCamera()
{
    SavingCamera camera;
    std::atomic<bool> isReading{false}, mayRead{false};
    camera.device->beforeCall = [&](const std::string &call) {
        isReading = isReading || call == "ReadStates";
        while (call == "ReadStates" && !mayRead)
            std::this_thread::yield();
    };
    QVERIFY(camera.waitUntilOpen());
    SnapshotSaver saver(camera.records);
    QSignalSpy saved(&saver, &SnapshotSaver::saved);
    saver.save(numberedImage(1), {camera.folder.path(), QStringLiteral("a"), ImageFileFormat::Raw});
    QTRY_VERIFY_WITH_TIMEOUT(isReading.load(), 10000);
    camera.connection.open(
        OpenableCamera::entry(std::make_shared<OpenableCamera>("Net-2")), CvxCPP::CvxAccessControl);
    mayRead = true;
    QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, 10000);
    const QJsonObject sidecar = camera.json(QStringLiteral("a.raw.json"));
    QCOMPARE(sidecar[QStringLiteral("camera")][QStringLiteral("serialNumber")].toString(),
        QStringLiteral("Serial of Net-1"));
}

void TestSnapshotSaver::failuresSayWhatToDo_data()
{
    QTest::addColumn<QString>("folder"); // Empty for the one of the test.
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("hasImage");
    QTest::addColumn<bool>("isDiskFull");
    QTest::addColumn<QString>("text"); // A part of it.
    QTest::newRow("full disk") << ""
                               << "a" << true << true << "choose another file system";
    QTest::newRow("read-only folder") << "/sys/kernel"
                                      << "a" << true << false << "choose a folder that";
    QTest::newRow("missing folder") << "/nowhere/deep"
                                    << "a" << true << false << "create the folder first";
    QTest::newRow("no picture") << ""
                                << "a" << false << false << "no picture to save";
    QTest::newRow("broken pattern") << ""
                                    << "{a}" << true << false << "not a placeholder";
}

void TestSnapshotSaver::failuresSayWhatToDo()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, pattern);
    QFETCH(const bool, hasImage);
    QFETCH(const bool, isDiskFull);
    QFETCH(const QString, text);
    SavingCamera camera;
    QVERIFY(camera.waitUntilOpen());
    SnapshotSaver saver(camera.records);
    const FileSizeLimit limit(isDiskFull ? 8 : RLIM_INFINITY);
    const SnapshotOptions options{
        folder.isEmpty() ? camera.folder.path() : folder, pattern, ImageFileFormat::Raw};
    const QString failure = savedAs(saver, hasImage ? numberedImage(1) : nullptr, options);
    QVERIFY2(failure.contains(text), qPrintable(failure));
    QCOMPARE(camera.files(), QStringList());
}

QTEST_GUILESS_MAIN(TestSnapshotSaver)
#include "TestSnapshotSaver.moc"
