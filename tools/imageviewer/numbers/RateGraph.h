#pragma once

#include "tools/imageviewer/numbers/RateHistory.h"

#include <QWidget>

/// Draws the images per second of the last minute as a line, and the losses as bars.
class RateGraph : public QWidget
{
    Q_OBJECT

public:
    explicit RateGraph(QWidget *parent = nullptr);

    void setHistory(const RateHistory &history);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    using Seconds = QVector<RateHistory::Second>;

    void drawAxes(QPainter &painter, const QRectF &plot, double end) const;
    void drawLosses(QPainter &painter, const QRectF &plot, const Seconds &seconds, double end) const;
    void drawRate(QPainter &painter, const QRectF &plot, const Seconds &seconds, double end) const;

    RateHistory m_history;
};
