#pragma once

#include <QString>

#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>

/// Returns a moment or a duration as text, for example "1:30", "5 min", "2 h" or "3 d".
/// @param step Distance of neighbouring texts in seconds; decides how exact the text is.
QString durationText(double seconds, double step);

/// Returns the smallest pleasant distance in seconds that is not less.
double durationStep(double minStep);

/// Draws the texts of an axis in seconds.
class DurationScaleDraw : public QwtScaleDraw
{
public:
    QwtText label(double seconds) const override;
};

/// Divides an axis in seconds into whole seconds, minutes, hours or days.
class DurationScaleEngine : public QwtLinearScaleEngine
{
public:
    DurationScaleEngine();

    void autoScale(int maxSteps, double &first, double &last, double &stepSize) const override;
    QwtScaleDiv divideScale(
        double first, double last, int maxMajorSteps, int maxMinorSteps, double stepSize) const override;
};
