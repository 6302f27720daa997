#include "tools/imageviewer/measuring/HistogramWidget.h"

#include "tools/imageviewer/measuring/ComponentStyle.h"
#include "tools/imageviewer/measuring/ContrastHandle.h"
#include "tools/imageviewer/measuring/PictureRules.h"
#include "tools/imageviewer/measuring/PlotAxis.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double sideMargin = 10; // Half a handle.
constexpr double textGap = 6;
constexpr double shareStep = 0.001; // What an arrow key does.
constexpr double minShareDistance = 0.002; // Between black and white.
constexpr double gammaStep = 1.02;
constexpr int fillAlpha = 80;
constexpr QRgb secondaryText = 0xff94a3b8;
constexpr QRgb warningText = 0xfff59e0b;
constexpr QRgb curveColor = 0xffe8edf2;

QString percentText(double share)
{
    const QLocale locale;
    if (share > 0 && share < 0.0001)
        return HistogramWidget::tr("< %1 %").arg(locale.toString(0.01, 'f', 2));
    const int decimals = share == 0 || share >= 0.1 ? 0 : share >= 0.01 ? 1 : 2;
    return HistogramWidget::tr("%1 %").arg(locale.toString(100 * share, 'f', decimals));
}

/// Returns the highest count of each column, which is as wide as a pixel of the screen or as a bin.
std::vector<std::uint64_t> columnCounts(const std::vector<std::uint64_t> &counts, std::size_t maxColumns)
{
    const std::size_t columns = std::min(counts.size(), maxColumns);
    std::vector<std::uint64_t> result(columns);
    for (std::size_t i = 0; i < counts.size(); ++i) {
        std::uint64_t &column = result[i * columns / counts.size()];
        column = std::max(column, counts[i]);
    }
    return result;
}

/// Returns the count that reaches the top. The first and the last bin are left out, because clipped pixels
/// would make everything else too low to be seen.
std::uint64_t highestInnerCount(const Histogram &histogram)
{
    std::uint64_t highest = 1;
    for (const ComponentHistogram &component : histogram.components)
        if (component.counts.size() > 2)
            highest = std::max(
                highest, *std::max_element(component.counts.begin() + 1, component.counts.end() - 1));
    return highest;
}

} // namespace

HistogramWidget::HistogramWidget(QWidget *parent)
    : QWidget(parent),
      m_black(new ContrastHandle(tr("Black point"), Qt::black, this)),
      m_white(new ContrastHandle(tr("White point"), Qt::white, this)),
      m_middle(new ContrastHandle(tr("Gamma"), Qt::gray, this))
{
    setAccessibleName(tr("Histogram"));
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setTabOrder(m_black, m_middle);
    setTabOrder(m_middle, m_white);
    connect(m_black, &ContrastHandle::dragged, this, [this](const QPointF &p) { moveBlack(shareAt(p)); });
    connect(m_white, &ContrastHandle::dragged, this, [this](const QPointF &p) { moveWhite(shareAt(p)); });
    connect(m_middle, &ContrastHandle::dragged, this, &HistogramWidget::dragMiddle);
    connect(m_black, &ContrastHandle::stepped, this,
        [this](int steps) { moveBlack(m_curve.black + steps * shareStep); });
    connect(m_white, &ContrastHandle::stepped, this,
        [this](int steps) { moveWhite(m_curve.white + steps * shareStep); });
    connect(m_middle, &ContrastHandle::stepped, this,
        [this](int steps) { changeGamma(m_curve.gamma * std::pow(gammaStep, steps)); });
    connect(m_black, &ContrastHandle::resetRequested, this, [this] { moveBlack(0); });
    connect(m_white, &ContrastHandle::resetRequested, this, [this] { moveWhite(1); });
    connect(m_middle, &ContrastHandle::resetRequested, this, [this] { changeGamma(1); });
}

void HistogramWidget::setHistogram(const std::optional<Histogram> &histogram)
{
    m_histogram = histogram;
    update();
}

void HistogramWidget::setCurve(const ContrastCurve &curve)
{
    m_curve = curve;
    placeHandles();
    update();
}

void HistogramWidget::setLogarithmic(bool isLogarithmic)
{
    m_isLogarithmic = isLogarithmic;
    update();
}

QString HistogramWidget::clipText() const
{
    const auto [dark, bright] = clipShares();
    return tr("%1 underexposed, %2 overexposed").arg(percentText(dark), percentText(bright));
}

QString HistogramWidget::pointerText() const
{
    if (!m_histogram || !m_pointer || m_histogram->components.empty())
        return {};
    const std::size_t bins = m_histogram->components.front().counts.size();
    const auto bin = std::min(static_cast<std::size_t>(*m_pointer * static_cast<double>(bins)), bins - 1);
    const double value = m_histogram->lowest + static_cast<double>(bin) * m_histogram->binWidth;
    const QLocale locale;
    QStringList counts;
    for (const ComponentHistogram &component : m_histogram->components)
        counts << tr("%1 %2").arg(locale.toString(static_cast<qulonglong>(component.counts[bin])),
            componentName(component.component));
    const PlotAxis axis{m_histogram->lowest, m_histogram->highest};
    return tr("Value %1\n%2").arg(axis.label(value), counts.join(QStringLiteral(", ")));
}

QSize HistogramWidget::sizeHint() const
{
    return {300, 190};
}

QSize HistogramWidget::minimumSizeHint() const
{
    return {220, 150};
}

