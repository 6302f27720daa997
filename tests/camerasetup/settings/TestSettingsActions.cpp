#include "sdk/features/FeatureFileStorage.h"
#include "tests/camerasetup/settings/SettingsBench.h"
#include "tools/camerasetup/settings/RestoreBar.h"
#include "tools/camerasetup/settings/SettingsActions.h"
#include "tools/camerasetup/settings/SettingsSave.h"
#include "tools/kit/start/ToolSettings.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

using namespace CvxCPP;

namespace {

struct ActionsBench
{
    explicit ActionsBench(CvxAccess access = CvxAccessControl)
        : bench(defineSettingsCamera, access),
          settings(QStringLiteral("setup"), directory.path()),
          actions({bench.camera.client, bench.jobs, bench.history, bench.opening, settings}, &window)
    {
        window.show();
    }

    QString path(const char *name) const { return directory.filePath(QString::fromLatin1(name)); }

    /// Returns the only child dialog of this class and name after it has appeared.
    template <typename Dialog>
    Dialog *dialog(const char *name)
    {
        Dialog *found = nullptr;
        const auto isThere = [&] {
            found = window.findChild<Dialog *>(QString::fromLatin1(name));
            return found && found->isVisible();
        };
        return QTest::qWaitFor(isThere, hangTimeout) ? found : nullptr;
    }

