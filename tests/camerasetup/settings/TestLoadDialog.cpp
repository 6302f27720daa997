#include "tests/camerasetup/settings/SettingsBench.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSemaphore>
#include <QtTest>

#include <utility>

using namespace CvxCPP;
using State = SettingsLoad::State;

namespace {

// A byte order mark, line ends of another system, comments, unknown features, a bad line, and the selected
// feature before the other selection.
const QByteArray otherProgramsFile = "\xEF\xBB\xBF# {05D8C294-F295-4dfb-9D01-096BD04049F4}\r\n"
                                     "# Written by another program\r\n"
                                     "Width\t320\r\n"
                                     "ExposureTime\t500\r\n"
                                     "ExposureAuto\tContinuous\r\n"
                                     "GainSelector\tTap2\r\n"
                                     "Gain\t4\r\n"
                                     "Unknown\t1\r\n"
                                     "nonsense\r\n"
                                     "Temperature\t20\r\n"
                                     "FrameRate\t25\r\n";

const QByteArray header = "# {05D8C294-F295-4dfb-9D01-096BD04049F4}\n";

/// A dialog over a camera. The test can hold the camera at a write.
struct DialogBench
{
    explicit DialogBench(const QByteArray &text)
        : bench([this](TestDevice &camera) { define(camera); }),
          dialog(QStringLiteral("test.txt"), parsedFile(text), bench.jobs, bench.history, nullptr)
    {
        dialog.show();
        waitFor(State::Planned);
    }

    ~DialogBench() { go.release(1000); }

    void define(TestDevice &camera)
    {
        defineSettingsCamera(camera);
        camera.beforeCall = [this](const std::string &call) {
            if (call != "Write" || !isHeld)
                return;
            held.release();
            go.acquire();
        };
    }

    /// Lets the camera wait at the first write after one of this feature.
    void holdAfter(const char *name)
    {
        bench.camera.device().change([this, name](ScriptedDevice &device) {
            device.feature(name).onWrite = [this](NodeValue &) { isHeld = !std::exchange(wasHeld, true); };
        });
    }

    void waitFor(State state)
    {
        QTRY_COMPARE_WITH_TIMEOUT(dialog.settingsLoad().state(), state, hangTimeout);
    }

    void click(const char *button) { child<QPushButton>(dialog, button)->click(); }
    QString summary() { return child<QLabel>(dialog, "summary")->text(); }

    /// Returns the features of the camera that differ from the beginning.
    QStringList changed()
    {
        QStringList names;
        for (const auto &value : bench.camera.device().changedValues())
            names.append(QString::fromStdString(value.first));
        return names;
    }

    std::atomic<bool> isHeld{false};
    bool wasHeld = false;
    QSemaphore held;
    QSemaphore go;
    SettingsBench bench;
    LoadDialog dialog;
};

} // namespace

class TestLoadDialog : public QObject
{
    Q_OBJECT

private slots:
    void planShowsWhatWouldChangeAndBadLines();
    void loadReportsFailuresAndIsUndoneCompletely();
    void allOrNothingWritesNothingIfSomethingCannotFit();
    void cancelKeepsOrPutsBack_data();
    void cancelKeepsOrPutsBack();
    void lostCameraLeavesTheUndo();
    void undoReportsWhatIsNotPutBack();
    void cancelledPlanCloses();
};

void TestLoadDialog::planShowsWhatWouldChangeAndBadLines()
{
    DialogBench bench(otherProgramsFile);
    QCOMPARE(tableRows(bench.dialog).size(), 7);
    child<QCheckBox>(bench.dialog, "onlyChanges")->setChecked(false);
    QCOMPARE(tableRows(bench.dialog),
        QStringList({QStringLiteral("9|||||The line cannot be read. ")
                + QString::fromStdString(parsedFile(otherProgramsFile).problems.front().text),
            QStringLiteral("8|Unknown||1||Cannot be loaded. The camera has no feature of this name."),
            QStringLiteral("10|Temperature|40|20||Cannot be loaded. The camera only reports this value."),
            QStringLiteral("3|Width|640|320||Will change."),
            QStringLiteral("4|ExposureTime|10000|500||Will change."),
            QStringLiteral("5|ExposureAuto|Off|Continuous||Will change."),
            QStringLiteral("7|Gain [GainSelector=Tap2]|1|4||Will change."),
            QStringLiteral("11|FrameRate|25|25||Already has this value.")}));
    QVERIFY2(
        bench.summary().contains(QStringLiteral("4 setting(s) will change.")), qPrintable(bench.summary()));
    QCOMPARE(bench.changed(), QStringList());
    QCOMPARE(bench.bench.pauser.count, 1);
}

void TestLoadDialog::loadReportsFailuresAndIsUndoneCompletely()
{
    DialogBench bench(otherProgramsFile + "Stubborn\t2\r\n");
    bench.click("load");
    bench.waitFor(State::Loaded);
    const QStringList rows = tableRows(bench.dialog);
    QCOMPARE(rows.filter(QStringLiteral("Stubborn")),
        QStringList(QStringLiteral("12|Stubborn|1|2|1|Failed. The camera made 1 of it.")));
    QVERIFY(rows.indexOf(QRegularExpression(QStringLiteral(".*Stubborn.*")))
        < rows.indexOf(QRegularExpression(QStringLiteral(".*Width.*"))));
    QVERIFY(bench.summary().startsWith(QStringLiteral("Not everything could be loaded.")));
    QVERIFY(bench.changed().contains(QStringLiteral("Width")));
    // The camera has changed this one together with the width, and the file has set it before.
    const auto &edits = bench.bench.history.entries().last().edits;
    QVERIFY(std::any_of(edits.begin(), edits.end(), [](const FeatureEdit &edit) {
        return edit.name == "Gain" && edit.selectors == std::vector<SelectorSetting>{{"GainSelector", "Tap2"}}
        && edit.before == "1" && edit.after == "4";
    }));
    bench.click("undo");
    bench.waitFor(State::Undone);
    QCOMPARE(bench.changed(), QStringList());
    QCOMPARE(bench.summary(), QStringLiteral("All settings from before the load were put back."));
    QVERIFY(!child<QPushButton>(bench.dialog, "undo")->isEnabled());
    QVERIFY(bench.dialog.report().contains(QStringLiteral("Width\t640\t320\t\tPut back.")));
}

