#include "tests/kit/editors/EditorBench.h"
#include "tools/kit/editors/CommandButton.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QStandardItemModel>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {

/// Types a text over the present one, without confirming it.
void type(FeatureEditor &editor, const char *text)
{
    auto *const line = editor.findChild<QLineEdit *>();
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, QString::fromUtf8(text));
}

void enter(FeatureEditor &editor, const char *text)
{
    type(editor, text);
    QTest::keyClick(editor.findChild<QLineEdit *>(), Qt::Key_Return);
}

QString shown(const FeatureEditor &editor)
{
    return editor.findChild<QLineEdit *>()->text();
}

void addGain(TestDevice &device)
{
    addNumber(device, "Gain", 1.0, 0.0, 10.0).info.unit = "dB";
}

} // namespace

#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, hangTimeout)
#define WAIT_FOR_EQUAL(actual, expected)                                                                     \
    QTRY_COMPARE_WITH_TIMEOUT(actual, QString::fromUtf8(expected), hangTimeout)

class TestFeatureEditors : public QObject
{
    Q_OBJECT

private slots:
    void typedNumberIsWrittenAndTheCamerasRoundingShown();
    void numberBeingTypedIsNotOverwritten();
    void textThatIsNoNumberIsRefused();
    void numberGoesToTheNearestAllowedOne_data();
    void numberGoesToTheNearestAllowedOne();
    void roundingOfASumIsNoRemark();
    void limitsOfTheCameraAreFollowed();
    void failedWriteIsShownUntilTheNextChange();
    void arrowsStepByTheIncrement();
    void sliderWritesWhileItMoves();
    void sliderKeysReachTheNextValue();
    void automaticFunctionLocksAndUpdates();
    void unavailableEntriesAreGreyed();
    void openListDoesNotHideAChange();
    void wheelOnlyWorksWithFocus();
    void booleanIsWritten();
    void textIsWrittenAndKeptWhileTyping();
    void commandIsGreyWhileItRuns();
    void commandAsksFirst();
    void hiddenEditorDoesNotRead();
    void lostCameraGreysUntilItIsBack();
    void lossDropsWhatIsHalfTyped_data();
    void lossDropsWhatIsHalfTyped();
    void messagesGoWhenTheCameraIsBack();
    void editorMayBeDestroyedWhileAPersonTypes_data();
    void editorMayBeDestroyedWhileAPersonTypes();
};

void TestFeatureEditors::typedNumberIsWrittenAndTheCamerasRoundingShown()
{
    EditorBench bench([](TestDevice &device) {
        addNumber(device, "ExposureTime", 100.0, 1.0, 1e6).onWrite
            = [](NodeValue &value) { value = std::round(std::get<double>(value) / 10) * 10; };
    });
    const auto editor = bench.show(QStringLiteral("ExposureTime"));
    WAIT_FOR_EQUAL(shown(*editor), "100");
    enter(*editor, "123.4");
    WAIT_FOR_EQUAL(shown(*editor), "120");
    QVERIFY(bench.device().writtenValues("ExposureTime") == std::vector<NodeValue>{123.4});
    QCOMPARE(editor->noteText(), QString());
}

void TestFeatureEditors::numberBeingTypedIsNotOverwritten()
{
    EditorBench bench(addGain);
    const auto editor = bench.show(QStringLiteral("Gain"));
    WAIT_FOR_EQUAL(shown(*editor), "1");
    type(*editor, "5.");
    bench.device().setByCamera("Gain", 3.0);
    WAIT_FOR(bench.client.state(QStringLiteral("Gain"))->value == NodeValue(3.0));
    QCOMPARE(shown(*editor), QStringLiteral("5."));
    QTest::keyClick(editor->findChild<QLineEdit *>(), Qt::Key_Escape);
    QCOMPARE(shown(*editor), QStringLiteral("3"));
    QVERIFY(bench.device().writtenValues("Gain").empty());
}

void TestFeatureEditors::textThatIsNoNumberIsRefused()
{
    EditorBench bench(addGain);
    const auto editor = bench.show(QStringLiteral("Gain"));
    WAIT_FOR_EQUAL(shown(*editor), "1");
    enter(*editor, "much");
    QCOMPARE(shown(*editor), QStringLiteral("1"));
    QCOMPARE(editor->noteText(), QStringLiteral("\"much\" is not a number."));
    enter(*editor, "2");
    QCOMPARE(editor->noteText(), QString());
}

