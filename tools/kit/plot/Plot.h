#pragma once

#include <QImage>
#include <QPointF>
#include <QString>
#include <QVector>

#include <memory>

#include <qwt_plot.h>

/// A diagram in the look of the tools: curves with a legend, lines for limits and moments.
class Plot : public QwtPlot
{
    Q_OBJECT

public:
    explicit Plot(QWidget *parent = nullptr);
    ~Plot() override;

    /// The horizontal axis: numbers, or seconds before now or since a start that are shown as times.
    enum class Axis
    {
        Numbers,
        Duration ///< Seconds; shown as "1:30" or "2 h".
    };
    void setHorizontalAxis(Axis axis, const QString &title);
    void setVerticalAxis(const QString &title);

    /// Adds a curve and returns its number, from 0 on. The colours are those of the tools, one after the
    /// other. Two curves and more have a legend.
    int addCurve(const QString &title);
    void setTitleOf(int curve, const QString &title);
    /// Replaces the points of a curve. A point whose y is not a number makes a gap.
    void setSamples(int curve, const QVector<QPointF> &samples);
    void removeCurves();

    /// Replaces the horizontal line of this number; lines are numbered from 0.
    void setLimit(int line, double value, const QString &label);
    /// Replaces the vertical line of this number.
    void setMoment(int line, double position, const QString &label);
    /// Replaces the horizontal line of the value that a curve approaches; it has the colour of the curve.
    void setExpected(int curve, double value, const QString &label);
    void removeLines(); ///< All limits, moments and expected values.

    /// Returns the diagram on white paper, for a report.
    QImage paper(const QSize &size) const;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};
