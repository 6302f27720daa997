#pragma once

#include "tools/kit/editors/FeatureEditor.h"
#include "tools/kit/editors/SliderScale.h"

#include <optional>

class QLabel;
class QSlider;
class StepBox;

/// A number: a line for typing with arrows, the unit, and a slider below if the range allows one.
class NumberEditor : public FeatureEditor
{
    Q_OBJECT

public:
    enum class SliderUse
    {
        Automatic, ///< The representation that the camera states.
        Always, ///< If the range has limits.
        Never
    };

    void setSliderUse(SliderUse use);

    /// Returns no scale if there is no slider.
    const std::optional<SliderScale> &sliderScale() const { return m_scale; }

protected:
    NumberEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent);

    /// Returns the value as text for the line.
    virtual QString textOf(const CvxCPP::NodeValue &value) const = 0;

    /// Returns the number in a text; no value if it contains none.
    virtual CvxCPP::NodeValue parse(const QString &text) const = 0;

    /// Returns the nearest value that the present limits and the increment allow.
    virtual CvxCPP::NodeValue nearest(const CvxCPP::NodeValue &value) const = 0;

    /// Returns the value that is some steps away from this one.
    virtual CvxCPP::NodeValue stepped(const CvxCPP::NodeValue &value, int steps) const = 0;

    virtual double toDouble(const CvxCPP::NodeValue &value) const = 0;
    virtual CvxCPP::NodeValue fromDouble(double value) const = 0;

    /// Returns true if the number gets a slider by itself.
    virtual bool wantsSlider() const = 0;

    void showState(const CvxCPP::NodeState &state) override;
    void setEditable(bool isEditable) override;
    void labelChanged() override;

private:
    void onConfirmed(const QString &text);
    void onStepped(int steps);
    void onSliderMoved(int position);
    void change(const CvxCPP::NodeValue &value);
    void showValue();
    void showToolTip(const CvxCPP::NodeState &state);

    StepBox *m_box;
    QSlider *m_slider;
    std::optional<SliderScale> m_scale;
    SliderUse m_sliderUse = SliderUse::Automatic;
    CvxCPP::NodeValue m_value; ///< What is shown: the camera's value, or the one on its way to the camera.
};
