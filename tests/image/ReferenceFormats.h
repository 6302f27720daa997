#pragma once

#include "sdk/image/PixelFormat.h"

#include <string_view>
#include <vector>

/// What a format is, in the words of its documentation; independent of the product's table.
struct ReferenceFormat
{
    std::uint32_t code;
    const char *name;
    PixelKind kind;
    int depth;
    /// p: bit stream; P: pairs in three bytes; b, w, d, q: integers of 1, 2, 4 or 8 bytes; s in front:
    /// signed; f, F: floating-point numbers of 4 or 8 bytes; 32: 10 bits each in four bytes; 565: two bytes;
    /// raw: unknown.
    std::string_view storage;
    /// Components in the order of the memory, of as many pixels as belong together. A digit is the pixel.
    /// "planar": one plane each; "420", "422": the plane of chroma that follows the plane of luma.
    std::string_view layout;
    std::string_view standard = ""; ///< 601, 709 or 2020; otherwise BT.601 with the full range.
};

const std::vector<ReferenceFormat> &referenceFormats();
