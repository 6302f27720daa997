#include "tools/imageviewer/numbers/RateGraph.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

const QColor background(0x0f, 0x14, 0x19);
const QColor gridColor(0x2d, 0x3a, 0x4d);
const QColor labelColor(0x94, 0xa3, 0xb8);
const QColor rateColor(0x21, 0x96, 0xf3);
const QColor lossColor(0xef, 0x44, 0x44);

/// Returns 1, 2 or 5 times a power of ten, not less than the value.
double roundUp(double value)
{
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (value <= factor * power)
            return factor * power;
    }
    return 10 * power;
}

/// Returns the value at the upper end of the axis.
double axisEnd(const QVector<RateHistory::Second> &seconds)
{
    double highest = 1;
    for (const RateHistory::Second &second : seconds)
        highest = std::max({highest, second.rate, static_cast<double>(second.losses)});
    return roundUp(highest);
}

double xOf(const QRectF &plot, int second)
{
    return plot.left() + plot.width() * second / (RateHistory::length - 1);
}

double yOf(const QRectF &plot, double share)
{
    return plot.bottom() - plot.height() * share;
}

} // namespace

RateGraph::RateGraph(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Images per second and losses of the last minute"));
    setMinimumSize(minimumSizeHint());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void RateGraph::setHistory(const RateHistory &history)
{
    m_history = history;
    update();
}

QSize RateGraph::sizeHint() const
{
    return {20 * fontMetrics().averageCharWidth() * 2, 9 * fontMetrics().height()};
}

QSize RateGraph::minimumSizeHint() const
{
    return {20 * fontMetrics().averageCharWidth(), 6 * fontMetrics().height()};
}

void RateGraph::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), background);
    painter.setRenderHint(QPainter::Antialiasing);
    const QVector<RateHistory::Second> seconds = m_history.seconds();
    const double end = axisEnd(seconds);
    const QFontMetricsF metrics(font());
    const QString widest = locale().toString(end, 'g', 6);
    const double left = metrics.horizontalAdvance(widest) + metrics.height();
    const QRectF plot = QRectF(rect()).adjusted(
        left, metrics.height() * 1.75, -metrics.height() / 2, -metrics.height() * 1.5);
    drawAxes(painter, plot, end);
    drawLosses(painter, plot, seconds, end);
    drawRate(painter, plot, seconds, end);
}

void RateGraph::drawAxes(QPainter &painter, const QRectF &plot, double end) const
{
    const double line = QFontMetricsF(font()).height();
    for (const double share : {0.0, 0.5, 1.0}) {
        const double y = yOf(plot, share);
        painter.setPen(gridColor);
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter.setPen(labelColor);
        painter.drawText(QRectF(0, y - line / 2, plot.left() - line / 3, line),
            Qt::AlignRight | Qt::AlignVCenter, locale().toString(end * share, 'g', 6));
    }
    const QRectF below(plot.left(), plot.bottom() + line / 4, plot.width(), line);
    painter.drawText(below, Qt::AlignLeft, tr("60 s ago"));
    painter.drawText(below, Qt::AlignHCenter, tr("30 s ago"));
    painter.drawText(below, Qt::AlignRight, tr("now"));
    const QRectF above(plot.left(), line / 4, plot.width(), line);
    painter.setPen(rateColor);
    painter.drawText(above, Qt::AlignLeft, tr("Images/s"));
    painter.setPen(lossColor);
    painter.drawText(above, Qt::AlignRight, tr("Lost or incomplete/s"));
}

void RateGraph::drawLosses(QPainter &painter, const QRectF &plot, const Seconds &seconds, double end) const
{
    constexpr double minHeight = 3; // One loss stays visible, however fast the camera is.
    const double width = std::max(2.0, plot.width() / RateHistory::length * 0.7);
    for (int index = 0; index < seconds.size(); ++index) {
        if (seconds[index].losses == 0)
            continue;
        const double height
            = std::max(minHeight, plot.height() * static_cast<double>(seconds[index].losses) / end);
        painter.fillRect(
            QRectF(xOf(plot, index) - width / 2, plot.bottom() - height, width, height), lossColor);
    }
}

void RateGraph::drawRate(QPainter &painter, const QRectF &plot, const Seconds &seconds, double end) const
{
    QPainterPath path;
    bool isDrawing = false;
    for (int index = 0; index < seconds.size(); ++index) {
        if (!seconds[index].isKnown)
            continue;
        const QPointF point(xOf(plot, index), yOf(plot, seconds[index].rate / end));
        if (isDrawing)
            path.lineTo(point);
        else
            path.moveTo(point);
        isDrawing = true;
    }
    constexpr double lineWidth = 1.5;
    painter.strokePath(path, QPen(rateColor, lineWidth));
}
