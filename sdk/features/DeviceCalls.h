#pragma once

#include "CvxCPP/Device.h"
#include "sdk/features/FeatureDirectory.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// Called with the number of features that are done and the number of all. Returns false to cancel the work.
using FeatureProgress = std::function<bool(std::size_t done, std::size_t total)>;

/// Something that a person should know about one feature.
struct FeatureNote
{
    std::string name;
    std::string text; ///< A sentence.
};

/// Adds the first note about a feature. Later ones would repeat it for other values of a selector.
void addNote(std::vector<FeatureNote> &notes, const std::string &name, const std::string &text);

/// Returns true if no further call for this device can succeed at present: the camera is lost or closed.
bool isDeviceGone(const CvxCPP::CvxResult &result);

/// Reads the list of features, which does not access the camera.
CvxCPP::CvxResult readDirectory(CvxCPP::Device &device, FeatureDirectory &directory);

/// Reads the states of any number of features, in calls that are short enough for slow cameras.
CvxCPP::CvxResult readStates(
    CvxCPP::Device &device, const std::vector<std::string> &names, std::vector<CvxCPP::NodeState> &states);

/// Executes a command and waits until it is done. Returns CvxErrorDevice if that takes longer than the limit:
/// the camera answers, so it is not gone.
CvxCPP::CvxResult executeAndWait(
    CvxCPP::Device &device, const std::string &command, std::chrono::seconds limit = std::chrono::seconds(5));

/// Executes the first of these commands that the camera accepts and waits until it is done, for at most 5 s.
/// Also succeeds if the camera has none of them, refuses, or takes longer: such commands only announce that
/// many features follow. Fails only if the device is gone.
CvxCPP::CvxResult announce(
    CvxCPP::Device &device, const FeatureDirectory &directory, std::initializer_list<const char *> commands);
