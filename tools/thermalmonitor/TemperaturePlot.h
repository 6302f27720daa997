#pragma once

#include "tools/kit/measure/thermal/ThermalMonitor.h"

#include <QWidget>

class Plot;
class QComboBox;
class QImage;
class QSize;

/// The temperatures over time, with thresholds and expected final values, and the dark level below.
class TemperaturePlot : public QWidget
{
    Q_OBJECT

public:
    explicit TemperaturePlot(QWidget *parent = nullptr);

    void show(const ThermalMonitor &monitor, const Thresholds &thresholds);
    void clear();

    /// Returns the diagrams on white paper; the second one is null without dark levels.
    QImage temperaturePaper(const QSize &size) const;
    QImage darkPaper(const QSize &size) const;

    /// Seconds that are shown; 0 is all.
    double range() const;

private:
    void draw();

    const ThermalMonitor *m_monitor = nullptr; // Null unless show() was called and clear() was not.
    Thresholds m_thresholds;
    QComboBox *m_range;
    Plot *m_temperatures;
    Plot *m_dark;
    int m_curveCount = -1; // Curves of m_temperatures; -1 if they belong to another camera.
};

/// Returns the points of a curve: a merged point is a line from its minimum to its maximum, and a point
/// without number separates the parts before and after a gap.
QVector<QPointF> curveOf(const std::vector<HistoryPoint> &points);
