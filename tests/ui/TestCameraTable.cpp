#include "tests/ui/ConfiguredWindow.h"
#include "ui/ApplicationLauncher.h"

#include <QLayout>
#include <QSignalSpy>
#include <QtTest>

using namespace ConfigDocuments;

class TestCameraTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tableShowsTheCamerasInTheirOrder();
    void newCamerasAreShownByTheNextSelection();
    void clickRebuildsTheTableOnce();
    void selectedRowHasTheSameIdAndSerialNumber_data();
    void selectedRowHasTheSameIdAndSerialNumber();
    void nothingIsSelectedAfterARefresh();
    void losingTheCurrentCellKeepsTheSelectedCamera();
    void clickOnARemovedRowIsIgnored();
    void rowsOfTheSelectedGroupAreMarked();
    void cameraWithoutAGroupMarksNoRow();
    void columnWidthsAreSetOnlyOnce();
    void hoveredRowIsTinted();
    void tableReceivesHoverEvents();
    void viewportIsRepaintedOnlyForANewRowOrALeaveEvent();
};

namespace {

CameraInfo orvelle(const char *model, const char *serial, const char *id)
{
    return camera("Orvelle"_s, latin1(model), latin1(serial), latin1(id), "GigE"_s);
}

const CameraInfo scanning = camera("Scanning..."_s, {});
const QVector<CameraInfo> fourCameras{orvelle("Kx200", "1", "a"), camera("Lintaro"_s, "Line"_s, "2"_s, "b"_s),
    orvelle("Nova", "3", "c"), camera("Some Vendor"_s, "Other"_s, "4"_s, "d"_s)};

QVector<bool> groupMarks(const ConfiguredWindow &configured)
{
    QVector<bool> marks;
    for (int row = 0; row < configured.table()->rowCount(); ++row)
        marks.append(configured.table()->item(row, 0)->data(Qt::UserRole + 1).toBool());
    return marks;
}

/// Moves the mouse and returns the rows whose cells all have the hover tint.
QList<int> tintedRows(ConfiguredWindow &configured, const QPoint &mousePosition)
{
    QTest::mouseMove(configured.window.windowHandle(), mousePosition);
    QCoreApplication::processEvents();
    const QImage image = configured.window.grab().toImage();
    QList<int> rows;
    for (int row = 0; row < configured.table()->rowCount(); ++row) {
        bool tinted = true;
        for (int column = 0; column < 3; ++column) {
            const QRect cell
                = configured.table()->visualRect(configured.table()->model()->index(row, column));
            const QPoint pixel(cell.right() - 4, cell.top() + 2); // This pixel is beside the text.
            const QPoint inWindow = configured.table()->viewport()->mapTo(&configured.window, pixel);
            tinted = tinted && image.pixelColor(inWindow).name() == "#243447"_s;
        }
        if (tinted)
            rows.append(row);
    }
    return rows;
}

} // namespace

void TestCameraTable::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
}

void TestCameraTable::tableShowsTheCamerasInTheirOrder()
{
    ConfiguredWindow configured;
    configured.open(fourCameras);
    QCOMPARE(configured.table()->rowCount(), 4);
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(configured.table()->item(row, 0)->text(), fourCameras.at(row).vendorName);
        QCOMPARE(configured.table()->item(row, 1)->text(), fourCameras.at(row).modelName);
        QCOMPARE(configured.table()->item(row, 2)->text(), fourCameras.at(row).serialNumber);
        for (int column = 0; column < 3; ++column)
            QCOMPARE(configured.table()->item(row, column)->toolTip().isEmpty(), column != 1);
    }
}

void TestCameraTable::newCamerasAreShownByTheNextSelection()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.window.setCameras(fourCameras);
    QCOMPARE(configured.table()->rowCount(), 0);
    configured.window.setSelectedCamera({});
    QCOMPARE(configured.table()->rowCount(), 4);
    configured.setCameras({fourCameras.at(3)});
    QCOMPARE(configured.table()->rowCount(), 1);
    QCOMPARE(configured.table()->item(0, 2)->text(), "4"_s);
    configured.setCameras({});
    QCOMPARE(configured.table()->rowCount(), 0);
}

