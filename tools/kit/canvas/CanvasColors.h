#pragma once

#include <QColor>

/// Colours of the canvas and of what is drawn over a picture.
namespace canvascolors {

constexpr QRgb background = 0xff0f1419;
constexpr QRgb panel = 0xff1a2332;
constexpr QRgb border = 0xff2d3a4d;
constexpr QRgb accent = 0xff2196f3;
constexpr QRgb text = 0xffe8edf2;
constexpr QRgb secondaryText = 0xff94a3b8;
constexpr QRgb warning = 0xfff59e0b;
constexpr QRgb shade = 0xb00f1419; ///< Behind texts that lie over a picture.

} // namespace canvascolors
