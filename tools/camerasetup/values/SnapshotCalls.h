#pragma once

#include "sdk/features/FeatureReader.h"
#include "tools/camerasetup/values/SnapshotPlan.h"

#include <chrono>
#include <vector>

// Calls on the thread of the connection. Each one takes about a fifth of a second, or as long as the camera
// needs for one feature.

/// What one call has read of a part.
struct SnapshotReading
{
    SnapshotPart part; ///< Includes the combinations that are finished now.
    std::vector<FeatureReading> readings;
    std::vector<FeatureNote> notes;
    bool isComplete = false; ///< All combinations were read.
    std::chrono::steady_clock::duration duration{};
};

/// Reads the features of the part under the values of their selectors, and restores the selectors.
CvxCPP::CvxResult readPart(
    CvxCPP::Device &device, const FeatureDirectory &directory, SnapshotReading &reading);

/// Reads features with the values that their selectors have at present.
CvxCPP::CvxResult readWithPresentSelectors(CvxCPP::Device &device, const FeatureDirectory &directory,
    const std::vector<std::string> &names, std::vector<FeatureReading> &readings);
