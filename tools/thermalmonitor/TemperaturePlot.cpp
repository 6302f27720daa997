#include "tools/thermalmonitor/TemperaturePlot.h"

#include "tools/kit/plot/Plot.h"
#include "tools/thermalmonitor/ThermalTexts.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include <limits>

namespace {

/// Numbers of the horizontal lines.
constexpr int warningLine = 0;
constexpr int alarmLine = 1;
constexpr int followedLine = 0;

void addRanges(QComboBox &box)
{
    const struct
    {
        QString text;
        int seconds;
    } ranges[] = {{ThermalTexts::tr("10 min"), 600}, {ThermalTexts::tr("1 h"), 3600},
        {ThermalTexts::tr("24 h"), 86400}, {ThermalTexts::tr("All"), 0}};
    for (const auto &range : ranges)
        box.addItem(range.text, range.seconds);
}

} // namespace

QVector<QPointF> curveOf(const std::vector<HistoryPoint> &points)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    QVector<QPointF> curve;
    for (const HistoryPoint &point : points) {
        if (point.isAfterGap && !curve.isEmpty())
            curve.append({point.first, none});
        if (point.count == 1) {
            curve.append({point.first, point.mean});
            continue;
        }
        const bool isRising = curve.isEmpty() || !(curve.last().y() > point.mean);
        curve.append({point.middle(), isRising ? point.minimum : point.maximum});
        curve.append({point.middle(), isRising ? point.maximum : point.minimum});
    }
    return curve;
}

TemperaturePlot::TemperaturePlot(QWidget *parent)
    : QWidget(parent), m_range(new QComboBox(this)), m_temperatures(new Plot(this)), m_dark(new Plot(this))
{
    setObjectName(QStringLiteral("temperaturePlot"));
    m_range->setObjectName(QStringLiteral("range"));
    addRanges(*m_range);
    auto *const label = new QLabel(tr("Show the &last"), this);
    label->setBuddy(m_range);
    for (Plot *const plot : {m_temperatures, m_dark})
        plot->setHorizontalAxis(Plot::Axis::Duration, tr("Time since the start"));
    m_temperatures->setVerticalAxis(tr("Temperature in °C"));
    m_temperatures->setAccessibleName(tr("Temperatures since the start"));
    m_temperatures->setMinimumHeight(220);
    m_dark->setVerticalAxis(tr("Dark level"));
    m_dark->setAccessibleName(tr("Dark level since the start"));
    m_dark->addCurve(tr("Dark level"));
    m_dark->hide();
    auto *const head = new QHBoxLayout;
    head->addWidget(label);
    head->addWidget(m_range);
    head->addStretch();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(head);
    layout->addWidget(m_temperatures);
    layout->addWidget(m_dark);
    connect(m_range, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TemperaturePlot::draw);
}

double TemperaturePlot::range() const
{
    return m_range->currentData().toDouble();
}

void TemperaturePlot::show(const ThermalMonitor &monitor, const Thresholds &thresholds)
{
    if (&monitor != m_monitor)
        m_curveCount = -1;
    m_monitor = &monitor;
    m_thresholds = thresholds;
    draw();
}

void TemperaturePlot::clear()
{
    m_monitor = nullptr;
    m_curveCount = -1;
    m_temperatures->removeCurves();
    m_temperatures->removeLines();
    m_dark->hide();
}

void TemperaturePlot::draw()
{
    if (!m_monitor || m_monitor->places().front().history().isEmpty())
        return;
    const auto &places = m_monitor->places();
    if (m_curveCount != int(places.size())) {
        m_temperatures->removeCurves();
        for (const PlaceMonitor &place : places)
            m_temperatures->addCurve(ThermalTexts::place(place.place()));
        m_curveCount = int(places.size());
    }
    const double newest = places.front().history().newest().last;
    const double from = range() > 0 ? newest - range() : std::numeric_limits<double>::lowest();
    m_temperatures->removeLines();
    if (m_thresholds.warning)
        m_temperatures->setLimit(warningLine, *m_thresholds.warning, tr("Warning"));
    if (m_thresholds.alarm)
        m_temperatures->setLimit(alarmLine, *m_thresholds.alarm, tr("Alarm"));
    for (std::size_t index = 0; index < places.size(); ++index) {
        m_temperatures->setSamples(int(index), curveOf(places[index].history().since(from)));
        if (const auto &forecast = places[index].report().forecast)
            m_temperatures->setExpected(int(index), forecast->end,
                tr("Final value of %1").arg(ThermalTexts::place(places[index].place())));
    }
    const DarkSeries &dark = m_monitor->dark();
    m_dark->setVisible(!dark.levels().isEmpty());
    m_dark->setSamples(0, curveOf(dark.levels().since(from)));
    m_dark->removeLines();
    const auto followed = dark.followedAt();
    if (!followed || *followed < from)
        return;
    for (Plot *const plot : {m_temperatures, m_dark})
        plot->setMoment(followedLine, *followed, tr("Dark level follows"));
}

QImage TemperaturePlot::temperaturePaper(const QSize &size) const
{
    return m_temperatures->paper(size);
}

QImage TemperaturePlot::darkPaper(const QSize &size) const
{
    const bool hasLevels = m_monitor && !m_monitor->dark().levels().isEmpty();
    return hasLevels ? m_dark->paper(size) : QImage();
}
