#include "tools/kit/plot/DurationScale.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// The texts of the axis, and the function that translates them.
class DurationText
{
    Q_DECLARE_TR_FUNCTIONS(DurationScale)
};

constexpr double minute = 60;
constexpr double hour = 60 * minute;
constexpr double day = 24 * hour;
constexpr double week = 7 * day;

constexpr double steps[] = {1, 2, 5, 10, 15, 30, minute, 2 * minute, 5 * minute, 10 * minute, 15 * minute,
    30 * minute, hour, 2 * hour, 3 * hour, 6 * hour, 12 * hour, day, 2 * day, week};

QString twoDigits(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

/// Returns "1:30" or "1:02:03".
QString clockText(qint64 seconds)
{
    const qint64 minutes = seconds / 60;
    const QString end = QLatin1Char(':') + twoDigits(seconds % 60);
    if (minutes < 60)
        return QString::number(minutes) + end;
    return QString::number(minutes / 60) + QLatin1Char(':') + twoDigits(minutes % 60) + end;
}

QString minuteText(qint64 minutes)
{
    if (minutes < 60)
        return DurationText::tr("%1 min").arg(minutes);
    if (minutes % 60 == 0)
        return DurationText::tr("%1 h").arg(minutes / 60);
    return DurationText::tr("%1 h %2 min").arg(minutes / 60).arg(minutes % 60);
}

QString positiveText(double seconds, double step)
{
    if (step < 1)
        return DurationText::tr("%1 s").arg(QLocale().toString(seconds, 'g', 6));
    const auto whole = qint64(std::llround(seconds));
    if (step < minute)
        return clockText(whole);
    const qint64 minutes = whole / 60;
    if (step < hour)
        return minuteText(minutes);
    const qint64 hours = minutes / 60;
    return step < day ? DurationText::tr("%1 h").arg(hours) : DurationText::tr("%1 d").arg(hours / 24);
}

} // namespace

QString durationText(double seconds, double step)
{
    const QString text = positiveText(std::abs(seconds), step);
    return seconds < 0 ? QString(QChar(0x2212)) + text : text;
}

double durationStep(double minStep)
{
    if (minStep <= 0.5) // Fractions of a second are decimal.
        return QwtScaleArithmetic::divideInterval(minStep, 1, 10);
    const auto *const step = std::lower_bound(std::begin(steps), std::end(steps), minStep);
    return step == std::end(steps) ? std::ceil(minStep / week) * week : *step;
}

QwtText DurationScaleDraw::label(double seconds) const
{
    const QList<double> ticks = scaleDiv().ticks(QwtScaleDiv::MajorTick);
    return durationText(seconds, ticks.size() > 1 ? ticks.at(1) - ticks.at(0) : 1);
}

DurationScaleEngine::DurationScaleEngine()
{
    setAttribute(Floating); // The axis begins and ends with the data.
}

void DurationScaleEngine::autoScale(int maxSteps, double &first, double &last, double &stepSize) const
{
    QwtLinearScaleEngine::autoScale(maxSteps, first, last, stepSize);
    stepSize = durationStep(std::abs(last - first) / std::max(maxSteps, 1));
}

QwtScaleDiv DurationScaleEngine::divideScale(
    double first, double last, int maxMajorSteps, int maxMinorSteps, double stepSize) const
{
    const double step
        = stepSize > 0 ? stepSize : durationStep(std::abs(last - first) / std::max(maxMajorSteps, 1));
    return QwtLinearScaleEngine::divideScale(first, last, maxMajorSteps, maxMinorSteps, step);
}
