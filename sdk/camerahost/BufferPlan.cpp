#include "sdk/camerahost/BufferPlan.h"

#include "sdk/protocol/StreamRing.h"

#include <algorithm>

namespace {

constexpr std::uint64_t defaultMinBuffers = 4; // For producers that do not tell the number.
constexpr std::uint64_t maxBufferSize = std::uint64_t(4) << 30;
constexpr std::uint64_t maxAlignment = 1U << 20;

/// Every buffer starts at a page of its own. No producer can demand less, and most demand no more.
constexpr std::uint32_t minAlignment = 4096;

std::uint64_t imageSize(const BufferNeeds &needs)
{
    const std::uint64_t size = std::max(needs.streamSize.value_or(0), needs.cameraSize);
    if (size > 0)
        return size;
    const std::uint64_t computed = needs.picture.size();
    return computed + computed / 10; // Room for what the camera may add.
}

} // namespace

std::optional<BufferPlan> BufferPlan::make(std::uint32_t wanted, const BufferNeeds &needs)
{
    BufferPlan plan;
    const std::uint64_t size = imageSize(needs);
    const std::uint64_t minimum = needs.minBuffers > 0 ? needs.minBuffers : defaultMinBuffers;
    if (size == 0 || size > maxBufferSize || minimum > StreamRing::maxBuffers)
        return std::nullopt;
    plan.buffers = std::min(std::max(wanted, static_cast<std::uint32_t>(minimum)), StreamRing::maxBuffers);
    plan.alignment = minAlignment; // A producer's odd number is rounded up to a power of two.
    while (plan.alignment < std::min(needs.alignment, maxAlignment))
        plan.alignment *= 2;
    plan.size = (size + plan.alignment - 1) / plan.alignment * plan.alignment;
    return plan;
}