void TestFeatureEditors::numberGoesToTheNearestAllowedOne_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::newRow("allowed") << "32"
                             << "32";
    QTest::newRow("between") << "33"
                             << "32";
    QTest::newRow("above") << "9000000000000"
                           << "4000000000000";
    QTest::newRow("hexadecimal") << "0x24"
                                 << "36";
}

void TestFeatureEditors::numberGoesToTheNearestAllowedOne()
{
    QFETCH(QString, typed);
    EditorBench bench([](TestDevice &device) {
        addNumber(device, "Width", std::int64_t(64), std::int64_t(16), std::int64_t(4'000'000'000'000))
            .state.increment
            = std::int64_t(4);
    });
    const auto editor = bench.show(QStringLiteral("Width"));
    WAIT_FOR_EQUAL(shown(*editor), "64");
    enter(*editor, typed.toUtf8().constData());
    QTEST(shown(*editor), "written");
    const bool isAllowed = qstrcmp(QTest::currentDataTag(), "allowed") == 0
        || qstrcmp(QTest::currentDataTag(), "hexadecimal") == 0;
    QCOMPARE(editor->noteText().isEmpty(), isAllowed);
    const std::int64_t expected = shown(*editor).toLongLong();
    WAIT_FOR(bench.value("Width") == NodeValue(expected));
    bench.device().setByCamera("Width", std::int64_t(100));
    WAIT_FOR_EQUAL(shown(*editor), "100");
    QCOMPARE(editor->noteText(), QString()); // The remark was about another value.
}

void TestFeatureEditors::roundingOfASumIsNoRemark()
{
    EditorBench bench(
        [](TestDevice &device) { addNumber(device, "Gain", 1.0, 0.0, 10.0).state.increment = 0.1; });
    const auto editor = bench.show(QStringLiteral("Gain"));
    WAIT_FOR_EQUAL(shown(*editor), "1");
    enter(*editor, "0.3"); // Three steps are 0.30000000000000004.
    QCOMPARE(editor->noteText(), QString());
    QCOMPARE(shown(*editor), QStringLiteral("0.3"));
    enter(*editor, "0.34");
    QVERIFY(!editor->noteText().isEmpty());
}

void TestFeatureEditors::limitsOfTheCameraAreFollowed()
{
    EditorBench bench(addGain);
    const auto editor = bench.show(QStringLiteral("Gain"));
    WAIT_FOR_EQUAL(shown(*editor), "1");
    bench.device().change([](ScriptedDevice &device) { device.feature("Gain").state.maximum = 4.0; });
    bench.device().notifyNodes({"Gain"});
    WAIT_FOR(bench.client.state(QStringLiteral("Gain"))->maximum == NodeValue(4.0));
    enter(*editor, "8");
    WAIT_FOR(bench.value("Gain") == NodeValue(4.0));
}

void TestFeatureEditors::failedWriteIsShownUntilTheNextChange()
{
    EditorBench bench(addGain);
    const auto editor = bench.show(QStringLiteral("Gain"));
    WAIT_FOR_EQUAL(shown(*editor), "1");
    // The limits are other ones by the time of the write.
    bench.device().change([](ScriptedDevice &device) { device.feature("Gain").state.maximum = 4.0; });
    enter(*editor, "8");
    WAIT_FOR_EQUAL(editor->noteText(), "\"Gain\" is out of range.");
    WAIT_FOR_EQUAL(shown(*editor), "1");
    enter(*editor, "2");
    QCOMPARE(editor->noteText(), QString());
    WAIT_FOR(bench.value("Gain") == NodeValue(2.0));
}

void TestFeatureEditors::arrowsStepByTheIncrement()
{
    EditorBench bench([](TestDevice &device) {
        addNumber(device, "OffsetX", std::int64_t(4), std::int64_t(0), std::int64_t(16)).state.increment
            = std::int64_t(4);
    });
    const auto editor = bench.show(QStringLiteral("OffsetX"));
    WAIT_FOR_EQUAL(shown(*editor), "4");
    auto *const line = editor->findChild<QLineEdit *>();
    line->setFocus();
    QTest::keyClick(line->parentWidget(), Qt::Key_Up);
    QTest::keyClick(line->parentWidget(), Qt::Key_Up);
    QCOMPARE(shown(*editor), QStringLiteral("12"));
    type(*editor, "1"); // A step starts from what was typed: 1 becomes 0, and then 4.
    QTest::keyClick(line->parentWidget(), Qt::Key_Up);
    QCOMPARE(shown(*editor), QStringLiteral("4"));
    WAIT_FOR(!bench.client.isWriting(QStringLiteral("OffsetX")));
    QVERIFY(bench.value("OffsetX") == NodeValue(std::int64_t(4)));
}

