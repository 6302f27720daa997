#pragma once

#include "CvxCPP/Device.h"

#include <optional>
#include <string>
#include <vector>

/// The feature that moves the lens.
struct FocusAxis
{
    std::string name;
    std::string unit; ///< Empty if the positions are plain numbers.
    double min = 0;
    double max = 0;
    double increment = 0; ///< 0 if every position is allowed.
    bool isInteger = false;

    /// Returns the position that the camera allows next to this one.
    double nearest(double position) const;

    /// Returns how many digits after the decimal point a position needs.
    int decimals() const;
};

/// Names of the feature that moves the lens, in the order of preference: cameras name it differently.
const std::vector<std::string> &focusFeatureNames();

/// Returns the feature that moves the lens; nothing if the camera has none, or if it cannot be written.
std::optional<FocusAxis> findFocusAxis(CvxCPP::Device &device);

CvxCPP::CvxResult readPosition(CvxCPP::Device &device, const FocusAxis &axis, double &position);
CvxCPP::CvxResult writePosition(CvxCPP::Device &device, const FocusAxis &axis, double position);

/// Returns the black level as a share of the range of the pixel values. Cameras state it in percent, or in
/// steps of a 12-bit pixel.
double blackLevelShare(double value, const std::string &unit);

/// Returns the camera's black level as blackLevelShare() does; 0 if the camera does not tell it.
double readBlackLevel(CvxCPP::Device &device);

/// Returns true for a camera of one line, whose pictures depend on the movement of the object.
bool readIsLineScan(CvxCPP::Device &device);
