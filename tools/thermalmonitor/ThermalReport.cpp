#include "tools/thermalmonitor/ThermalReport.h"

#include "tools/kit/assistant/HtmlReport.h"
#include "tools/thermalmonitor/ThermalTexts.h"

#include <QLocale>

namespace {

QStringList reportRow(const PlaceMonitor &place)
{
    const PlaceReport &report = place.report();
    const QString none(QChar(0x2013));
    const auto &forecast = report.forecast;
    const QString final = forecast ? QStringLiteral("%1 ± %2").arg(QLocale().toString(forecast->end, 'f', 2),
                              QLocale().toString(2 * forecast->endError, 'f', 2))
                                   : none;
    return {ThermalTexts::place(place.place()),
        report.celsius ? ThermalTexts::temperature(*report.celsius, 2) : none, ThermalTexts::state(report),
        final, forecast ? ThermalTexts::duration(forecast->timeConstant) : none,
        report.secondsToSteady ? ThermalTexts::duration(*report.secondsToSteady) : none};
}

} // namespace

QByteArray ThermalReport::html(
    const CameraRecord &camera, const ThermalMonitor &monitor, const Pictures &pictures)
{
    HtmlReport report(tr("Thermal Monitor"), camera);
    QVector<QStringList> rows;
    for (const PlaceMonitor &place : monitor.places())
        rows.append(reportRow(place));
    report.addText(tr("Readings since %1 (UTC).").arg(QString::fromStdString(monitor.start())));
    report.addTable({tr("Place"), tr("Temperature"), tr("State"), tr("Expected final value in °C"),
                        tr("Time constant"), tr("Steady in")},
        rows);
    report.addText(
        tr("The final value belongs to an exponential curve through the readings; the uncertainty is twice "
           "the standard deviation. Steady means within 0.5 K of the final value, or a change of less "
           "than 0.1 K per minute."));
    report.addPicture(pictures.temperatures, tr("Temperatures over time"));
    if (!pictures.dark.isNull()) {
        report.addHeading(tr("Dark level"));
        report.addText(ThermalTexts::dark(monitor.dark()));
        report.addPicture(pictures.dark, tr("Dark level over time"));
    }
    return report.html();
}
