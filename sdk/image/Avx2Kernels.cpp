#include "sdk/image/PixelKernels.h"

#if defined(__x86_64__)

#include "sdk/image/PixelLoops.h"

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

template <typename Sample>
void useAvx2(SampleKernels<Sample> &kernels)
{
    kernels.findGreen = findGreenAvx<Sample>;
    kernels.findColors = findColorsAvx<Sample>;
    kernels.convertYuv = convertYuvAvx<Sample>;
}

PixelKernels makeAvx2Kernels(const PixelKernels &base)
{
    PixelKernels kernels = base;
    kernels.name = "AVX2";
    useAvx2(kernels.bytes);
    useAvx2(kernels.words);
    kernels.words.demosaicBilinear = demosaicAvx<std::uint16_t>;
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
