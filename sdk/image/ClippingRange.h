#pragma once

#include "sdk/image/PixelLayout.h"

/// The ends of the range of a component, as words of ImageConverter::toWords(). A value is clipped if it is
/// at an end or beyond.
struct ClippingRange
{
    std::uint16_t lowest = 0;
    std::uint16_t highest = 0;
};

/// Returns the range of a component of a format of integers. The components are counted in the order in which
/// toWords() returns them.
ClippingRange clippingRange(const PixelLayout &layout, unsigned component);
