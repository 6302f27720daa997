#pragma once

#include "sdk/aravis/ChunkTrailers.h"
#include "sdk/producer/OpenCamera.h"

#include <arv.h>

/// Returns size, position and pixel format of the images that the camera is set up for. A value that the
/// camera does not report is 0.
FilledImage configuredImage(ArvDevice &device);

/// Returns what libaravis reports about a buffer that its stream has filled. Of several parts, only the first
/// picture is reported.
/// @param bufferSize The size of the memory behind the buffer.
/// @param configured Describes the picture of an incomplete buffer, whose sizes are those of the whole image:
/// the new data lies anywhere in it, between the old content of the buffer.
FilledImage toFilledImage(
    ArvBuffer *buffer, std::size_t bufferSize, ChunkByteOrder byteOrder, const FilledImage &configured);