QRectF HistogramWidget::plotArea() const
{
    const double line = QFontMetricsF(font()).height() + textGap;
    return QRectF(rect()).adjusted(sideMargin, line + sideMargin / 2, -sideMargin, -line);
}

double HistogramWidget::shareAt(const QPointF &point) const
{
    const QRectF area = plotArea();
    return (point.x() - area.left()) / area.width();
}

void HistogramWidget::placeHandles()
{
    const QRectF area = plotArea();
    const auto place = [&area](ContrastHandle *handle, double share, double height) {
        handle->moveCenter({area.left() + share * area.width(), area.bottom() - height * area.height()});
    };
    const double middle = (m_curve.black + m_curve.white) / 2;
    place(m_black, m_curve.black, 0);
    place(m_white, m_curve.white, 1);
    place(m_middle, middle, m_curve.brightness(middle));
}

void HistogramWidget::changeCurve(const ContrastCurve &curve)
{
    setCurve(curve);
    emit curveChanged(curve);
}

void HistogramWidget::moveBlack(double share)
{
    changeCurve({std::clamp(share, 0.0, m_curve.white - minShareDistance), m_curve.white, m_curve.gamma});
}

void HistogramWidget::moveWhite(double share)
{
    changeCurve({m_curve.black, std::clamp(share, m_curve.black + minShareDistance, 1.0), m_curve.gamma});
}

void HistogramWidget::dragMiddle(const QPointF &point)
{
    const QRectF area = plotArea();
    changeGamma(gammaForMiddle((area.bottom() - point.y()) / area.height()));
}

void HistogramWidget::changeGamma(double gamma)
{
    changeCurve({m_curve.black, m_curve.white, std::clamp(gamma, 0.1, 10.0)});
}

std::pair<double, double> HistogramWidget::clipShares() const
{
    std::pair<double, double> shares;
    if (!m_histogram)
        return shares;
    for (const ComponentHistogram &component : m_histogram->components) {
        shares.first = std::max(shares.first, component.darkShare);
        shares.second = std::max(shares.second, component.brightShare);
    }
    return shares;
}

void HistogramWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = plotArea();
    const PlotAxis values
        = m_histogram ? PlotAxis{m_histogram->lowest, m_histogram->highest} : PlotAxis{0, 0};
    drawPlotGrid(painter, area, values, {0, 0});
    if (m_histogram)
        drawComponents(painter, area);
    drawCurve(painter, area);
    drawTexts(painter, area);
}

void HistogramWidget::drawComponents(QPainter &painter, const QRectF &area) const
{
    const auto top = static_cast<double>(highestInnerCount(*m_histogram));
    const auto maxColumns = static_cast<std::size_t>(area.width() * devicePixelRatioF());
    const auto height = [this, top](std::uint64_t count) {
        const auto number = static_cast<double>(count);
        const double share = m_isLogarithmic ? std::log1p(number) / std::log1p(top) : number / top;
        return std::min(share, 1.0);
    };
    for (const ComponentHistogram &component : m_histogram->components) {
        const std::vector<std::uint64_t> columns = columnCounts(component.counts, maxColumns);
        const double width = area.width() / static_cast<double>(columns.size());
        QPolygonF outline;
        double x = area.left();
        for (const std::uint64_t count : columns) {
            const double y = area.bottom() - height(count) * area.height();
            outline << QPointF(x, y) << QPointF(x + width, y);
            x += width;
        }
        QPainterPath fill;
        fill.addPolygon(outline);
        fill.lineTo(area.bottomRight());
        fill.lineTo(area.bottomLeft());
        QColor color = componentColor(component.component);
        painter.setPen(QPen(color, 1));
        painter.drawPolyline(outline);
        color.setAlpha(fillAlpha);
        painter.fillPath(fill, color);
    }
}

void HistogramWidget::drawCurve(QPainter &painter, const QRectF &area) const
{
    QPolygonF curve;
    for (double x = 0; x <= area.width(); ++x)
        curve << QPointF(
            area.left() + x, area.bottom() - m_curve.brightness(x / area.width()) * area.height());
    QColor color(curveColor);
    color.setAlpha(isEnabled() ? 180 : 60);
    painter.setPen(QPen(color, 1.5));
    painter.drawPolyline(curve);
}

void HistogramWidget::drawTexts(QPainter &painter, const QRectF &area) const
{
    if (!m_histogram || m_histogram->components.empty()) {
        painter.setPen(QColor(secondaryText));
        painter.drawText(area, Qt::AlignCenter, tr("There is no picture."));
        return;
    }
    const QRectF line(area.left(), 0, area.width(), area.top() - sideMargin / 2);
    const auto [dark, bright] = clipShares();
    painter.setPen(QColor(dark > 0 ? warningText : secondaryText));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, tr("%1 dark").arg(percentText(dark)));
    painter.setPen(QColor(bright > 0 ? warningText : secondaryText));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, tr("%1 bright").arg(percentText(bright)));
    if (m_pointer)
        drawPointer(painter, area, *m_pointer, pointerText());
}

void HistogramWidget::resizeEvent(QResizeEvent *)
{
    placeHandles();
}

void HistogramWidget::mouseMoveEvent(QMouseEvent *event)
{
    const double share = shareAt(event->localPos());
    m_pointer = share >= 0 && share <= 1 ? std::make_optional(share) : std::nullopt;
    update();
}

void HistogramWidget::leaveEvent(QEvent *)
{
    m_pointer.reset();
    update();
}
