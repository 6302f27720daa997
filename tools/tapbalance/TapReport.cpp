#include "tools/tapbalance/TapReport.h"

#include "tools/tapbalance/TapTexts.h"

#include <QLocale>

HtmlReport TapReport::make(
    const CameraRecord &camera, const TapResult &result, const QImage &bars, const QImage &picture)
{
    HtmlReport report(tr("Tap Balance"), camera);
    report.addText(tr("Layout of the taps: %1").arg(QString::fromStdString(layoutName(result.layout))));
    report.addPicture(bars, tr("Deviation of each tap; grey: before, blue: now"));
    if (result.bright) {
        report.addHeading(tr("Bright picture"));
        addMeasurement(report, *result.bright);
    }
    if (result.gain)
        addBalance(report, *result.gain);
    if (result.dark) {
        report.addHeading(tr("Dark picture"));
        addMeasurement(report, *result.dark);
    }
    if (result.blackLevel)
        addBalance(report, *result.blackLevel);
    if (!picture.isNull())
        report.addPicture(picture, tr("The picture with the borders of the taps"));
    return report;
}

void TapReport::addMeasurement(HtmlReport &report, const TapMeasurement &measurement)
{
    QVector<QStringList> taps;
    for (std::size_t i = 0; i < measurement.taps.size(); ++i) {
        const TapMeasurement::Tap &tap = measurement.taps[i];
        taps.append({QLocale().toString(qulonglong(i + 1)), QLocale().toString(tap.mean, 'f', 2),
            QLocale().toString(tap.noise, 'f', 2), TapTexts::deviation(measurement, tap.deviation)});
    }
    report.addTable({tr("Tap"), tr("Mean"), tr("Noise"), tr("Deviation")}, taps);
    QVector<QStringList> steps;
    for (const TapStep &step : measurement.steps)
        steps.append(
            {tr("%1 to %2").arg(step.first + 1).arg(step.second + 1), TapTexts::step(measurement, step)});
    report.addTable({tr("Taps"), tr("Step at the border")}, steps);
    report.addText(tr(
        "The deviations follow from the steps at the borders, which straight lines on both sides are "
        "extended to; shading has no influence. The noise is the temporal standard deviation of a pixel by "
        "the differences of successive images (EMVA 1288). The uncertainty of a step is twice its standard "
        "error."));
}

void TapReport::addBalance(HtmlReport &report, const TapBalance &balance)
{
    QVector<QStringList> rows;
    for (std::size_t i = 0; i < balance.control.entries.size(); ++i)
        rows.append({QString::fromStdString(balance.control.entries[i]),
            QLocale().toString(balance.valuesBefore.at(i), 'f', 3),
            QLocale().toString(balance.valuesAfter.at(i), 'f', 3)});
    report.addText(TapTexts::balanced(balance));
    report.addTable({QString::fromStdString(balance.control.selector),
                        tr("%1 before").arg(QString::fromStdString(balance.control.feature)), tr("now")},
        rows);
}
