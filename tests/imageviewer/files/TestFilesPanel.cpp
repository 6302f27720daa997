#include "tests/imageviewer/files/SavingTest.h"
#include "tools/imageviewer/files/FilesPanel.h"
#include "tools/imageviewer/files/ThumbnailStrip.h"
#include "tools/kit/start/ToolSettings.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

/// The panel starts what a person asks for, and says what came of it.
class TestFilesPanel : public QObject
{
    Q_OBJECT

private slots:
    void snapshotIsSavedAndSaid();
    void recordingIsStartedAndEnded();
    void brokenNameDisablesSaving();
    void videoWithoutFfmpegSaysWhatToInstall();
    void choicesAreRemembered();
    void stripKeepsTheLastPictures();
    void deletingAsksFirst();
};

namespace {

struct PanelOfCamera : SavingCamera
{
    template <typename Widget>
    Widget *find(const char *name)
    {
        return panel.findChild<Widget *>(QString::fromLatin1(name));
    }

    QString message(const char *name) { return find<QLabel>(name)->text(); }

    void select(const char *name, int data)
    {
        auto *const box = find<QComboBox>(name);
        box->setCurrentIndex(box->findData(data));
    }

    std::shared_ptr<const CvxCPP::Image> shown = numberedImage(1);
    SnapshotSaver saver{records};
    RecordingControl control{stream, records};
    FilesPanel panel{saver, control, [this] { return shown; }};
};

/// Enters folder and name of files.
void enter(FilesPanel &panel, const QString &folder, const QString &pattern)
{
    panel.findChild<QLineEdit *>(QStringLiteral("folder"))->setText(folder);
    panel.findChild<QLineEdit *>(QStringLiteral("pattern"))->setText(pattern);
}

} // namespace

void TestFilesPanel::snapshotIsSavedAndSaid()
{
    PanelOfCamera camera;
    QVERIFY(camera.waitUntilOpen());
    enter(camera.panel, camera.folder.path(), QStringLiteral("a"));
    camera.select("snapshotFormat", int(ImageFileFormat::Raw));
    camera.find<QPushButton>("snapshot")->click();
    QTRY_VERIFY_WITH_TIMEOUT(camera.message("snapshotMessage").contains(QStringLiteral("a.raw")), 10000);
    QCOMPARE(camera.content(QStringLiteral("a.raw")), QByteArray(16, 1));
    camera.shown.reset();
    camera.find<QPushButton>("snapshot")->click();
    QVERIFY(camera.message("snapshotMessage").contains(QStringLiteral("no picture")));
}

void TestFilesPanel::recordingIsStartedAndEnded()
{
    PanelOfCamera camera;
    QVERIFY(camera.waitUntilOpen() && camera.startStream());
    enter(camera.panel, camera.folder.path(), QStringLiteral("a"));
    camera.select("recordingFormat", int(RecordingFormat::Raw));
    camera.find<QPushButton>("record")->click();
    QTRY_COMPARE_WITH_TIMEOUT(camera.control.state(), RecordingControl::State::Recording, 10000);
    QVERIFY(!camera.find<QComboBox>("recordingFormat")->isEnabled());
    camera.device->stream()->deliver(numberedImage(1));
    QTRY_VERIFY_WITH_TIMEOUT(camera.message("progress").startsWith(QStringLiteral("1 image(s)")), 10000);
    camera.find<QPushButton>("record")->click();
    QTRY_VERIFY_WITH_TIMEOUT(
        camera.message("recordingMessage").contains(QStringLiteral("No image is missing.")), 10000);
    QVERIFY(camera.message("progress").isEmpty());
    QVERIFY(camera.find<QComboBox>("recordingFormat")->isEnabled());
}

void TestFilesPanel::brokenNameDisablesSaving()
{
    PanelOfCamera camera;
    enter(camera.panel, camera.folder.path(), QStringLiteral("{nummer}"));
    QVERIFY(camera.message("preview").contains(QStringLiteral("{nummer}")));
    QVERIFY(!camera.find<QPushButton>("snapshot")->isEnabled());
    QVERIFY(!camera.find<QPushButton>("record")->isEnabled());
    enter(camera.panel, camera.folder.path(), QStringLiteral("x{number:3}"));
    QVERIFY(camera.message("preview").contains(QStringLiteral("x001")));
    QVERIFY(camera.find<QPushButton>("snapshot")->isEnabled());
}

