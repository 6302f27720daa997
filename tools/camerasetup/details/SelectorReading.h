#pragma once

#include "tools/camerasetup/details/SelectorCalls.h"

#include <atomic>
#include <chrono>
#include <string>
#include <vector>

/// One read of a SelectorTable, which may take several jobs. While a job is running, only `isStale` is used
/// by the table.
struct SelectorReading
{
    std::string selector;
    std::vector<std::string> features;
    SelectorValues values;
    std::chrono::steady_clock::duration time{0}; ///< What the jobs have taken.
    bool isCancelled = false; ///< By the person.
    std::atomic<bool> isStale{false}; ///< Nobody waits for the values.

    /// Reads more columns; see readSelectorValues(). Called on the thread of the connection.
    CvxCPP::CvxResult read(
        CvxCPP::Device &device, const FeatureDirectory &directory, const FeatureProgress &progress);
};
