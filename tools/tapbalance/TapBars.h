#pragma once

#include <QVector>
#include <QWidget>

/// One bar for each tap: how much it deviates from the reference, before and now.
class TapBars : public QWidget
{
    Q_OBJECT

public:
    struct Bar
    {
        double now = 0; ///< In `unit`.
        double before = 0; ///< Equal to `now` if nothing was changed.
    };

    explicit TapBars(QWidget *parent = nullptr);

    /// @param unit For example "%".
    void setBars(const QVector<Bar> &bars, const QString &unit);

    QSize sizeHint() const override { return {300, 150}; }

    /// Returns the bars on white paper, for a report.
    QImage paper(const QSize &size) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Colours
    {
        QColor text, axis, before, now;
    };
    void draw(QPainter &painter, const QRectF &area, const Colours &colours) const;

    QVector<Bar> m_bars;
    QString m_unit;
};
