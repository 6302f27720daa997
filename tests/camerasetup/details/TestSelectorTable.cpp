#include "tests/camerasetup/details/TapsBench.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>

using namespace CvxCPP;

#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, hangTimeout)

class TestSelectorTable : public QObject
{
    Q_OBJECT

private slots:
    void allValuesStandSideBySide();
    void featureWithoutSelectorHasNoTable();
    void editedCellIsWrittenUnderItsSelectorValue();
    void refusedCellSaysWhy();
    void lockedCellSaysWhy();
    void rowLeadsToItsFeature();
    void listWritesOnlyWhatIsChosen();
    void typedTextThatIsNoValueIsRefused();
    void cellIsWrittenUnderTheOuterSelectorsOfItsRead();
    void streamIsPausedAfterAQuestion();
    void keyLeadsToTheFeatureOfALockedCell();
};

void TestSelectorTable::allValuesStandSideBySide()
{
    Taps taps([](TestDevice &device) {
        addTaps(device);
        device.set("GainSelector", std::string("Tap2"));
        device.set("Gain", 2.5);
        device.set("GainSelector", std::string("Tap1"));
    });
    taps.show("Gain");
    QCOMPARE(taps.table.selector(), text("GainSelector"));
    QCOMPARE(taps.headers(Qt::Horizontal),
        (QStringList{text("All shown"), text("Tap1 shown"), text("Tap2 shown")}));
    QCOMPARE(taps.headers(Qt::Vertical).front(), text("Gain of the tap"));
    QCOMPARE(taps.headers(Qt::Vertical).size(), 2);
    QCOMPARE(taps.cell(0, 0), text("1"));
    QCOMPARE(taps.cell(0, 2), text("2.5"));
    QVERIFY(taps.bench.value("GainSelector") == NodeValue(std::string("Tap1"))); // The selector is restored.
    const auto labels = taps.table.findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(),
        [](const QLabel *label) { return label->text().contains(text("Left shown")); }));
    taps.show("HeadSelector");
    QCOMPARE(taps.table.selector(), text("HeadSelector"));
}

void TestSelectorTable::featureWithoutSelectorHasNoTable()
{
    Taps taps;
    taps.table.setFeature(text("Width"));
    QCOMPARE(taps.table.selector(), QString());
    QVERIFY(!taps.view->isVisible());
    QVERIFY(!SelectorTable::hasTable(*taps.bench.client.info(text("Width"))));
}

void TestSelectorTable::editedCellIsWrittenUnderItsSelectorValue()
{
    Taps taps;
    taps.show("Gain");
    const QModelIndex cell = taps.view->model()->index(0, 2);
    taps.view->setCurrentIndex(cell);
    taps.view->edit(cell);
    auto *const line = taps.view->findChild<QLineEdit *>();
    QVERIFY(line);
    line->selectAll();
    QTest::keyClicks(line, text("4.5"));
    QTest::keyClick(line, Qt::Key_Return);
    WAIT_FOR(taps.cell(0, 2) == text("4.5"));
    QCOMPARE(taps.cell(0, 1), text("1"));
    QVERIFY(taps.bench.value("GainSelector") == NodeValue(std::string("All")));
    const auto changed
        = taps.bench.device().change([](ScriptedDevice &device) { return device.changedValues(); });
    QCOMPARE(changed.size(), std::size_t(1));
    QVERIFY(changed.begin()->first.find("Tap2") != std::string::npos);
}

void TestSelectorTable::refusedCellSaysWhy()
{
    Taps taps;
    taps.show("Gain");
    taps.view->model()->setData(
        taps.view->model()->index(0, 1), QVariant::fromValue(NodeValue(99.0)), Qt::EditRole);
    const auto labels = taps.table.findChildren<QLabel *>();
    WAIT_FOR(std::any_of(labels.begin(), labels.end(),
        [](const QLabel *label) { return label->text() == text("\"Gain\" is out of range."); }));
    QVERIFY(taps.bench.value("GainSelector") == NodeValue(std::string("All")));
}

void TestSelectorTable::lockedCellSaysWhy()
{
    Taps taps;
    taps.show("Gain");
    const QAbstractItemModel &model = *taps.view->model();
    QVERIFY(!(model.index(1, 0).flags() & Qt::ItemIsEditable));
    QVERIFY(model.index(1, 0).data(Qt::ForegroundRole).isValid());
    QCOMPARE(model.index(1, 0).data(Qt::ToolTipRole).toString(), text("Not available at present."));
    QVERIFY(model.index(1, 1).flags() & Qt::ItemIsEditable);
}

