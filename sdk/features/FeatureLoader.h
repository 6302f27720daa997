#pragma once

#include "sdk/features/DeviceCalls.h"
#include "sdk/features/FeatureFile.h"

/// What loading a file does, or has done, to one setting.
enum class FeatureOutcome : std::uint8_t
{
    Unchanged, ///< The camera has the value already.
    Changed,
    Overruled, ///< Another setting of the same file locks the feature, for example an automatic function.
    Failed
};

/// One setting of a file and what has become of it.
struct FeatureChange
{
    FeatureSetting setting; ///< What the file wants, with the selectors that are in force at its line.
    std::string before; ///< Value before loading; empty if it could not be read.
    std::string after; ///< Value after loading; empty in a plan or if it could not be read.
    FeatureOutcome outcome = FeatureOutcome::Failed;
    std::string reason; ///< A sentence for people; empty if the outcome is Unchanged or Changed.
};

/// The result of loading a file, or of planning to load it.
struct LoadReport
{
    std::vector<FeatureChange> changes; ///< In the order of the file, without settings that the file repeats.
    std::vector<FeatureNote> notes; ///< What could not be put back: selectors, or values after a failure.
    bool isApplied = false; ///< True if settings were written; otherwise, the outcomes are a plan.
    bool isCancelled = false; ///< True if the progress function has cancelled the work.
    bool isRestored = false; ///< True if the settings from before the load were written back.

    std::size_t count(FeatureOutcome outcome) const;
};

// Each function below returns an error only if nothing could be done: CvxErrorNotWritable if a stream of the
// device runs, or the error of a device that is gone. Everything else is in the report. The device must not
// be opened with CvxAccessWatch. The selectors have the same values afterwards as before.

/// Finds out what loadFeatures() would change. Writes only selectors.
CvxCPP::CvxResult planFeatures(CvxCPP::Device &device, const FeatureFile &file, LoadReport &report,
    const FeatureProgress &progress = {});

/// Writes the settings in the order of the file. Settings that fail are written again after the others, as
/// long as this helps, because limits and locks depend on each other. Then reads everything back.
CvxCPP::CvxResult loadFeatures(CvxCPP::Device &device, const FeatureFile &file, LoadReport &report,
    const FeatureProgress &progress = {});

/// Like loadFeatures(), but writes back the settings from before if one setting fails or the load is
/// cancelled, and writes nothing at all if the file has bad lines or settings that cannot fit the camera.
CvxCPP::CvxResult loadAllFeatures(CvxCPP::Device &device, const FeatureFile &file, LoadReport &report,
    const FeatureProgress &progress = {});
