#pragma once

#include <QRectF>
#include <QString>
#include <QVector>

class QPainter;

/// Places numbers along an axis: round values, at a distance that leaves room for their labels.
struct PlotAxis
{
    double lowest = 0;
    double highest = 1;

    /// Returns round numbers from the lowest to the highest one, at most `count` of them.
    QVector<double> ticks(int count) const;

    /// Returns where a number is, as a share of the axis.
    double share(double number) const;
    double numberAt(double share) const;

    /// Returns a number as short as it can be told from its neighbours on this axis.
    QString label(double number) const;
};

/// Draws the background of a plot and lines at round numbers, with labels below and to the left.
void drawPlotGrid(
    QPainter &painter, const QRectF &area, const PlotAxis &horizontal, const PlotAxis &vertical);

/// Draws a line at a share of the horizontal axis, and a text at the top of the plot.
void drawPointer(QPainter &painter, const QRectF &area, double share, const QString &text);
