#pragma once

#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/Samples.h"

/// Writes samples with one channel (grey) or three (red, green, blue) as a PNG file. If fewer bits are
/// significant than the file has, the chunk sBIT says how many. Returns false on failure; the file has the
/// reason.
bool writePng(OutputFile &file, const Samples &samples);
