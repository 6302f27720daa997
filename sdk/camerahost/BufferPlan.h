#pragma once

#include "sdk/camerahost/Picture.h"

#include <cstdint>
#include <optional>

/// What the producer and the camera say about the buffers of a stream; empty if they do not say it.
struct BufferNeeds
{
    std::optional<std::uint64_t> streamSize; ///< Bytes of an image, by the producer.
    std::uint64_t cameraSize = 0; ///< Bytes of an image, by the camera; 0 if unknown.
    Picture picture; ///< What the camera is configured for.
    std::uint64_t minBuffers = 0;
    std::uint64_t alignment = 0;
};

/// The buffers that a stream uses.
struct BufferPlan
{
    std::uint32_t buffers = 0;
    std::uint64_t size = 0; ///< Size of one buffer.
    std::uint32_t alignment = 0;

    /// Returns the plan for a stream that should have `wanted` buffers, or nothing if the needs are unknown
    /// or beyond all reason.
    static std::optional<BufferPlan> make(std::uint32_t wanted, const BufferNeeds &needs);
};
