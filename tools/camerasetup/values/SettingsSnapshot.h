#pragma once

#include "sdk/features/FeatureComparison.h"
#include "sdk/features/FeatureSaver.h"

#include <QDateTime>
#include <QString>

#include <vector>

/// The settings of a camera or a file at one moment.
struct SettingsSnapshot
{
    QString title; ///< Where the settings come from, for people.
    QDateTime time;
    ComparedSide side;
    std::vector<FeatureNote> notes; ///< What could not be read, and why.
    bool isCancelled = false;
};

/// Reads the settings that belong into a settings file, and those that `others` contains besides, under each
/// combination of their selectors' values. Sets everything but the title. Called on the thread of the
/// connection; returns the error of a device that is gone.
CvxCPP::CvxResult readSnapshot(CvxCPP::Device &device, const std::vector<FeatureSetting> &others,
    SettingsSnapshot &snapshot, const FeatureProgress &progress);
