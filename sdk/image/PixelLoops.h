#pragma once

#include "sdk/image/PixelKernels.h"

#include <algorithm>
#include <cstdlib>
#include <type_traits>

// The loops of the kernels in plain C++. They are always inlined, so that each set of kernels contains them
// as the compiler vectorises them for its instructions.
#define CVX_INLINE [[gnu::always_inline]] inline

// Before a loop whose outputs do not overlap its inputs, so that it can be vectorised without a check. Clang
// warns when it cannot vectorise such a loop, as in builds for debugging.
#if defined(__clang__)
#define CVX_INDEPENDENT
#else
#define CVX_INDEPENDENT _Pragma("GCC ivdep")
#endif

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

template <typename Sample>
CVX_INLINE void unpackWords(const WordStream &stream, std::size_t count, Sample *output)
{
    const std::uint8_t *const low = stream.begin + (stream.isBigEndian ? 1 : 0);
    const std::uint8_t *const high = stream.begin + (stream.isBigEndian ? 0 : 1);
    const unsigned mask = (1U << stream.bits) - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned word = static_cast<unsigned>(high[2 * i]) << 8U | low[2 * i];
        output[i] = sampleOf<Sample>((word & mask) ^ stream.flip, stream.bits);
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

/// The type that holds sums of a few samples. The vectors are the longer, the smaller it is.
template <typename Sample>
using Sum = std::conditional_t<sizeof(Sample) == 1, std::int16_t, std::int32_t>;

/// Returns -1 for pixels with the parity of `firstGreen`, otherwise 0.
template <typename Wide>
CVX_INLINE Wide greenMask(std::size_t index, unsigned firstGreen)
{
    return static_cast<Wide>(static_cast<Wide>((index ^ firstGreen) & 1U) - 1);
}

/// Returns `first` if the mask is -1, and `second` if it is 0. A conditional could become a jump.
template <typename Wide>
CVX_INLINE Wide choose(Wide mask, Wide first, Wide second)
{
    return static_cast<Wide>(second ^ ((first ^ second) & mask));
}

template <typename Wide>
CVX_INLINE Wide magnitude(Wide value)
{
    return static_cast<Wide>(value < 0 ? -value : value);
}

template <typename Sample>
CVX_INLINE void demosaicBilinear(const BayerLines<Sample> &lines, std::size_t count, unsigned firstGreen,
    const BayerColors<Sample> &colors)
{
    const Sample *const above = lines.above;
    const Sample *const line = lines.line;
    const Sample *const below = lines.below;
    Sample *const own = colors.own;
    Sample *const green = colors.green;
    Sample *const other = colors.other;
    CVX_INDEPENDENT
    for (std::size_t i = 0; i < count; ++i) {
        // Pointers, because the neighbour before the first pixel has the index -1.
        const Sample *const up = above + i;
        const Sample *const here = line + i;
        const Sample *const down = below + i;
        const std::int32_t vertical = (*up + *down + 1) >> 1;
        const std::int32_t horizontal = (here[-1] + here[1] + 1) >> 1;
        const std::int32_t cross = (*up + *down + here[-1] + here[1] + 2) >> 2;
        const std::int32_t diagonal = (up[-1] + up[1] + down[-1] + down[1] + 2) >> 2;
        const auto mask = greenMask<std::int32_t>(i, firstGreen);
        own[i] = static_cast<Sample>(choose<std::int32_t>(mask, horizontal, *here));
        green[i] = static_cast<Sample>(choose<std::int32_t>(mask, *here, cross));
        other[i] = static_cast<Sample>(choose(mask, vertical, diagonal));
    }
}

/// Adaptive colour plan interpolation of J. F. Hamilton and J. E. Adams (US patent 5,629,734 of 1997, which
/// has expired): the mean of the green neighbours plus a quarter of the second difference of the pixel's own
/// colour, along the direction in which both vary less; along both if they vary alike.
template <typename Sample>
CVX_INLINE void findGreen(const std::array<const Sample *, 5> &lines, std::size_t count, unsigned firstGreen,
    std::int32_t maximum, Sample *green)
{
    using Wide = Sum<Sample>;
    const auto highest = static_cast<Wide>(maximum);
    const auto [above2, above, line, below, below2] = lines;
    CVX_INDEPENDENT
    for (std::size_t i = 0; i < count; ++i) {
        const Sample *const here = line + i;
        const Wide center = *here;
        const Wide up = above[i];
        const Wide down = below[i];
        const auto bendX = static_cast<Wide>(2 * center - here[-2] - here[2]);
        const auto bendY = static_cast<Wide>(2 * center - above2[i] - below2[i]);
        const auto slopeX = static_cast<Wide>(here[-1] - here[1]);
        const auto slopeY = static_cast<Wide>(up - down);
        const auto variationX = static_cast<Wide>(magnitude<Wide>(slopeX) + magnitude<Wide>(bendX));
        const auto variationY = static_cast<Wide>(magnitude<Wide>(slopeY) + magnitude<Wide>(bendY));
        const auto alongX = static_cast<Wide>(2 * (here[-1] + here[1]) + bendX);
        const auto alongY = static_cast<Wide>(2 * (up + down) + bendY);
        const Wide first = variationX <= variationY ? alongX : alongY;
        const Wide second = variationY <= variationX ? alongY : alongX;
        const auto value = static_cast<Wide>(static_cast<Wide>(first + second + 4) >> 3);
        const Wide valid = std::min(std::max(value, Wide(0)), highest);
        green[i] = static_cast<Sample>(choose(greenMask<Wide>(i, firstGreen), center, valid));
    }
}

/// The second half of the same method: the difference between a colour and green is interpolated. At pixels
/// of the opposite colour, it is taken from the diagonal along which the picture varies less, or from both.
template <typename Sample>
CVX_INLINE void findColors(const BayerLines<Sample> &lines, const BayerLines<Sample> &greens,
    std::size_t count, unsigned firstGreen, std::int32_t maximum, const BayerColors<Sample> &colors)
{
    using Wide = Sum<Sample>;
    const auto highest = static_cast<Wide>(maximum);
    const auto [above, line, below] = lines;
    const auto [greenAbove, greenLine, greenBelow] = greens;
    Sample *const ownOutput = colors.own;
    Sample *const greenOutput = colors.green;
    Sample *const otherOutput = colors.other;
    CVX_INDEPENDENT
    for (std::size_t i = 0; i < count; ++i) {
        const Sample *const up = above + i;
        const Sample *const here = line + i;
        const Sample *const down = below + i;
        const Sample *const greenUp = greenAbove + i;
        const Sample *const greenHere = greenLine + i;
        const Sample *const greenDown = greenBelow + i;
        const Wide green = *greenHere;
        const auto rowSum = static_cast<Wide>(here[-1] - greenHere[-1] + here[1] - greenHere[1]);
        const auto columnSum = static_cast<Wide>(*up - *greenUp + *down - *greenDown);
        const auto fallingSum = static_cast<Wide>(up[-1] - greenUp[-1] + down[1] - greenDown[1]);
        const auto risingSum = static_cast<Wide>(up[1] - greenUp[1] + down[-1] - greenDown[-1]);
        const auto fallingSlope = static_cast<Wide>(up[-1] - down[1]);
        const auto risingSlope = static_cast<Wide>(up[1] - down[-1]);
        const auto fallingBend = static_cast<Wide>(2 * green - greenUp[-1] - greenDown[1]);
        const auto risingBend = static_cast<Wide>(2 * green - greenUp[1] - greenDown[-1]);
        const auto falling = static_cast<Wide>(magnitude<Wide>(fallingSlope) + magnitude<Wide>(fallingBend));
        const auto rising = static_cast<Wide>(magnitude<Wide>(risingSlope) + magnitude<Wide>(risingBend));
        const Wide first = falling <= rising ? fallingSum : risingSum;
        const Wide second = rising <= falling ? risingSum : fallingSum;
        const auto vertical = static_cast<Wide>(static_cast<Wide>(columnSum + 1) >> 1);
        const auto diagonal = static_cast<Wide>(static_cast<Wide>(first + second + 2) >> 2);
        const auto horizontal = static_cast<Wide>(static_cast<Wide>(rowSum + 1) >> 1);
        const Wide mask = greenMask<Wide>(i, firstGreen);
        const auto own = static_cast<Wide>(green + horizontal);
        const auto other = static_cast<Wide>(green + choose(mask, vertical, diagonal));
        const Wide validOwn = std::min(std::max(own, Wide(0)), highest);
        const Wide validOther = std::min(std::max(other, Wide(0)), highest);
        ownOutput[i] = static_cast<Sample>(choose<Wide>(mask, validOwn, *here));
        greenOutput[i] = static_cast<Sample>(green);
        otherOutput[i] = static_cast<Sample>(validOther);
    }
}

template <typename Sample>
CVX_INLINE void convertYuv(const std::array<const Sample *, 3> &yuv, std::size_t count,
    const YuvWeights &weights, const std::array<Sample *, 3> &rgb)
{
    const YuvWeights w = weights; // A copy, which the outputs cannot overlap.
    const auto [lumas, us, vs] = yuv;
    Sample *const red = rgb[0];
    Sample *const green = rgb[1];
    Sample *const blue = rgb[2];
    const std::int32_t half = 1 << (yuvFractionBits - 1);
    const auto valid = [&w](std::int32_t sum) {
        return static_cast<Sample>(std::min(std::max(sum >> yuvFractionBits, 0), w.maximum));
    };
    CVX_INDEPENDENT
    for (std::size_t i = 0; i < count; ++i) {
        const std::int32_t luma = (lumas[i] - w.lumaOffset) * w.luma + half;
        const std::int32_t u = us[i] - w.chromaOffset;
        const std::int32_t v = vs[i] - w.chromaOffset;
        red[i] = valid(luma + w.redV * v);
        green[i] = valid(luma + w.greenU * u + w.greenV * v);
        blue[i] = valid(luma + w.blueU * u);
    }
}

template <typename Sample>
CVX_INLINE void correctField(const Sample *input, const FieldLine &field, std::size_t count, Sample *output)
{
    const FieldLine line = field; // A copy, which the output cannot overlap.
    const std::int32_t half = 1 << (line.sumBits - 1);
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t product = std::uint32_t(input[i]) * line.gains[i] >> FieldLine::droppedBits;
        const std::uint32_t high = std::uint32_t(std::uint16_t(line.offsets[i])) << FieldLine::offsetUnit;
        const std::int32_t sum = static_cast<std::int32_t>(product)
            + (static_cast<std::int32_t>(high) >> line.offsetShift) + half;
        output[i] = static_cast<Sample>(std::min(std::max(sum >> line.sumBits, 0), line.maximum));
    }
}

CVX_INLINE void average(
    const std::uint8_t *first, const std::uint8_t *second, std::size_t count, std::uint8_t *output)
{
    CVX_INDEPENDENT
    for (std::size_t i = 0; i < count; ++i)
        output[i] = static_cast<std::uint8_t>((first[i] + second[i] + 1) >> 1);
}

CVX_INLINE void blend(const std::uint8_t *first, const std::uint8_t *second, int weight, std::size_t count,
    std::uint8_t *output)
{
    const int rest = weightUnit - weight;
    CVX_INDEPENDENT
    for (std::size_t i = 0; i < count; ++i)
        output[i] = static_cast<std::uint8_t>(
            (first[i] * rest + second[i] * weight + weightUnit / 2) >> weightBits);
}

CVX_INLINE void halve(const std::uint8_t *input, std::size_t count, std::uint8_t *output)
{
    CVX_INDEPENDENT
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