void TestSelectorTable::rowLeadsToItsFeature()
{
    Taps taps;
    taps.show("Gain");
    QSignalSpy requests(&taps.table, &SelectorTable::featureRequested);
    emit taps.view->verticalHeader()->sectionDoubleClicked(1);
    QCOMPARE(requests.value(0).value(0).toString(), text("GainAuto"));
}

void TestSelectorTable::listWritesOnlyWhatIsChosen()
{
    Taps taps([](TestDevice &device) {
        addTaps(device);
        device.set("GainSelector", std::string("Tap1"));
        device.set("GainAuto", std::string("Once")); // Only the camera itself can set it.
        device.set("GainSelector", std::string("All"));
    });
    taps.show("Gain");
    auto *box = taps.edit<QComboBox>(1, 1);
    QVERIFY(box);
    QCOMPARE(box->currentIndex(), -1);
    QTest::keyClick(box, Qt::Key_Return);
    taps.bench.waitForCalls();
    QVERIFY(taps.bench.device().writtenValues("GainAuto").empty());

    box = taps.edit<QComboBox>(1, 2);
    QCOMPARE(box->currentText(), text("Off shown"));
    box->setCurrentIndex(1);
    WAIT_FOR(taps.bench.client.state(text("Gain")));
    taps.bench.device().setByCamera("Gain", 7.0);
    WAIT_FOR(taps.cell(0, 0) == text("7"));
    QCOMPARE(box->currentIndex(), 1); // The refresh has not replaced what was chosen.
    QTest::keyClick(box, Qt::Key_Return);
    WAIT_FOR(taps.cell(1, 2) == text("Continuous shown"));
}

void TestSelectorTable::typedTextThatIsNoValueIsRefused()
{
    Taps taps;
    taps.show("Gain");
    auto *const line = taps.edit<QLineEdit>(0, 2);
    line->selectAll();
    QTest::keyClicks(line, text("4 apples"));
    QTest::keyClick(line, Qt::Key_Return);
    WAIT_FOR(taps.says(text("\"4 apples\" is no value of Gain of the tap.")));
    QVERIFY(taps.bench.device().writtenValues("Gain").empty());
}

void TestSelectorTable::cellIsWrittenUnderTheOuterSelectorsOfItsRead()
{
    Taps taps([](TestDevice &device) {
        addTaps(device);
        device.select("HeadSelector", {"Gain"});
    });
    taps.show("Gain");
    // The table does not know of this yet.
    taps.bench.device().change(
        [](ScriptedDevice &device) { device.set("HeadSelector", std::string("Right")); });
    taps.change(0, 1, 4.5);
    WAIT_FOR(!taps.bench.device().writtenValues("Gain").empty());
    taps.bench.waitForCalls();
    QVERIFY(taps.bench.value("HeadSelector") == NodeValue(std::string("Right")));
    taps.bench.device().change([](ScriptedDevice &device) {
        device.set("HeadSelector", std::string("Left"));
        device.set("GainSelector", std::string("Tap1"));
    });
    QVERIFY(taps.bench.value("Gain") == NodeValue(4.5));
}

void TestSelectorTable::streamIsPausedAfterAQuestion()
{
    Taps taps([](TestDevice &device) {
        addTaps(device);
        device.feature("Gain").state.lockReason = LockReason::StreamRunning;
    });
    TestPauser pauser(taps.bench);
    pauser.onStop
        = [](ScriptedDevice &device) { device.feature("Gain").state.lockReason = LockReason::None; };
    taps.jobs.setStreamPauser(&pauser);
    taps.show("Gain");
    taps.change(0, 2, 4.5);
    QVERIFY(taps.button(text("Stop, set, start")));
    taps.bench.waitForCalls();
    QCOMPARE(pauser.count, 0);
    taps.button(text("Stop, set, start"))->click();
    WAIT_FOR(taps.cell(0, 2) == text("4.5"));
    QCOMPARE(pauser.count, 1);
    QVERIFY(!taps.button(text("Stop, set, start")));
}

void TestSelectorTable::keyLeadsToTheFeatureOfALockedCell()
{
    Taps taps;
    taps.show("Gain");
    QSignalSpy requests(&taps.table, &SelectorTable::featureRequested);
    taps.table.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&taps.table, hangTimeout));
    taps.view->setFocus();
    taps.view->setCurrentIndex(taps.view->model()->index(0, 0));
    QTest::keyClick(taps.view, Qt::Key_Down);
    QTest::keyClick(taps.view, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(requests.value(0).value(0).toString(), text("GainAuto"));
}

QTEST_MAIN(TestSelectorTable)
#include "TestSelectorTable.moc"
