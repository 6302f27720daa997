#include "tests/kit/editors/EditorBench.h"
#include "tools/kit/editors/LockAdvice.h"

#include <QComboBox>
#include <QPushButton>
#include <QtTest>

using namespace CvxCPP;

namespace {

/// A camera whose exposure time is locked by an automatic function.
void addExposure(TestDevice &device)
{
    addChoice(device, "ExposureAuto", {"Off", "Continuous"});
    device.set("ExposureAuto", std::string("Continuous"));
    device.feature("ExposureAuto").info.displayName = "Exposure Auto";
    addNumber(device, "ExposureTime", 100.0, 1.0, 1e6).rule = [&device](NodeState &state) {
        const bool isOff = device.value("ExposureAuto") == NodeValue(std::string("Off"));
        state.lockReason = isOff ? LockReason::None : LockReason::LockedByNode;
        state.lockingNode = isOff ? "" : "ExposureAuto";
    };
    device.setDependents("ExposureAuto", {"ExposureAuto", "ExposureTime"});
}

/// Returns the visible buttons of the line below the control.
QStringList helpOf(const FeatureEditor &editor)
{
    QStringList texts;
    const auto buttons = editor.findChildren<QPushButton *>();
    for (const QPushButton *const button : buttons) {
        if (button->isVisible())
            texts.append(button->text());
    }
    return texts;
}

void click(const FeatureEditor &editor, const QString &text)
{
    const auto buttons = editor.findChildren<QPushButton *>();
    for (QPushButton *const button : buttons) {
        if (button->isVisible() && button->text() == text)
            button->click();
    }
}

} // namespace

class TestLockHelp : public QObject
{
    Q_OBJECT

private slots:
    void adviceDependsOnTheLockingFeature_data();
    void adviceDependsOnTheLockingFeature();
    void lockIsEndedInOneStep();
    void refusedUnlockingIsShown();
    void responsibleFeatureCanBeShown();
    void helpIsNotOfferedUnlessWanted();
    void everyReasonIsSaidWithHelp();
    void changeBehindAPauseIsReported_data();
    void changeBehindAPauseIsReported();
};

void TestLockHelp::adviceDependsOnTheLockingFeature_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<NodeValue>("value");
    QTest::addColumn<int>("lockOfMode");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("unlockText");
    QTest::addColumn<QString>("showText");
    const auto row = [](const char *name, LockReason reason, const NodeValue &value, LockReason lockOfMode,
                         const char *sentence, const char *unlockText, const char *showText) {
        QTest::newRow(name) << static_cast<int>(reason) << value << static_cast<int>(lockOfMode)
                            << QString::fromUtf8(sentence) << QString::fromUtf8(unlockText)
                            << QString::fromUtf8(showText);
    };
    const NodeValue automatic = std::string("Continuous");
    const auto locked = LockReason::LockedByNode;
    const auto free = LockReason::None;
    row("automatic", locked, automatic, free, "Locked while The Mode is Always.", "Set The Mode to Never",
        "Show The Mode");
    row("switch", locked, true, free, "Locked while The Mode is on.", "Set The Mode to off", "Show The Mode");
    row("switch that is off", locked, false, free, "Locked while The Mode is off.", "", "Show The Mode");
    row("mode that is off", locked, std::string("Off"), free, "Locked while The Mode is Never.", "",
        "Show The Mode");
    row("number", locked, std::int64_t(1), free, "Controlled by The Mode.", "", "Show The Mode");
    row("locked mode", locked, automatic, LockReason::StreamRunning, "Locked while The Mode is Always.", "",
        "Show The Mode");
    row("not available", LockReason::NotAvailable, automatic, free, "Not available while The Mode is Always.",
        "", "Show The Mode");
    row("stream", LockReason::StreamRunning, automatic, free, "Locked while the camera streams.", "", "");
}

void TestLockHelp::adviceDependsOnTheLockingFeature()
{
    QFETCH(int, reason);
    QFETCH(NodeValue, value);
    QFETCH(int, lockOfMode);
    NodeState state;
    state.lockReason = static_cast<LockReason>(reason);
    state.lockingNode = "Mode";
    NodeInfo mode;
    mode.name = "Mode";
    mode.displayName = "The Mode";
    mode.entries = {{"Off", "Never", 0}, {"Continuous", "Always", 1}};
    NodeState modeState;
    modeState.value = value;
    modeState.lockReason = static_cast<LockReason>(lockOfMode);
    modeState.availableEntries = {"Off", "Continuous"};
    const LockAdvice advice = lockAdvice(state, &mode, &modeState);
    QTEST(advice.reason, "sentence");
    QTEST(advice.unlockText, "unlockText");
    QTEST(advice.showText, "showText");

    modeState.availableEntries = {"Continuous"};
    if (std::holds_alternative<std::string>(value))
        QCOMPARE(lockAdvice(state, &mode, &modeState).unlockText, QString());
    QCOMPARE(lockAdvice(state, &mode, nullptr).unlockText, QString());
    QCOMPARE(lockAdvice(state, nullptr, nullptr).showText, QString());
}

