#pragma once

#include "sdk/image/PixelKernels.h"

#include <algorithm>
#include <cstdlib>
#include <type_traits>

// The loops of the kernels in plain C++. They are always inlined, so that each set of kernels contains them
// as the compiler vectorises them for its instructions.
#define CVX_INLINE [[gnu::always_inline]] inline

namespace pixelloops {

/// Returns a value of `bits` bits as a sample: itself for 16 bits, otherwise scaled to 8 bits.
template <typename Sample>
CVX_INLINE Sample sampleOf(unsigned value, unsigned bits)
{
    constexpr std::array<unsigned, 8> repetition = {0, 255, 85, 0, 17, 0, 0, 0};
    if constexpr (std::is_same_v<Sample, std::uint16_t>)
        return static_cast<Sample>(value);
    else
        return static_cast<Sample>(bits < 8 ? value * repetition[bits] : value >> (bits - 8));
}

template <typename Sample>
CVX_INLINE void unpackBits(const BitStream &stream, std::size_t count, Sample *output)
{
    std::size_t bit = stream.firstBit;
    for (std::size_t i = 0; i < count; ++i, bit += stream.bits) {
        const std::uint8_t *const in = stream.begin + bit / 8;
        const unsigned shift = bit % 8;
        unsigned value = in[0];
        if (shift + stream.bits > 8)
            value |= static_cast<unsigned>(in[1]) << 8U;
        if (shift + stream.bits > 16)
            value |= static_cast<unsigned>(in[2]) << 16U;
        output[i] = sampleOf<Sample>(value >> shift & ((1U << stream.bits) - 1), stream.bits);
    }
}

template <typename Sample>
CVX_INLINE void unpackPairs(const PairStream &stream, std::size_t count, Sample *output)
{
    const unsigned lowBits = stream.bits - 8;
    const unsigned lowMask = (1U << lowBits) - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t *const in = stream.begin + i / 2 * 3;
        const unsigned high = in[i % 2 * 2];
        const unsigned value = high << lowBits | (in[1] >> (i % 2 * 4) & lowMask);
        output[i] = sampleOf<Sample>(value, stream.bits);
    }
}

CVX_INLINE void permute(
    const std::uint8_t *input, const BytePattern &pattern, std::uint8_t *output, std::size_t size)
{
    for (; size != 0; input += pattern.inputStep) {
        const std::size_t count = std::min<std::size_t>(size, pattern.outputStep);
        for (std::size_t i = 0; i < count; ++i)
            output[i] = input[pattern.source[i]];
        output += count;
        size -= count;
    }
}

CVX_INLINE void interleave(
    const std::array<const std::uint8_t *, 3> &planes, std::size_t count, std::uint8_t *output)
{
    const std::uint8_t *const red = planes[0];
    const std::uint8_t *const green = planes[1];
    const std::uint8_t *const blue = planes[2];
    for (std::size_t i = 0; i < count; ++i) {
        output[3 * i] = red[i];
        output[3 * i + 1] = green[i];
        output[3 * i + 2] = blue[i];
    }
}

template <typename Sample>
CVX_INLINE void demosaicBilinear(const BayerLines<Sample> &lines, std::size_t count, unsigned firstGreen,
    const BayerColors<Sample> &colors)
{
    const Sample *const above = lines.above;
    const Sample *const line = lines.line;
    const Sample *const below = lines.below;
    Sample *__restrict const own = colors.own;
    Sample *__restrict const green = colors.green;
    Sample *__restrict const other = colors.other;
    for (std::size_t i = 0; i < count; ++i) {
        // Pointers, because the neighbour before the first pixel has the index -1.
        const Sample *const up = above + i;
        const Sample *const here = line + i;
        const Sample *const down = below + i;
        const auto vertical = static_cast<Sample>((*up + *down + 1) >> 1);
        const auto horizontal = static_cast<Sample>((here[-1] + here[1] + 1) >> 1);
        const auto cross = static_cast<Sample>((*up + *down + here[-1] + here[1] + 2) >> 2);
        const auto diagonal = static_cast<Sample>((up[-1] + up[1] + down[-1] + down[1] + 2) >> 2);
        const bool isGreen = i % 2 == firstGreen;
        own[i] = isGreen ? horizontal : *here;
        green[i] = isGreen ? *here : cross;
        other[i] = isGreen ? vertical : diagonal;
    }
}

/// Adaptive colour plan interpolation of J. F. Hamilton and J. E. Adams (US patent 5,629,734 of 1997, which
/// has expired): the mean of the green neighbours plus a quarter of the second difference of the pixel's own
/// colour, along the direction in which both vary less; along both if they vary alike.
template <typename Sample>
CVX_INLINE void findGreen(const std::array<const Sample *, 5> &lines, std::size_t count, unsigned firstGreen,
    std::int32_t maximum, Sample *__restrict green)
{
    const auto [above2, above, line, below, below2] = lines;
    for (std::size_t i = 0; i < count; ++i) {
        const Sample *const here = line + i;
        const std::int32_t center = *here;
        const std::int32_t up = above[i];
        const std::int32_t down = below[i];
        const std::int32_t bendX = 2 * center - here[-2] - here[2];
        const std::int32_t bendY = 2 * center - above2[i] - below2[i];
        const std::int32_t variationX = std::abs(here[-1] - here[1]) + std::abs(bendX);
        const std::int32_t variationY = std::abs(up - down) + std::abs(bendY);
        const std::int32_t alongX = 2 * (here[-1] + here[1]) + bendX;
        const std::int32_t alongY = 2 * (up + down) + bendY;
        const std::int32_t first = variationX <= variationY ? alongX : alongY;
        const std::int32_t second = variationY <= variationX ? alongY : alongX;
        const std::int32_t value = (first + second + 4) >> 3;
        const std::int32_t valid = std::min(std::max(value, 0), maximum);
        green[i] = static_cast<Sample>(i % 2 == firstGreen ? center : valid);
    }
}

