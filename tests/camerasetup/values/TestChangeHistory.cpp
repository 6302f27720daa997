#include "sdk/testing/Gate.h"
#include "tests/camerasetup/values/SetupBench.h"

#include <QtTest>

using namespace CvxCPP;
using Kind = HistoryEntry::Kind;

namespace {

const std::vector<SelectorSetting> red{{"GainSelector", "Red"}};
const QString width = QStringLiteral("Width");
const QString gain = QStringLiteral("Gain");

std::vector<Kind> kindsOf(const ChangeHistory &history)
{
    std::vector<Kind> kinds;
    for (const HistoryEntry &entry : history.entries())
        kinds.push_back(entry.kind);
    return kinds;
}

std::map<std::string, NodeValue> changedValues(SetupBench &bench)
{
    return bench.device().change([](ScriptedDevice &device) { return device.changedValues(); });
}

void undo(SetupBench &bench)
{
    bench.history.undo();
    waitUntilTrue([&bench] { return !bench.jobs.isBusy(); });
}

void redo(SetupBench &bench)
{
    bench.history.redo();
    waitUntilTrue([&bench] { return !bench.jobs.isBusy(); });
}

} // namespace

class TestChangeHistory : public QObject
{
    Q_OBJECT

private slots:
    void sequenceOfEdits_data();
    void sequenceOfEdits();
    void sliderIsOneEntry();
    void undoesUnderSelectorsThatAreNotPresent();
    void newChangeLeavesNothingToRedo();
    void emptyTextIsAValue();
    void unknownValueBecomesEmptyText();
    void waitsForJobs();
    void waitsForWrites();
    void runThatMustWaitIsGivenUp();
    void valueThatIsThereAlreadyIsNoEdit();
    void pausesStreamOnlyIfNecessary();
    void undoesSeveralFeatures();
    void refusedChangeStays();
    void unknownValueIsPassedOver();
    void lossKeepsHistoryAndAnotherCameraForgetsIt();
    void scriptHasSelectorsBeforeValues();
};

void TestChangeHistory::sequenceOfEdits_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<bool>("continues");
    QTest::newRow("within a second") << gain << QStringLiteral("All") << 1000 << true;
    QTest::newRow("later") << gain << QStringLiteral("All") << 1001 << false;
    QTest::newRow("another selector") << gain << QStringLiteral("Red") << 10 << false;
    QTest::newRow("another feature") << width << QStringLiteral("All") << 10 << false;
}

void TestChangeHistory::sequenceOfEdits()
{
    QFETCH(QString, feature);
    QFETCH(QString, selector);
    QFETCH(int, milliseconds);
    EditSequence sequence;
    const EditSequence::Clock::time_point start{};
    QVERIFY(!sequence.continues({{{"GainSelector", "All"}}, "Gain", "1", "2"}, start));
    const FeatureEdit edit{{{"GainSelector", selector.toStdString()}}, feature.toStdString(), "2", "3"};
    QTEST(sequence.continues(edit, start + std::chrono::milliseconds(milliseconds)), "continues");
}

void TestChangeHistory::sliderIsOneEntry()
{
    SetupBench bench;
    for (const std::int64_t value : {700, 710, 720})
        bench.write(width, value);
    QCOMPARE(bench.history.entries().size(), 1);
    QCOMPARE(bench.history.entries()[0].edits[0].before, std::optional<std::string>("640"));
    QCOMPARE(bench.history.entries()[0].edits[0].after, std::string("720"));
    bench.write(width, std::int64_t(640)); // Back where it began.
    QCOMPARE(bench.history.entries().size(), 0);
    QVERIFY(!bench.history.canUndo());
}

