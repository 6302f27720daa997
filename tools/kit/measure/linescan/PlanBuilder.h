#pragma once

#include "tools/kit/measure/linescan/LineRatePlan.h"

/// Calculates the plan for a camera. Square pixels need as many lines per millimetre as pixels, so the line
/// rate is the speed divided by the object pixel, and an encoder needs movement per pulse / object pixel
/// lines per pulse.
class PlanBuilder
{
public:
    PlanBuilder(const LineScanInputs &inputs, const LineScanCamera &camera);

    LineRatePlan build();

private:
    bool isEncoder() const { return m_inputs.trigger == LineScanInputs::Trigger::Encoder; }
    bool calculate();
    bool calculateRate();
    bool calculateRatio();
    void calculateExposure();
    void checkLimits();
    Sentence errorSentence() const;
    void planRate();
    void planEncoder();
    void planTriggerFactors(const EncoderRatio &ratio);
    void planExposure();
    void planInput(LineFeature feature, const char *fallback);
    void planEntry(LineFeature feature, const std::string &entry);
    void plan(LineFeature feature, const CvxCPP::NodeValue &value);

    const LineScanInputs m_inputs;
    const LineScanCamera m_camera;
    const RateLimits m_limits;
    LineRatePlan m_plan;
};
