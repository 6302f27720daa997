#pragma once

#include "tools/kit/measure/Measurements.h"
#include "tools/kit/picture/DisplaySettings.h"

#include <QWidget>

#include <optional>
#include <utility>

class ContrastHandle;
class QPainter;

/// Draws a histogram and, over it, the contrast curve with handles for black, white and gamma. Shows the
/// value and the counts under the pointer.
class HistogramWidget : public QWidget
{
    Q_OBJECT

public:
    explicit HistogramWidget(QWidget *parent = nullptr);

    /// Nothing means that there is no picture.
    void setHistogram(const std::optional<Histogram> &histogram);
    const std::optional<Histogram> &histogram() const { return m_histogram; }

    void setCurve(const ContrastCurve &curve);
    const ContrastCurve &curve() const { return m_curve; }

    bool isLogarithmic() const { return m_isLogarithmic; }

    /// Returns the shares of clipped pixels as text: the highest of all components.
    QString clipText() const;

    /// Returns the text for the value under the pointer; empty if the pointer is elsewhere.
    QString pointerText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void setLogarithmic(bool isLogarithmic);

signals:
    /// A person has moved a handle.
    void curveChanged(const ContrastCurve &curve);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QRectF plotArea() const;
    void placeHandles();
    void changeCurve(const ContrastCurve &curve);
    void moveBlack(double share);
    void moveWhite(double share);
    void dragMiddle(const QPointF &point);
    void changeGamma(double gamma);
    double shareAt(const QPointF &point) const;
    std::pair<double, double> clipShares() const;
    void drawComponents(QPainter &painter, const QRectF &area) const;
    void drawCurve(QPainter &painter, const QRectF &area) const;
    void drawTexts(QPainter &painter, const QRectF &area) const;

    std::optional<Histogram> m_histogram;
    ContrastCurve m_curve;
    bool m_isLogarithmic = false;
    std::optional<double> m_pointer; ///< Share of the range under the pointer.
    ContrastHandle *m_black;
    ContrastHandle *m_white;
    ContrastHandle *m_middle;
};