void TestChangeHistory::undoesUnderSelectorsThatAreNotPresent()
{
    SetupBench bench;
    bench.waitUntilComplete();
    bench.write(QStringLiteral("GainSelector"), std::string("Red"));
    bench.write(gain, 5.0);
    bench.write(QStringLiteral("GainSelector"), std::string("All"));
    QCOMPARE(bench.history.undoTitle(), QStringLiteral("Gain [GainSelector=Red]"));
    QVERIFY(bench.opening.isChanged(gain));
    undo(bench);
    QVERIFY(changedValues(bench).empty());
    QVERIFY(!bench.opening.isChanged(gain));
    QVERIFY(bench.history.entries()[1].isUndone);
    QVERIFY(!bench.history.canUndo()); // Selectors are passed over.
    redo(bench);
    QCOMPARE(changedValues(bench), (std::map<std::string, NodeValue>{{"Gain/GainSelector=Red", 5.0}}));
    QVERIFY(!bench.history.entries()[1].isUndone);
    QCOMPARE(kindsOf(bench.history),
        (std::vector<Kind>{Kind::Edit, Kind::Edit, Kind::Edit, Kind::Undo, Kind::Redo}));
    QVERIFY(bench.history.canUndo() && !bench.history.canRedo());
}

void TestChangeHistory::newChangeLeavesNothingToRedo()
{
    SetupBench bench;
    bench.write(width, std::int64_t(700));
    undo(bench);
    QCOMPARE(bench.bench.client.state(width)->value, NodeValue(std::int64_t(640)));
    QVERIFY(bench.history.canRedo());
    bench.write(QStringLiteral("OffsetX"), std::int64_t(8));
    QVERIFY(!bench.history.canRedo());
    QCOMPARE(bench.history.undoTitle(), QStringLiteral("OffsetX"));
}

void TestChangeHistory::emptyTextIsAValue()
{
    SetupBench bench;
    bench.write(QStringLiteral("DeviceUserID"), std::string("Left"));
    undo(bench);
    QCOMPARE(bench.bench.value("DeviceUserID"), NodeValue(std::string()));
    QVERIFY(bench.history.canRedo());
}

void TestChangeHistory::unknownValueBecomesEmptyText()
{
    SetupBench bench;
    QSignalSpy failures(&bench.history, &ChangeHistory::failed);
    QSignalSpy written(&bench.bench.client, &FeatureClient::written);
    bench.bench.client.write(QStringLiteral("DeviceUserID"), std::string()); // Nobody has read it.
    QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, hangTimeout);
    QCOMPARE(bench.history.entries().size(), 1);
    QCOMPARE(bench.history.entries()[0].edits[0].before, std::nullopt);
    undo(bench);
    QCOMPARE(failures.size(), 1);
    QVERIFY(bench.device().writtenValues("DeviceUserID").size() == 1);
}

void TestChangeHistory::waitsForJobs()
{
    SetupBench bench;
    bench.write(width, std::int64_t(700));
    CvxScripted::Gate gate;
    bench.jobs.start(QStringLiteral("Load"), CameraJobs::StreamUse::Keep,
        [&gate](Device &device, const FeatureProgress &) {
            gate.pass();
            return device.Write("Width", std::int64_t(800));
        },
        this, {});
    QVERIFY(!bench.history.canUndo());
    bench.history.undo();
    bench.jobs.cancel(); // Also forgets waiting jobs.
    bool canUndo = false;
    connect(&bench.history, &ChangeHistory::changed, this, [&] { canUndo = bench.history.canUndo(); });
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(canUndo, hangTimeout);
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(800)));
    undo(bench);
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(640)));
}

void TestChangeHistory::waitsForWrites()
{
    SetupBench bench;
    bench.write(width, std::int64_t(700));
    QVector<bool> states; // Each time when changed() is emitted.
    connect(&bench.history, &ChangeHistory::changed, this, [&] { states.append(bench.history.canUndo()); });
    bench.bench.client.write(QStringLiteral("OffsetX"), std::int64_t(8));
    bench.bench.client.write(QStringLiteral("ExposureTime"), 0.0); // Below the minimum.
    bench.history.undo();
    QVERIFY(!bench.jobs.isBusy());
    QTRY_COMPARE_WITH_TIMEOUT(states, (QVector<bool>{false, true}), hangTimeout);
    QCOMPARE(bench.history.undoTitle(), QStringLiteral("OffsetX"));
}