    QTemporaryDir directory;
    SettingsBench bench;
    ToolSettings settings;
    QWidget window;
    SettingsActions actions;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

class TestSettingsActions : public QObject
{
    Q_OBJECT

private slots:
    void savesToTheChosenFileAndShowsNotes();
    void failedSaveKeepsTheOldFile();
    void suggestsANameWithoutUnusualCharacters();
    void loadsAFileThatWasSaved();
    void refusesFilesThatAreNoSettings();
    void watchingOnlySaves();
    void restoresTheOpening();
    void barAppearsAfterALoss();
};

void TestSettingsActions::savesToTheChosenFileAndShowsNotes()
{
    ActionsBench bench;
    QSignalSpy reported(&bench.actions, &SettingsActions::reported);
    bench.settings.setValue(QStringLiteral("settings/directory"), bench.directory.path());
    bench.actions.save->trigger();
    auto *const files = bench.dialog<QFileDialog>("settingsFiles");
    QVERIFY(files);
    QCOMPARE(files->directory().absolutePath(), QDir(bench.directory.path()).absolutePath());
    files->selectFile(bench.path("mine")); // The ending is added.
    QMetaObject::invokeMethod(files, "accept");
    auto *const notes = bench.dialog<QDialog>("notes");
    QVERIFY(notes);
    QVERIFY(notes->findChild<QTreeWidget *>()->topLevelItem(0)->text(1).contains(
        QStringLiteral("DeviceUserID is an empty text")));
    const QByteArray content = contentOf(bench.path("mine.txt"));
    QVERIFY2(
        content.contains("GainSelector\tTap2\n") && content.contains("Model of CAM-1"), content.constData());
    QCOMPARE(reported.count(), 1);
    QVERIFY(reported.first().first().toString().contains(QStringLiteral("mine.txt")));
}

void TestSettingsActions::failedSaveKeepsTheOldFile()
{
    ActionsBench bench;
    writeFile(bench.path("old.txt"), "old");
    bench.bench.camera.device().lose(std::string("Gone."));
    bench.actions.saveFile(bench.path("old.txt"));
    auto *const failure = bench.dialog<QMessageBox>("failure");
    QVERIFY(failure);
    QCOMPARE(failure->text(), QStringLiteral("The camera is lost."));
    QCOMPARE(contentOf(bench.path("old.txt")), QByteArray("old"));
    delete failure;
    bench.bench.camera.device().reopen();
    bench.actions.saveFile(bench.path("missing/new.txt"));
    QVERIFY(bench.dialog<QMessageBox>("failure"));
    QVERIFY(bench.dialog<QMessageBox>("failure")->text().contains(QStringLiteral("missing/new.txt")));
}

void TestSettingsActions::suggestsANameWithoutUnusualCharacters()
{
    CameraEntry camera;
    camera.model = QStringLiteral("Kx 200/Pro");
    camera.serialNumber = QStringLiteral("0042");
    QCOMPARE(SettingsSave::suggestedName(camera, QDate(2026, 3, 9)),
        QStringLiteral("Kx-200-Pro_0042_2026-03-09.txt"));
}

void TestSettingsActions::loadsAFileThatWasSaved()
{
    ActionsBench bench;
    bench.actions.saveFile(bench.path("a.txt"));
    auto *const notes = bench.dialog<QDialog>("notes");
    QVERIFY(notes);
    delete notes;
    bench.bench.camera.device().setByCamera("Width", std::int64_t(100));
    bench.actions.loadFile(bench.path("a.txt"));
    auto *const dialog = bench.dialog<LoadDialog>("loadDialog");
    QVERIFY(dialog);
    QTRY_COMPARE_WITH_TIMEOUT(dialog->settingsLoad().state(), SettingsLoad::State::Planned, hangTimeout);
    QCOMPARE(tableRows(*dialog).filter(QStringLiteral("Will change")),
        tableRows(*dialog).filter(QStringLiteral("|Width|100|640|")));
    QCOMPARE(bench.settings.value(QStringLiteral("settings/directory"), QString()),
        QFileInfo(bench.directory.path()).absoluteFilePath());
}

void TestSettingsActions::refusesFilesThatAreNoSettings()
{
    ActionsBench bench;
    writeFile(bench.path("picture.txt"), QByteArray("\x89PNG\0\0\0", 7));
    bench.actions.loadFile(bench.path("picture.txt"));
    auto *const failure = bench.dialog<QMessageBox>("failure");
    QVERIFY(failure);
    QVERIFY(failure->text().startsWith(bench.path("picture.txt")));
    QVERIFY(!bench.window.findChild<LoadDialog *>());
}

void TestSettingsActions::watchingOnlySaves()
{
    ActionsBench bench(CvxAccessWatch);
    QVERIFY(bench.actions.save->isEnabled());
    for (QAction *const action : {bench.actions.load, bench.actions.restore}) {
        QVERIFY(!action->isEnabled());
        QCOMPARE(action->toolTip(), QStringLiteral("The camera is only watched, so nothing can be changed."));
    }
    writeFile(bench.path("dropped.txt"), "# {05D8C294-F295-4dfb-9D01-096BD04049F4}\nWidth\t100\n");
    bench.actions.loadFile(bench.path("dropped.txt"));
    QVERIFY(bench.dialog<QMessageBox>("failure"));
    bench.bench.camera.connection.close();
    QVERIFY(!bench.actions.save->isEnabled());
}

void TestSettingsActions::restoresTheOpening()
{
    ActionsBench bench;
    QVERIFY(bench.actions.restore->isEnabled());
    TestDevice &device = bench.bench.camera.device();
    device.change([](ScriptedDevice &script) {
        script.set("ExposureTime", 500.0);
        script.set("ExposureAuto", std::string("Continuous"));
    });
    bench.actions.restore->trigger();
    auto *const dialog = bench.dialog<LoadDialog>("loadDialog");
    QVERIFY(dialog);
    QTRY_COMPARE_WITH_TIMEOUT(dialog->settingsLoad().state(), SettingsLoad::State::Planned, hangTimeout);
    child<QPushButton>(*dialog, "load")->click();
    QTRY_COMPARE_WITH_TIMEOUT(dialog->settingsLoad().state(), SettingsLoad::State::Loaded, hangTimeout);
    QCOMPARE(dialog->settingsLoad().report().count(FeatureOutcome::Failed), std::size_t(0));
    QVERIFY(device.changedValues().empty());
}

void TestSettingsActions::barAppearsAfterALoss()
{
    ActionsBench bench;
    RestoreBar bar(bench.bench.camera.connection, bench.bench.opening, &bench.window);
    QSignalSpy restore(&bar, &RestoreBar::restoreRequested);
    QVERIFY(bar.isHidden());
    TestDevice &device = bench.bench.camera.device();
    device.lose("The producer has crashed.");
    QTRY_COMPARE_WITH_TIMEOUT(
        bench.bench.camera.connection.state(), CameraConnection::State::Lost, hangTimeout);
    QVERIFY(bar.isHidden());
    device.reopen("The camera is open again. It has refused Gain.");
    QTRY_VERIFY_WITH_TIMEOUT(!bar.isHidden(), hangTimeout);
    QVERIFY(bar.findChild<QLabel *>()->text().startsWith(
        QStringLiteral("The camera is open again. It has refused Gain.")));
    QVERIFY(child<QPushButton>(bar, "compare")->isEnabled());
    child<QPushButton>(bar, "restore")->click();
    QCOMPARE(restore.count(), 1);
    child<QPushButton>(bar, "dismiss")->click();
    QVERIFY(bar.isHidden());
    device.lose("Again.");
    device.reopen();
    QTRY_VERIFY_WITH_TIMEOUT(!bar.isHidden(), hangTimeout);
    bench.bench.camera.connection.close();
    QVERIFY(bar.isHidden());
}

QTEST_MAIN(TestSettingsActions)
#include "TestSettingsActions.moc"
