#include "sdk/image/PixelKernels.h"

#if defined(__x86_64__)

#include "sdk/image/FieldKernels.h"
#include "sdk/image/PixelLoops.h"

#include <immintrin.h>

// Functions with this attribute may use the instructions, although the file is compiled for every processor.
#define CVX_SSE41 [[gnu::target("sse4.1")]]

namespace {

CVX_SSE41 inline __m128i load(const void *address)
{
    return _mm_loadu_si128(static_cast<const __m128i *>(address));
}

CVX_SSE41 inline void store(void *address, __m128i value)
{
    _mm_storeu_si128(static_cast<__m128i *>(address), value);
}

/// For eight values of a stream of bits: the bytes that contain them, and factors that move each value to the
/// highest bits of its lane.
struct BitLanes
{
    alignas(16) std::array<std::uint8_t, 32> bytes{}; ///< Only the first half for lanes of 16 bits.
    alignas(16) std::array<std::uint16_t, 8> factors16{};
    alignas(16) std::array<std::uint32_t, 8> factors32{};
    bool fitsWords = true; ///< True if no value reaches into a third byte.

    BitLanes(unsigned firstBit, unsigned bits)
    {
        for (unsigned lane = 0; lane < 8; ++lane) {
            const unsigned bit = firstBit + lane * bits;
            fitsWords = fitsWords && bit % 8 + bits <= 16;
        }
        const unsigned laneBytes = fitsWords ? 2 : 4;
        for (unsigned lane = 0; lane < 8; ++lane) {
            const unsigned bit = firstBit + lane * bits;
            for (unsigned i = 0; i < laneBytes; ++i)
                bytes[lane * laneBytes + i] = static_cast<std::uint8_t>(i == 3 ? 0x80 : bit / 8 + i);
            if (fitsWords)
                factors16[lane] = static_cast<std::uint16_t>(1U << (16 - bits - bit % 8));
            else
                factors32[lane] = 1U << (32 - bits - bit % 8);
        }
    }
};

CVX_SSE41 inline void storeSamples(std::uint8_t *output, __m128i highestBits, int /*bits*/)
{
    const __m128i bytes = _mm_srli_epi16(highestBits, 8);
    _mm_storel_epi64(reinterpret_cast<__m128i *>(output), _mm_packus_epi16(bytes, bytes));
}

CVX_SSE41 inline void storeSamples(std::uint16_t *output, __m128i highestBits, int bits)
{
    store(output, _mm_srl_epi16(highestBits, _mm_cvtsi32_si128(16 - bits)));
}

/// Returns eight values in the highest bits of their lanes.
CVX_SSE41 inline __m128i valuesFromTwoBytes(__m128i stream, const BitLanes &lanes)
{
    return _mm_mullo_epi16(_mm_shuffle_epi8(stream, load(&lanes.bytes[0])), load(&lanes.factors16[0]));
}

CVX_SSE41 inline __m128i valuesFromThreeBytes(__m128i stream, const BitLanes &lanes)
{
    const __m128i low
        = _mm_mullo_epi32(_mm_shuffle_epi8(stream, load(&lanes.bytes[0])), load(&lanes.factors32[0]));
    const __m128i high
        = _mm_mullo_epi32(_mm_shuffle_epi8(stream, load(&lanes.bytes[16])), load(&lanes.factors32[4]));
    return _mm_packus_epi32(_mm_srli_epi32(low, 16), _mm_srli_epi32(high, 16));
}

template <typename Sample>
CVX_SSE41 void unpackBitsSse(const BitStream &stream, std::size_t count, Sample *output)
{
    BitStream rest = stream;
    if (stream.bits >= 8 && stream.bits <= 14) { // Eight values with the first bit fit into 16 bytes.
        const BitLanes lanes(stream.firstBit, stream.bits);
        const auto bits = static_cast<int>(stream.bits);
        for (; count >= 8 && stream.end - rest.begin >= 16; count -= 8, output += 8, rest.begin += bits) {
            const __m128i bytes = load(rest.begin);
            storeSamples(output,
                lanes.fitsWords ? valuesFromTwoBytes(bytes, lanes) : valuesFromThreeBytes(bytes, lanes),
                bits);
        }
    }
    pixelloops::unpackBits(rest, count, output);
}

template <typename Sample>
CVX_SSE41 void unpackPairsSse(const PairStream &stream, std::size_t count, Sample *output)
{
    PairStream rest = stream;
    // Lanes of 16 bits with the high bits of the value in their upper byte and the low bits of both below.
    const __m128i bytes = _mm_setr_epi8(1, 0, 1, 2, 4, 3, 4, 5, 7, 6, 7, 8, 10, 9, 10, 11);
    const __m128i lowMask = _mm_set1_epi16(static_cast<short>((1U << (stream.bits - 8)) - 1));
    const __m128i lowShift = _mm_cvtsi32_si128(static_cast<int>(16 - stream.bits));
    const __m128i highMask = _mm_set1_epi16(static_cast<short>(0xFF00));
    for (; count >= 8 && stream.end - rest.begin >= 16; count -= 8, output += 8, rest.begin += 12) {
        const __m128i lanes = _mm_shuffle_epi8(load(rest.begin), bytes);
        const __m128i low = _mm_and_si128(_mm_blend_epi16(lanes, _mm_srli_epi16(lanes, 4), 0xAA), lowMask);
        const __m128i highestBits
            = _mm_or_si128(_mm_and_si128(lanes, highMask), _mm_sll_epi16(low, lowShift));
        storeSamples(output, highestBits, static_cast<int>(stream.bits));
    }
    pixelloops::unpackPairs(rest, count, output);
}

/// Returns eight words without the bits that mean nothing.
CVX_SSE41 inline __m128i loadWords(const std::uint8_t *input, __m128i order, __m128i mask, __m128i flip)
{
    return _mm_xor_si128(_mm_and_si128(_mm_shuffle_epi8(load(input), order), mask), flip);
}

template <typename Sample>
CVX_SSE41 void unpackWordsSse(const WordStream &stream, std::size_t count, Sample *output)
{
    const __m128i order = stream.isBigEndian
        ? _mm_setr_epi8(1, 0, 3, 2, 5, 4, 7, 6, 9, 8, 11, 10, 13, 12, 15, 14)
        : _mm_setr_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
    const __m128i mask = _mm_set1_epi16(static_cast<short>((1U << stream.bits) - 1));
    const __m128i flip = _mm_set1_epi16(static_cast<short>(stream.flip));
    const __m128i shift = _mm_cvtsi32_si128(static_cast<int>(stream.bits - 8));
    WordStream rest = stream;
    for (; count >= 16; count -= 16, output += 16, rest.begin += 32) {
        const __m128i low = loadWords(rest.begin, order, mask, flip);
        const __m128i high = loadWords(rest.begin + 16, order, mask, flip);
        if constexpr (sizeof(Sample) == 1) {
            store(output, _mm_packus_epi16(_mm_srl_epi16(low, shift), _mm_srl_epi16(high, shift)));
        } else {
            store(output, low);
            store(output + 8, high);
        }
    }
    pixelloops::unpackWords(rest, count, output);
}

CVX_SSE41 void permuteSse(const std::uint8_t *input, const std::uint8_t *end, const BytePattern &pattern,
    std::uint8_t *output, std::size_t size)
{
    // Number of groups at once: as many as fit into 16 bytes of input and of output.
    const unsigned groups = std::min(16 / pattern.inputStep, 16 / pattern.outputStep);
    alignas(16) std::array<std::uint8_t, 16> bytes{};
    for (unsigned i = 0; i < groups * pattern.outputStep; ++i)
        bytes[i] = static_cast<std::uint8_t>(
            i / pattern.outputStep * pattern.inputStep + pattern.source[i % pattern.outputStep]);
    const __m128i mask = load(bytes.data());
    const std::size_t inputStep = groups * pattern.inputStep;
    const std::size_t outputStep = groups * pattern.outputStep;
    for (; size >= 16 && end - input >= 16; size -= outputStep, input += inputStep, output += outputStep)
        store(output, _mm_shuffle_epi8(load(input), mask));
    pixelloops::permute(input, pattern, output, size);
}

/// Returns the masks that distribute 16 bytes of each of three colours over 48 bytes.
constexpr std::array<std::array<std::array<std::uint8_t, 16>, 3>, 3> interleavingMasks()
{
    std::array<std::array<std::array<std::uint8_t, 16>, 3>, 3> masks{};
    for (unsigned byte = 0; byte < 48; ++byte)
        for (unsigned color = 0; color < 3; ++color)
            masks[byte / 16][color][byte % 16]
                = static_cast<std::uint8_t>(byte % 3 == color ? byte / 3 : 0x80);
    return masks;
}

CVX_SSE41 void interleaveSse(
    const std::array<const std::uint8_t *, 3> &planes, std::size_t count, std::uint8_t *output)
{
    alignas(16) static constexpr auto masks = interleavingMasks();
    std::size_t i = 0;
    for (; i + 16 <= count; i += 16) {
        const __m128i red = load(planes[0] + i);
        const __m128i green = load(planes[1] + i);
        const __m128i blue = load(planes[2] + i);
        for (unsigned part = 0; part < 3; ++part) {
            const __m128i mixed = _mm_or_si128(_mm_shuffle_epi8(red, load(masks[part][0].data())),
                _mm_shuffle_epi8(green, load(masks[part][1].data())));
            store(output + 3 * i + 16 * part,
                _mm_or_si128(mixed, _mm_shuffle_epi8(blue, load(masks[part][2].data()))));
        }
    }
    pixelloops::interleave({planes[0] + i, planes[1] + i, planes[2] + i}, count - i, output + 3 * i);
}

/// Returns the rounded mean of a, b, c and d. `first` is the mean of a and b, `second` that of c and d, both
/// rounded up; the sum of both roundings is taken away where it shows.
CVX_SSE41 inline __m128i meanOfFour(__m128i first, __m128i second, __m128i isRounded)
{
    const __m128i excess
        = _mm_and_si128(_mm_and_si128(isRounded, _mm_xor_si128(first, second)), _mm_set1_epi8(1));
    return _mm_sub_epi8(_mm_avg_epu8(first, second), excess);
}

CVX_SSE41 void demosaicBytesSse(const BayerLines<std::uint8_t> &lines, std::size_t count, unsigned firstGreen,
    const BayerColors<std::uint8_t> &colors)
{
    const __m128i isGreen = _mm_set1_epi16(static_cast<short>(firstGreen == 0 ? 0x00FF : 0xFF00));
    std::size_t i = 0;
    for (; i + 16 <= count; i += 16) {
        const std::uint8_t *const above = lines.above + i;
        const std::uint8_t *const line = lines.line + i;
        const std::uint8_t *const below = lines.below + i;
        const __m128i here = load(line);
        const __m128i left = load(line - 1);
        const __m128i right = load(line + 1);
        const __m128i up = load(above);
        const __m128i down = load(below);
        const __m128i horizontal = _mm_avg_epu8(left, right);
        const __m128i vertical = _mm_avg_epu8(up, down);
        const __m128i cross = meanOfFour(
            horizontal, vertical, _mm_or_si128(_mm_xor_si128(left, right), _mm_xor_si128(up, down)));
        const __m128i upLeft = load(above - 1);
        const __m128i upRight = load(above + 1);
        const __m128i downLeft = load(below - 1);
        const __m128i downRight = load(below + 1);
        const __m128i diagonal = meanOfFour(_mm_avg_epu8(upLeft, upRight), _mm_avg_epu8(downLeft, downRight),
            _mm_or_si128(_mm_xor_si128(upLeft, upRight), _mm_xor_si128(downLeft, downRight)));
        store(colors.own + i, _mm_blendv_epi8(here, horizontal, isGreen));
        store(colors.green + i, _mm_blendv_epi8(cross, here, isGreen));
        store(colors.other + i, _mm_blendv_epi8(diagonal, vertical, isGreen));
    }
    pixelloops::demosaicBilinear<std::uint8_t>({lines.above + i, lines.line + i, lines.below + i}, count - i,
        firstGreen, {colors.own + i, colors.green + i, colors.other + i});
}

template <typename Sample>
CVX_SSE41 void demosaicSse(const BayerLines<Sample> &lines, std::size_t count, unsigned firstGreen,
    const BayerColors<Sample> &colors)
{
    pixelloops::demosaicBilinear(lines, count, firstGreen, colors);
}

template <typename Sample>
CVX_SSE41 void findGreenSse(const std::array<const Sample *, 5> &lines, std::size_t count,
    unsigned firstGreen, std::int32_t maximum, Sample *green)
{
    pixelloops::findGreen(lines, count, firstGreen, maximum, green);
}

template <typename Sample>
CVX_SSE41 void findColorsSse(const BayerLines<Sample> &lines, const BayerLines<Sample> &greens,
    std::size_t count, unsigned firstGreen, std::int32_t maximum, const BayerColors<Sample> &colors)
{
    pixelloops::findColors(lines, greens, count, firstGreen, maximum, colors);
}

template <typename Sample>
CVX_SSE41 void convertYuvSse(const std::array<const Sample *, 3> &yuv, std::size_t count,
    const YuvWeights &weights, const std::array<Sample *, 3> &rgb)
{
    pixelloops::convertYuv(yuv, count, weights, rgb);
}

CVX_SSE41 void averageSse(
    const std::uint8_t *first, const std::uint8_t *second, std::size_t count, std::uint8_t *output)
{
    std::size_t i = 0;
    for (; i + 16 <= count; i += 16)
        store(output + i, _mm_avg_epu8(load(first + i), load(second + i)));
    pixelloops::average(first + i, second + i, count - i, output + i);
}

/// Returns the weighted sums without their fraction, as bytes.
CVX_SSE41 inline __m128i roundedBytes(__m128i lowSums, __m128i highSums)
{
    const __m128i half = _mm_set1_epi16(weightUnit / 2);
    return _mm_packus_epi16(_mm_srli_epi16(_mm_add_epi16(lowSums, half), weightBits),
        _mm_srli_epi16(_mm_add_epi16(highSums, half), weightBits));
}

CVX_SSE41 void blendSse(const std::uint8_t *first, const std::uint8_t *second, int weight, std::size_t count,
    std::uint8_t *output)
{
    const __m128i weights = _mm_set1_epi16(static_cast<short>(weight << 8 | (weightUnit - weight)));
    std::size_t i = 0;
    for (; i + 16 <= count; i += 16) {
        const __m128i one = load(first + i);
        const __m128i two = load(second + i);
        store(output + i,
            roundedBytes(_mm_maddubs_epi16(_mm_unpacklo_epi8(one, two), weights),
                _mm_maddubs_epi16(_mm_unpackhi_epi8(one, two), weights)));
    }
    pixelloops::blend(first + i, second + i, weight, count - i, output + i);
}

CVX_SSE41 void halveSse(const std::uint8_t *input, std::size_t count, std::uint8_t *output)
{
    const __m128i ones = _mm_set1_epi8(1);
    std::size_t i = 0;
    for (; i + 32 <= count; i += 32) {
        const __m128i low = _mm_srli_epi16(_mm_maddubs_epi16(load(input + i), ones), 1);
        const __m128i high = _mm_srli_epi16(_mm_maddubs_epi16(load(input + i + 16), ones), 1);
        store(output + i / 2, _mm_packus_epi16(low, high));
    }
    pixelloops::halve(input + i, count - i, output + i / 2);
}

CVX_SSE41 inline __m128i weightedSums(const std::uint8_t *input, const InterpolationStep &step)
{
    const __m128i pairs = _mm_shuffle_epi8(load(input + step.base), load(step.source.data()));
    return _mm_maddubs_epi16(pairs, load(step.weights.data()));
}

CVX_SSE41 void interpolateSse(const std::uint8_t *input, std::size_t inputCount,
    const InterpolationStep *steps, std::size_t count, std::uint8_t *output)
{
    if (inputCount >= 16)
        for (; count >= 16; count -= 16, output += 16, steps += 2)
            store(output, roundedBytes(weightedSums(input, steps[0]), weightedSums(input, steps[1])));
    pixelloops::interpolate(input, steps, count, output);
}

template <typename Sample>
constexpr SampleKernels<Sample> sse41SampleKernels()
{
    return {unpackBitsSse<Sample>, unpackPairsSse<Sample>, unpackWordsSse<Sample>, demosaicSse<Sample>,
        findGreenSse<Sample>, findColorsSse<Sample>, convertYuvSse<Sample>, correctFieldSse41};
}

PixelKernels makeSse41Kernels()
{
    PixelKernels kernels
        = {"SSE 4.1", sse41SampleKernels<std::uint8_t>(), sse41SampleKernels<std::uint16_t>(), permuteSse,
            interleaveSse, averageSse, blendSse, halveSse, interpolateSse};
    kernels.bytes.demosaicBilinear = demosaicBytesSse;
    return kernels;
}

} // namespace

const PixelKernels *sse41Kernels()
{
    static const PixelKernels kernels = makeSse41Kernels();
    return __builtin_cpu_supports("sse4.1") != 0 ? &kernels : nullptr;
}

#else

const PixelKernels *sse41Kernels()
{
    return nullptr;
}

#endif
