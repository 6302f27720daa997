#include "tools/kit/plot/Plot.h"

#include "tools/kit/plot/DurationScale.h"
#include "tools/kit/plot/GapCurve.h"
#include "tools/kit/plot/HorizontalMarker.h"

#include <QFrame>
#include <QPainter>
#include <QPalette>

#include <iterator>
#include <map>
#include <vector>

#include <qwt_legend.h>
#include <qwt_legend_label.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_widget.h>

/// What differs between the screen and paper.
struct PlotLook
{
    QRgb background;
    QRgb text;
    QRgb grid;
    QRgb limit;
    QRgb moment;
};

namespace {

constexpr QRgb curveColours[]
    = {0xff2196f3, 0xfff59e0b, 0xff22c55e, 0xffe879f9, 0xff06b6d4, 0xfff43f5e, 0xffa3e635, 0xff8b5cf6};
constexpr int colourCount = int(std::size(curveColours));

constexpr PlotLook screenLook = {0xff131b26, 0xff94a3b8, 0xff25313f, 0xffef4444, 0xff64748b};
constexpr PlotLook paperLook = {0xffffffff, 0xff1a2332, 0xffd5dce5, 0xffdc2626, 0xff64748b};

/// Returns a font for the numbers of an axis.
QFont axisFontOf(QFont font)
{
    constexpr double scale = 0.85;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(int(font.pixelSize() * scale));
    return font;
}

QwtText coloured(const QString &text, QRgb colour)
{
    QwtText result(text, QwtText::PlainText);
    result.setColor(QColor::fromRgb(colour));
    QFont font = result.font();
    font.setBold(false);
    result.setFont(font);
    return result;
}

} // namespace

class Plot::Private
{
public:
    /// A line across the diagram, with its text.
    struct Line
    {
        double position = 0;
        QString label;
        std::unique_ptr<QwtPlotMarker> marker;
    };
    using Lines = std::map<int, Line>;

    explicit Private(Plot &plot) : m_plot(plot) { }

    void setLook(const PlotLook &look);
    void setLine(Lines &lines, int number, QwtPlotMarker::LineStyle style, double position,
        const QString &label, QRgb colour);
    void setAxisTitle(int axis, const QString &title);
    void showLegend();
    QPalette palette() const;
    void applyPalette();
    void copyTo(Plot &other) const;

    Plot &m_plot;
    PlotLook m_look = screenLook;
    QwtPlotGrid m_grid;
    std::vector<std::unique_ptr<QwtPlotCurve>> m_curves;
    Lines m_limits;
    Lines m_expectations; // Numbered as the curves.
    Lines m_moments;
    Axis m_axis = Axis::Numbers;
    QString m_titles[QwtPlot::axisCnt];
};

void Plot::Private::setLook(const PlotLook &look)
{
    m_look = look;
    m_plot.setPalette(palette());
    applyPalette();
    m_plot.setCanvasBackground(QColor::fromRgb(look.background));
    m_grid.setPen(QColor::fromRgb(look.grid), 0, Qt::SolidLine);
}

QPalette Plot::Private::palette() const
{
    QPalette palette = m_plot.palette();
    palette.setColor(QPalette::Window, QColor::fromRgb(m_look.background));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
        palette.setColor(role, QColor::fromRgb(m_look.text));
    return palette;
}

/// The parts do not inherit the colours of the diagram if the program has a style sheet.
void Plot::Private::applyPalette()
{
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis)
        m_plot.axisWidget(axis)->setPalette(palette());
    if (!m_plot.legend())
        return;
    const auto labels = m_plot.legend()->findChildren<QwtLegendLabel *>();
    for (QwtLegendLabel *const label : labels)
        label->setPalette(palette());
}

void Plot::Private::setLine(Lines &lines, int number, QwtPlotMarker::LineStyle style, double position,
    const QString &label, QRgb colour)
{
    const bool isHorizontal = style == QwtPlotMarker::HLine;
    Line &line = lines[number];
    line.position = position;
    line.label = label;
    if (!line.marker) {
        if (isHorizontal) {
            line.marker = std::make_unique<HorizontalMarker>();
        } else {
            line.marker = std::make_unique<QwtPlotMarker>();
            line.marker->setLineStyle(QwtPlotMarker::VLine);
            line.marker->setLabelAlignment(Qt::AlignRight | Qt::AlignBottom);
        }
        line.marker->setItemAttribute(QwtPlotItem::Legend, false);
        line.marker->attach(&m_plot);
    }
    line.marker->setValue(isHorizontal ? 0 : position, isHorizontal ? position : 0);
    line.marker->setLabel(coloured(label, colour));
    line.marker->setLinePen(QColor::fromRgb(colour), 1, Qt::DashLine);
}

void Plot::Private::setAxisTitle(int axis, const QString &title)
{
    m_titles[axis] = title;
    m_plot.QwtPlot::setAxisTitle(axis, coloured(title, m_look.text));
}

