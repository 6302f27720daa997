#pragma once

#include "CvxCPP/Image.h"

#include <string>

/// Writes the image as an 8-bit PNG file: grey for Mono8, colour for BayerRG8 and RGB8. Returns an empty
/// string, or why the file cannot be written: another pixel format, missing data or a failure of the file
/// system.
std::string writePng(const CvxCPP::Image &image, const std::string &path);

/// Writes the bytes of the picture as they are in memory. Returns an empty string, or why the file cannot be
/// written.
std::string writeRaw(const CvxCPP::Image &image, const std::string &path);
