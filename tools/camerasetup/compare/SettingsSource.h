#pragma once

#include "sdk/features/FeatureLoader.h"
#include "tools/camerasetup/values/SettingsSnapshot.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// What a source has read.
struct SourceReading
{
    SettingsSnapshot snapshot;
    QString problem; ///< Why nothing could be read, for people; empty on success.
};

/// What has become of settings that were written to a source.
struct SourceWriting
{
    LoadReport report;
    QString problem; ///< Why nothing could be written, for people; empty on success.
    std::optional<SettingsSnapshot>
        after; ///< What the source contains now, if that is known without reading.
};

/// One side of a comparison: knows how it is read, and whether and how it can be written. All functions are
/// called on the GUI thread and return immediately; one read or write is made at a time.
class SettingsSource
{
public:
    using ReadDone = std::function<void(const SourceReading &)>;
    using WriteDone = std::function<void(const SourceWriting &)>;

    virtual ~SettingsSource() = default;

    virtual QString title() const = 0; ///< For people.

    /// Returns what reading does to the camera, as a question to a person; empty if nobody has to be asked.
    virtual QString readQuestion() const { return {}; }

    /// Reads the settings, and those that `others` contains besides. A cancelled read returns a problem.
    virtual void read(const std::vector<FeatureSetting> &others, const ReadDone &done) = 0;

    /// Returns why nothing can be written here, as a sentence; empty if it is possible.
    virtual QString readOnlyReason() const { return {}; }

    /// Returns what writing overwrites, as a question to a person; empty if nobody has to be asked.
    virtual QString writeQuestion(int) const { return {}; }

    /// Writes these settings and leaves all others as they are.
    virtual void write(const std::vector<FeatureSetting> &settings, const WriteDone &done) = 0;

    virtual void cancel() { } ///< Ends the running read or write soon.
};

/// Returns why a read has no result, for people; empty if it has one.
QString readProblem(const CvxCPP::CvxResult &result, bool isCancelled);