void TestFeatureEditors::sliderWritesWhileItMoves()
{
    EditorBench bench([](TestDevice &device) { addNumber(device, "ExposureTime", 100.0, 1.0, 1e6); });
    const auto editor = bench.show(QStringLiteral("ExposureTime"));
    auto *const slider = editor->findChild<QSlider *>();
    WAIT_FOR(slider->isVisible());
    QCOMPARE(slider->value(), 333);
    slider->setSliderDown(true);
    slider->setSliderPosition(500);
    WAIT_FOR(bench.value("ExposureTime") == NodeValue(1000.0));
    bench.device().setByCamera("ExposureTime", 10.0); // The slider stays under the hand.
    WAIT_FOR(bench.client.state(QStringLiteral("ExposureTime"))->value == NodeValue(10.0));
    QCOMPARE(slider->value(), 500);
    QCOMPARE(shown(*editor), QStringLiteral("1000"));
    slider->setSliderDown(false);
    WAIT_FOR_EQUAL(shown(*editor), "10");
    QCOMPARE(slider->value(), 167);
}

void TestFeatureEditors::sliderKeysReachTheNextValue()
{
    EditorBench bench([](TestDevice &device) {
        addNumber(device, "GainRaw", std::int64_t(100), std::int64_t(0), std::int64_t(255))
            .info.representation
            = NodeRepresentation::Linear;
    });
    const auto editor = bench.show(QStringLiteral("GainRaw"));
    auto *const slider = editor->findChild<QSlider *>();
    WAIT_FOR(slider->isVisible());
    const auto press = [&editor, slider](Qt::Key key) {
        QTest::keyClick(slider, key);
        return shown(*editor);
    };
    QCOMPARE(press(Qt::Key_Right), QStringLiteral("101"));
    QCOMPARE(press(Qt::Key_Right), QStringLiteral("102"));
    QCOMPARE(press(Qt::Key_Left), QStringLiteral("101"));
    WAIT_FOR(bench.value("GainRaw") == NodeValue(std::int64_t(101)));
    QCOMPARE(press(Qt::Key_End), QStringLiteral("255"));
}

void TestFeatureEditors::automaticFunctionLocksAndUpdates()
{
    EditorBench bench([](TestDevice &device) {
        addChoice(device, "ExposureAuto", {"Off", "Continuous"}).info.displayName = "Exposure Auto";
        addNumber(device, "ExposureTime", 100.0, 1.0, 1e6).rule = [&device](NodeState &state) {
            const bool isAutomatic = static_cast<ScriptedDevice &>(device).value("ExposureAuto")
                == NodeValue(std::string("Continuous"));
            state.lockReason = isAutomatic ? LockReason::LockedByNode : LockReason::None;
            state.lockingNode = isAutomatic ? "ExposureAuto" : "";
        };
        device.setDependents("ExposureAuto", {"ExposureAuto", "ExposureTime"});
    });
    const auto automatic = bench.show(QStringLiteral("ExposureAuto"));
    const auto time = bench.show(QStringLiteral("ExposureTime"));
    WAIT_FOR(time->isEditable());
    bench.client.write(QStringLiteral("ExposureAuto"), std::string("Continuous"));
    WAIT_FOR(!time->isEditable());
    WAIT_FOR_EQUAL(time->noteText(), "Locked while Exposure Auto is Continuous shown.");
    QVERIFY(!time->findChild<QLineEdit *>()->isEnabled());
    bench.device().setByCamera("ExposureTime", 250.0);
    WAIT_FOR_EQUAL(shown(*time), "250");
    bench.client.write(QStringLiteral("ExposureAuto"), std::string("Off"));
    WAIT_FOR(time->isEditable());
    QCOMPARE(time->noteText(), QString());
}

void TestFeatureEditors::unavailableEntriesAreGreyed()
{
    EditorBench bench([](TestDevice &device) {
        addChoice(device, "PixelFormat", {"Mono8", "Mono12", "RGB8"}).state.availableEntries
            = {"Mono8", "Mono12"};
    });
    const auto editor = bench.show(QStringLiteral("PixelFormat"));
    auto *const box = editor->findChild<QComboBox *>();
    WAIT_FOR_EQUAL(box->currentText(), "Mono8 shown");
    const auto *const items = qobject_cast<QStandardItemModel *>(box->model());
    QVERIFY(items->item(1)->isEnabled());
    QVERIFY(!items->item(2)->isEnabled());
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    WAIT_FOR(bench.value("PixelFormat") == NodeValue(std::string("Mono12")));
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentText(), QStringLiteral("Mono12 shown"));
}