void TestChangeHistory::runThatMustWaitIsGivenUp()
{
    bool isStreaming = false;
    SetupBench bench([&isStreaming](TestDevice &device) {
        scriptSetupCamera(device);
        device.feature("Width").rule = [&isStreaming](NodeState &state) {
            state.lockReason = isStreaming ? LockReason::StreamRunning : LockReason::None;
        };
    });
    QSignalSpy failures(&bench.history, &ChangeHistory::failed);
    bench.write(width, std::int64_t(700));
    bench.device().change([&isStreaming](ScriptedDevice &) { isStreaming = true; });
    bench.history.undo();
    CvxScripted::Gate gate;
    const auto wait = [&gate](Device &, const FeatureProgress &) {
        gate.pass();
        return CvxResult();
    };
    bench.jobs.start(QStringLiteral("Load"), CameraJobs::StreamUse::Keep, wait, this, {});
    QTRY_COMPARE_WITH_TIMEOUT(failures.size(), 1, hangTimeout);
    bench.jobs.cancel();
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(bench.history.canUndo(), hangTimeout);
    QCOMPARE(bench.history.undoTitle(), width);
}

void TestChangeHistory::valueThatIsThereAlreadyIsNoEdit()
{
    SetupBench bench;
    bench.history.addEdits(
        QStringLiteral("Load a.txt"), {{{}, "Width", "640", "800"}, {{}, "OffsetX", "0", "8"}});
    undo(bench); // The camera has the values from before already.
    QVERIFY(bench.history.entries()[0].isUndone);
    QCOMPARE(bench.history.entries().size(), 1);
    QCOMPARE(bench.history.redoTitle(), QStringLiteral("Load a.txt"));
    bench.device().change([](ScriptedDevice &device) { device.set("Width", std::int64_t(800)); });
    redo(bench);
    QCOMPARE(bench.history.entries().size(), 2);
    QCOMPARE(bench.history.entries()[1].edits.size(), std::size_t(1));
    QCOMPARE(bench.history.entries()[1].edits[0].name, std::string("OffsetX"));
}

void TestChangeHistory::pausesStreamOnlyIfNecessary()
{
    bool isStreaming = true;
    SetupBench bench([&isStreaming](TestDevice &device) {
        scriptSetupCamera(device);
        device.feature("Width").rule = [&isStreaming](NodeState &state) {
            state.lockReason = isStreaming ? LockReason::StreamRunning : LockReason::None;
        };
    });
    TestPauser pauser(bench.bench);
    pauser.onStop = [&isStreaming](ScriptedDevice &) { isStreaming = false; };
    bench.jobs.setStreamPauser(&pauser);
    bench.device().change([&isStreaming](ScriptedDevice &) { isStreaming = false; });
    bench.write(width, std::int64_t(700));
    bench.write(QStringLiteral("OffsetX"), std::int64_t(8));
    bench.device().change([&isStreaming](ScriptedDevice &) { isStreaming = true; });
    undo(bench);
    QCOMPARE(pauser.count, 0);
    undo(bench);
    QCOMPARE(pauser.count, 1);
    QVERIFY(changedValues(bench).empty());
}

void TestChangeHistory::undoesSeveralFeatures()
{
    SetupBench bench;
    bench.waitUntilComplete();
    QSignalSpy failures(&bench.history, &ChangeHistory::failed);
    bench.device().change([](ScriptedDevice &device) {
        device.set("Width", std::int64_t(800));
        device.set("ExposureTime", 500.0);
        device.set("ExposureAuto", std::string("Continuous")); // Locks the exposure time.
    });
    bench.history.addEdits(
        QStringLiteral("Load a.txt"), {{{}, "Width", "640", "800"}, {{}, "ExposureTime", "10000", "500"}});
    QVERIFY(bench.opening.isChanged(width));
    undo(bench);
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(640)));
    QCOMPARE(failures.size(), 1); // For the exposure time.
    QVERIFY(failures[0][0].toString().contains(QStringLiteral("\nExposureTime: ")));
    QVERIFY(bench.history.entries()[0].isUndone);
    QCOMPARE(bench.history.redoTitle(), QStringLiteral("Load a.txt"));
}