void TestCameraTable::clickRebuildsTheTableOnce()
{
    ConfiguredWindow configured;
    configured.open(fourCameras);
    const QSignalSpy rebuilds(configured.table()->model(), &QAbstractItemModel::modelReset);
    configured.click(configured.cellCenter(2, 1));
    QCOMPARE(rebuilds.size(), 1);
    QCOMPARE(configured.selectedRows(), QList<int>{2});
    QVERIFY(configured.tiles().at(0)->isEnabled());
    configured.click(configured.cellCenter(1, 2));
    QCOMPARE(rebuilds.size(), 2);
    QCOMPARE(configured.selectedRows(), QList<int>{1});
    configured.click(configured.cellCenter(1, 0)); // This row is already selected.
    QCOMPARE(configured.selectedRows(), QList<int>{1});
}

void TestCameraTable::selectedRowHasTheSameIdAndSerialNumber_data()
{
    QTest::addColumn<CameraInfo>("selected");
    QTest::addColumn<QList<int>>("rows");
    QTest::newRow("only these two equal") << camera({}, {}, "3"_s, "c"_s) << QList<int>{2};
    QTest::newRow("later of two equal cameras") << orvelle("Kx200", "1", "a") << QList<int>{7};
    QTest::newRow("other serial number") << orvelle("Nova", "9", "c") << QList<int>();
    QTest::newRow("other ID") << orvelle("Nova", "3", "z") << QList<int>();
    QTest::newRow("other letter case") << orvelle("Nova", "3", "C") << QList<int>();
    // Intended: the "Scanning..." row is shown as selected, because empty fields are equal as well.
    QTest::newRow("no camera") << CameraInfo() << QList<int>{4};
}

void TestCameraTable::selectedRowHasTheSameIdAndSerialNumber()
{
    QFETCH(CameraInfo, selected);
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.window.setCameras(fourCameras
        + QVector<CameraInfo>{
            scanning, orvelle("Kx200", "", "e"), orvelle("Kx200", "5", ""), fourCameras.at(0)});
    configured.window.setSelectedCamera(selected);
    QTEST(configured.selectedRows(), "rows");
}

void TestCameraTable::nothingIsSelectedAfterARefresh()
{
    ConfiguredWindow configured;
    configured.open(fourCameras);
    configured.click(configured.cellCenter(0, 0));
    configured.setCameras({scanning});
    configured.setCameras(fourCameras);
    QCOMPARE(configured.selectedRows(), QList<int>());
    QVERIFY(!configured.table()->currentItem());
    QCOMPARE(groupMarks(configured), QVector<bool>(4, false));
    QVERIFY(!configured.tiles().at(0)->isEnabled());
}

void TestCameraTable::losingTheCurrentCellKeepsTheSelectedCamera()
{
    ConfiguredWindow configured;
    configured.open(fourCameras);
    configured.click(configured.cellCenter(2, 1));
    const QSignalSpy selections(configured.table(), &QTableWidget::itemSelectionChanged);
    configured.table()->setCurrentCell(-1, -1);
    QCOMPARE(selections.size(), 1);
    QCOMPARE(groupMarks(configured), QVector<bool>({true, false, true, false}));
}

void TestCameraTable::clickOnARemovedRowIsIgnored()
{
    ConfiguredWindow configured;
    configured.open(fourCameras);
    configured.window.setCameras({fourCameras.at(0), fourCameras.at(1)}); // The table still shows 4 rows.
    const QSignalSpy rebuilds(configured.table()->model(), &QAbstractItemModel::modelReset);
    configured.click(configured.cellCenter(2, 0));
    QCOMPARE(rebuilds.size(), 0);
    configured.click(configured.cellCenter(1, 0));
    QCOMPARE(configured.selectedRows(), QList<int>{1});
}

void TestCameraTable::rowsOfTheSelectedGroupAreMarked()
{
    ConfiguredWindow configured;
    configured.open(fourCameras);
    configured.window.setSelectedCamera(fourCameras.at(0));
    QCOMPARE(groupMarks(configured), QVector<bool>({true, false, true, false}));
    for (int column = 1; column < 3; ++column)
        QVERIFY(!configured.table()->item(0, column)->data(Qt::UserRole + 1).isValid());
    const CameraInfo withoutId = orvelle("Kx200", "7", "");
    configured.window.setCameras({withoutId, fourCameras.at(0)});
    configured.window.setSelectedCamera(withoutId); // A camera without an ID has no group.
    QCOMPARE(configured.selectedRows(), QList<int>{0});
    QCOMPARE(groupMarks(configured), QVector<bool>({false, false}));
}