/// One curve alone needs no legend.
void Plot::Private::showLegend()
{
    const bool isUseful = m_curves.size() > 1;
    if (isUseful && !m_plot.legend())
        m_plot.insertLegend(new QwtLegend, QwtPlot::TopLegend);
    else if (!isUseful)
        m_plot.insertLegend(nullptr);
    applyPalette();
}

void Plot::Private::copyTo(Plot &other) const
{
    other.setHorizontalAxis(m_axis, m_titles[QwtPlot::xBottom]);
    other.setVerticalAxis(m_titles[QwtPlot::yLeft]);
    for (const auto &curve : m_curves) {
        const int number = other.addCurve(curve->title().text());
        other.m_d->m_curves[std::size_t(number)]->setSamples(
            static_cast<const QwtPointSeriesData *>(curve->data())->samples());
    }
    for (const auto &line : m_limits)
        other.setLimit(line.first, line.second.position, line.second.label);
    for (const auto &line : m_expectations)
        other.setExpected(line.first, line.second.position, line.second.label);
    for (const auto &line : m_moments)
        other.setMoment(line.first, line.second.position, line.second.label);
}

Plot::Plot(QWidget *parent) : QwtPlot(parent), m_d(std::make_unique<Private>(*this))
{
    setAutoDelete(false); // The items are members.
    auto *const plotCanvas = new QwtPlotCanvas; // Paints without OpenGL.
    plotCanvas->setFrameStyle(QFrame::NoFrame);
    plotCanvas->setFocusIndicator(QwtPlotCanvas::NoFocusIndicator);
    setCanvas(plotCanvas);
    setAutoFillBackground(true);
    plotLayout()->setAlignCanvasToScales(true);
    for (const int axis : {int(yLeft), int(xBottom)}) {
        axisScaleDraw(axis)->enableComponent(QwtAbstractScaleDraw::Backbone, false);
        setAxisMaxMinor(axis, 0);
        setAxisFont(axis, axisFontOf(font()));
    }
    m_d->m_grid.attach(this);
    m_d->setLook(screenLook);
    setMinimumHeight(140);
}

Plot::~Plot()
{
    detachItems(QwtPlotItem::Rtti_PlotItem, false);
}

void Plot::setHorizontalAxis(Axis axis, const QString &title)
{
    m_d->m_axis = axis;
    if (axis == Axis::Duration) {
        setAxisScaleDraw(xBottom, new DurationScaleDraw);
        setAxisScaleEngine(xBottom, new DurationScaleEngine);
    } else {
        setAxisScaleDraw(xBottom, new QwtScaleDraw);
        setAxisScaleEngine(xBottom, new QwtLinearScaleEngine);
    }
    axisScaleDraw(xBottom)->enableComponent(QwtAbstractScaleDraw::Backbone, false);
    m_d->setAxisTitle(xBottom, title);
}

void Plot::setVerticalAxis(const QString &title)
{
    m_d->setAxisTitle(yLeft, title);
}

int Plot::addCurve(const QString &title)
{
    const auto number = int(m_d->m_curves.size());
    auto curve = std::make_unique<GapCurve>(title);
    curve->setPen(QColor::fromRgb(curveColours[number % colourCount]), 1.6);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setPaintAttribute(QwtPlotCurve::FilterPoints);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowLine);
    curve->attach(this);
    m_d->m_curves.push_back(std::move(curve));
    m_d->showLegend();
    return number;
}

void Plot::setTitleOf(int curve, const QString &title)
{
    m_d->m_curves.at(std::size_t(curve))->setTitle(title);
}

void Plot::setSamples(int curve, const QVector<QPointF> &samples)
{
    m_d->m_curves.at(std::size_t(curve))->setSamples(samples);
    replot();
}

void Plot::removeCurves()
{
    m_d->m_curves.clear();
    m_d->showLegend();
    replot();
}

void Plot::setLimit(int line, double value, const QString &label)
{
    m_d->setLine(m_d->m_limits, line, QwtPlotMarker::HLine, value, label, m_d->m_look.limit);
    replot();
}

void Plot::setExpected(int curve, double value, const QString &label)
{
    const QRgb colour = curveColours[curve % colourCount];
    m_d->setLine(m_d->m_expectations, curve, QwtPlotMarker::HLine, value, label, colour);
    replot();
}

void Plot::setMoment(int line, double position, const QString &label)
{
    m_d->setLine(m_d->m_moments, line, QwtPlotMarker::VLine, position, label, m_d->m_look.moment);
    replot();
}

void Plot::removeLines()
{
    m_d->m_limits.clear();
    m_d->m_expectations.clear();
    m_d->m_moments.clear();
    replot();
}

QImage Plot::paper(const QSize &size) const
{
    Plot sheet;
    sheet.m_d->setLook(paperLook);
    m_d->copyTo(sheet);
    sheet.replot();
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardCanvasFrame);
    renderer.render(&sheet, &painter, QRectF(QPointF(), size));
    return image;
}
