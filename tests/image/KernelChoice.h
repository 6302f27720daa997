#pragma once

#include "sdk/image/PixelKernels.h"

#include <vector>

/// Returns every set of kernels that this processor can run.
inline std::vector<const PixelKernels *> runnableKernels()
{
    std::vector<const PixelKernels *> result = {&plainKernels()};
    for (const PixelKernels *kernels : {sse41Kernels(), avx2Kernels()})
        if (kernels)
            result.push_back(kernels);
    return result;
}
