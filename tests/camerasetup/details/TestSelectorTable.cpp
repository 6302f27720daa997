#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/details/SelectorModel.h"
#include "tools/camerasetup/details/SelectorTable.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QtTest>

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

QTEST_MAIN(TestSelectorTable)
#include "TestSelectorTable.moc"
