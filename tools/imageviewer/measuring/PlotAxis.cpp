#include "tools/imageviewer/measuring/PlotAxis.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr QRgb plotBackground = 0xff0f1419;
constexpr QRgb gridColor = 0xff1e2a3a;
constexpr QRgb frameColor = 0xff2d3a4d;
constexpr QRgb labelColor = 0xff94a3b8;
constexpr QRgb pointerColor = 0xff94a3b8;
constexpr QRgb pointerTextColor = 0xffe8edf2;
constexpr QRgb pointerBackground = 0xd01a2332;
constexpr double labelGap = 4;

/// Returns 1, 2 or 5 times a power of ten, at least as large as the number.
double roundUp(double number)
{
    const double power = std::pow(10, std::floor(std::log10(number)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (number <= factor * power * (1 + 1e-9))
            return factor * power;
    return 10 * power;
}

} // namespace

QVector<double> PlotAxis::ticks(int count) const
{
    if (!(highest > lowest) || count < 2)
        return {};
    const double step = roundUp((highest - lowest) / (count - 1));
    QVector<double> numbers;
    for (double i = std::ceil(lowest / step - 1e-9); i * step <= highest + step * 1e-9; ++i)
        numbers.append(i * step);
    return numbers;
}

double PlotAxis::share(double number) const
{
    return highest > lowest ? (number - lowest) / (highest - lowest) : 0;
}

double PlotAxis::numberAt(double share) const
{
    return lowest + share * (highest - lowest);
}

QString PlotAxis::label(double number) const
{
    const double range = highest - lowest;
    const double largest = std::max(std::abs(lowest), std::abs(highest));
    const QLocale locale;
    if (largest >= 1e6 || (largest > 0 && largest < 1e-3))
        return locale.toString(number, 'g', 4);
    const int decimals
        = range >= 10 ? 0 : std::clamp(2 - static_cast<int>(std::floor(std::log10(range))), 0, 6);
    return locale.toString(number, 'f', decimals);
}

void drawPlotGrid(QPainter &painter, const QRectF &area, const PlotAxis &horizontal, const PlotAxis &vertical)
{
    painter.fillRect(area, QColor(plotBackground));
    const QFontMetricsF metrics(painter.font());
    const double labelWidth = metrics.horizontalAdvance(horizontal.label(horizontal.highest)) + 4 * labelGap;
    const int columns = std::max(2, static_cast<int>(area.width() / labelWidth));
    const int rows = std::max(2, static_cast<int>(area.height() / (1.5 * metrics.height())));
    for (const double number : horizontal.ticks(columns)) {
        const double x = area.left() + horizontal.share(number) * area.width();
        painter.setPen(QColor(gridColor));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        const QString text = horizontal.label(number);
        const double width = metrics.horizontalAdvance(text);
        const double left = std::clamp(x - width / 2, area.left(), area.right() - width);
        painter.setPen(QColor(labelColor));
        painter.drawText(QPointF(left, area.bottom() + labelGap + metrics.ascent()), text);
    }
    for (const double number : vertical.ticks(rows)) {
        const double y = area.bottom() - vertical.share(number) * area.height();
        painter.setPen(QColor(gridColor));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        const QString text = vertical.label(number);
        painter.setPen(QColor(labelColor));
        const double baseline
            = std::clamp(y + metrics.ascent() / 2 - 1, area.top() + metrics.ascent(), area.bottom());
        painter.drawText(QPointF(area.left() - labelGap - metrics.horizontalAdvance(text), baseline), text);
    }
    painter.setPen(QColor(frameColor));
    painter.drawRect(area);
}

void drawPointer(QPainter &painter, const QRectF &area, double share, const QString &text)
{
    const double x = area.left() + share * area.width();
    painter.setPen(QPen(QColor(pointerColor), 1, Qt::DotLine));
    painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
    const QRectF room = area.adjusted(2 * labelGap, labelGap, -2 * labelGap, 0);
    constexpr int flags = Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap;
    const QRectF place = painter.boundingRect(room, flags, text);
    painter.fillRect(place.adjusted(-labelGap, -1, labelGap, 1), QColor::fromRgba(pointerBackground));
    painter.setPen(QColor(pointerTextColor));
    painter.drawText(room, flags, text);
}
