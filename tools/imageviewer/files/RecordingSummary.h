#pragma once

#include "tools/imageviewer/files/RecordingOptions.h"

#include <QCoreApplication>
#include <QString>

/// What a recording has become.
struct RecordingResult
{
    QString path; ///< Empty if the file could not be created.
    RecordingProgress progress;
    QString problem; ///< Why the recording has ended early, as a part of a sentence; empty if nothing failed.
    QString note; ///< Why the recording has ended as it was told to, if that is not obvious.
    bool hasFormatChanged = false;
    bool wasCameraLost = false;
};

/// Says what a recording has become, and what it lacks.
class RecordingSummary
{
    Q_DECLARE_TR_FUNCTIONS(RecordingSummary)

public:
    /// Returns the sentence about the file and, if something is missing, a sentence about what.
    static QString text(const RecordingResult &result);

    /// Returns what is missing, for example "3 images were lost, 2 are incomplete."; empty if nothing is.
    static QString lossText(const RecordingProgress &progress);

    /// Returns how far the recording is, for example "120 images · 00:04 · 600.0 MB".
    static QString progressText(const RecordingProgress &progress);
};
