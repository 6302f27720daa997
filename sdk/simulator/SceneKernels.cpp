#include "sdk/simulator/SceneKernels.h"

#include "sdk/simulator/ProcessorVersions.h"

#include <algorithm>

CORVIX_PROCESSOR_VERSIONS
void computeSignal(const SignalLine &input, int count, float *__restrict values)
{
    const SignalLine line = input; // Local copies cannot change in the loop.
    for (int i = 0; i < count; ++i) {
        // Shot noise is the square root of the electrons, which the scene provides.
        const float root = static_cast<float>(line.scene[i]) * line.columnLight[i] * line.lineLight;
        const float light = root * line.response[i] * (root + line.shotNoise[i]);
        const float dark = line.darkNoise[i] * line.darkDeviation + (line.darkSignal[i] + line.darkMean);
        values[i] = (light + dark) * line.gain[i] + line.offset;
    }
}

namespace {
template <typename Result>
CORVIX_PROCESSOR_INLINE void quantizeTo(
    const float *values, int count, const Quantization &quantization, Result *__restrict results)
{
    const auto [scale, offset, maxValue] = quantization;
    for (int i = 0; i < count; ++i) {
        const float value = std::min(std::max(values[i] * scale + (offset + 0.5F), 0.0F), maxValue);
        results[i] = static_cast<Result>(static_cast<int>(value));
    }
}
} // namespace

CORVIX_PROCESSOR_VERSIONS
void quantize(const float *values, int count, const Quantization &quantization, std::uint16_t *results)
{
    quantizeTo(values, count, quantization, results);
}

CORVIX_PROCESSOR_VERSIONS
void quantizeBytes(const float *values, int count, const Quantization &quantization, std::uint8_t *results)
{
    quantizeTo(values, count, quantization, results);
}
