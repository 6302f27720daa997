#include "sdk/image/PixelKernels.h"
#include "sdk/image/PixelLoops.h"

namespace {

template <typename Sample>
constexpr SampleKernels<Sample> plainSampleKernels()
{
    return {
        [](const BitStream &stream, std::size_t count, Sample *output) {
            pixelloops::unpackBits(stream, count, output);
        },
        [](const PairStream &stream, std::size_t count, Sample *output) {
            pixelloops::unpackPairs(stream, count, output);
        },
        [](const WordStream &stream, std::size_t count, Sample *output) {
            pixelloops::unpackWords(stream, count, output);
        },
        [](const BayerLines<Sample> &lines, std::size_t count, unsigned firstGreen,
            const BayerColors<Sample> &colors) {
            pixelloops::demosaicBilinear(lines, count, firstGreen, colors);
        },
        [](const std::array<const Sample *, 5> &lines, std::size_t count, unsigned firstGreen,
            std::int32_t maximum,
            Sample *green) { pixelloops::findGreen(lines, count, firstGreen, maximum, green); },
        [](const BayerLines<Sample> &lines, const BayerLines<Sample> &greens, std::size_t count,
            unsigned firstGreen, std::int32_t maximum, const BayerColors<Sample> &colors) {
            pixelloops::findColors(lines, greens, count, firstGreen, maximum, colors);
        },
        [](const std::array<const Sample *, 3> &yuv, std::size_t count, const YuvWeights &weights,
            const std::array<Sample *, 3> &rgb) { pixelloops::convertYuv(yuv, count, weights, rgb); },
        [](const Sample *input, const FieldLine &field, std::size_t count, Sample *output) {
            pixelloops::correctField(input, field, count, output);
        },
    };
}

void permutePlainly(const std::uint8_t *input, const std::uint8_t * /*end*/, const BytePattern &pattern,
    std::uint8_t *output, std::size_t size)
{
    pixelloops::permute(input, pattern, output, size);
}

void interpolatePlainly(const std::uint8_t *input, std::size_t /*inputCount*/, const InterpolationStep *steps,
    std::size_t count, std::uint8_t *output)
{
    pixelloops::interpolate(input, steps, count, output);
}

} // namespace

const PixelKernels &plainKernels()
{
    static const PixelKernels kernels = {"plain", plainSampleKernels<std::uint8_t>(),
        plainSampleKernels<std::uint16_t>(), permutePlainly, pixelloops::interleave, pixelloops::average,
        pixelloops::blend, pixelloops::halve, interpolatePlainly};
    return kernels;
}

const PixelKernels &bestKernels()
{
    static const PixelKernels &best = avx2Kernels() ? *avx2Kernels()
        : sse41Kernels()                            ? *sse41Kernels()
                                                    : plainKernels();
    return best;
}
