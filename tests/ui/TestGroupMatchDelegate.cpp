#include "ui/GroupMatchDelegate.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStandardItemModel>
#include <QtTest>

Q_DECLARE_METATYPE(QStyle::State)

class TestGroupMatchDelegate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void hoveredRowIsFilled_data();
    void hoveredRowIsFilled();
    void withoutAHoveredRowNothingIsFilled();
    void barIsThreePixelsWideAndAsHighAsTheCell();
    void barStandsOnlyInTheFirstColumn();
    void barNeedsATrueValue_data();
    void barNeedsATrueValue();
    void barLiesOnTopOfTheHoverTint();
    void painterIsLeftAsItWas();
    void styleNeverSeesTheMouse();
    void delegateHasNoMetaObjectOfItsOwn();

private:
    QImage painted(int row, int column, QStyle::State state = QStyle::State_Enabled);

    QStandardItemModel m_model{3, 3};
    int m_hoveredRow = -1;
};

namespace {

const QRect cell(10, 20, 60, 30);
const QRgb hoverFill = qRgb(0x24, 0x34, 0x47);
const QRgb bar = qRgb(0x64, 0x74, 0x8b);
const QRgb canvas = qRgb(255, 0, 255);

/// The pixels of that colour, as one rectangle; null when there are none or when they are no full rectangle.
QRect area(const QImage &image, QRgb color)
{
    QRect bounds;
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != color)
                continue;
            ++count;
            bounds |= QRect(x, y, 1, 1);
        }
    }
    return count == bounds.width() * bounds.height() ? bounds : QRect();
}

} // namespace

void TestGroupMatchDelegate::init()
{
    m_model.clear();
    m_model.setRowCount(3);
    m_model.setColumnCount(3);
    m_hoveredRow = -1;
}

QImage TestGroupMatchDelegate::painted(int row, int column, QStyle::State state)
{
    const GroupMatchDelegate delegate(&m_hoveredRow, nullptr);
    QImage image(90, 70, QImage::Format_RGB32);
    image.fill(canvas);
    QStyleOptionViewItem option;
    option.rect = cell;
    option.state = state;
    QPainter painter(&image);
    delegate.paint(&painter, option, m_model.index(row, column));
    return image;
}

void TestGroupMatchDelegate::hoveredRowIsFilled_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("filled");
    const QStyle::State plain = QStyle::State_Enabled;
    QTest::newRow("first column") << 1 << 0 << plain << true;
    QTest::newRow("second column") << 1 << 1 << plain << true;
    QTest::newRow("third column") << 1 << 2 << plain << true;
    QTest::newRow("under the mouse") << 1 << 0 << (plain | QStyle::State_MouseOver) << true;
    QTest::newRow("another row") << 0 << 0 << plain << false;
    QTest::newRow("another row under the mouse") << 2 << 0 << (plain | QStyle::State_MouseOver) << false;
    QTest::newRow("selected") << 1 << 1 << (plain | QStyle::State_Selected) << false;
}

void TestGroupMatchDelegate::hoveredRowIsFilled()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QStyle::State, state);
    QFETCH(bool, filled);
    m_hoveredRow = 1;
    QCOMPARE(area(painted(row, column, state), hoverFill), filled ? cell : QRect());
}

void TestGroupMatchDelegate::withoutAHoveredRowNothingIsFilled()
{
    QCOMPARE(area(painted(0, 0), canvas).size(), QSize(90, 70));
    const GroupMatchDelegate delegate(nullptr, nullptr); // Null is allowed.
    QImage image(90, 70, QImage::Format_RGB32);
    image.fill(canvas);
    QStyleOptionViewItem option;
    option.rect = cell;
    QPainter painter(&image);
    delegate.paint(&painter, option, m_model.index(0, 0));
    QCOMPARE(area(image, canvas).size(), QSize(90, 70));
}

void TestGroupMatchDelegate::barIsThreePixelsWideAndAsHighAsTheCell()
{
    m_model.setData(m_model.index(1, 0), true, GroupMatchDelegate::GroupMatchRole);
    QCOMPARE(area(painted(1, 0), bar), QRect(10, 20, 3, 30));
    QCOMPARE(area(painted(0, 0), bar), QRect());
}

void TestGroupMatchDelegate::barStandsOnlyInTheFirstColumn()
{
    for (int column = 1; column < 3; ++column) {
        m_model.setData(m_model.index(1, column), true, GroupMatchDelegate::GroupMatchRole);
        QCOMPARE(area(painted(1, column), bar), QRect());
    }
}

void TestGroupMatchDelegate::barNeedsATrueValue_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("drawn");
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("nothing") << QVariant() << false;
    QTest::newRow("converts to true") << QVariant(1) << true;
}

void TestGroupMatchDelegate::barNeedsATrueValue()
{
    QFETCH(QVariant, value);
    QFETCH(bool, drawn);
    m_model.setData(m_model.index(0, 0), value, GroupMatchDelegate::GroupMatchRole);
    QCOMPARE(!area(painted(0, 0), bar).isNull(), drawn);
}

void TestGroupMatchDelegate::barLiesOnTopOfTheHoverTint()
{
    m_hoveredRow = 0;
    m_model.setData(m_model.index(0, 0), true, GroupMatchDelegate::GroupMatchRole);
    const QImage image = painted(0, 0);
    QCOMPARE(area(image, bar), QRect(10, 20, 3, 30));
    QCOMPARE(area(image, hoverFill), QRect(13, 20, 57, 30));
}

void TestGroupMatchDelegate::painterIsLeftAsItWas()
{
    m_model.setData(m_model.index(0, 0), true, GroupMatchDelegate::GroupMatchRole);
    const GroupMatchDelegate delegate(&m_hoveredRow, nullptr);
    QImage image(90, 70, QImage::Format_RGB32);
    QStyleOptionViewItem option;
    option.rect = cell;
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::blue);
    delegate.paint(&painter, option, m_model.index(0, 0));
    QCOMPARE(painter.pen(), QPen(Qt::red));
    QCOMPARE(painter.brush(), QBrush(Qt::blue));
}

void TestGroupMatchDelegate::styleNeverSeesTheMouse()
{
    class RecordingStyle : public QProxyStyle
    {
    public:
        void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
            const QWidget *widget) const override
        {
            if (element == CE_ItemViewItem)
                states.append(option->state);
            QProxyStyle::drawControl(element, option, painter, widget);
        }
        mutable QVector<State> states;
    };
    auto *style = new RecordingStyle; // The application owns it.
    QApplication::setStyle(style);
    painted(0, 0, QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Selected);
    QCOMPARE(style->states, QVector<QStyle::State>{QStyle::State_Enabled | QStyle::State_Selected});
}

void TestGroupMatchDelegate::delegateHasNoMetaObjectOfItsOwn()
{
    const GroupMatchDelegate delegate(nullptr, nullptr);
    QCOMPARE(delegate.metaObject(), &QStyledItemDelegate::staticMetaObject);
}

QTEST_MAIN(TestGroupMatchDelegate)
#include "TestGroupMatchDelegate.moc"
