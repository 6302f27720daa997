#pragma once

#include "tools/kit/measure/Measurements.h"

#include <QWidget>

#include <optional>

class QPainter;
struct PlotAxis;

/// Draws the values along a line, one curve for each component, and shows the values under the pointer.
class ProfileWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileWidget(QWidget *parent = nullptr);

    /// Nothing means that there is no line or no picture.
    void setProfile(const std::optional<LineProfile> &profile);
    const std::optional<LineProfile> &profile() const { return m_profile; }

    /// Returns the text for the position under the pointer; empty if the pointer is elsewhere.
    QString pointerText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QRectF plotArea() const;
    void drawCurves(QPainter &painter, const QRectF &area, const PlotAxis &values) const;

    std::optional<LineProfile> m_profile;
    std::optional<double> m_pointer; ///< Share of the line under the pointer.
};
