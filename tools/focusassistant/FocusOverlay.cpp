#include "tools/focusassistant/FocusOverlay.h"

#include "tools/focusassistant/FocusTexts.h"
#include "tools/kit/canvas/ViewTransform.h"

#include <QPainter>

namespace {

constexpr double greenShare = 0.9;
constexpr double orangeShare = 0.7;
constexpr int tintAlpha = 36;
constexpr qreal gap = 2; // Between a region and its frame.

QColor shareColor(double share)
{
    if (share >= greenShare)
        return {0x22, 0xc5, 0x5e};
    return share >= orangeShare ? QColor(0xf5, 0x9e, 0x0b) : QColor(0xef, 0x44, 0x44);
}

} // namespace

void FocusOverlay::paint(QPainter &painter, const ViewTransform &view) const
{
    const auto &measurement = m_session.measurement();
    if (!measurement || view.pictureSize() != QSize(int(measurement->width), int(measurement->height)))
        return;
    painter.save();
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    for (std::size_t i = 0; i < measurement->regions.size(); ++i) {
        const Region &area = measurement->regions[i].area;
        paintRegion(painter, view.toView(QRectF(area.x, area.y, area.width, area.height)), i);
    }
    painter.restore();
}

void FocusOverlay::paintRegion(QPainter &painter, const QRectF &area, std::size_t index) const
{
    const auto share = m_session.history().regionShare(index);
    const QColor color = share ? shareColor(*share) : QColor(0x94, 0xa3, 0xb8);
    QColor tint = color;
    tint.setAlpha(share ? tintAlpha : 0);
    painter.setPen(QPen(color, 1));
    painter.setBrush(tint);
    painter.drawRect(area.adjusted(gap, gap, -gap, -gap));

    const QString text = share ? FocusTexts::share(*share)
                               : FocusTexts::state(m_session.measurement()->regions[index].state);
    QRectF label = painter.fontMetrics().boundingRect(text);
    label.adjust(-4, -2, 4, 2);
    label.moveCenter(area.center());
    if (text.isEmpty() || label.width() > area.width() || label.height() > area.height())
        return; // A text that does not fit would hide its neighbours.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 150));
    painter.drawRoundedRect(label, 3, 3);
    painter.setPen(color.lighter(130));
    painter.drawText(label, Qt::AlignCenter, text);
}
