#include "tools/linescantuner/LineScanReport.h"

#include "sdk/features/SettingLabel.h"
#include "tools/kit/assistant/SentenceText.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct ReportText
{
    Q_DECLARE_TR_FUNCTIONS(LineScanReport)
};

QString reportNumber(double value, int decimals)
{
    return QLocale().toString(value, 'f', decimals);
}

QVector<QStringList> planRows(const LineScanResult &result)
{
    const LineRatePlan &plan = result.plan;
    QVector<QStringList> rows;
    const auto add = [&rows](const QString &name, const std::optional<double> &value, int decimals,
                         const QString &unit) {
        if (value && *value > 0)
            rows.append({name, reportNumber(*value, decimals) + QLatin1Char(' ') + unit});
    };
    add(ReportText::tr("Speed of the object"), result.inputs.speed, 3, ReportText::tr("mm/s"));
    add(ReportText::tr("Movement per encoder pulse"), encoderStepOf(result.inputs), 6, ReportText::tr("mm"));
    add(ReportText::tr("Pixel on the object"), plan.objectPixel, 3, ReportText::tr("µm"));
    add(ReportText::tr("Line rate for square pixels"), plan.wantedRate, 3, ReportText::tr("Hz"));
    add(ReportText::tr("Lines per pulse for square pixels"), plan.wantedRatio, 6, QString());
    add(ReportText::tr("Longest exposure"), plan.longestExposure, 3, ReportText::tr("µs"));
    add(ReportText::tr("Highest speed"), plan.highestSpeed, 3, ReportText::tr("mm/s"));
    rows.append(
        {ReportText::tr("Remaining error"), ReportText::tr("%1 %").arg(reportNumber(plan.errorPercent, 3))});
    return rows;
}

QVector<QStringList> settingRows(const std::vector<PlannedSetting> &settings)
{
    QVector<QStringList> rows;
    for (const PlannedSetting &setting : settings)
        rows.append({QString::fromStdString(settingLabel(setting.name, setting.selectors)),
            QString::fromStdString(plannedValueText(setting.before)),
            QString::fromStdString(plannedValueText(setting.value))});
    return rows;
}

void addMeasured(QVector<QStringList> &rows, const QString &name, const std::optional<Roundness> &measured)
{
    if (measured)
        rows.append({name, reportNumber(measured->heightToWidth, 4), reportNumber(measured->deviation, 4),
            reportNumber(measured->turnDegrees, 2), QLocale().toString(int(measured->targets.size()))});
}

} // namespace

HtmlReport lineScanReport(const LineScanResult &result, const CameraRecord &camera, const QImage &picture)
{
    HtmlReport report(ReportText::tr("Line Scan Tuner"), camera);
    if (result.before) {
        report.addHeading(ReportText::tr("Round target"));
        QVector<QStringList> rows;
        addMeasured(rows, ReportText::tr("First measurement"), result.before);
        addMeasured(rows, ReportText::tr("Last measurement"), result.after);
        report.addTable({QString(), ReportText::tr("Height to width"), ReportText::tr("Deviation"),
                            ReportText::tr("Turn of the camera (°)"), ReportText::tr("Images")},
            rows);
    }
    if (!picture.isNull())
        report.addPicture(picture, ReportText::tr("The picture at the time of the report"));
    if (result.plan.objectPixel > 0) {
        report.addHeading(ReportText::tr("Line rate"));
        report.addTable({ReportText::tr("Quantity"), ReportText::tr("Value")}, planRows(result));
    }
    for (const Sentence &warning : result.plan.warnings)
        report.addText(translatedSentence(warning));
    if (!result.written.empty()) {
        report.addHeading(ReportText::tr("Written settings"));
        report.addTable({ReportText::tr("Feature"), ReportText::tr("Before"), ReportText::tr("Value")},
            settingRows(result.written));
    }
    return report;
}
