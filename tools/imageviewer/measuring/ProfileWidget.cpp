#include "tools/imageviewer/measuring/ProfileWidget.h"

#include "tools/imageviewer/measuring/ComponentStyle.h"
#include "tools/imageviewer/measuring/PlotAxis.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double gap = 6;
constexpr QRgb emptyPlotText = 0xff94a3b8;

/// Returns an axis from the lowest to the highest value, with some room at both ends.
PlotAxis valueAxis(const LineProfile &profile)
{
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -lowest;
    for (const LineProfile::Curve &curve : profile.curves) {
        const auto [first, last] = std::minmax_element(curve.values.begin(), curve.values.end());
        lowest = std::min(lowest, *first);
        highest = std::max(highest, *last);
    }
    if (lowest > highest)
        return {0, 0};
    const double room = std::max((highest - lowest) * 0.05, highest == lowest ? 1.0 : 0.0);
    return {lowest >= 0 ? std::max(lowest - room, 0.0) : lowest - room, highest + room};
}

double lengthOf(const LineProfile &profile)
{
    double length = 0;
    for (const LineProfile::Curve &curve : profile.curves)
        length = std::max(length, curve.positions.back());
    return length;
}

/// Reduces a curve to its lowest and highest point in each column of the plot, so that peaks stay visible.
QPolygonF reducedCurve(const QPolygonF &points, double left)
{
    QPolygonF reduced;
    int column = -1;
    for (const QPointF &point : points) {
        const int current = static_cast<int>(point.x() - left);
        if (current != column || reduced.size() < 2) {
            column = current;
            reduced << point << point;
            continue;
        }
        QPointF &lowest = reduced[reduced.size() - 2];
        QPointF &highest = reduced.last();
        lowest = point.y() < lowest.y() ? point : lowest;
        highest = point.y() > highest.y() ? point : highest;
    }
    return reduced;
}

/// Returns the value at the nearest position that the curve has.
double valueNear(const LineProfile::Curve &curve, double position)
{
    const auto next = std::lower_bound(curve.positions.begin(), curve.positions.end(), position);
    auto index = static_cast<std::size_t>(next - curve.positions.begin());
    if (index == curve.positions.size()
        || (index > 0 && position - curve.positions[index - 1] < curve.positions[index] - position))
        --index;
    return curve.values[index];
}

} // namespace

ProfileWidget::ProfileWidget(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Line profile"));
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProfileWidget::setProfile(const std::optional<LineProfile> &profile)
{
    m_profile = profile;
    if (m_profile && m_profile->curves.empty())
        m_profile.reset();
    update();
}

QString ProfileWidget::pointerText() const
{
    if (!m_profile || !m_pointer)
        return {};
    const double position = std::round(*m_pointer * lengthOf(*m_profile));
    const PlotAxis axis = valueAxis(*m_profile);
    QStringList values;
    for (const LineProfile::Curve &curve : m_profile->curves)
        values << tr("%1 %2").arg(componentName(curve.component), axis.label(valueNear(curve, position)));
    return tr("Pixel %1\n%2").arg(QLocale().toString(position, 'f', 0), values.join(QStringLiteral(", ")));
}

QSize ProfileWidget::sizeHint() const
{
    return {300, 160};
}

QSize ProfileWidget::minimumSizeHint() const
{
    return {220, 120};
}

QRectF ProfileWidget::plotArea() const
{
    const QFontMetricsF metrics(font());
    double labels = 0;
    if (m_profile) {
        const PlotAxis axis = valueAxis(*m_profile);
        labels = std::max(metrics.horizontalAdvance(axis.label(axis.lowest)),
            metrics.horizontalAdvance(axis.label(axis.highest)));
    }
    return QRectF(rect()).adjusted(labels + gap, gap, -gap, -metrics.height() - gap);
}

void ProfileWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = plotArea();
    if (!m_profile) {
        drawPlotGrid(painter, area, {0, 0}, {0, 0});
        painter.setPen(QColor(emptyPlotText));
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, tr("There is no line to measure."));
        return;
    }
    const double length = lengthOf(*m_profile);
    const PlotAxis positions{0, length};
    const PlotAxis values = valueAxis(*m_profile);
    drawPlotGrid(painter, area, positions, values);
    drawCurves(painter, area, values);
    if (m_pointer)
        drawPointer(painter, area, *m_pointer, pointerText());
}

void ProfileWidget::drawCurves(QPainter &painter, const QRectF &area, const PlotAxis &values) const
{
    const double length = std::max(lengthOf(*m_profile), 1.0);
    painter.setClipRect(area);
    for (const LineProfile::Curve &curve : m_profile->curves) {
        QPolygonF points;
        for (std::size_t i = 0; i < curve.values.size(); ++i)
            points << QPointF(area.left() + curve.positions[i] / length * area.width(),
                area.bottom() - values.share(curve.values[i]) * area.height());
        painter.setPen(QPen(componentColor(curve.component), 1.2));
        painter.drawPolyline(points.size() > 2 * area.width() ? reducedCurve(points, area.left()) : points);
    }
    painter.setClipping(false);
}

void ProfileWidget::mouseMoveEvent(QMouseEvent *event)
{
    const QRectF area = plotArea();
    const double share = (event->localPos().x() - area.left()) / area.width();
    m_pointer = share >= 0 && share <= 1 ? std::make_optional(share) : std::nullopt;
    update();
}

void ProfileWidget::leaveEvent(QEvent *)
{
    m_pointer.reset();
    update();
}
