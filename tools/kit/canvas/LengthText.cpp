#include "tools/kit/canvas/LengthText.h"

#include <QLocale>

namespace {

constexpr double micrometresPerMillimetre = 1000;
constexpr int significantDigits = 4;

QString numberText(double number)
{
    return QLocale().toString(number, 'g', significantDigits);
}

} // namespace

QString LengthText::length(double pixels, double micrometresPerPixel)
{
    const QString inPixels = tr("%1 px").arg(QLocale().toString(pixels, 'f', pixels < 1000 ? 1 : 0));
    if (micrometresPerPixel <= 0)
        return inPixels;
    return tr("%1 (%2)").arg(inPixels, metric(pixels * micrometresPerPixel));
}

QString LengthText::size(const QSize &pixels, double micrometresPerPixel)
{
    const QLocale locale;
    const QString inPixels
        = tr("%1 × %2 px").arg(locale.toString(pixels.width()), locale.toString(pixels.height()));
    if (micrometresPerPixel <= 0)
        return inPixels;
    const QString width = metric(pixels.width() * micrometresPerPixel);
    const QString height = metric(pixels.height() * micrometresPerPixel);
    return tr("%1 (%2)").arg(inPixels, tr("%1 × %2").arg(width, height));
}

QString LengthText::metric(double micrometres)
{
    if (micrometres < micrometresPerMillimetre)
        return tr("%1 µm").arg(numberText(micrometres));
    return tr("%1 mm").arg(numberText(micrometres / micrometresPerMillimetre));
}
