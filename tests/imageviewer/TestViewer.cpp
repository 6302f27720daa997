#include "sdk/image/RawImage.h"
#include "sdk/imagefile/FlatFieldFile.h"
#include "tests/imageviewer/ControllingProgram.h"
#include "tests/imageviewer/ViewerUnderTest.h"
#include "tests/support/ScriptFile.h"
#include "tests/toolundertest/SimulatedCameras.h"
#include "tools/imageviewer/panel/CameraPanel.h"
#include "tools/kit/canvas/ViewTransform.h"
#include "tools/kit/pages/CameraChooser.h"
#include "tools/kit/pages/NoCameraPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSet>
#include <QUrl>
#include <QtTest>

#include <csignal>

using State = CameraConnection::State;

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// Choices that write raw files to the folder.
QVariantMap rawFilesIn(const QTemporaryDir &folder)
{
    return {{"files/folder"_s, folder.path()}, {"files/pictureFormat"_s, int(ImageFileFormat::Raw)},
        {"files/recordingFormat"_s, int(RecordingFormat::Raw)}};
}

QStringList filesIn(const QTemporaryDir &folder, const QString &pattern)
{
    QStringList paths;
    const QFileInfoList files = QDir(folder.path()).entryInfoList({pattern}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        paths.append(file.filePath());
    return paths;
}

/// Writes a flat field that makes every pixel 77.
void writeField(const QString &path, std::uint32_t width)
{
    constexpr std::uint32_t height = 240;
    const std::vector<float> zeros(width * height);
    const std::string problem
        = writeFlatField(path.toStdString(), {0, 0, width, height, 8, 77, zeros, zeros}, {});
    if (!problem.empty())
        qFatal("%s", problem.c_str());
}

/// Enters the file into the dialog as a person does.
void chooseField(ViewerUnderTest &viewer, const QString &path)
{
    viewer.action("Corrections…"_s).trigger();
    auto *const line = viewer.window().findChild<QLineEdit *>("flatField"_s);
    line->selectAll();
    QTest::keyClicks(line, path);
    QTest::keyClick(line, Qt::Key_Return);
}

bool isGrey(const QImage &picture, int value)
{
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if ((picture.pixel(x, y) & 0xFFFFFF) != QRgb(value * 0x010101))
                return false;
    return !picture.isNull();
}

} // namespace

/// Tests that the parts of the Image Viewer are connected, with the real SDK on simulated cameras.
class TestViewer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void namedCameraIsShown();
    void onlyCameraIsOpened();
    void severalCamerasAreOffered();
    void cameraIsOpenedWhenItIsPluggedIn();
    void halvedExposureHalvesTheMean();
    void drawnRegionBecomesTheRegionOfTheCamera();
    void unpluggedCameraGoesOnWhenItIsBack();
    void windowStaysUsableWhenTheHostCrashes();
    void windowStaysUsableWhenTheHostHangs();
    void snapshotContainsTheRawValues();
    void recordingHasEveryFrameId();
    void correctionAppliesToPictureAndFiles();
    void correctionThatDoesNotFitIsExplained();
    void cameraInUseCanBeWatched();
    void everyControlHasAnAccessibleName();

private:
    SimulatedCameras m_cameras;
};

void TestViewer::init()
{
    m_cameras.plug({"1001"_s, "1002"_s, "2001"_s});
}

void TestViewer::namedCameraIsShown()
{
    ViewerUnderTest viewer("1002"_s);
    viewer.awaitPicture();
    QVERIFY(viewer.window().windowTitle().contains("1002"_s));
    QCOMPARE(viewer.canvas().picture().pictureSize, QSize(320, 240));
    // The picture is on the screen: it has more colours than a canvas without one.
    const QImage screen = viewer.canvas().grab().toImage();
    QSet<QRgb> colors;
    for (int x = 0; x < screen.width(); ++x)
        colors.insert(screen.pixel(x, screen.height() / 2));
    QVERIFY2(colors.size() > 50, qPrintable(QString::number(colors.size())));
}

void TestViewer::onlyCameraIsOpened()
{
    m_cameras.plug({"2001"_s});
    ViewerUnderTest viewer((QString()));
    viewer.awaitPicture();
    QVERIFY(viewer.window().windowTitle().contains("2001"_s));
}

void TestViewer::severalCamerasAreOffered()
{
    ViewerUnderTest viewer((QString()));
    auto *const chooser = viewer.find<CameraChooser>();
    QTRY_VERIFY_WITH_TIMEOUT(chooser->isVisible(), 60000);
    auto *const search = chooser->findChild<QLineEdit *>();
    QTest::keyClicks(search, "2001"_s);
    QTest::keyClick(search, Qt::Key_Return);
    viewer.awaitPicture();
    QVERIFY(viewer.window().windowTitle().contains("2001"_s));
}

