#include "tools/tapbalance/TapBars.h"

#include <QImage>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

QString barNumber(double value)
{
    return QLocale().toString(value, 'f', 2);
}

} // namespace

TapBars::TapBars(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Deviation of each tap"));
    setToolTip(tr("Grey: before; blue: now"));
}

void TapBars::setBars(const QVector<Bar> &bars, const QString &unit)
{
    m_bars = bars;
    m_unit = unit;
    QStringList texts;
    for (int i = 0; i < bars.size(); ++i)
        texts.append(tr("Tap %1: %2 %3").arg(i + 1).arg(barNumber(bars[i].now), unit));
    setAccessibleDescription(texts.join(QStringLiteral(", ")));
    update();
}

void TapBars::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    draw(painter, rect(),
        {palette().color(QPalette::WindowText), palette().color(QPalette::Mid), QColor(0x64748b),
            QColor(0x2196f3)});
}

QImage TapBars::paper(const QSize &size) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw(painter, image.rect(), {Qt::black, Qt::gray, QColor(0xb0bec5), QColor(0x1976d2)});
    return image;
}

void TapBars::draw(QPainter &painter, const QRectF &area, const Colours &colours) const
{
    if (m_bars.isEmpty()) {
        painter.setPen(colours.text);
        painter.drawText(area, Qt::AlignCenter, tr("Not measured yet"));
        return;
    }
    double largest = 1e-9;
    for (const Bar &bar : m_bars)
        largest = std::max({largest, std::abs(bar.now), std::abs(bar.before)});
    const QFontMetricsF metrics(painter.font());
    const double line = metrics.height();
    // Numbers above, names below; the bars grow up and down from the axis.
    const double axis = area.center().y();
    const double height = area.height() / 2 - line - 2;
    const double pitch = area.width() / m_bars.size();
    const bool hasNumbers = pitch >= metrics.horizontalAdvance(QStringLiteral("-00.00 %"));
    painter.setPen(colours.axis);
    painter.drawLine(QPointF(area.left(), axis), QPointF(area.right(), axis));
    for (int i = 0; i < m_bars.size(); ++i) {
        const double left = area.left() + i * pitch;
        const auto fill = [&](double value, double from, double width, const QColor &colour) {
            const double length = value / largest * (height - line);
            painter.fillRect(QRectF(left + from * pitch, axis, width * pitch, -length).normalized(), colour);
        };
        fill(m_bars[i].before, 0.2, 0.3, colours.before);
        fill(m_bars[i].now, 0.5, 0.3, colours.now);
        painter.setPen(colours.text);
        const QRectF below(left, area.bottom() - line, pitch, line);
        painter.drawText(below, Qt::AlignCenter, QLocale().toString(i + 1));
        if (hasNumbers)
            painter.drawText(QRectF(left, area.top(), pitch, line), Qt::AlignCenter,
                QStringLiteral("%1 %2").arg(barNumber(m_bars[i].now), m_unit));
    }
}
