#include "tools/flatfield/FlatFieldNumbers.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

class FlatFieldTexts
{
    Q_DECLARE_TR_FUNCTIONS(FlatFieldTexts)
};

constexpr double percent = 100;
constexpr double evenShading = 0.02; // Nobody sees this.

QString percentText(double share, int decimals = 2)
{
    const QString number = QLocale().toString(share * percent, 'f', decimals);
    return FlatFieldTexts::tr("%1 %").arg(number).replace(QLatin1Char(' '), QChar::Nbsp);
}

QString valueText(double value)
{
    return FlatFieldTexts::tr("%1 DN").arg(QLocale().toString(value, 'f', 2));
}

QString electronsText(const std::optional<double> &electrons)
{
    return electrons ? QLocale().toString(*electrons, 'f', 2) : FlatFieldTexts::tr("unknown");
}

} // namespace

QStringList flatFieldHeader()
{
    return {QString(), FlatFieldTexts::tr("Before"), FlatFieldTexts::tr("After")};
}

QVector<QStringList> flatFieldRows(const FlatFieldResult &result)
{
    const Uniformity &before = result.before;
    const Uniformity &after = result.after;
    return {{FlatFieldTexts::tr("Shading"), percentText(before.shading), percentText(after.shading)},
        {QStringLiteral("PRNU1288"), percentText(before.prnu), percentText(after.prnu)},
        {FlatFieldTexts::tr("… without shading"), percentText(before.pixelPrnu),
            percentText(after.pixelPrnu)},
        {QStringLiteral("DSNU1288"), valueText(before.dsnu), valueText(after.dsnu)},
        {FlatFieldTexts::tr("… in electrons"), electronsText(before.dsnuElectrons),
            electronsText(after.dsnuElectrons)}};
}

QString flatFieldVerdict(const FlatFieldResult &result)
{
    const QString shading = percentText(result.before.shading, 1);
    if (result.before.shading < evenShading)
        return FlatFieldTexts::tr("The picture is even: its shading is only %1.").arg(shading);
    return FlatFieldTexts::tr("The correction reduces the shading from %1 to %2.")
        .arg(shading, percentText(result.after.shading, 1));
}

QString flatFieldSummary(const FlatFieldResult &result)
{
    const QLocale locale;
    QString text
        = FlatFieldTexts::tr("%1; gains from %2 to %3; bright images at %4 of the range.")
              .arg(QString::fromStdString(result.pixelFormat),
                  locale.toString(result.built.lowestGain, 'f', 2),
                  locale.toString(result.built.highestGain, 'f', 2), percentText(result.brightShare, 0));
    text += QLatin1Char(' ')
        + FlatFieldTexts::tr("The numbers after the correction are those of %n other image(s).", nullptr,
            int(result.checkImages));
    if (result.built.defectPixels > 0)
        text += QLatin1Char(' ')
            + FlatFieldTexts::tr("%n pixel(s) deviate strongly and got the gain of their neighbours; Pixel "
                                 "Repair replaces them.",
                nullptr, int(result.built.defectPixels));
    if (result.built.limitedPixels > 0)
        text += QLatin1Char(' ')
            + FlatFieldTexts::tr(
                "The gain of %n pixel(s) was limited.", nullptr, int(result.built.limitedPixels));
    return text;
}
