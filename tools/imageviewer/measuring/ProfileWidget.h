#pragma once

#include "tools/kit/measure/Measurements.h"

#include <QWidget>

#include <optional>

/// Draws the values along a line, one curve for each component, and shows the values under the pointer.
class ProfileWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileWidget(QWidget *parent = nullptr);

    /// Nothing means that there is no line or no picture.
    void setProfile(const std::optional<LineProfile> &profile);
    const std::optional<LineProfile> &profile() const { return m_profile; }

    /// Sets the number that the first pixel of the line has, for example its column.
    void setOrigin(double origin);

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

    std::optional<LineProfile> m_profile;
    double m_origin = 0;
    std::optional<double> m_pointer; ///< Share of the line under the pointer.
};
