#include "tests/kit/editors/EditorBench.h"
#include "tools/kit/editors/LockText.h"

#include <QComboBox>
#include <QPushButton>
#include <QtTest>

using namespace CvxCPP;

namespace {

/// A camera that streams, with a feature that is locked by the stream.
void addLockedFormat(TestDevice &device)
{
    addChoice(device, "PixelFormat", {"Mono8", "Mono12", "RGB8"}).state.lockReason
        = LockReason::StreamRunning;
    device.setDependents("PixelFormat", {"PixelFormat"});
    device.addCommand("UserSetLoad").state.lockReason = LockReason::StreamRunning;
}

void unlock(ScriptedDevice &device)
{
    for (const char *const name : {"PixelFormat", "UserSetLoad"})
        device.feature(name).state.lockReason = LockReason::None;
}

/// A shown editor of the format with a pauser.
struct FormatEditor
{
    FormatEditor() : bench(addLockedFormat), pauser(bench), editor(bench.show(QStringLiteral("PixelFormat")))
    {
        editor->setStreamPauser(&pauser);
        pauser.onStop = unlock;
        box = editor->findChild<QComboBox *>();
    }

    void choose(int index)
    {
        box->setCurrentIndex(index);
        emit box->activated(index);
    }

    EditorBench bench;
    TestPauser pauser;
    std::unique_ptr<FeatureEditor> editor;
    QComboBox *box;
};

} // namespace

class TestStreamLock : public QObject
{
    Q_OBJECT

private slots:
    void everyLockHasItsSentence_data();
    void everyLockHasItsSentence();
    void changeIsOfferedInOneStep();
    void discardedChangeIsForgotten();
    void changeThatIsTakenBackNeedsNoAnswer();
    void failureBehindThePauseIsShown();
    void newerChangeReplacesTheQuestion();
    void pauseEndsWhenAnotherCameraIsOpened();
    void commandIsOfferedToo();
    void withoutPauserTheFeatureIsLocked();
};

void TestStreamLock::everyLockHasItsSentence_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](LockReason reason, const char *feature, const char *value, const char *text) {
        QTest::addRow("%d %s %s", static_cast<int>(reason), feature, value)
            << static_cast<int>(reason) << QString::fromLatin1(feature) << QString::fromLatin1(value)
            << QString::fromLatin1(text);
    };
    row(LockReason::None, "", "", "");
    row(LockReason::NotImplemented, "", "", "This camera does not have the feature.");
    row(LockReason::NotAvailable, "", "", "Not available at present.");
    row(LockReason::NotAvailable, "Mode", "", "Not available because of the setting of Mode.");
    row(LockReason::NotAvailable, "Mode", "Off", "Not available while Mode is Off.");
    row(LockReason::ReadOnlyNode, "", "", "The camera only reports this value.");
    row(LockReason::Watching, "", "", "The camera is only watched, so nothing can be changed.");
    row(LockReason::StreamRunning, "TLParamsLocked", "", "Locked while the camera streams.");
    row(LockReason::LockedByNode, "", "", "Locked by the camera.");
    row(LockReason::LockedByNode, "Gain Auto", "", "Controlled by Gain Auto.");
    row(LockReason::LockedByNode, "Gain Auto", "Once", "Locked while Gain Auto is Once.");
}

void TestStreamLock::everyLockHasItsSentence()
{
    QFETCH(int, reason);
    QFETCH(QString, feature);
    QFETCH(QString, value);
    NodeState state;
    state.lockReason = static_cast<LockReason>(reason);
    QTEST(lockText(state, feature, value), "text");
}

void TestStreamLock::changeIsOfferedInOneStep()
{
    FormatEditor format;
    QTRY_VERIFY_WITH_TIMEOUT(format.editor->isEditable(), hangTimeout);
    QCOMPARE(format.editor->noteText(), QString());
    format.choose(1);
    QVERIFY(!format.editor->noteText().isEmpty());
    format.bench.device().change([](ScriptedDevice &device) {
        device.feature("PixelFormat").state.availableEntries = {"Mono8", "Mono12"};
    });
    format.bench.device().notifyNodes({"PixelFormat"});
    const CvxCPP::NodeState *state = nullptr;
    QTRY_VERIFY_WITH_TIMEOUT((state = format.bench.client.state(QStringLiteral("PixelFormat")))
            && state->availableEntries.size() == 2,
        hangTimeout);
    QCOMPARE(format.box->currentIndex(), 1); // The question is about this entry, which therefore stays.
    QCOMPARE(format.pauser.count, 0);

    format.editor->acceptQuestion();
    QVERIFY(!format.box->isEnabled()); // Nothing else can be chosen meanwhile.
    QTRY_VERIFY_WITH_TIMEOUT(format.editor->isEditable(), hangTimeout);
    QCOMPARE(format.pauser.count, 1);
    QVERIFY(format.bench.value("PixelFormat") == NodeValue(std::string("Mono12")));
    QTRY_COMPARE_WITH_TIMEOUT(format.box->currentIndex(), 1, hangTimeout);
    QCOMPARE(format.editor->noteText(), QString());
}

