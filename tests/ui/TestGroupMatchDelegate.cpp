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
    void hoverTintAndGroupBarArePainted_data();
    void hoverTintAndGroupBarArePainted();
    void hoveredRowMayBeNull();
    void penAndBrushOfThePainterAreRestored();
    void hoverStateIsNotPassedToTheStyle();
};

namespace {

const QRect cell(10, 20, 60, 30);

/// Returns an image of the cell on a magenta background.
QImage painted(const int *hoveredRow, int row, int column, QStyle::State state, const QVariant &groupMatch)
{
    QStandardItemModel model(3, 3);
    model.setData(model.index(row, column), groupMatch, GroupMatchDelegate::GroupMatchRole);
    QImage image(90, 70, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QStyleOptionViewItem option;
    option.rect = cell;
    option.state = state;
    QPainter painter(&image);
    GroupMatchDelegate(hoveredRow, nullptr).paint(&painter, option, model.index(row, column));
    return image;
}

/// Returns the rectangle that consists of all pixels with this colour; null if these pixels form no
/// rectangle.
QRect area(const QImage &image, const char *color)
{
    QRect bounds;
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(QLatin1String(color)))
                continue;
            ++count;
            bounds |= QRect(x, y, 1, 1);
        }
    }
    return count == bounds.width() * bounds.height() ? bounds : QRect();
}

} // namespace

void TestGroupMatchDelegate::hoverTintAndGroupBarArePainted_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QVariant>("groupMatch");
    QTest::addColumn<QRect>("tint");
    QTest::addColumn<QRect>("bar");
    const QStyle::State plain = QStyle::State_Enabled;
    const QStyle::State underMouse = plain | QStyle::State_MouseOver;
    const QStyle::State selected = plain | QStyle::State_Selected;
    const QRect none;
    const QRect bar(10, 20, 3, 30);
    QTest::newRow("hovered, first column") << 1 << 0 << plain << QVariant() << cell << none;
    QTest::newRow("hovered, second column") << 1 << 1 << plain << QVariant() << cell << none;
    QTest::newRow("hovered, third column") << 1 << 2 << plain << QVariant() << cell << none;
    QTest::newRow("hovered, under the mouse") << 1 << 0 << underMouse << QVariant() << cell << none;
    QTest::newRow("hovered, selected") << 1 << 1 << selected << QVariant() << none << none;
    QTest::newRow("other row") << 0 << 0 << plain << QVariant() << none << none;
    QTest::newRow("other row, under the mouse") << 2 << 0 << underMouse << QVariant() << none << none;
    QTest::newRow("match") << 0 << 0 << plain << QVariant(true) << none << bar;
    QTest::newRow("match, second column") << 0 << 1 << plain << QVariant(true) << none << none;
    QTest::newRow("match, third column") << 0 << 2 << plain << QVariant(true) << none << none;
    QTest::newRow("no match") << 0 << 0 << plain << QVariant(false) << none << none;
    QTest::newRow("converts to a match") << 0 << 0 << plain << QVariant(1) << none << bar;
    QTest::newRow("match, hovered") << 1 << 0 << plain << QVariant(true) << QRect(13, 20, 57, 30) << bar;
}

void TestGroupMatchDelegate::hoverTintAndGroupBarArePainted()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QStyle::State, state);
    QFETCH(QVariant, groupMatch);
    const int hoveredRow = 1;
    const QImage image = painted(&hoveredRow, row, column, state, groupMatch);
    QTEST(area(image, "#243447"), "tint");
    QTEST(area(image, "#64748b"), "bar");
}

void TestGroupMatchDelegate::hoveredRowMayBeNull()
{
    QCOMPARE(area(painted(nullptr, 0, 0, QStyle::State_Enabled, {}), "#ff00ff"), QRect(0, 0, 90, 70));
}

void TestGroupMatchDelegate::penAndBrushOfThePainterAreRestored()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), true, GroupMatchDelegate::GroupMatchRole);
    QImage image(90, 70, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::blue);
    GroupMatchDelegate(nullptr, nullptr).paint(&painter, {}, model.index(0, 0));
    QCOMPARE(painter.pen(), QPen(Qt::red));
    QCOMPARE(painter.brush(), QBrush(Qt::blue));
}

void TestGroupMatchDelegate::hoverStateIsNotPassedToTheStyle()
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
    auto *style = new RecordingStyle; // The application owns the style.
    QApplication::setStyle(style);
    const QStyle::State selected = QStyle::State_Enabled | QStyle::State_Selected;
    painted(nullptr, 0, 0, selected | QStyle::State_MouseOver, {});
    QCOMPARE(style->states, QVector<QStyle::State>{selected});
}

QTEST_MAIN(TestGroupMatchDelegate)
#include "TestGroupMatchDelegate.moc"
