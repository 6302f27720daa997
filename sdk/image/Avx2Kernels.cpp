#include "sdk/image/PixelKernels.h"

#if defined(__x86_64__)

#include "sdk/image/FieldKernels.h"
#include "sdk/image/PixelLoops.h"

#include <immintrin.h>

// The compiler vectorises these loops better than for SSE 4.1; for the others SSE 4.1 is enough.
#define CVX_AVX2 [[gnu::target("avx2")]]

namespace {

template <typename Sample>
CVX_AVX2 void demosaicAvx(const BayerLines<Sample> &lines, std::size_t count, unsigned firstGreen,
    const BayerColors<Sample> &colors)
{
    pixelloops::demosaicBilinear(lines, count, firstGreen, colors);
}

template <typename Sample>
CVX_AVX2 void findGreenAvx(const std::array<const Sample *, 5> &lines, std::size_t count, unsigned firstGreen,
    std::int32_t maximum, Sample *green)
{
    pixelloops::findGreen(lines, count, firstGreen, maximum, green);
}

template <typename Sample>
CVX_AVX2 void findColorsAvx(const BayerLines<Sample> &lines, const BayerLines<Sample> &greens,
    std::size_t count, unsigned firstGreen, std::int32_t maximum, const BayerColors<Sample> &colors)
{
    pixelloops::findColors(lines, greens, count, firstGreen, maximum, colors);
}

template <typename Sample>
CVX_AVX2 void convertYuvAvx(const std::array<const Sample *, 3> &yuv, std::size_t count,
    const YuvWeights &weights, const std::array<Sample *, 3> &rgb)
{
    pixelloops::convertYuv(yuv, count, weights, rgb);
}

CVX_AVX2 inline __m256i load32(const void *address)
{
    return _mm256_loadu_si256(static_cast<const __m256i *>(address));
}

CVX_AVX2 inline void store32(void *address, __m256i value)
{
    _mm256_storeu_si256(static_cast<__m256i *>(address), value);
}

CVX_AVX2 void averageAvx(
    const std::uint8_t *first, const std::uint8_t *second, std::size_t count, std::uint8_t *output)
{
    std::size_t i = 0;
    for (; i + 32 <= count; i += 32)
        store32(output + i, _mm256_avg_epu8(load32(first + i), load32(second + i)));
    pixelloops::average(first + i, second + i, count - i, output + i);
}

CVX_AVX2 inline __m256i roundedWords(__m256i bytes, __m256i weights)
{
    const __m256i half = _mm256_set1_epi16(weightUnit / 2);
    return _mm256_srli_epi16(_mm256_add_epi16(_mm256_maddubs_epi16(bytes, weights), half), weightBits);
}

CVX_AVX2 void blendAvx(const std::uint8_t *first, const std::uint8_t *second, int weight, std::size_t count,
    std::uint8_t *output)
{
    const __m256i weights = _mm256_set1_epi16(static_cast<short>(weight << 8 | (weightUnit - weight)));
    std::size_t i = 0;
    for (; i + 32 <= count; i += 32) {
        const __m256i one = load32(first + i);
        const __m256i two = load32(second + i);
        // Both halves are unpacked and packed alike, so the order stays.
        store32(output + i,
            _mm256_packus_epi16(roundedWords(_mm256_unpacklo_epi8(one, two), weights),
                roundedWords(_mm256_unpackhi_epi8(one, two), weights)));
    }
    pixelloops::blend(first + i, second + i, weight, count - i, output + i);
}

CVX_AVX2 void halveAvx(const std::uint8_t *input, std::size_t count, std::uint8_t *output)
{
    const __m256i ones = _mm256_set1_epi8(1);
    std::size_t i = 0;
    for (; i + 64 <= count; i += 64) {
        const __m256i low = _mm256_srli_epi16(_mm256_maddubs_epi16(load32(input + i), ones), 1);
        const __m256i high = _mm256_srli_epi16(_mm256_maddubs_epi16(load32(input + i + 32), ones), 1);
        // Packing takes the halves of both in turn.
        store32(output + i / 2, _mm256_permute4x64_epi64(_mm256_packus_epi16(low, high), 0xD8));
    }
    pixelloops::halve(input + i, count - i, output + i / 2);
}

template <typename Sample>
void useAvx2(SampleKernels<Sample> &kernels)
{
    kernels.findGreen = findGreenAvx<Sample>;
    kernels.findColors = findColorsAvx<Sample>;
    kernels.convertYuv = convertYuvAvx<Sample>;
    kernels.correctField = correctFieldAvx2;
}

PixelKernels makeAvx2Kernels(const PixelKernels &base)
{
    PixelKernels kernels = base;
    kernels.name = "AVX2";
    useAvx2(kernels.bytes);
    useAvx2(kernels.words);
    kernels.words.demosaicBilinear = demosaicAvx<std::uint16_t>;
    kernels.average = averageAvx;
    kernels.blend = blendAvx;
    kernels.halve = halveAvx;
    return kernels;
}

} // namespace

const PixelKernels *avx2Kernels()
{
    if (__builtin_cpu_supports("avx2") == 0 || !sse41Kernels())
        return nullptr;
    static const PixelKernels kernels = makeAvx2Kernels(*sse41Kernels());
    return &kernels;
}

#else

const PixelKernels *avx2Kernels()
{
    return nullptr;
}

#endif
