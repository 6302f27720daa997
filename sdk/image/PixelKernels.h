#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Values of `bits` bits each, from 1 to 16, without gaps.
struct BitStream
{
    const std::uint8_t *begin;
    const std::uint8_t *end; ///< The bytes up to here can be read.
    unsigned firstBit; ///< From 0 to 7.
    unsigned bits;
};

/// Values in pairs of three bytes.
struct PairStream
{
    const std::uint8_t *begin;
    const std::uint8_t *end; ///< The bytes up to here can be read.
    unsigned bits; ///< 10 or 12.
};

/// Words of two bytes.
struct WordStream
{
    const std::uint8_t *begin;
    bool isBigEndian;
    unsigned bits; ///< From 8 to 16: the lowest bits that are significant.
    unsigned flip; ///< Bits to invert.
};

/// Picks bytes from one group after the other.
struct BytePattern
{
    std::array<std::uint8_t, 16> source{}; ///< For each output byte, the byte of the group.
    unsigned inputStep = 0; ///< Bytes of a group, at most 16.
    unsigned outputStep = 0; ///< Bytes made of a group, at most 16.
};

/// Three neighbouring lines of a Bayer picture. One pixel before and one after the line are readable.
template <typename Sample>
struct BayerLines
{
    const Sample *above;
    const Sample *line;
    const Sample *below;
};

/// The three colours of a line of a Bayer picture.
template <typename Sample>
struct BayerColors
{
    Sample *own; ///< The colour, red or blue, that the line contains.
    Sample *green;
    Sample *other; ///< The colour, blue or red, that the lines above and below contain.
};

/// What turns luma and chroma into colours. Weights have 13 binary digits after the point.
struct YuvWeights
{
    std::int32_t luma;
    std::int32_t redV;
    std::int32_t greenU;
    std::int32_t greenV;
    std::int32_t blueU;
    std::int32_t lumaOffset;
    std::int32_t chromaOffset;
    std::int32_t maximum; ///< Highest value of luma, chroma and colours.
};
constexpr int yuvFractionBits = 13;

/// Gain and offset of the pixels of a line in fixed point. The corrected value is
/// ((value * gain >> droppedBits) + (offset << offsetUnit >> offsetShift) + half) >> sumBits, where half
/// makes it rounded, between 0 and `maximum`. All intermediate values fit into 32 bits.
struct FieldLine
{
    static constexpr int droppedBits = 2;
    static constexpr int offsetUnit = 16;

    const std::uint16_t *gains;
    const std::int16_t *offsets;
    int offsetShift; ///< From 0 to 31.
    int sumBits; ///< At least 1.
    std::int32_t maximum;
};

/// Eight neighbouring output pixels, each of which is made of two input pixels.
struct InterpolationStep
{
    std::uint32_t base = 0; ///< The 16 pixels from here contain all input pixels, if the line is that long.
    std::array<std::uint8_t, 16> source{}; ///< Pairs of input pixels, counted from `base`.
    std::array<std::int8_t, 16> weights{}; ///< Their weights; each pair has the sum `weightUnit`.
};
constexpr int weightBits = 6;
constexpr int weightUnit = 1 << weightBits;

/// Functions over lines of samples of 8 or 16 bits. They write exactly the number of samples that they are
/// told to.
template <typename Sample>
struct SampleKernels
{
    /// Unpack values. Samples of 8 bits are the highest bits of the values, or the values scaled to the range
    /// of 8 bits if they have fewer.
    void (*unpackBits)(const BitStream &stream, std::size_t count, Sample *output);
    void (*unpackPairs)(const PairStream &stream, std::size_t count, Sample *output);
    void (*unpackWords)(const WordStream &stream, std::size_t count, Sample *output);

    /// Finds the missing colours as rounded means of the nearest pixels of the colour: two or four.
    void (*demosaicBilinear)(const BayerLines<Sample> &lines, std::size_t count, unsigned firstGreen,
        const BayerColors<Sample> &colors);

    /// Finds green for all pixels of a line. `lines` are the line, two lines above and two below. Two pixels
    /// before and two after each line are readable. Pixels with the parity of `firstGreen` are green.
    void (*findGreen)(const std::array<const Sample *, 5> &lines, std::size_t count, unsigned firstGreen,
        std::int32_t maximum, Sample *green);

    /// Finds red and blue with the help of green, which is known for the three lines.
    void (*findColors)(const BayerLines<Sample> &lines, const BayerLines<Sample> &greens, std::size_t count,
        unsigned firstGreen, std::int32_t maximum, const BayerColors<Sample> &colors);

    /// Turns luma, U and V into red, green and blue.
    void (*convertYuv)(const std::array<const Sample *, 3> &yuv, std::size_t count, const YuvWeights &weights,
        const std::array<Sample *, 3> &rgb);

    /// Corrects offset and gain. Input and output may be the same.
    void (*correctField)(const Sample *input, const FieldLine &field, std::size_t count, Sample *output);
};

/// The innermost loops of the conversions. All sets of kernels give the same results.
struct PixelKernels
{
    const char *name;
    SampleKernels<std::uint8_t> bytes;
    SampleKernels<std::uint16_t> words;

    /// Writes `size` bytes that the pattern picks from the groups at `input`, which is readable up to `end`.
    void (*permute)(const std::uint8_t *input, const std::uint8_t *end, const BytePattern &pattern,
        std::uint8_t *output, std::size_t size);
    /// Writes red, green and blue alternately.
    void (*interleave)(
        const std::array<const std::uint8_t *, 3> &planes, std::size_t count, std::uint8_t *output);
    /// Writes the means of two lines, rounded up.
    void (*average)(
        const std::uint8_t *first, const std::uint8_t *second, std::size_t count, std::uint8_t *output);
    /// Writes a mixture of two lines, where `weight` of `weightUnit` is the share of the second one.
    void (*blend)(const std::uint8_t *first, const std::uint8_t *second, int weight, std::size_t count,
        std::uint8_t *output);
    /// Writes the means, rounded down, of each two pixels of `count`. The last one can be alone.
    void (*halve)(const std::uint8_t *input, std::size_t count, std::uint8_t *output);
    /// Writes `count` pixels that the steps describe. `inputCount` is the length of the input line.
    void (*interpolate)(const std::uint8_t *input, std::size_t inputCount, const InterpolationStep *steps,
        std::size_t count, std::uint8_t *output);

    template <typename Sample>
    const SampleKernels<Sample> &of() const;
};

template <>
inline const SampleKernels<std::uint8_t> &PixelKernels::of<std::uint8_t>() const
{
    return bytes;
}

template <>
inline const SampleKernels<std::uint16_t> &PixelKernels::of<std::uint16_t>() const
{
    return words;
}

/// Returns the kernels that run everywhere.
const PixelKernels &plainKernels();

/// Returns the kernels with instructions of SSE 4.1, or null if this processor lacks them.
const PixelKernels *sse41Kernels();

/// Returns the kernels with instructions of AVX2, or null if this processor lacks them.
const PixelKernels *avx2Kernels();

/// Returns the fastest kernels that this processor can run.
const PixelKernels &bestKernels();
