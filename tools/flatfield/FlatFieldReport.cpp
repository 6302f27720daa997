#include "tools/flatfield/FlatFieldReport.h"

#include "sdk/image/ImageConverter.h"
#include "tools/flatfield/FlatFieldNumbers.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

class FlatFieldReportTexts
{
    Q_DECLARE_TR_FUNCTIONS(FlatFieldReport)
};

constexpr std::uint32_t maxPictureWidth = 800;

} // namespace

QImage reportPicture(const CvxCPP::Image &image, const FlatField *field)
{
    const RawImage picture = rawImage(image);
    if (picture.width == 0 || picture.height == 0)
        return {};
    ImageConverter converter;
    if (field)
        converter.setCorrection({std::make_shared<Correction>(std::nullopt, *field), image.GetInfo().offsetX,
            image.GetInfo().offsetY});
    ImageConverter::ScreenRequest request;
    request.region = {0, 0, picture.width, picture.height};
    request.width = std::min(picture.width, maxPictureWidth);
    request.height = std::max(1U, picture.height * request.width / picture.width);
    const bool isGrey = ImageConverter::screenChannels(picture.pixelFormat) == 1;
    QImage result(
        int(request.width), int(request.height), isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    converter.toScreen(picture, request, result.bits(), std::size_t(result.bytesPerLine()));
    return result;
}

QImage gainPicture(const FlatField &field)
{
    constexpr std::uint32_t stripHeight = 24; // A line scan sensor has one line only.
    const auto [lowest, highest] = std::minmax_element(field.gain.begin(), field.gain.end());
    const float scale = *highest > *lowest ? 255 / (*highest - *lowest) : 0;
    const std::uint32_t step = field.width / maxPictureWidth + 1;
    const std::uint32_t lines = field.isLineScan() ? stripHeight : field.height / step;
    QImage picture(int(field.width / step), int(std::max(1U, lines)), QImage::Format_Grayscale8);
    for (int y = 0; y < picture.height(); ++y) {
        uchar *const line = picture.scanLine(y);
        const std::size_t start = field.isLineScan() ? 0 : std::size_t(y) * step * field.width;
        for (int x = 0; x < picture.width(); ++x)
            line[x] = uchar((field.gain[start + std::size_t(x) * step] - *lowest) * scale);
    }
    return picture;
}

HtmlReport flatFieldReport(const FlatFieldResult &result, const CameraRecord &camera,
    const FlatFieldPictures &pictures, const QStringList &warnings)
{
    HtmlReport report(FlatFieldReportTexts::tr("Flat Field"), camera);
    report.addText(flatFieldVerdict(result));
    for (const QString &warning : warnings)
        report.addText(warning);
    report.addHeading(FlatFieldReportTexts::tr("Non-uniformity by EMVA 1288 release 4.0"));
    report.addTable(flatFieldHeader(), flatFieldRows(result));
    report.addText(flatFieldSummary(result));
    if (!pictures.profiles.isNull())
        report.addPicture(pictures.profiles, FlatFieldReportTexts::tr("Mean of the columns"));
    if (!pictures.before.isNull())
        report.addPicture(pictures.before, FlatFieldReportTexts::tr("A picture as the camera sends it"));
    if (!pictures.after.isNull())
        report.addPicture(pictures.after, FlatFieldReportTexts::tr("The same picture, corrected"));
    report.addPicture(
        gainPicture(result.built.field), FlatFieldReportTexts::tr("The gains: the brighter, the higher"));
    return report;
}
