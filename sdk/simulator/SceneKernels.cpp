#include "sdk/simulator/SceneKernels.h"

#include <algorithm>

// The program chooses between the versions when it starts. Sanitizers do not support this.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)                   \
    && !defined(__clang__)
#define SCENE_PROCESSOR_VERSIONS __attribute__((target_clones("avx2", "default")))
#else
#define SCENE_PROCESSOR_VERSIONS
#endif

SCENE_PROCESSOR_VERSIONS
void computeSignal(const SignalLine &input, int count, float *__restrict values)
{
    const SignalLine line = input; // Local copies cannot change in the loop.
    for (int i = 0; i < count; ++i) {
        // Shot noise is the square root of the electrons, which the scene provides.
        const float root = static_cast<float>(line.scene[i]) * line.columnLight[i] * line.lineLight;
        const float light = root * line.response[i] * (root + line.shotNoise[i]);
        const float dark = line.darkNoise[i] * line.darkDeviation + line.darkSignal[i];
        values[i] = (light + dark) * line.gain[i] + line.offset[i];
    }
}

SCENE_PROCESSOR_VERSIONS
void quantize(const float *values, int count, float scale, float offset, float maxValue,
    std::uint16_t *__restrict quantized)
{
    for (int i = 0; i < count; ++i) {
        const float value = std::min(std::max(values[i] * scale + offset + 0.5F, 0.0F), maxValue);
        quantized[i] = static_cast<std::uint16_t>(static_cast<int>(value));
    }
}