void TestCameraTable::cameraWithoutAGroupMarksNoRow()
{
    ConfiguredWindow configured(ConfiguredWindow::filesWith({})); // No camera has a group.
    configured.open(fourCameras);
    configured.window.setSelectedCamera(fourCameras.at(0));
    QCOMPARE(groupMarks(configured), QVector<bool>(4, false));
}

// Intended: a later change of the table's width does not resize the first two columns.
void TestCameraTable::columnWidthsAreSetOnlyOnce()
{
    ConfiguredWindow configured;
    QTableWidget *table = configured.table();
    const auto widths = [table] {
        return QList<int>{table->columnWidth(0), table->columnWidth(1), table->columnWidth(2)};
    };
    configured.window.show();
    table->setFixedWidth(table->width() - table->viewport()->width() + 401);
    childNamed<QWidget>(configured.window, "centralwidget")->layout()->activate();
    QCOMPARE(table->viewport()->width(), 401);
    QTRY_COMPARE_WITH_TIMEOUT(widths(), (QList<int>{100, 200, 101}), hangTimeout);
    table->setFixedWidth(table->width() + 80);
    QTRY_COMPARE_WITH_TIMEOUT(table->viewport()->width(), 481, hangTimeout);
    configured.setCameras({fourCameras.at(0)});
    QCoreApplication::processEvents();
    QCOMPARE(widths(), (QList<int>{100, 200, 181}));
}

void TestCameraTable::hoveredRowIsTinted()
{
    ConfiguredWindow configured;
    configured.open(fourCameras);
    const QWidget *viewport = configured.table()->viewport();
    const QPoint belowTheRows
        = viewport->mapTo(&configured.window, viewport->rect().bottomLeft() - QPoint(0, 2));
    const QPoint outside(2, 2);
    QCOMPARE(tintedRows(configured, outside), QList<int>());
    QCOMPARE(tintedRows(configured, configured.cellCenter(1, 1)), QList<int>{1});
    QCOMPARE(tintedRows(configured, configured.cellCenter(2, 0)), QList<int>{2});
    configured.setCameras(fourCameras); // A rebuild keeps the tint.
    QCOMPARE(tintedRows(configured, configured.cellCenter(2, 0)), QList<int>{2});
    QCOMPARE(tintedRows(configured, belowTheRows), QList<int>());
    QCOMPARE(tintedRows(configured, configured.cellCenter(0, 2)), QList<int>{0});
    QCOMPARE(tintedRows(configured, outside), QList<int>());
}

void TestCameraTable::tableReceivesHoverEvents()
{
    ConfiguredWindow configured;
    configured.open(fourCameras);
    const QSignalSpy entered(configured.table(), &QTableWidget::cellEntered);
    tintedRows(configured, configured.cellCenter(1, 2));
    QCOMPARE(entered, (QList<QList<QVariant>>{{1, 2}}));
    QObject &filter = configured.window; // Qt calls the function through this class.
    QEvent leave(QEvent::Leave);
    QVERIFY(!filter.eventFilter(configured.table()->viewport(), &leave));
}

void TestCameraTable::viewportIsRepaintedOnlyForANewRowOrALeaveEvent()
{
    class PaintCounter : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    };
    ConfiguredWindow configured;
    configured.open(fourCameras);
    tintedRows(configured, {2, 2});
    PaintCounter counter;
    QWidget *viewport = configured.table()->viewport();
    viewport->installEventFilter(&counter);
    const auto paintsAfter = [&](QEvent &&event) { // Sends the event only to the viewport.
        QCoreApplication::sendEvent(viewport, &event);
        QCoreApplication::processEvents();
        return counter.paints;
    };
    const QPoint inside = configured.table()->visualRect(configured.table()->model()->index(1, 0)).center();
    const auto moveTo = [](const QPoint &to) {
        return QMouseEvent(QEvent::MouseMove, to, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    };
    QCOMPARE(paintsAfter(moveTo(inside)), 1);
    QCOMPARE(paintsAfter(moveTo(inside + QPoint(3, 1))), 1); // The mouse stays in the row.
    QCOMPARE(paintsAfter(QEvent(QEvent::Leave)), 2);
    QCOMPARE(paintsAfter(QEvent(QEvent::Leave)), 3);
}

QTEST_MAIN(TestCameraTable)
#include "TestCameraTable.moc"