void TestViewer::cameraIsOpenedWhenItIsPluggedIn()
{
    m_cameras.plug({});
    ViewerUnderTest viewer((QString()));
    QTRY_VERIFY_WITH_TIMEOUT(viewer.find<NoCameraPage>()->isVisible(), 60000);
    m_cameras.plug({"1001"_s});
    viewer.awaitPicture();
}

void TestViewer::halvedExposureHalvesTheMean()
{
    ViewerUnderTest viewer("1001"_s);
    viewer.awaitPicture();
    viewer.write("BlackLevel", 0.0);
    viewer.write("ExposureTime", 4000.0);
    const double before = viewer.meanOfNewPicture();
    viewer.write("ExposureTime", 2000.0);
    const double after = viewer.meanOfNewPicture();
    QVERIFY2(qAbs(after / before - 0.5) < 0.05, qPrintable(QStringLiteral("%1, %2").arg(before).arg(after)));
}

void TestViewer::drawnRegionBecomesTheRegionOfTheCamera()
{
    ViewerUnderTest viewer("1001"_s);
    viewer.awaitPicture();
    emit viewer.find<CameraPanel>()->drawRegionRequested();
    ImageCanvas &canvas = viewer.canvas();
    const QPoint from = canvas.view().toView(QPointF(64.5, 48.5)).toPoint();
    const QPoint to = canvas.view().toView(QPointF(191.5, 143.5)).toPoint();
    // QTest::mouseMove() moves the pointer of the X server, whose events would arrive later.
    const auto send = [&](QEvent::Type type, const QPoint &position, Qt::MouseButtons buttons) {
        QMouseEvent event(type, position, canvas.mapToGlobal(position), Qt::LeftButton, buttons, {});
        QCoreApplication::sendEvent(&canvas, &event);
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton);
    send(QEvent::MouseMove, (from + to) / 2, Qt::LeftButton);
    send(QEvent::MouseMove, to, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, to, Qt::NoButton);
    await([&] { return canvas.picture().pictureSize.width() < 320; });
    const CvxCPP::ImageInfo info = canvas.picture().image->GetInfo();
    const QRect region(int(info.offsetX), int(info.offsetY), int(info.width), int(info.height));
    // The camera extends the region to its increments.
    QVERIFY2(region.contains(QRect(65, 49, 126, 94)),
        qPrintable(QStringLiteral("%1 %2 %3 %4")
                       .arg(info.offsetX)
                       .arg(info.offsetY)
                       .arg(info.width)
                       .arg(info.height)));
    QVERIFY(QRect(48, 32, 160, 128).contains(region));
}

void TestViewer::unpluggedCameraGoesOnWhenItIsBack()
{
    ViewerUnderTest viewer("1001"_s);
    viewer.awaitPicture();
    viewer.write("ExposureTime", 3000.0);
    m_cameras.plug({"1002"_s});
    await([&] { return viewer.window().connection().state() == State::Lost; });
    QVERIFY(viewer.canvas().picture().image); // The last picture stays.
    m_cameras.plug({"1001"_s, "1002"_s});
    await([&] { return viewer.window().connection().state() == State::Open; });
    viewer.awaitNewPicture();
    QCOMPARE(viewer.readFloat("ExposureTime"), 3000.0);
}

void TestViewer::windowStaysUsableWhenTheHostCrashes()
{
    ViewerUnderTest viewer("1001"_s);
    viewer.awaitPicture();
    signalCameraHost("KILL"_s);
    await([&] { return viewer.window().stream().statistics().reopenCount == 1; });
    viewer.awaitNewPicture();
}

void TestViewer::windowStaysUsableWhenTheHostHangs()
{
    ViewerUnderTest viewer("1001"_s);
    viewer.awaitPicture();
    signalCameraHost("STOP"_s);
    // The SDK ends a process that does not answer, and opens the camera again with what was written.
    viewer.window().features().write("ExposureTime"_s, 2500.0);
    viewer.action("Rotate right"_s).trigger();
    await([&] { return viewer.window().stream().statistics().reopenCount == 1; });
    viewer.awaitNewPicture();
}

void TestViewer::snapshotContainsTheRawValues()
{
    const QTemporaryDir folder;
    ViewerUnderTest viewer("1001"_s, rawFilesIn(folder));
    viewer.awaitPicture();
    viewer.action("Freeze"_s).trigger();
    const QString file = viewer.saveSnapshot();
    const RawImage image = rawImage(*viewer.canvas().picture().image);
    QCOMPARE(ScriptFile::read(file), QByteArray(reinterpret_cast<const char *>(image.data), int(image.size)));
}

