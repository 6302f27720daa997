#include "tools/pixelrepair/ThresholdControl.h"

#include "tools/kit/measure/defects/DefectFindings.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

#include <cmath>

namespace {

constexpr double largestThreshold = 100;
constexpr int sliderSteps = 200; // Equal factors from the smallest to the largest threshold.

int positionOf(double threshold)
{
    return qRound(sliderSteps * std::log(threshold / smallestThreshold)
        / std::log(largestThreshold / smallestThreshold));
}

double thresholdAt(int position)
{
    const double threshold
        = smallestThreshold * std::pow(largestThreshold / smallestThreshold, double(position) / sliderSteps);
    return std::round(threshold * 10) / 10;
}

} // namespace

ThresholdControl::ThresholdControl(QWidget *parent)
    : QWidget(parent), m_slider(new QSlider(Qt::Horizontal, this)), m_number(new QDoubleSpinBox(this))
{
    const QString toolTip = tr(
        "How far a pixel deviates from its neighbours before it counts as a defect, in standard deviations "
        "of the good pixels. At 6 σ, less than one good pixel per megapixel is taken for a defect.");
    auto *const label = new QLabel(tr("&Threshold"), this);
    label->setBuddy(m_number);
    m_slider->setObjectName(QStringLiteral("thresholdSlider"));
    m_slider->setAccessibleName(tr("Threshold"));
    m_slider->setRange(0, sliderSteps);
    m_number->setObjectName(QStringLiteral("threshold"));
    m_number->setDecimals(1);
    m_number->setRange(smallestThreshold, largestThreshold);
    m_number->setSingleStep(0.5);
    m_number->setSuffix(tr(" σ"));
    m_number->setValue(usualThreshold);
    m_slider->setValue(positionOf(usualThreshold));
    for (QWidget *const widget : {static_cast<QWidget *>(m_slider), static_cast<QWidget *>(m_number)})
        widget->setToolTip(toolTip);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_slider, 1);
    layout->addWidget(m_number);
    connect(m_slider, &QSlider::valueChanged, this, &ThresholdControl::followSlider);
    connect(m_number, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
        &ThresholdControl::followNumber);
}

double ThresholdControl::threshold() const
{
    return m_number->value();
}

void ThresholdControl::setThreshold(double threshold)
{
    m_number->setValue(threshold);
}

void ThresholdControl::followSlider(int position)
{
    m_number->setValue(thresholdAt(position));
}

void ThresholdControl::followNumber(double threshold)
{
    const QSignalBlocker blocker(m_slider); // The slider is coarser, and would change the number.
    m_slider->setValue(positionOf(threshold));
    emit changed(threshold);
}