/// The second half of the same method: the difference between a colour and green is interpolated. At pixels
/// of the opposite colour, it is taken from the diagonal along which the picture varies less, or from both.
template <typename Sample>
CVX_INLINE void findColors(const BayerLines<Sample> &lines, const BayerLines<Sample> &greens,
    std::size_t count, unsigned firstGreen, std::int32_t maximum, const BayerColors<Sample> &colors)
{
    const auto [above, line, below] = lines;
    const auto [greenAbove, greenLine, greenBelow] = greens;
    Sample *__restrict const ownOutput = colors.own;
    Sample *__restrict const greenOutput = colors.green;
    Sample *__restrict const otherOutput = colors.other;
    for (std::size_t i = 0; i < count; ++i) {
        const Sample *const up = above + i;
        const Sample *const here = line + i;
        const Sample *const down = below + i;
        const Sample *const greenUp = greenAbove + i;
        const Sample *const greenHere = greenLine + i;
        const Sample *const greenDown = greenBelow + i;
        const std::int32_t green = *greenHere;
        const std::int32_t rowSum = here[-1] - greenHere[-1] + here[1] - greenHere[1];
        const std::int32_t columnSum = *up - *greenUp + *down - *greenDown;
        const std::int32_t fallingSum = up[-1] - greenUp[-1] + down[1] - greenDown[1];
        const std::int32_t risingSum = up[1] - greenUp[1] + down[-1] - greenDown[-1];
        const std::int32_t falling
            = std::abs(up[-1] - down[1]) + std::abs(2 * green - greenUp[-1] - greenDown[1]);
        const std::int32_t rising
            = std::abs(up[1] - down[-1]) + std::abs(2 * green - greenUp[1] - greenDown[-1]);
        const std::int32_t first = falling <= rising ? fallingSum : risingSum;
        const std::int32_t second = rising <= falling ? risingSum : fallingSum;
        const bool isGreen = i % 2 == firstGreen;
        const std::int32_t own = green + ((rowSum + 1) >> 1);
        const std::int32_t other = green + (isGreen ? (columnSum + 1) >> 1 : (first + second + 2) >> 2);
        const std::int32_t validOwn = std::min(std::max(own, 0), maximum);
        const std::int32_t here32 = *here;
        ownOutput[i] = static_cast<Sample>(isGreen ? validOwn : here32);
        greenOutput[i] = static_cast<Sample>(green);
        otherOutput[i] = static_cast<Sample>(std::min(std::max(other, 0), maximum));
    }
}

template <typename Sample>
CVX_INLINE void convertYuv(const std::array<const Sample *, 3> &yuv, std::size_t count,
    const YuvWeights &weights, const std::array<Sample *, 3> &rgb)
{
    const YuvWeights w = weights; // A copy, which the outputs cannot overlap.
    const auto [lumas, us, vs] = yuv;
    Sample *__restrict const red = rgb[0];
    Sample *__restrict const green = rgb[1];
    Sample *__restrict const blue = rgb[2];
    const std::int32_t half = 1 << (yuvFractionBits - 1);
    const auto valid = [&w](std::int32_t sum) {
        return static_cast<Sample>(std::min(std::max(sum >> yuvFractionBits, 0), w.maximum));
    };
    for (std::size_t i = 0; i < count; ++i) {
        const std::int32_t luma = (lumas[i] - w.lumaOffset) * w.luma + half;
        const std::int32_t u = us[i] - w.chromaOffset;
        const std::int32_t v = vs[i] - w.chromaOffset;
        red[i] = valid(luma + w.redV * v);
        green[i] = valid(luma + w.greenU * u + w.greenV * v);
        blue[i] = valid(luma + w.blueU * u);
    }
}

CVX_INLINE void average(
    const std::uint8_t *first, const std::uint8_t *second, std::size_t count, std::uint8_t *output)
{
    for (std::size_t i = 0; i < count; ++i)
        output[i] = static_cast<std::uint8_t>((first[i] + second[i] + 1) >> 1);
}

CVX_INLINE void blend(const std::uint8_t *first, const std::uint8_t *second, int weight, std::size_t count,
    std::uint8_t *output)
{
    const int rest = weightUnit - weight;
    for (std::size_t i = 0; i < count; ++i)
        output[i] = static_cast<std::uint8_t>(
            (first[i] * rest + second[i] * weight + weightUnit / 2) >> weightBits);
}

CVX_INLINE void halve(const std::uint8_t *input, std::size_t count, std::uint8_t *output)
{
    for (std::size_t i = 0; i < count / 2; ++i)
        output[i] = static_cast<std::uint8_t>((input[2 * i] + input[2 * i + 1]) >> 1);
    if (count % 2 != 0)
        output[count / 2] = input[count - 1];
}

CVX_INLINE void interpolate(
    const std::uint8_t *input, const InterpolationStep *steps, std::size_t count, std::uint8_t *output)
{
    for (std::size_t i = 0; i < count; ++i) {
        const InterpolationStep &step = steps[i / 8];
        const std::size_t pair = i % 8 * 2;
        const std::uint8_t *const in = input + step.base;
        const int sum
            = in[step.source[pair]] * step.weights[pair] + in[step.source[pair + 1]] * step.weights[pair + 1];
        output[i] = static_cast<std::uint8_t>((sum + weightUnit / 2) >> weightBits);
    }
}

} // namespace pixelloops
