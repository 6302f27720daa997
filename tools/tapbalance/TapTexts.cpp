#include "tools/tapbalance/TapTexts.h"

#include <QLocale>

double TapTexts::shown(const TapMeasurement &measurement, double value)
{
    return measurement.isDark ? value : 100 * value;
}

QString TapTexts::unit(const TapMeasurement &measurement)
{
    return measurement.isDark ? tr("DN", "unit of pixel values") : QStringLiteral("%");
}

QString TapTexts::deviation(const TapMeasurement &measurement, double value)
{
    return QStringLiteral("%1 %2").arg(
        QLocale().toString(shown(measurement, value), 'f', 2), unit(measurement));
}

QString TapTexts::step(const TapMeasurement &measurement, const TapStep &step)
{
    const double value = shown(measurement, measurement.stepOf(step));
    const double error = shown(measurement, measurement.errorOf(step));
    return QStringLiteral("%1%2 ± %3 %4")
        .arg(value >= 0 ? QStringLiteral("+") : QString(), QLocale().toString(value, 'f', 2),
            QLocale().toString(2 * error, 'f', 2), unit(measurement));
}

QString TapTexts::balanced(const TapBalance &balance)
{
    const QString before = deviation(balance.before, balance.before.mismatch);
    const QString after = deviation(balance.after, balance.after.mismatch);
    if (balance.isReached)
        return tr("The mismatch fell from %1 to %2.").arg(before, after);
    return tr("The mismatch fell from %1 to %2. The camera offers no finer values.").arg(before, after);
}