void TestFilesPanel::videoWithoutFfmpegSaysWhatToInstall()
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    PanelOfCamera camera;
    camera.select("recordingFormat", int(RecordingFormat::VideoH264));
    QVERIFY(camera.message("formatHint").contains(QStringLiteral("sudo apt install ffmpeg")));
    QVERIFY(!camera.find<QPushButton>("record")->isEnabled());
    camera.select("recordingFormat", int(RecordingFormat::BigTiff));
    QVERIFY(camera.message("formatHint").isEmpty());
    QVERIFY(camera.find<QPushButton>("record")->isEnabled());
    qputenv("PATH", path);
}

void TestFilesPanel::choicesAreRemembered()
{
    const QTemporaryDir folder;
    {
        PanelOfCamera camera;
        enter(camera.panel, QStringLiteral("/data"), QStringLiteral("b{number}"));
        camera.select("snapshotFormat", int(ImageFileFormat::Tiff));
        camera.select("recordingFormat", int(RecordingFormat::Raw));
        camera.find<LimitBox>("maxImages")->set(true, 123);
        camera.find<LimitBox>("minFree")->set(false, 7.5);
        ToolSettings settings(QStringLiteral("test"), folder.path());
        camera.panel.saveSettings(settings);
    }
    PanelOfCamera camera;
    camera.panel.restoreSettings(ToolSettings(QStringLiteral("test"), folder.path()));
    const SnapshotOptions snapshot = camera.panel.snapshotOptions();
    QCOMPARE(snapshot.folder, QStringLiteral("/data"));
    QCOMPARE(snapshot.pattern, QStringLiteral("b{number}"));
    QCOMPARE(snapshot.format, ImageFileFormat::Tiff);
    const RecordingOptions recording = camera.panel.recordingOptions();
    QCOMPARE(recording.format, RecordingFormat::Raw);
    QCOMPARE(recording.maxImages, 123U);
    QCOMPARE(recording.minFreeBytes, 0U);
    QCOMPARE(camera.find<LimitBox>("minFree")->number(), 7.5);
}

void TestFilesPanel::stripKeepsTheLastPictures()
{
    ThumbnailStrip strip;
    for (int number = 0; number < ThumbnailStrip::maxCount + 5; ++number)
        strip.add(QStringLiteral("/tmp/%1.png").arg(number), QImage(8, 8, QImage::Format_RGB888));
    QCOMPARE(strip.count(), ThumbnailStrip::maxCount);
    strip.setCurrentRow(0);
    QCOMPARE(strip.currentPath(), QStringLiteral("/tmp/%1.png").arg(ThumbnailStrip::maxCount + 4));
    strip.copyPath();
    QCOMPARE(QApplication::clipboard()->text(), strip.currentPath());
    QSignalSpy failed(&strip, &ThumbnailStrip::failed);
    strip.open();
    QCOMPARE(failed.count(), 1); // The file does not exist.
}

void TestFilesPanel::deletingAsksFirst()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.png"));
    for (const QString &name : {path, path + QStringLiteral(".json")})
        QVERIFY(QFile(name).open(QIODevice::WriteOnly));
    ThumbnailStrip strip;
    strip.add(path, QImage(8, 8, QImage::Format_RGB888));
    strip.show();
    strip.setCurrentRow(0);
    const auto answer = [&](QMessageBox::ButtonRole role) {
        strip.askToDelete();
        auto *const question = strip.findChild<QMessageBox *>();
        for (QAbstractButton *const button : question->buttons()) {
            if (question->buttonRole(button) == role)
                button->click();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    answer(QMessageBox::RejectRole);
    QVERIFY(QFile::exists(path));
    answer(QMessageBox::AcceptRole);
    QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(path), 10000);
    QVERIFY(!QFile::exists(path + QStringLiteral(".json")));
    QCOMPARE(strip.count(), 0);
}

QTEST_MAIN(TestFilesPanel)
#include "TestFilesPanel.moc"
