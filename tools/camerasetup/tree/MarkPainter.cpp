#include "tools/camerasetup/tree/MarkPainter.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace {

constexpr int markSize = 12;
constexpr int markGap = 4;
constexpr QRgb changedMarkColour = 0xff64b5f6;
constexpr QRgb favouriteColour = 0xfff59e0b;
constexpr QRgb lockedColour = 0xff94a3b8;

QPainterPath dot()
{
    QPainterPath path;
    path.addEllipse(QPointF(0, 0), 3.5, 3.5);
    return path;
}

QPainterPath star()
{
    QPolygonF polygon;
    for (int corner = 0; corner < 10; ++corner) {
        const double radius = corner % 2 == 0 ? 6 : 2.6;
        const double angle = M_PI * corner / 5;
        polygon.append({radius * qSin(angle), -radius * qCos(angle)});
    }
    polygon.append(polygon.first());
    QPainterPath path;
    path.addPolygon(polygon);
    return path;
}

QPainterPath padlock()
{
    QPainterPath shackle;
    shackle.addRoundedRect(QRectF(-3, -6, 6, 9), 3, 3);
    QPainterPath hole;
    hole.addRoundedRect(QRectF(-1.6, -4.6, 3.2, 8), 1.6, 1.6);
    QPainterPath body;
    body.addRoundedRect(QRectF(-4.5, -1, 9, 6.5), 1, 1);
    return shackle.subtracted(hole).united(body);
}

struct MarkLook
{
    FeatureTreeModel::Mark mark;
    QRgb colour;
    QPainterPath (*path)();
};

constexpr MarkLook looks[] = {
    {FeatureTreeModel::LockedMark, lockedColour, padlock},
    {FeatureTreeModel::FavouriteMark, favouriteColour, star},
    {FeatureTreeModel::ChangedMark, changedMarkColour, dot},
};

} // namespace

int marksWidth(FeatureTreeModel::Marks marks)
{
    int width = 0;
    for (const MarkLook &look : looks)
        width += marks.testFlag(look.mark) ? markSize + markGap : 0;
    return width;
}

void paintMarks(QPainter &painter, const QRect &row, FeatureTreeModel::Marks marks)
{
    if (!marks)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    double centre = row.right() - markGap - markSize / 2.0;
    for (const MarkLook &look : looks) {
        if (!marks.testFlag(look.mark))
            continue;
        painter.fillPath(
            look.path().translated(centre, row.top() + row.height() / 2.0), QColor::fromRgb(look.colour));
        centre -= markSize + markGap;
    }
    painter.restore();
}