void TestViewer::recordingHasEveryFrameId()
{
    const QTemporaryDir folder;
    QVariantMap choices = rawFilesIn(folder);
    choices.insert("files/maxImages"_s, 300);
    choices.insert("files/maxImagesIsOn"_s, true);
    ViewerUnderTest viewer("1001"_s, choices);
    viewer.awaitPicture();
    QAction &record = viewer.action("Record"_s);
    record.trigger();
    await([&] { return record.isChecked(); });
    await([&] { return !record.isChecked(); });
    // The index has a line for each image, which begins with the frame ID, below a line with the titles.
    const QList<QByteArray> lines
        = ScriptFile::read(filesIn(folder, "*.csv"_s).constFirst()).trimmed().split('\n').mid(1);
    QCOMPARE(lines.size(), 300);
    const qulonglong first = lines.first().split(',').first().toULongLong();
    for (int index = 0; index < lines.size(); ++index)
        QCOMPARE(lines.at(index).split(',').first().toULongLong(), first + qulonglong(index));
}

void TestViewer::correctionAppliesToPictureAndFiles()
{
    const QTemporaryDir folder;
    const QString field = folder.filePath("field.tif"_s);
    writeField(field, 320);
    const QVariantMap choices{
        {"files/folder"_s, folder.path()}, {"files/pictureFormat"_s, int(ImageFileFormat::Png8)}};
    QString camera;
    {
        ViewerUnderTest viewer("1001"_s, choices);
        viewer.awaitPicture();
        camera = viewer.window().connection().camera().id;
        chooseField(viewer, field);
        await([&] { return isGrey(viewer.canvas().picture().pixels, 77); });
        QCOMPARE(viewer.window().findChild<QLabel *>("correctionState"_s)->text(), "Corrected"_s);
        const QString file = viewer.saveSnapshot();
        QVERIFY(isGrey(QImage(file), 77));
        QVERIFY(ScriptFile::read(file + ".json"_s).contains("corvix-x-flat-field"));
        viewer.window().findChild<QDialog *>("corrections"_s)->findChild<QCheckBox *>()->click();
        await([&] { return !isGrey(viewer.canvas().picture().pixels, 77); });
    }
    QVariantMap remembered = choices;
    remembered.insert(
        "corrections/%1/flatField"_s.arg(QString::fromLatin1(QUrl::toPercentEncoding(camera))), field);
    ViewerUnderTest again("1001"_s, remembered);
    again.awaitPicture();
    await([&] { return isGrey(again.canvas().picture().pixels, 77); });
}

void TestViewer::correctionThatDoesNotFitIsExplained()
{
    const QTemporaryDir folder;
    ViewerUnderTest viewer("1001"_s);
    viewer.awaitPicture();
    const QString small = folder.filePath("small.tif"_s);
    writeField(small, 64);
    for (const QString &file : {folder.filePath("missing.tif"_s), small}) {
        chooseField(viewer, file);
        const auto *const state = viewer.window().findChild<QLabel *>("correctionState"_s);
        const QString expected = file == small ? "flat field covers 64 x 240"_s : "No such file"_s;
        await([&] { return state->toolTip().contains(expected); });
        QCOMPARE(state->text(), "Not corrected"_s);
        const auto labels = viewer.window().findChild<QDialog *>("corrections"_s)->findChildren<QLabel *>();
        QVERIFY(std::any_of(labels.begin(), labels.end(),
            [&](const QLabel *label) { return label->isVisible() && label->text().contains(expected); }));
    }
    viewer.awaitNewPicture();
    QVERIFY(!isGrey(viewer.canvas().picture().pixels, 77));
}

void TestViewer::cameraInUseCanBeWatched()
{
    ControllingProgram small("1001"_s, 160);
    ViewerUnderTest viewer("1001"_s);
    viewer.watchOnly();
    QVERIFY(!viewer.window().connection().isControlled());
    viewer.awaitNewPicture();
    QCOMPARE(viewer.canvas().picture().pictureSize.width(), 160);
    small.end();
    // Larger images do not fit into the buffers of the watcher, whose stream starts again.
    ControllingProgram large("1001"_s, 320);
    await([&] { return viewer.window().stream().statistics().reopenCount == 1; });
    await([&] { return viewer.canvas().picture().pictureSize.width() == 320; });
    viewer.awaitNewPicture();
    QVERIFY(viewer.canvas().picture().image->GetInfo().isComplete);
    large.end();
}

void TestViewer::everyControlHasAnAccessibleName()
{
    ViewerUnderTest viewer("1002"_s);
    viewer.awaitPicture();
    const auto *const panel = viewer.find<CameraPanel>();
    await([&] { return panel->editor("ExposureTime"_s) != nullptr; });
    int count = 0;
    const QStringList unnamed = unnamedControls(viewer.window(), count);
    QVERIFY(count > 40);
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join("; "_s)));
}

QTEST_MAIN(TestViewer)
#include "TestViewer.moc"