void TestStreamLock::discardedChangeIsForgotten()
{
    FormatEditor format;
    QTRY_VERIFY_WITH_TIMEOUT(format.editor->isEditable(), hangTimeout);
    format.choose(1);
    format.editor->rejectQuestion();
    QCOMPARE(format.box->currentIndex(), 0);
    QCOMPARE(format.editor->noteText(), QString());
    format.editor->acceptQuestion();
    QCOMPARE(format.pauser.count, 0);
}

void TestStreamLock::changeThatIsTakenBackNeedsNoAnswer()
{
    FormatEditor format;
    QTRY_VERIFY_WITH_TIMEOUT(format.editor->isEditable(), hangTimeout);
    format.choose(1);
    format.choose(0);
    QCOMPARE(format.editor->noteText(), QString());
}

void TestStreamLock::failureBehindThePauseIsShown()
{
    FormatEditor format;
    format.pauser.onStop = [](ScriptedDevice &device) {
        unlock(device);
        device.feature("PixelFormat").state.availableEntries = {"Mono8"};
    };
    QTRY_VERIFY_WITH_TIMEOUT(format.editor->isEditable(), hangTimeout);
    format.choose(1);
    format.editor->acceptQuestion();
    QTRY_COMPARE_WITH_TIMEOUT(
        format.editor->noteText(), QStringLiteral("\"PixelFormat\" is out of range."), hangTimeout);
    QCOMPARE(format.box->currentIndex(), 0);
}

void TestStreamLock::newerChangeReplacesTheQuestion()
{
    FormatEditor format;
    QTRY_VERIFY_WITH_TIMEOUT(format.editor->isEditable(), hangTimeout);
    format.choose(1);
    format.bench.device().change(unlock);
    format.bench.device().notifyNodes({"PixelFormat"});
    QTRY_VERIFY_WITH_TIMEOUT(
        format.bench.client.state(QStringLiteral("PixelFormat"))->lockReason == LockReason::None,
        hangTimeout);
    format.choose(2);
    QCOMPARE(format.editor->noteText(), QString());
    format.editor->acceptQuestion();
    QCOMPARE(format.pauser.count, 0);
    QTRY_VERIFY_WITH_TIMEOUT(
        format.bench.value("PixelFormat") == NodeValue(std::string("RGB8")), hangTimeout);
}

void TestStreamLock::pauseEndsWhenAnotherCameraIsOpened()
{
    FormatEditor format;
    QTRY_VERIFY_WITH_TIMEOUT(format.editor->isEditable(), hangTimeout);
    format.choose(1);
    format.editor->acceptQuestion();
    const auto other = std::make_shared<OpenableCamera>("CAM-2");
    addLockedFormat(other->device());
    format.bench.connection.open(OpenableCamera::entry(other), CvxAccessControl); // Drops the result.
    QVERIFY(!format.editor->isEditable());
    QTRY_VERIFY_WITH_TIMEOUT(format.editor->isEditable(), hangTimeout);
}

void TestStreamLock::commandIsOfferedToo()
{
    EditorBench bench(addLockedFormat);
    TestPauser pauser(bench);
    const auto editor = bench.show(QStringLiteral("UserSetLoad"));
    editor->setStreamPauser(&pauser);
    auto *const button = editor->findChild<QPushButton *>();
    QTRY_VERIFY_WITH_TIMEOUT(button->isEnabled(), hangTimeout);
    button->click();
    editor->acceptQuestion();
    QTRY_COMPARE_WITH_TIMEOUT(bench.device().calls("Execute").size(), std::size_t(1), hangTimeout);
    QCOMPARE(pauser.count, 1);
}

void TestStreamLock::withoutPauserTheFeatureIsLocked()
{
    FormatEditor format;
    format.editor->setStreamPauser(nullptr);
    QTRY_COMPARE_WITH_TIMEOUT(
        format.editor->noteText(), QStringLiteral("Locked while the camera streams."), hangTimeout);
    QVERIFY(!format.box->isEnabled());
}

QTEST_MAIN(TestStreamLock)
#include "TestStreamLock.moc"