void TestLockHelp::lockIsEndedInOneStep()
{
    EditorBench bench(addExposure);
    const auto editor = bench.show(QStringLiteral("ExposureTime"));
    editor->setLockHelp(true);
    const QString unlock = QStringLiteral("Set Exposure Auto to Off shown");
    QTRY_COMPARE_WITH_TIMEOUT(
        helpOf(*editor), (QStringList{unlock, QStringLiteral("Show Exposure Auto")}), hangTimeout);
    click(*editor, unlock);
    QTRY_VERIFY_WITH_TIMEOUT(editor->isEditable(), hangTimeout);
    QVERIFY(bench.value("ExposureAuto") == NodeValue(std::string("Off")));
    QCOMPARE(helpOf(*editor), QStringList());
    QCOMPARE(editor->noteText(), QString());
}

void TestLockHelp::refusedUnlockingIsShown()
{
    EditorBench bench(addExposure);
    const auto editor = bench.show(QStringLiteral("ExposureTime"));
    editor->setLockHelp(true);
    QTRY_COMPARE_WITH_TIMEOUT(helpOf(*editor).size(), 2, hangTimeout);
    bench.device().change([](ScriptedDevice &device) {
        device.feature("ExposureAuto").state.availableEntries = {"Continuous"};
    });
    click(*editor, QStringLiteral("Set Exposure Auto to Off shown"));
    QTRY_COMPARE_WITH_TIMEOUT(
        editor->noteText(), QStringLiteral("\"ExposureAuto\" is out of range."), hangTimeout);
}

void TestLockHelp::responsibleFeatureCanBeShown()
{
    EditorBench bench(addExposure);
    const auto editor = bench.show(QStringLiteral("ExposureTime"));
    editor->setLockHelp(true);
    QSignalSpy requests(editor.get(), &FeatureEditor::featureRequested);
    QTRY_COMPARE_WITH_TIMEOUT(helpOf(*editor).size(), 2, hangTimeout);
    click(*editor, QStringLiteral("Show Exposure Auto"));
    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests[0][0].toString(), QStringLiteral("ExposureAuto"));
}

void TestLockHelp::helpIsNotOfferedUnlessWanted()
{
    EditorBench bench(addExposure);
    const auto editor = bench.show(QStringLiteral("ExposureTime"));
    QTRY_COMPARE_WITH_TIMEOUT(
        editor->noteText(), QStringLiteral("Locked while Exposure Auto is Continuous shown."), hangTimeout);
    QCOMPARE(helpOf(*editor), QStringList());
}

void TestLockHelp::everyReasonIsSaidWithHelp()
{
    EditorBench bench([](TestDevice &device) {
        device.add("DeviceTemperature", 40.0).state.lockReason = LockReason::ReadOnlyNode;
    });
    const auto editor = bench.show(QStringLiteral("DeviceTemperature"));
    QCOMPARE(editor->noteText(), QString());
    editor->setLockHelp(true);
    QTRY_COMPARE_WITH_TIMEOUT(
        editor->noteText(), QStringLiteral("The camera only reports this value."), hangTimeout);
}

void TestLockHelp::changeBehindAPauseIsReported_data()
{
    QTest::addColumn<bool>("isEditorGone");
    QTest::newRow("editor stays") << false;
    QTest::newRow("editor is gone") << true;
}

void TestLockHelp::changeBehindAPauseIsReported()
{
    QFETCH(bool, isEditorGone);
    EditorBench bench([](TestDevice &device) {
        addChoice(device, "PixelFormat", {"Mono8", "Mono12"}).state.lockReason = LockReason::StreamRunning;
    });
    TestPauser pauser(bench);
    pauser.onStop
        = [](ScriptedDevice &device) { device.feature("PixelFormat").state.lockReason = LockReason::None; };
    auto editor = bench.show(QStringLiteral("PixelFormat"));
    editor->setStreamPauser(&pauser);
    QSignalSpy writes(&bench.client, &FeatureClient::written);
    auto *const box = editor->findChild<QComboBox *>();
    QTRY_VERIFY_WITH_TIMEOUT(box->isEnabled(), hangTimeout);
    emit box->activated(1);
    editor->acceptQuestion();
    if (isEditorGone)
        editor.reset();
    QTRY_COMPARE_WITH_TIMEOUT(writes.count(), 1, hangTimeout);
    QCOMPARE(writes[0][0].toString(), QStringLiteral("PixelFormat"));
    QVERIFY(writes[0][1].value<NodeValue>() == NodeValue(std::string("Mono8")));
    QVERIFY(writes[0][2].value<NodeValue>() == NodeValue(std::string("Mono12")));
}

QTEST_MAIN(TestLockHelp)
#include "TestLockHelp.moc"