void TestChangeHistory::refusedChangeStays()
{
    SetupBench bench;
    const QString time = QStringLiteral("ExposureTime");
    QSignalSpy failures(&bench.history, &ChangeHistory::failed);
    bench.write(time, 500.0);
    bench.device().change(
        [](ScriptedDevice &device) { device.set("ExposureAuto", std::string("Continuous")); });
    undo(bench);
    QCOMPARE(failures.size(), 1);
    QCOMPARE(bench.history.undoTitle(), time);
    QCOMPARE(bench.history.entries().size(), 1);
    bench.device().change([](ScriptedDevice &device) { device.set("ExposureAuto", std::string("Off")); });
    undo(bench);
    QCOMPARE(failures.size(), 1);
    QCOMPARE(bench.bench.value("ExposureTime"), NodeValue(10000.0));
}

void TestChangeHistory::unknownValueIsPassedOver()
{
    SetupBench bench;
    QSignalSpy failures(&bench.history, &ChangeHistory::failed);
    bench.write(width, std::int64_t(700));
    bench.history.addEdits(QStringLiteral("Load b.txt"), {{{}, "OffsetX", "", "8"}});
    undo(bench);
    QCOMPARE(failures.size(), 1);
    QCOMPARE(bench.history.undoTitle(), width);
    QVERIFY(!bench.history.entries()[1].isUndone);
}

void TestChangeHistory::lossKeepsHistoryAndAnotherCameraForgetsIt()
{
    SetupBench bench;
    bench.write(width, std::int64_t(700));
    bench.device().lose("The cable is out.");
    QTRY_VERIFY_WITH_TIMEOUT(!bench.history.canUndo(), hangTimeout);
    QSignalSpy loaded(&bench.bench.client, &FeatureClient::nodesLoaded);
    bench.device().reopen();
    QTRY_VERIFY_WITH_TIMEOUT(!loaded.isEmpty(), hangTimeout);
    undo(bench);
    QCOMPARE(bench.bench.value("Width"), NodeValue(std::int64_t(640)));
    const auto other = std::make_shared<OpenableCamera>("CAM-2");
    bench.bench.connection.open(OpenableCamera::entry(other), CvxAccessControl);
    QVERIFY(bench.history.entries().isEmpty());
    QVERIFY(!bench.history.canUndo() && !bench.history.canRedo());
}

void TestChangeHistory::scriptHasSelectorsBeforeValues()
{
    SetupBench bench([](TestDevice &device) {
        scriptSetupCamera(device);
        addChoice(device, "BlackLevelSelector", {"All"});
        addNumber(device, "BlackLevel", 0.0, 0.0, 10.0);
        device.select("BlackLevelSelector", {"BlackLevel"});
    });
    bench.write(gain, 5.0);
    bench.write(QStringLiteral("BlackLevel"), 2.0);
    QSignalSpy executed(&bench.bench.client, &FeatureClient::executed);
    bench.bench.client.execute(QStringLiteral("UserSetLoad"));
    QTRY_COMPARE_WITH_TIMEOUT(executed.size(), 1, hangTimeout);
    const QString script = bench.history.script();
    QVERIFY(script.contains(QStringLiteral("camera='%1'\n").arg(bench.bench.connection.camera().id)));
    QVERIFY(script.contains(QStringLiteral("set \"$camera\" 'GainSelector=All' 'Gain=5'\n")));
    QVERIFY(script.contains(QStringLiteral("set \"$camera\" 'BlackLevel=2'\n"))); // It has one value only.
    QVERIFY(script.contains(QStringLiteral("run \"$camera\" 'UserSetLoad'\n")));
}

QTEST_GUILESS_MAIN(TestChangeHistory)
#include "TestChangeHistory.moc"
