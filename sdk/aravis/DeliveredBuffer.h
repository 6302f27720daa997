#pragma once

#include "sdk/aravis/ChunkTrailers.h"
#include "sdk/producer/OpenCamera.h"

#include <arv.h>

/// Returns what libaravis reports about a buffer that its stream has filled.
///
/// libaravis does not report which parts of an incomplete image have arrived. Its sizes are those of the
/// whole image; the rest of the buffer's old content is still between the new data. If not even the
/// description of the image has arrived, there is no image and the sizes are 0.
/// @param bufferSize The size of the memory behind the buffer.
/// Of several parts, only the first picture is reported.
FilledImage toFilledImage(ArvBuffer *buffer, std::size_t bufferSize, ChunkByteOrder byteOrder);
