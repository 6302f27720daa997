#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/details/SelectorModel.h"
#include "tools/camerasetup/details/SelectorTable.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSemaphore>
#include <QTableView>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <thread>

using namespace CvxCPP;

namespace {

/// A camera with a gain and a mode for each of three taps of two heads.
void addTaps(TestDevice &device)
{
    addChoice(device, "HeadSelector", {"Left", "Right"});
    addChoice(device, "GainSelector", {"All", "Tap1", "Tap2"}).info.displayName = "Tap";
    addNumber(device, "Gain", 1.0, 0.0, 10.0).info.displayName = "Gain of the tap";
    addChoice(device, "GainAuto", {"Off", "Continuous"});
    device.add("Width", std::int64_t(640));
    device.select("HeadSelector", {"GainSelector"});
    device.select("GainSelector", {"Gain", "GainAuto"});
    device.feature("GainAuto").rule = [&device](NodeState &state) {
        const bool isAll = device.ScriptedDevice::value("GainSelector") == NodeValue(std::string("All"));
        state.lockReason = isAll ? LockReason::NotAvailable : LockReason::None;
    };
}

/// A shown table.
struct Taps
{
    explicit Taps(const EditorBench::Script &script = addTaps) : bench(script)
    {
        table.show();
        if (!QTest::qWaitFor([this] { return selectors.of("Gain").has_value(); }, hangTimeout))
            qFatal("The selectors are not read.");
    }

    void show(const char *feature)
    {
        table.setFeature(QString::fromLatin1(feature));
        if (!QTest::qWaitFor([this] { return view->model()->columnCount() > 0; }, hangTimeout))
            qFatal("The table is not read.");
    }

    /// Changes a cell as its editor does.
    void change(int row, int column, const NodeValue &value)
    {
        view->model()->setData(view->model()->index(row, column), QVariant::fromValue(value), Qt::EditRole);
    }

    template <typename Editor>
    Editor *edit(int row, int column)
    {
        view->setCurrentIndex(view->model()->index(row, column));
        view->edit(view->currentIndex());
        return view->findChild<Editor *>();
    }

    /// Returns true if a label with this text is visible.
    bool says(const QString &text) const
    {
        const auto labels = table.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
            [&text](const QLabel *label) { return label->isVisible() && label->text() == text; });
    }

    QPushButton *button(const QString &text) const
    {
        const auto buttons = table.findChildren<QPushButton *>();
        const auto found = std::find_if(buttons.begin(), buttons.end(),
            [&text](const QPushButton *button) { return button->isVisible() && button->text() == text; });
        return found == buttons.end() ? nullptr : *found;
    }

    /// Returns what reading the table has written to the tap's selector, once the opening was read.
    std::vector<NodeValue> tapsSince(std::size_t first)
    {
        const auto written = bench.device().writtenValues("GainSelector");
        return {written.begin() + static_cast<std::ptrdiff_t>(first), written.end()};
    }

    bool waitForOpening()
    {
        return QTest::qWaitFor(
            [this] { return opening.state() == OpeningSnapshot::State::Complete; }, hangTimeout);
    }

    QString cell(int row, int column) const { return view->model()->index(row, column).data().toString(); }

    QStringList headers(Qt::Orientation orientation) const
    {
        QStringList texts;
        const auto *const model = view->model();
        const int count = orientation == Qt::Horizontal ? model->columnCount() : model->rowCount();
        for (int section = 0; section < count; ++section)
            texts.append(model->headerData(section, orientation).toString());
        return texts;
    }

    EditorBench bench;
    CameraJobs jobs{bench.connection};
    PresentSelectors selectors{bench.client};
    OpeningSnapshot opening{bench.client, selectors};
    ChangeHistory history{bench.client, jobs, selectors, opening};
    SelectorTable table{bench.client, jobs, selectors, history};
    QTableView *view = table.findChild<QTableView *>();
};

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

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
    void changeOfTheCameraIsShown();
    void integerSelectorHasItsSteps();
    void rowLeadsToItsFeature();
    void lostCameraEmptiesTheTable();
    void listWritesOnlyWhatIsChosen();
    void typedTextThatIsNoValueIsRefused();
    void cellIsWrittenUnderTheOuterSelectorsOfItsRead();
    void undoIsShown();
    void streamIsPausedAfterAQuestion();
    void quickChoicesAreReadOnce();
    void rowThatKeepsChangingIsRead();
    void slowCameraIsReadInSeveralJobs();
    void cancelledReadKeepsTheValues();
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
    QVERIFY(taps.bench.value("GainSelector") == NodeValue(std::string("Tap1"))); // As it was before.
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

