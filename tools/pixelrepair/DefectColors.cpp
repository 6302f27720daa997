#include "tools/pixelrepair/DefectColors.h"

QColor defectColor(DefectKind kind)
{
    constexpr QRgb colors[] = {0xffef4444, 0xff2196f3, 0xfff59e0b, 0xff22c55e, 0xffc084fc};
    return QColor::fromRgb(colors[static_cast<std::size_t>(kind)]);
}
