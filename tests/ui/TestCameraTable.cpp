#include "tests/config/ConfigDocuments.h"
#include "tests/support/ChildNamed.h"
#include "tests/ui/ConfiguredWindow.h"
#include "ui/ApplicationLauncher.h"
#include "ui/GroupMatchDelegate.h"

#include <QHeaderView>
#include <QLayout>
#include <QSignalSpy>
#include <QtTest>

using ConfigDocuments::latin1;

Q_DECLARE_METATYPE(CameraInfo)

class TestCameraTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rowsShowTheCamerasInTheirOrder();
    void newListIsDrawnOnlyByTheSelection();
    void emptyListHasNoRows();
    void shorterListLeavesNoRowBehind();
    void clickSelectsAndRebuildsOnce();
    void selectionSurvivesARebuild();
    void selectionIsMatchedByIdAndSerial_data();
    void selectionIsMatchedByIdAndSerial();
    void laterOfTwoEqualCamerasIsSelected();
    void placeholderRowIsDrawnSelected();
    void nothingIsSelectedAfterARefresh();
    void clickOnASelectedRowChangesNothing();
    void selectionWithoutACurrentCellChangesNothing();
    void dragOverTheRowsEndsWithOneSelection();
    void clickOnARowThatTheListLostIsIgnored();
    void groupIsMarkedInTheFirstColumn();
    void cameraWithoutAnIdMarksNoGroup();
    void groupTypesAreComparedExactly();
    void tilesFollowTheTable();
    void blockedSignalsStayBlocked();
    void columnsAreSizedOnceAfterTheStart();
    void headersAreLeftAligned();
    void oneDelegateServesAllColumns();
};

namespace {

CameraInfo orvelle(const char *model, const char *serial, const char *id)
{
    return camera(latin1("Orvelle"), latin1(model), latin1(serial), latin1(id), latin1("GigE"));
}

const QVector<CameraInfo> fourCameras{orvelle("Kx200", "1", "a"),
    camera(latin1("Lintaro"), latin1("Line"), latin1("2"), latin1("b")), orvelle("Nova", "3", "c"),
    camera(latin1("Some Maker"), latin1("Other"), latin1("4"), latin1("d"))};

QVector<bool> groupMarks(const ConfiguredWindow &configured)
{
    QVector<bool> marks;
    for (int row = 0; row < configured.table()->rowCount(); ++row)
        marks.append(configured.table()->item(row, 0)->data(Qt::UserRole + 1).toBool());
    return marks;
}

QStringList cells(const QTableWidget &table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts.append(table.item(row, column)->text());
    return texts;
}

} // namespace

void TestCameraTable::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
}

void TestCameraTable::rowsShowTheCamerasInTheirOrder()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    QCOMPARE(configured.table()->rowCount(), 4);
    for (int row = 0; row < 4; ++row) {
        const CameraInfo &shown = fourCameras.at(row);
        QCOMPARE(cells(*configured.table(), row),
            QStringList({shown.vendorName, shown.modelName, shown.serialNumber}));
    }
    QVERIFY(configured.table()->item(0, 0)->data(Qt::ToolTipRole).isNull());
    QVERIFY(configured.table()->item(0, 1)->data(Qt::ToolTipRole).isValid());
    QVERIFY(configured.table()->item(0, 2)->data(Qt::ToolTipRole).isNull());
    QCOMPARE(configured.table()->item(0, 0)->type(), int(QTableWidgetItem::Type));
}

void TestCameraTable::newListIsDrawnOnlyByTheSelection()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.window.setCameras(fourCameras);
    QCOMPARE(configured.table()->rowCount(), 0);
    configured.window.setSelectedCamera({});
    QCOMPARE(configured.table()->rowCount(), 4);
}

void TestCameraTable::emptyListHasNoRows()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    QCOMPARE(configured.table()->rowCount(), 0);
    configured.list(fourCameras);
    configured.list({});
    QCOMPARE(configured.table()->rowCount(), 0);
    QCOMPARE(configured.selectedRows(), QList<int>());
}

void TestCameraTable::shorterListLeavesNoRowBehind()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    configured.list({fourCameras.at(3)});
    QCOMPARE(configured.table()->rowCount(), 1);
    QCOMPARE(cells(*configured.table(), 0).at(2), latin1("4"));
}

void TestCameraTable::clickSelectsAndRebuildsOnce()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    configured.show();
    const QSignalSpy rebuilds(configured.table()->model(), &QAbstractItemModel::modelReset);
    configured.click(configured.cellCenter(2, 1));
    QCOMPARE(rebuilds.size(), 1);
    QCOMPARE(configured.selectedRows(), QList<int>{2});
    QVERIFY(configured.tiles().at(0)->isEnabled());
    configured.click(configured.cellCenter(1, 2));
    QCOMPARE(rebuilds.size(), 2);
    QCOMPARE(configured.selectedRows(), QList<int>{1});
}

