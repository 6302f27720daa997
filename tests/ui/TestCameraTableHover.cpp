#include "tests/config/ConfigDocuments.h"
#include "tests/ui/ConfiguredWindow.h"

#include <QtTest>

using ConfigDocuments::latin1;

class TestCameraTableHover : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void mouseIsTracked();
    void hoveredRowIsTintedInAllCells();
    void selectedRowKeepsItsOwnColour();
    void leavingTheTableClearsTheTint();
    void spaceBelowTheLastRowIsNoRow();
    void rebuildKeepsTheHoveredRow();
    void tableGetsTheEventsAsWell();
    void moveWithinTheRowRepaintsNothing();
    void leaveAlwaysRepaints();
    void groupBarStandsOnlyInTheFirstColumn();

private:
    QString color(int row, int column, int fromLeft = -1);
    void moveTo(const QPoint &position);
    int paintsAfter(QEvent *event);

    std::unique_ptr<ConfiguredWindow> m_configured;
};

namespace {

const QString hoverColor = QStringLiteral("#243447");
const QString barColor = QStringLiteral("#64748b");
const QString ground = QStringLiteral("#0f1419");

QVector<CameraInfo> threeCameras()
{
    QVector<CameraInfo> cameras;
    for (const char *id : {"a", "b", "c"})
        cameras.append(camera(latin1("Orvelle"), latin1("Kx"), latin1(id), latin1(id)));
    return cameras;
}

} // namespace

void TestCameraTableHover::initTestCase()
{
    ConfiguredWindow::useShippedStyle();
}

void TestCameraTableHover::init()
{
    m_configured = std::make_unique<ConfiguredWindow>();
    m_configured->loadConfig();
    m_configured->list(threeCameras());
    m_configured->show();
    moveTo({2, 2});
}

/// A pixel of a cell near its upper edge, where no text is; counted from the cell's left, or near its right.
QString TestCameraTableHover::color(int row, int column, int fromLeft)
{
    const QTableWidget *table = m_configured->table();
    const QRect cell = table->visualRect(table->model()->index(row, column));
    const QPoint pixel(fromLeft >= 0 ? cell.left() + fromLeft : cell.right() - 4, cell.top() + 2);
    return m_configured->window.grab()
        .toImage()
        .pixelColor(table->viewport()->mapTo(&m_configured->window, pixel))
        .name();
}

void TestCameraTableHover::moveTo(const QPoint &position)
{
    QTest::mouseMove(m_configured->window.windowHandle(), position);
    QCoreApplication::processEvents();
}

/// How often the table's viewport is painted because of the event, which goes to it alone.
int TestCameraTableHover::paintsAfter(QEvent *event)
{
    class PaintCounter : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *seen) override
        {
            paints += seen->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    };
    QCoreApplication::processEvents();
    PaintCounter counter;
    m_configured->table()->viewport()->installEventFilter(&counter);
    QCoreApplication::sendEvent(m_configured->table()->viewport(), event);
    QCoreApplication::processEvents();
    return counter.paints;
}

void TestCameraTableHover::mouseIsTracked()
{
    QVERIFY(m_configured->table()->hasMouseTracking());
    QVERIFY(m_configured->table()->viewport()->hasMouseTracking());
}

void TestCameraTableHover::hoveredRowIsTintedInAllCells()
{
    moveTo(m_configured->cellCenter(1, 1));
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(color(0, column), ground);
        QCOMPARE(color(1, column), hoverColor);
        QCOMPARE(color(2, column), ground);
    }
    moveTo(m_configured->cellCenter(2, 0));
    QCOMPARE(color(1, 1), ground);
    QCOMPARE(color(2, 1), hoverColor);
}

void TestCameraTableHover::selectedRowKeepsItsOwnColour()
{
    m_configured->click(m_configured->cellCenter(1, 1));
    moveTo({2, 2}); // The style's colour lets the tint shine through, so it is taken with no row hovered.
    const QString selected = color(1, 1);
    QVERIFY(selected != hoverColor && selected != ground);
    moveTo(m_configured->cellCenter(1, 1));
    for (int column = 0; column < 3; ++column)
        QCOMPARE(color(1, column), selected);
}

void TestCameraTableHover::leavingTheTableClearsTheTint()
{
    moveTo(m_configured->cellCenter(1, 1));
    QCOMPARE(color(1, 1), hoverColor);
    moveTo({2, 2});
    QCOMPARE(color(1, 1), ground);
}

void TestCameraTableHover::spaceBelowTheLastRowIsNoRow()
{
    moveTo(m_configured->cellCenter(2, 1));
    QCOMPARE(color(2, 1), hoverColor);
    const QTableWidget *table = m_configured->table();
    const QPoint below(table->viewport()->width() / 2, table->viewport()->height() - 2);
    QCOMPARE(table->rowAt(below.y()), -1);
    moveTo(table->viewport()->mapTo(&m_configured->window, below));
    QCOMPARE(color(2, 1), ground);
}

void TestCameraTableHover::rebuildKeepsTheHoveredRow()
{
    moveTo(m_configured->cellCenter(1, 1));
    m_configured->list(threeCameras());
    QCOMPARE(color(1, 1), hoverColor);
}

void TestCameraTableHover::tableGetsTheEventsAsWell()
{
    const QSignalSpy entered(m_configured->table(), &QTableWidget::cellEntered);
    moveTo(m_configured->cellCenter(1, 2));
    QCOMPARE(entered, (QList<QList<QVariant>>{{1, 2}}));
    QObject &filter = m_configured->window; // As Qt calls it.
    QEvent leave(QEvent::Leave);
    QVERIFY(!filter.eventFilter(m_configured->table()->viewport(), &leave));
}

void TestCameraTableHover::moveWithinTheRowRepaintsNothing()
{
    const QTableWidget *table = m_configured->table();
    const QPoint inside = table->visualRect(table->model()->index(1, 0)).center();
    const auto moved = [](const QPoint &to) {
        return QMouseEvent(QEvent::MouseMove, to, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    };
    QMouseEvent first = moved(inside);
    QMouseEvent second = moved(inside + QPoint(3, 1));
    QCOMPARE(paintsAfter(&first), 1);
    QCOMPARE(paintsAfter(&second), 0);
}

void TestCameraTableHover::leaveAlwaysRepaints()
{
    QEvent first(QEvent::Leave);
    QEvent second(QEvent::Leave);
    QCOMPARE(paintsAfter(&first), 1);
    QCOMPARE(paintsAfter(&second), 1);
}

void TestCameraTableHover::groupBarStandsOnlyInTheFirstColumn()
{
    m_configured->click(m_configured->cellCenter(0, 1));
    moveTo({2, 2});
    for (int row = 0; row < 3; ++row) {
        for (int x = 0; x < 3; ++x)
            QCOMPARE(color(row, 0, x), barColor);
        QVERIFY(color(row, 0, 3) != barColor);
        QVERIFY(color(row, 1, 0) != barColor);
        QVERIFY(color(row, 2, 0) != barColor);
    }
}

QTEST_MAIN(TestCameraTableHover)
#include "TestCameraTableHover.moc"
