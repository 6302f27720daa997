#include "tools/camerasetup/details/SelectorReading.h"

using namespace CvxCPP;

CvxResult SelectorReading::read(
    Device &device, const FeatureDirectory &directory, const FeatureProgress &progress)
{
    if (isStale)
        return {};
    const auto start = std::chrono::steady_clock::now();
    const auto goOn = [this, &progress](std::size_t done, std::size_t total) {
        isCancelled = !progress(done, total);
        return !isCancelled && !isStale;
    };
    const CvxResult result = readSelectorValues(device, directory, selector, features, values, goOn);
    time += std::chrono::steady_clock::now() - start;
    return result;
}