void TestLoadDialog::allOrNothingWritesNothingIfSomethingCannotFit()
{
    DialogBench bench(header + "Width\t320\nUnknown\t1\n");
    child<QRadioButton>(bench.dialog, "allOrNothing")->setChecked(true);
    bench.click("load");
    bench.waitFor(State::Loaded);
    QVERIFY(bench.summary().startsWith(QStringLiteral("Nothing was changed")));
    QCOMPARE(bench.changed(), QStringList());
    QVERIFY(!child<QPushButton>(bench.dialog, "undo")->isEnabled());
    QVERIFY(bench.bench.history.entries().isEmpty());
}

void TestLoadDialog::cancelKeepsOrPutsBack_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QStringList>("changed");
    QTest::addColumn<QString>("summary");
    QTest::newRow("what fits") << QByteArray("whatFits") << QStringList({QStringLiteral("ExposureTime")})
                               << "The load was cancelled. What was loaded before stays.";
    QTest::newRow("all or nothing") << QByteArray("allOrNothing") << QStringList()
                                    << "The load was cancelled, and the settings from before were put back.";
}

void TestLoadDialog::cancelKeepsOrPutsBack()
{
    QFETCH(QByteArray, mode);
    QFETCH(QStringList, changed);
    QFETCH(QString, summary);
    DialogBench bench(header + "ExposureTime\t500\nGainSelector\tTap1\nGain\t4\nWidth\t320\n");
    child<QRadioButton>(bench.dialog, mode.constData())->setChecked(true);
    bench.holdAfter("ExposureTime");
    bench.click("load");
    QVERIFY(bench.held.tryAcquire(1, hangTimeout)); // At the write of the gain.
    bench.click("close");
    QVERIFY(bench.dialog.isVisible());
    bench.isHeld = false;
    bench.go.release();
    bench.waitFor(State::Loaded);
    QVERIFY2(bench.summary().startsWith(summary), qPrintable(bench.summary()));
    QStringList kept = bench.changed();
    kept.removeAll(QStringLiteral("Gain/GainSelector=Tap1")); // Whose write could not be stopped any more.
    QCOMPARE(kept, changed);
    if (!changed.isEmpty())
        bench.click("undo");
    QTRY_COMPARE_WITH_TIMEOUT(bench.changed(), QStringList(), hangTimeout);
}

void TestLoadDialog::lostCameraLeavesTheUndo()
{
    DialogBench bench(header + "Width\t320\nStubborn\t2\n");
    TestDevice &device = bench.bench.camera.device();
    bench.holdAfter("Width");
    bench.click("load");
    QVERIFY(bench.held.tryAcquire(1, hangTimeout));
    device.lose("The cable was pulled.");
    bench.isHeld = false;
    bench.go.release();
    bench.waitFor(State::Failed);
    QCOMPARE(bench.summary(), QStringLiteral("The camera is lost."));
    bench.click("undo"); // The camera is still gone, and the backup must survive that.
    bench.waitFor(State::Undoing);
    bench.waitFor(State::Failed);
    QVERIFY(child<QPushButton>(bench.dialog, "undo")->isEnabled());
    bench.click("close"); // Without the dialog, nobody knows what to put back.
    QVERIFY(bench.dialog.isVisible());
    child<QMessageBox>(bench.dialog, "question")->reject();
    device.reopen();
    QTRY_VERIFY_WITH_TIMEOUT(bench.bench.camera.connection.isControlled(), hangTimeout);
    bench.click("undo");
    bench.waitFor(State::Undone);
    QCOMPARE(bench.changed(), QStringList());
}

void TestLoadDialog::undoReportsWhatIsNotPutBack()
{
    DialogBench bench(header + "Width\t320\n");
    bench.click("load");
    bench.waitFor(State::Loaded);
    bench.bench.camera.device().change(
        [](ScriptedDevice &device) { device.feature("Width").state.maximum = std::int64_t(500); });
    bench.click("undo");
    bench.waitFor(State::Undone);
    QVERIFY(bench.summary().startsWith(QStringLiteral("Not all settings")));
    QVERIFY2(
        tableRows(bench.dialog).first().contains(QStringLiteral("Width has not got its previous value 640")),
        qPrintable(tableRows(bench.dialog).first()));
    QVERIFY(tableRows(bench.dialog).last().endsWith(QStringLiteral("Not put back.")));
    QVERIFY(child<QPushButton>(bench.dialog, "undo")->isEnabled());
}

void TestLoadDialog::cancelledPlanCloses()
{
    SettingsBench bench(defineSettingsCamera);
    LoadDialog dialog(
        QStringLiteral("test.txt"), parsedFile(otherProgramsFile), bench.jobs, bench.history, nullptr);
    dialog.show();
    QCOMPARE(dialog.settingsLoad().state(), State::Planning); // The dialog does not wait for the camera.
    child<QPushButton>(dialog, "close")->click();
    QVERIFY(!dialog.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!bench.jobs.isBusy(), hangTimeout);
}

QTEST_MAIN(TestLoadDialog)
#include "TestLoadDialog.moc"