void TestFeatureEditors::openListDoesNotHideAChange()
{
    EditorBench bench([](TestDevice &device) { addChoice(device, "TriggerMode", {"Off", "On"}); });
    const auto editor = bench.show(QStringLiteral("TriggerMode"));
    auto *const box = editor->findChild<QComboBox *>();
    WAIT_FOR_EQUAL(box->currentText(), "Off shown");
    box->showPopup();
    WAIT_FOR(box->view()->isVisible());
    bench.device().setByCamera("TriggerMode", std::string("On"));
    WAIT_FOR(bench.client.state(QStringLiteral("TriggerMode"))->value == NodeValue(std::string("On")));
    QVERIFY(box->view()->isVisible());
    QTest::keyClick(box->view(), Qt::Key_Escape);
    WAIT_FOR(!box->view()->isVisible());
    QCOMPARE(box->currentText(), QStringLiteral("On shown"));
    QVERIFY(bench.device().writtenValues("TriggerMode").empty());
}

void TestFeatureEditors::wheelOnlyWorksWithFocus()
{
    EditorBench bench([](TestDevice &device) { addChoice(device, "TriggerMode", {"Off", "On"}); });
    const auto editor = bench.show(QStringLiteral("TriggerMode"));
    auto *const box = editor->findChild<QComboBox *>();
    WAIT_FOR(box->isEnabled());
    const auto turnWheel = [box] {
        QWheelEvent event(QPointF(5, 5), box->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
            Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &event);
    };
    box->clearFocus();
    turnWheel();
    QCOMPARE(box->currentIndex(), 0);
    editor->activateWindow();
    box->setFocus();
    WAIT_FOR(box->hasFocus());
    turnWheel();
    QCOMPARE(box->currentIndex(), 1);
}

void TestFeatureEditors::booleanIsWritten()
{
    EditorBench bench([](TestDevice &device) { device.add("ReverseX", true); });
    const auto editor = bench.show(QStringLiteral("ReverseX"));
    auto *const box = editor->findChild<QCheckBox *>();
    WAIT_FOR(box->isChecked());
    box->click();
    WAIT_FOR(bench.value("ReverseX") == NodeValue(false));
}

void TestFeatureEditors::textIsWrittenAndKeptWhileTyping()
{
    EditorBench bench(
        [](TestDevice &device) { device.add("DeviceUserID", std::string("Top")).state.maxLength = 6; });
    const auto editor = bench.show(QStringLiteral("DeviceUserID"));
    WAIT_FOR_EQUAL(shown(*editor), "Top");
    type(*editor, "Bottom left");
    bench.device().setByCamera("DeviceUserID", std::string("Side"));
    WAIT_FOR(bench.client.state(QStringLiteral("DeviceUserID"))->value == NodeValue(std::string("Side")));
    QCOMPARE(shown(*editor), QStringLiteral("Bottom"));
    const auto labels = editor->findChildren<QLabel *>();
    const auto saysLength
        = [](const QLabel *label) { return label->isVisible() && label->text() == QStringLiteral("6 of 6"); };
    QVERIFY(std::any_of(labels.begin(), labels.end(), saysLength));
    QTest::keyClick(editor->findChild<QLineEdit *>(), Qt::Key_Return);
    QVERIFY(std::none_of(labels.begin(), labels.end(), saysLength));
    WAIT_FOR(bench.value("DeviceUserID") == NodeValue(std::string("Bottom")));
}

void TestFeatureEditors::commandIsGreyWhileItRuns()
{
    EditorBench bench([](TestDevice &device) { device.addCommand("UserSetLoad").info.displayName = "Load"; });
    const auto editor = bench.show(QStringLiteral("UserSetLoad"));
    auto *const button = editor->findChild<QPushButton *>();
    WAIT_FOR(button->isEnabled());
    bench.device().change(
        [](ScriptedDevice &device) { device.feature("UserSetLoad").state.isCommandDone = false; });
    button->click();
    WAIT_FOR(!button->isEnabled());
    QCOMPARE(button->text(), QStringLiteral("Load …"));
    bench.device().change(
        [](ScriptedDevice &device) { device.feature("UserSetLoad").state.isCommandDone = true; });
    WAIT_FOR(button->isEnabled());
    QCOMPARE(button->text(), QStringLiteral("Load"));
}

