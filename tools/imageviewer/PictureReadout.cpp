#include "tools/imageviewer/PictureReadout.h"

#include "sdk/image/PixelFormat.h"
#include "sdk/image/RawValues.h"

#include <QLocale>
#include <QRgb>
#include <QStringList>

namespace {

/// Returns a number without needless decimals; only floating-point formats have any.
QString valueText(double value)
{
    return QLocale::c().toString(value, 'g', 10);
}

/// Returns the names of a pixel's components in their order.
QStringList componentNames(std::uint32_t pixelFormat, const RawValues &raw)
{
    if (raw.color)
        return {QStringLiteral("RGB").at(static_cast<int>(*raw.color))};
    const PixelFormat *const format = findPixelFormat(pixelFormat);
    if (format && format->kind == PixelKind::Rgb)
        return {QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B"), QStringLiteral("A")};
    if (format && format->kind == PixelKind::Yuv)
        return {QStringLiteral("Y"), QStringLiteral("U"), QStringLiteral("V")};
    return {};
}

QString rawText(const ShownPicture &picture, const QPoint &pixel)
{
    const RawImage image = rawImage(*picture.image);
    const RawValues raw
        = rawValues(image, static_cast<std::uint32_t>(pixel.x()), static_cast<std::uint32_t>(pixel.y()));
    const QStringList names = componentNames(image.pixelFormat, raw);
    QStringList texts;
    for (unsigned index = 0; index < raw.count; ++index) {
        const QString value = valueText(raw.values.at(index));
        const int place = static_cast<int>(index);
        texts.append(place < names.size() ? names.at(place) + QLatin1Char(' ') + value : value);
    }
    return texts.join(QLatin1Char(' '));
}

/// Returns the colour that the screen shows for the pixel; empty if the pixel is not visible.
QString shownText(const ShownPicture &picture, const QPoint &pixel)
{
    const QRect region = picture.region;
    if (!region.contains(pixel))
        return {};
    const QPoint inRegion = pixel - region.topLeft();
    const QRgb color = picture.pixels.pixel(inRegion.x() * picture.pixels.width() / region.width(),
        inRegion.y() * picture.pixels.height() / region.height());
    if (qRed(color) == qGreen(color) && qGreen(color) == qBlue(color))
        return QString::number(qRed(color));
    return QStringLiteral("%1 %2 %3").arg(qRed(color)).arg(qGreen(color)).arg(qBlue(color));
}

} // namespace

QString PictureReadout::describe(const ShownPicture &picture, const QPoint &pixel)
{
    if (!picture.image || !QRect(QPoint(), picture.pictureSize).contains(pixel))
        return {};
    const QString position = tr("x %1, y %2").arg(pixel.x()).arg(pixel.y());
    const bool isKnown = findPixelFormat(picture.image->GetInfo().pixelFormat) != nullptr;
    const QString values = rawText(picture, pixel);
    const QString raw = isKnown ? tr("raw %1").arg(values) : tr("unknown pixel format, byte %1").arg(values);
    const QString shown = shownText(picture, pixel);
    const QString separator = QStringLiteral("  ·  ");
    return shown.isEmpty() ? position + separator + raw
                           : position + separator + raw + separator + tr("shown %1").arg(shown);
}
