#include "tools/pixelrepair/RepairReport.h"

#include "tools/kit/assistant/HtmlReport.h"
#include "tools/pixelrepair/DefectColors.h"
#include "tools/pixelrepair/DefectTexts.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int pictureWidth = 1000;
constexpr int lineScanHeight = 80;
constexpr double dotSize = 4;

QString number(double value, int decimals)
{
    return QLocale().toString(value, 'f', decimals);
}

QString number(std::size_t value)
{
    return QLocale().toString(qulonglong(value));
}

} // namespace

QImage RepairReport::mapPicture(const DefectMap &map)
{
    const double scale = double(pictureWidth) / std::max(1U, map.width);
    const int height = map.isLineScan() ? lineScanHeight : std::max(1, qRound(map.height * scale));
    QImage picture(pictureWidth, height, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const DefectPixelEntry &pixel : map.pixels) {
        painter.setBrush(defectColor(pixel.kind).darker(120));
        const double x = (pixel.x + 0.5) * scale;
        if (map.isLineScan())
            painter.drawRect(QRectF(x - 1, 0, 2, height));
        else
            painter.drawEllipse(QPointF(x, (pixel.y + 0.5) * scale), dotSize / 2, dotSize / 2);
    }
    painter.setPen(Qt::gray);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
    return picture;
}

std::string RepairReport::write(const std::string &path, const DefectResult &result)
{
    const DefectCounts &counts = result.counts;
    HtmlReport report(tr("Pixel Repair"), result.camera);
    report.addHeading(tr("Result"));
    report.addText(DefectTexts::summary(counts));
    QVector<QStringList> rows;
    for (const DefectKind kind : defectKinds)
        rows.append({DefectTexts::kind(kind), number(counts.byKind.at(std::size_t(kind))),
            DefectTexts::explanation(kind)});
    rows.append({tr("Clusters"), number(counts.clusters), tr("Defect pixels that touch each other.")});
    rows.append(
        {tr("Columns"), number(counts.columns), tr("Parts of columns with eight defect pixels or more.")});
    rows.append({tr("Lines"), number(counts.lines), tr("Parts of lines with eight defect pixels or more.")});
    report.addTable({tr("Kind"), tr("Number"), tr("Meaning")}, rows);
    report.addPicture(mapPicture(result.map), tr("Places of the defect pixels on the sensor"));
    report.addHeading(tr("Conditions"));
    const auto conditions = [](const DefectImages &images, double level, double noise, double spread) {
        return QStringList{number(images.statistics.images()),
            images.exposureTime ? number(*images.exposureTime / 1000, 3) : QStringLiteral("–"),
            images.gain ? number(*images.gain, 2) : QStringLiteral("–"), number(level, 1), number(noise, 2),
            number(spread, 2)};
    };
    const DefectFindings &findings = result.findings;
    report.addTable({tr("Images"), tr("Number"), tr("Exposure in ms"), tr("Gain"), tr("Level"), tr("Noise"),
                        tr("Spread of the good pixels")},
        {QStringList(tr("Dark"))
                + conditions(*result.dark, findings.darkLevel, findings.darkNoise, findings.darkSpread),
            QStringList(tr("Bright"))
                + conditions(
                    *result.bright, findings.brightLevel, findings.brightNoise, findings.brightSpread)});
    report.addText(tr("Threshold: %1 standard deviations. Examined pixels: %2.")
                       .arg(number(result.threshold, 1), number(findings.examinedPixels)));
    return report.write(path);
}