void TestFeatureEditors::commandAsksFirst()
{
    EditorBench bench([](TestDevice &device) { device.addCommand("UserSetSave"); });
    const auto editor = bench.show(QStringLiteral("UserSetSave"));
    static_cast<CommandButton *>(editor.get())->setQuestion([] { return QStringLiteral("Really?"); });
    auto *const button = editor->findChild<QPushButton *>();
    WAIT_FOR(button->isEnabled());
    button->click();
    QCOMPARE(editor->noteText(), QStringLiteral("Really?"));
    editor->rejectQuestion();
    QCOMPARE(editor->noteText(), QString());
    bench.waitForCalls();
    QVERIFY(bench.device().calls("Execute").empty());
    button->click();
    editor->acceptQuestion();
    WAIT_FOR(bench.device().calls("Execute").size() == 1);
}

void TestFeatureEditors::hiddenEditorDoesNotRead()
{
    EditorBench bench(addGain);
    auto editor = bench.show(QStringLiteral("Gain"));
    WAIT_FOR_EQUAL(shown(*editor), "1");
    const auto isRead = [&bench](double value) {
        const std::size_t reads = bench.device().calls("ReadStates").size();
        bench.device().setByCamera("Gain", value);
        bench.waitForCalls();
        bench.waitForCalls(); // A read would have been started before the first of the two had ended.
        return bench.device().calls("ReadStates").size() > reads;
    };
    QVERIFY(isRead(6));
    editor->hide();
    QVERIFY(!isRead(7));
    editor->show();
    WAIT_FOR_EQUAL(shown(*editor), "7");
    editor.reset();
    QVERIFY(!isRead(8));
}

void TestFeatureEditors::lostCameraGreysUntilItIsBack()
{
    EditorBench bench(addGain);
    const auto editor = bench.show(QStringLiteral("Gain"));
    WAIT_FOR(editor->isEditable());
    bench.device().lose("The cable was unplugged.");
    WAIT_FOR(!editor->isEditable());
    QCOMPARE(shown(*editor), QStringLiteral("1"));
    bench.device().change([](ScriptedDevice &device) { device.set("Gain", 2.0); });
    bench.device().reopen();
    WAIT_FOR(editor->isEditable());
    QCOMPARE(shown(*editor), QStringLiteral("2"));
}

void TestFeatureEditors::lossDropsWhatIsHalfTyped_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");
    QTest::newRow("number") << QStringLiteral("Gain") << QStringLiteral("1");
    QTest::newRow("text") << QStringLiteral("DeviceUserID") << QStringLiteral("Top");
}

void TestFeatureEditors::lossDropsWhatIsHalfTyped()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    EditorBench bench([](TestDevice &device) {
        addGain(device);
        device.add("DeviceUserID", std::string("Top"));
    });
    const auto editor = bench.show(feature);
    WAIT_FOR(editor->isEditable() && shown(*editor) == value);
    editor->activateWindow();
    auto *const line = editor->findChild<QLineEdit *>();
    type(*editor, "5");
    WAIT_FOR(line->hasFocus());
    bench.device().lose("The cable was unplugged.");
    WAIT_FOR(!editor->isEditable());
    QCOMPARE(shown(*editor), value);
    line->clearFocus();
    QVERIFY(!bench.client.isWriting(feature));
    QCOMPARE(editor->noteText(), QString());
}

void TestFeatureEditors::messagesGoWhenTheCameraIsBack()
{
    EditorBench bench(addGain);
    const auto editor = bench.show(QStringLiteral("Gain"));
    WAIT_FOR(editor->isEditable());
    enter(*editor, "much");
    QVERIFY(!editor->noteText().isEmpty());
    bench.device().lose("The cable was unplugged.");
    WAIT_FOR(!editor->isEditable());
    bench.device().reopen();
    WAIT_FOR(editor->isEditable());
    QCOMPARE(editor->noteText(), QString());
}

void TestFeatureEditors::editorMayBeDestroyedWhileAPersonTypes_data()
{
    lossDropsWhatIsHalfTyped_data();
}

void TestFeatureEditors::editorMayBeDestroyedWhileAPersonTypes()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    EditorBench bench([](TestDevice &device) {
        addGain(device);
        device.add("DeviceUserID", std::string("Top"));
    });
    auto editor = bench.show(feature);
    WAIT_FOR(editor->isEditable() && shown(*editor) == value);
    editor->activateWindow();
    type(*editor, "5");
    WAIT_FOR(editor->findChild<QLineEdit *>()->hasFocus());
    editor.reset();
    QVERIFY(!bench.client.isWriting(feature));
}

QTEST_MAIN(TestFeatureEditors)
#include "TestFeatureEditors.moc"
