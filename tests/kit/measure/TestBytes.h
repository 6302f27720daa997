#pragma once

#include "sdk/image/PixelFormat.h"
#include "sdk/image/RawImage.h"

#include <cstring>
#include <string_view>
#include <vector>

using ByteVector = std::vector<std::uint8_t>;

template <typename Number>
ByteVector bytesOf(const std::vector<Number> &numbers)
{
    ByteVector bytes(numbers.size() * sizeof(Number));
    std::memcpy(bytes.data(), numbers.data(), bytes.size());
    return bytes;
}

inline RawImage pictureOf(
    const ByteVector &bytes, std::uint32_t width, std::uint32_t height, std::string_view format)
{
    return {bytes.data(), bytes.size(), width, height, 0, findPixelFormat(format)->code};
}
