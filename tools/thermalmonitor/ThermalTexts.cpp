#include "tools/thermalmonitor/ThermalTexts.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

QString number(double value, int decimals)
{
    return QLocale().toString(value, 'f', decimals);
}

/// A rate that is rounded to 0 has no sign.
QString signedNumber(double value, int decimals)
{
    const bool isPositive = std::round(value * std::pow(10, decimals)) > 0;
    const QString text = number(std::abs(value) < std::pow(10, -decimals) / 2 ? 0 : value, decimals);
    return isPositive ? QLatin1Char('+') + text : text;
}

} // namespace

QString ThermalTexts::place(const std::string &place)
{
    return place.empty() ? tr("Camera") : QString::fromStdString(place);
}

QString ThermalTexts::temperature(double celsius, int decimals)
{
    return tr("%1 °C").arg(number(celsius, decimals));
}

QString ThermalTexts::duration(double seconds)
{
    constexpr double perMinute = 60;
    constexpr double perHour = 3600;
    if (seconds < 1.5 * perMinute)
        return tr("%1 s").arg(number(seconds, 0));
    if (seconds < 1.5 * perHour)
        return tr("%1 min").arg(number(seconds / perMinute, 0));
    return tr("%1 h").arg(number(seconds / perHour, 1));
}

QString ThermalTexts::state(const PlaceReport &report)
{
    if (!report.celsius)
        return tr("Cannot be read at present");
    if (!report.slope)
        return tr("Rate and state are known in %1.").arg(duration(report.secondsToState));
    const QString rate = signedNumber(report.slope->perMinute, 2);
    switch (report.state) {
    case ThermalState::WarmingUp:
        return tr("Warming up, %1 K/min").arg(rate);
    case ThermalState::Cooling:
        return tr("Cooling, %1 K/min").arg(rate);
    default:
        return tr("Steady, %1 K/min").arg(rate);
    }
}

QString ThermalTexts::forecast(const PlaceReport &report)
{
    if (report.state == ThermalState::Steady && !report.forecast)
        return tr("The temperature does not change any more.");
    if (!report.forecast)
        return tr("The final value is not determined yet.");
    constexpr double leastError = 0.1; // The last decimal that is shown.
    const double error = std::max(leastError, 2 * report.forecast->endError);
    const QString end
        = tr("Expected final value: %1 °C ± %2 K").arg(number(report.forecast->end, 1), number(error, 1));
    if (!report.secondsToSteady || *report.secondsToSteady <= 0)
        return end;
    return tr("%1, steady in %2").arg(end, duration(*report.secondsToSteady));
}

QString ThermalTexts::alert(const ThermalMonitor::AlertChange &change)
{
    const QString name = place(change.place);
    const QString value = temperature(change.celsius);
    switch (change.level) {
    case AlertLevel::Alarm:
        return tr("Alarm: %1 has reached %2. Cool the camera or let it work less.").arg(name, value);
    case AlertLevel::Warning:
        return tr("Warning: %1 is at %2.").arg(name, value);
    default:
        return tr("%1 is below the thresholds again: %2.").arg(name, value);
    }
}

QString ThermalTexts::dark(const DarkSeries &series)
{
    if (series.levels().isEmpty())
        return {};
    QStringList lines{tr("Dark level: %1").arg(number(series.levels().newest().mean, 3))};
    if (const auto noise = series.noise())
        lines[0] = tr("Dark level: %1 (noise %2)")
                       .arg(number(series.levels().newest().mean, 3), number(*noise, 3));
    if (const auto followed = series.followedAt())
        lines.append(tr("The dark level has followed the temperature since %1 after the start.")
                         .arg(duration(*followed)));
    else
        lines.append(tr("The dark level has not changed by more than its noise."));
    if (const auto doubling = series.doubling())
        lines.append(tr("The dark signal doubles every %1 ± %2 K.")
                         .arg(number(doubling->kelvin, 1), number(2 * doubling->error, 1)));
    else
        lines.append(
            tr("The doubling temperature is not determined yet; the temperature has to change more."));
    return lines.join(QLatin1Char('\n'));
}
