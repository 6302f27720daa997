#pragma once

#include "sdk/protocol/StreamRing.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// The chunks of one image.
using ChunkPositions = std::array<ChunkPosition, ImageRecord::maxChunks>;

/// Finds the chunks in a buffer without the producer's help, from the end backwards: each chunk is its data,
/// then four bytes with its ID and four bytes with the length of the data. The byte order of these numbers
/// depends on the camera's interface, so both are tried. Returns the number of chunks, at most those that
/// fit, the last ones first; or 0 if the bytes are not a list of chunks that fills the whole data.
std::size_t findChunks(const std::uint8_t *data, std::size_t size, ChunkPositions &chunks);
