#pragma once

#include "CvxCPP/Device.h"
#include "sdk/features/FeatureDirectory.h"

#include <optional>
#include <string>

/// What became of one setting that was to be written.
struct WrittenSetting
{
    std::optional<std::string> before; ///< No value if it could not be read.
    std::string after; ///< What the camera has made of the value.
    bool isWritten = false;
    bool isStreamLocked = false; ///< Nothing was written, because the stream has to be stopped first.
};

/// Writes one feature with the values of its selectors, and restores the selectors. Called on the thread of
/// the connection. Returns CvxErrorNotFound if the camera lacks the feature, CvxErrorInvalidParameter if a
/// text is no value of its feature, and the errors of CvxCPP::Device.
CvxCPP::CvxResult writeSetting(CvxCPP::Device &device, const FeatureDirectory &directory,
    const FeatureSetting &setting, WrittenSetting &written);
