#pragma once

#include <QWidget>

class QDoubleSpinBox;
class QSlider;

/// A slider and a number for the threshold, which follow each other.
class ThresholdControl : public QWidget
{
    Q_OBJECT

public:
    explicit ThresholdControl(QWidget *parent = nullptr);

    double threshold() const;
    void setThreshold(double threshold);

signals:
    void changed(double threshold); ///< By the person or the program.

private:
    void followSlider(int position);
    void followNumber(double threshold);

    QSlider *m_slider;
    QDoubleSpinBox *m_number;
};
