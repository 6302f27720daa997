#pragma once

#include <cstdint>
#include <string>

/// What an image file contains.
enum class ImageFileFormat : std::uint8_t
{
    Png8, ///< Grey or colour, 8 bits, for the eye.
    Png16, ///< Grey or colour, 16 bits, scaled to the full range.
    Tiff, ///< The measured values, not scaled; Bayer pictures keep their pattern.
    Raw ///< The bytes that the camera has sent.
};

/// Returns the format that the name of a file suggests: PNG with 8 bits for ".png", TIFF for ".tif" and
/// ".tiff", otherwise raw. Upper and lower case are the same.
ImageFileFormat imageFileFormat(const std::string &path);

/// Returns "png8", "png16", "tiff" or "raw".
const char *formatText(ImageFileFormat format);

/// Returns the name with the number before the extension: "a.png" becomes "a-0001.png". The number has as
/// many digits as `count`, and at least four.
std::string numberedPath(const std::string &path, unsigned number, unsigned count);