void TestCameraTable::selectionSurvivesARebuild()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    configured.window.setSelectedCamera(fourCameras.at(1));
    configured.window.setCameras({fourCameras.at(3), fourCameras.at(2), fourCameras.at(1)});
    configured.window.setSelectedCamera(fourCameras.at(1));
    QCOMPARE(configured.selectedRows(), QList<int>{2});
}

void TestCameraTable::selectionIsMatchedByIdAndSerial_data()
{
    QTest::addColumn<CameraInfo>("selected");
    QTest::addColumn<QList<int>>("rows");
    CameraInfo renamed = fourCameras.at(2);
    renamed.vendorName = latin1("Another");
    renamed.modelName = latin1("Another");
    QTest::newRow("both equal, the rest different") << renamed << QList<int>{2};
    QTest::newRow("another serial") << orvelle("Nova", "9", "c") << QList<int>();
    QTest::newRow("another ID") << orvelle("Nova", "3", "z") << QList<int>();
    QTest::newRow("another letter case") << orvelle("Nova", "3", "C") << QList<int>();
    QTest::newRow("none") << CameraInfo() << QList<int>();
}

void TestCameraTable::selectionIsMatchedByIdAndSerial()
{
    QFETCH(CameraInfo, selected);
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.window.setCameras(fourCameras);
    configured.window.setSelectedCamera(selected);
    QTEST(configured.selectedRows(), "rows");
}

void TestCameraTable::laterOfTwoEqualCamerasIsSelected()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list({orvelle("Kx200", "1", "a"), orvelle("Nova", "1", "a"), orvelle("Nova", "2", "b")});
    configured.show();
    configured.click(configured.cellCenter(0, 0));
    QCOMPARE(configured.selectedRows(), QList<int>{1});
}

// Intended: the placeholder and the empty selection both have neither ID nor serial number.
void TestCameraTable::placeholderRowIsDrawnSelected()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list({camera(latin1("Scanning..."), {})});
    QCOMPARE(configured.selectedRows(), QList<int>{0});
    configured.list(
        {camera(latin1("Scanning..."), {}), orvelle("Kx200", "", "a"), orvelle("Kx200", "1", "")});
    QCOMPARE(configured.selectedRows(), QList<int>{0});
}

void TestCameraTable::nothingIsSelectedAfterARefresh()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    configured.show();
    configured.click(configured.cellCenter(0, 0));
    QCOMPARE(configured.selectedRows(), QList<int>{0});
    configured.list({camera(latin1("Scanning..."), {})});
    configured.list(fourCameras);
    QCOMPARE(configured.selectedRows(), QList<int>());
    QVERIFY(!configured.table()->currentItem());
    QCOMPARE(groupMarks(configured), QVector<bool>(4, false));
    QVERIFY(!configured.tiles().at(0)->isEnabled());
}

void TestCameraTable::clickOnASelectedRowChangesNothing()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    configured.show();
    configured.click(configured.cellCenter(2, 1));
    configured.click(configured.cellCenter(2, 0));
    QCOMPARE(configured.selectedRows(), QList<int>{2});
    QCOMPARE(groupMarks(configured), QVector<bool>({true, false, true, false}));
}

void TestCameraTable::selectionWithoutACurrentCellChangesNothing()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    configured.show();
    configured.click(configured.cellCenter(2, 1));
    const QSignalSpy selections(configured.table(), &QTableWidget::itemSelectionChanged);
    configured.table()->setCurrentCell(-1, -1);
    QCOMPARE(selections.size(), 1);
    QCOMPARE(groupMarks(configured), QVector<bool>({true, false, true, false}));
}

// Every step rebuilds the rows under the view that is still at work with them.
void TestCameraTable::dragOverTheRowsEndsWithOneSelection()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    configured.show();
    QWindow *window = configured.window.windowHandle();
    const QPoint first = configured.cellCenter(0, 0);
    const QPoint last = configured.cellCenter(3, 0);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, first);
    for (int y = first.y(); y <= last.y(); y += 3)
        QTest::mouseMove(window, QPoint(first.x(), y));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, last);
    const QList<int> selected = configured.selectedRows();
    QCOMPARE(selected.size(), 1);
    QVERIFY(groupMarks(configured).at(selected.at(0))); // Selection and marks are of the same camera.
    configured.click(last);
    QCOMPARE(configured.selectedRows(), QList<int>{3});
}

void TestCameraTable::clickOnARowThatTheListLostIsIgnored()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    configured.show();
    configured.window.setCameras({fourCameras.at(0)}); // Not drawn yet: four rows, one camera.
    const QSignalSpy rebuilds(configured.table()->model(), &QAbstractItemModel::modelReset);
    configured.click(configured.cellCenter(3, 0));
    QCOMPARE(rebuilds.size(), 0);
    configured.click(configured.cellCenter(0, 0));
    QCOMPARE(rebuilds.size(), 1);
}