void TestSelectorTable::changeOfTheCameraIsShown()
{
    Taps taps;
    taps.show("Gain");
    WAIT_FOR(taps.bench.client.state(text("Gain")));
    taps.bench.device().setByCamera("Gain", 7.0);
    WAIT_FOR(taps.cell(0, 0) == text("7"));
    const std::size_t reads = taps.bench.device().calls("ReadStates").size();
    taps.table.hide();
    taps.bench.device().setByCamera("Gain", 8.0);
    taps.bench.waitForCalls();
    taps.bench.waitForCalls();
    QCOMPARE(taps.bench.device().calls("ReadStates").size(), reads); // A hidden table does not read.
    QCOMPARE(taps.cell(0, 0), text("7"));
}

void TestSelectorTable::integerSelectorHasItsSteps()
{
    Taps taps([](TestDevice &device) {
        addTaps(device);
        addNumber(device, "Index", std::int64_t(4), std::int64_t(2), std::int64_t(7)).state.increment
            = std::int64_t(2);
        device.add("Entry", std::int64_t(5));
        device.select("Index", {"Entry"});
    });
    taps.show("Entry");
    QCOMPARE(taps.headers(Qt::Horizontal), (QStringList{text("2"), text("4"), text("6")}));
    QVERIFY(taps.bench.value("Index") == NodeValue(std::int64_t(4)));
}

void TestSelectorTable::rowLeadsToItsFeature()
{
    Taps taps;
    taps.show("Gain");
    QSignalSpy requests(&taps.table, &SelectorTable::featureRequested);
    emit taps.view->verticalHeader()->sectionDoubleClicked(1);
    QCOMPARE(requests.value(0).value(0).toString(), text("GainAuto"));
}

void TestSelectorTable::lostCameraEmptiesTheTable()
{
    Taps taps;
    taps.show("Gain");
    taps.bench.device().lose("The cable was unplugged.");
    WAIT_FOR(taps.view->model()->columnCount() == 0);
    taps.bench.device().reopen();
    WAIT_FOR(taps.view->model()->columnCount() == 3);
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

void TestSelectorTable::undoIsShown()
{
    Taps taps;
    taps.show("Gain");
    taps.change(0, 2, 4.5);
    WAIT_FOR(taps.cell(0, 2) == text("4.5"));
    WAIT_FOR(taps.history.canUndo());
    taps.history.undo(); // The tap is not the present one, so its gain has no state in the client.
    WAIT_FOR(taps.cell(0, 2) == text("1"));
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

void TestSelectorTable::quickChoicesAreReadOnce()
{
    Taps taps;
    QVERIFY(taps.waitForOpening());
    const std::size_t before = taps.tapsSince(0).size();
    for (const char *const feature : {"Gain", "HeadSelector", "Gain", "HeadSelector", "Gain"})
        taps.table.setFeature(text(feature));
    taps.show("Gain");
    taps.bench.waitForCalls();
    QCOMPARE(taps.tapsSince(before).size(), std::size_t(3)); // Tap1, Tap2, and All again.
}

void TestSelectorTable::rowThatKeepsChangingIsRead()
{
    Taps taps;
    taps.show("Gain");
    WAIT_FOR(taps.bench.client.state(text("Gain")));
    double value = 1.0; // Changes more often than the delay before a read.
    WAIT_FOR((taps.bench.device().setByCamera("Gain", value += 0.01), taps.cell(0, 0) != text("1")));
}

void TestSelectorTable::slowCameraIsReadInSeveralJobs()
{
    std::atomic<bool> isSlow{false};
    Taps taps([&isSlow](TestDevice &device) {
        addTaps(device);
        device.beforeCall = [&isSlow](const std::string &call) {
            if (isSlow && call == "ReadStates")
                std::this_thread::sleep_for(std::chrono::milliseconds(140));
        };
    });
    QVERIFY(taps.waitForOpening());
    const std::size_t before = taps.tapsSince(0).size();
    isSlow = true;
    taps.show("Gain");
    isSlow = false;
    QCOMPARE(taps.view->model()->columnCount(), 3);
    std::vector<NodeValue> expected; // The selector is restored after each job.
    for (const char *const tap : {"Tap1", "All", "Tap2", "All"})
        expected.emplace_back(std::string(tap));
    QCOMPARE(taps.tapsSince(before), expected);
}

void TestSelectorTable::cancelledReadKeepsTheValues()
{
    std::atomic<bool> isBlocked{false};
    QSemaphore gate;
    Taps taps([&](TestDevice &device) {
        addTaps(device);
        device.beforeCall = [&](const std::string &call) {
            if (isBlocked && call == "ReadStates")
                gate.acquire();
        };
    });
    QVERIFY(taps.waitForOpening());
    taps.show("Gain");
    WAIT_FOR(!taps.jobs.isBusy());
    isBlocked = true;
    taps.button(text("Read again"))->click();
    taps.jobs.cancel();
    isBlocked = false;
    gate.release(100);
    WAIT_FOR(taps.says(text("Reading was cancelled.")));
    QCOMPARE(taps.view->model()->columnCount(), 3);
    QCOMPARE(taps.cell(0, 2), text("1"));
    taps.button(text("Read again"))->click();
    WAIT_FOR(!taps.says(text("Reading was cancelled.")));
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
