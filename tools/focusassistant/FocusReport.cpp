#include "tools/focusassistant/FocusReport.h"

#include "tools/focusassistant/FocusTexts.h"
#include "tools/kit/measure/focus/FocusText.h"

#include <QLocale>

namespace {

const QString noValue(QChar(0x2013));

QString numberText(double value, int decimals)
{
    return QLocale().toString(value, 'f', decimals);
}

QStringList regionRow(const FocusResult &result, std::size_t index)
{
    const RegionFocus &region = result.last.regions[index];
    const auto columns = std::size_t(result.last.grid.columns);
    QStringList row{QString::number(index / columns + 1), QString::number(index % columns + 1),
        region.isUsable() ? numberText(region.sharpness, 4) : FocusTexts::state(region.state), noValue,
        noValue, noValue};
    if (index < result.regionShares.size() && result.regionShares[index])
        row[3] = FocusTexts::share(*result.regionShares[index]);
    if (!result.analysis || index >= result.analysis->regions.size())
        return row;
    if (const FocusAnalysis::RegionPeak &peak = result.analysis->regions[index]; peak.peak) {
        row[4] = numberText(peak.peak->position, 1);
        row[5] = FocusTexts::share(peak.shareAtBest);
    }
    return row;
}

} // namespace

HtmlReport FocusReport::report(const FocusResult &result, const CameraRecord &camera,
    const QStringList &sentences, const Pictures &pictures)
{
    HtmlReport report(tr("Focus Assistant"), camera);
    report.addText(
        tr("Sharpness %1, which is %2 of the peak.")
            .arg(numberText(result.last.sharpness, 4),
                result.peak > 0 ? FocusTexts::share(result.last.sharpness / result.peak) : noValue));
    for (const QString &sentence : sentences)
        report.addText(sentence);
    report.addPicture(pictures.grid, tr("Share of the peak of each region"));
    report.addPicture(pictures.trend, tr("Sharpness during the last minute"));
    report.addHeading(tr("Regions"));
    QVector<QStringList> rows;
    for (std::size_t i = 0; i < result.last.regions.size(); ++i)
        rows.append(regionRow(result, i));
    report.addTable(
        {tr("Row"), tr("Column"), tr("Sharpness"), tr("Share of the peak"),
            result.axis ? tr("Best position") : tr("Sharp at (s)"), tr("Share at the best position")},
        rows);
    report.addText(tr(
        "The sharpness is the energy of the differences between neighbouring pixels, divided by the squared "
        "brightness, without the part of the noise. Exposure and gain do not change it."));
    return report;
}