void TestCameraTable::groupIsMarkedInTheFirstColumn()
{
    QCOMPARE(int(GroupMatchDelegate::GroupMatchRole), 257);
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.window.setCameras(fourCameras);
    configured.window.setSelectedCamera(fourCameras.at(0));
    QCOMPARE(groupMarks(configured), QVector<bool>({true, false, true, false}));
    QCOMPARE(configured.table()->item(1, 0)->data(Qt::UserRole + 1), QVariant(false));
    for (int column = 1; column < 3; ++column)
        QVERIFY(!configured.table()->item(0, column)->data(Qt::UserRole + 1).isValid());
}

void TestCameraTable::cameraWithoutAnIdMarksNoGroup()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    const CameraInfo withoutId = orvelle("Kx200", "7", "");
    configured.window.setCameras({withoutId, fourCameras.at(0)});
    configured.window.setSelectedCamera(withoutId);
    QCOMPARE(configured.selectedRows(), QList<int>{0});
    QCOMPARE(groupMarks(configured), QVector<bool>({false, false}));
}

void TestCameraTable::groupTypesAreComparedExactly()
{
    // Cameras without a configured group share the empty type, which is no group.
    ConfiguredWindow configured(QMap<QString, QByteArray>{{latin1("config/launcher_config.json"), "{}"}});
    configured.loadConfig();
    configured.window.setCameras(fourCameras);
    configured.window.setSelectedCamera(fourCameras.at(0));
    QCOMPARE(groupMarks(configured), QVector<bool>(4, false));
    QCOMPARE(configured.selectedRows(), QList<int>{0});
}

void TestCameraTable::tilesFollowTheTable()
{
    class MarksAtTheChange : public QObject
    {
    public:
        explicit MarksAtTheChange(const ConfiguredWindow &configured) : m_configured(configured) { }
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::EnabledChange)
                marks = groupMarks(m_configured);
            return false;
        }
        QVector<bool> marks;

    private:
        const ConfiguredWindow &m_configured;
    };
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    MarksAtTheChange watcher(configured);
    configured.tiles().at(0)->installEventFilter(&watcher);
    configured.window.setSelectedCamera(fourCameras.at(2));
    QCOMPARE(watcher.marks, QVector<bool>({true, false, true, false}));
}

void TestCameraTable::blockedSignalsStayBlocked()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list(fourCameras);
    QVERIFY(!configured.table()->signalsBlocked());
    configured.table()->blockSignals(true);
    configured.list(fourCameras);
    QVERIFY(configured.table()->signalsBlocked());
}

void TestCameraTable::columnsAreSizedOnceAfterTheStart()
{
    ConfiguredWindow configured;
    QTableWidget *table = configured.table();
    configured.window.show();
    table->setFixedWidth(table->width() - table->viewport()->width() + 401);
    configured.window.findChild<QWidget *>(latin1("centralwidget"))->layout()->activate();
    QCOMPARE(table->viewport()->width(), 401);
    QTRY_COMPARE(table->columnWidth(1), 200); // Later than the others' start width, which is 100.
    QCOMPARE(table->columnWidth(0), 100);
    QTRY_COMPARE(table->columnWidth(2), 101);
    table->setFixedWidth(table->width() + 80);
    QTRY_COMPARE(table->viewport()->width(), 481);
    configured.list({fourCameras.at(0)});
    QCoreApplication::processEvents();
    QCOMPARE(table->columnWidth(0), 100); // Intended: sized once, and never again.
    QCOMPARE(table->columnWidth(1), 200);
    QCOMPARE(table->columnWidth(2), 181);
}

void TestCameraTable::headersAreLeftAligned()
{
    const MainWindow window(nullptr);
    const auto *table = childNamed<QTableWidget>(window, "cameraTable");
    for (int column = 0; column < 3; ++column)
        QCOMPARE(table->horizontalHeaderItem(column)->data(Qt::TextAlignmentRole), QVariant(129));
}

void TestCameraTable::oneDelegateServesAllColumns()
{
    const MainWindow window(nullptr);
    const auto *table = childNamed<QTableWidget>(window, "cameraTable");
    auto *delegate = dynamic_cast<GroupMatchDelegate *>(table->itemDelegateForColumn(0));
    QVERIFY(delegate);
    QCOMPARE(delegate->parent(), table);
    QCOMPARE(table->itemDelegateForColumn(1), delegate);
    QCOMPARE(table->itemDelegateForColumn(2), delegate);
}

QTEST_MAIN(TestCameraTable)
#include "TestCameraTable.moc"
