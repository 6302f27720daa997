#pragma once

#include "tools/camerasetup/values/FeatureEdit.h"
#include "tools/camerasetup/values/OpeningValues.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/camerasetup/values/SettingsSnapshot.h"
#include "tools/camerasetup/values/SnapshotCalls.h"
#include "tools/kit/camera/ReadBatch.h"
#include "tools/kit/camera/ReadQueue.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The settings that the camera had when it was opened, and which features differ from them now. The settings
/// are read in the background, in calls that are short enough to leave the camera to the person; what is
/// changed before it was read counts with the value before the change. A camera that was lost and is open
/// again keeps its snapshot; another camera gets a new one.
class OpeningSnapshot : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        None, ///< No camera is open.
        Reading,
        Complete
    };
    Q_ENUM(State)

    OpeningSnapshot(FeatureClient &client, const PresentSelectors &selectors, QObject *parent = nullptr);

    State state() const { return m_state; }

    /// Returns what was read so far. Includes all settings only if the state is Complete.
    const SettingsSnapshot &snapshot() const { return m_snapshot; }

    /// Returns the features of the camera, also while it is lost; null while there is none. The directory
    /// does not change, so any thread may use it.
    std::shared_ptr<const FeatureDirectory> directory() const { return m_directory; }

    /// Returns the value at opening, with these values of the selectors, as the text of a settings file; no
    /// value if it is unknown.
    std::optional<std::string> value(
        const std::string &name, const std::vector<SelectorSetting> &selectors) const;

    /// Returns true if the feature is known to differ from the opening, for any values of its selectors. Also
    /// follows changes that the camera makes by itself after a change of another feature. Features that do
    /// not belong into a settings file are followed if they can be written and were read before the first
    /// change. Serial numbers, temperatures and the like never count as changed.
    bool isChanged(const QString &name) const { return m_values.isChanged(name.toStdString()); }

    /// Takes the changes of a file that was loaded, and the like: values under selectors which are not the
    /// present ones.
    void noteEdits(const std::vector<FeatureEdit> &edits);

signals:
    void stateChanged();

    /// isChanged() may return another value for these features.
    void changedFeatures(const QStringList &names);

private:
    using Selectors = std::vector<SelectorSetting>;

    void followConnection();
    void begin();
    void forget();

    void readSoon();
    void readNext();
    void readPart();
    void takePart(const CvxCPP::CvxResult &result, SnapshotReading &reading);
    void addPartNotes(const SnapshotPart &part, const std::string &text);
    void readPresent();
    void takePresent(const CvxCPP::CvxResult &result, const std::vector<FeatureReading> &readings);
    void pauseFor(std::chrono::steady_clock::duration callTime);
    void finish();

    void takeSetting(FeatureReading reading);
    void takeState(const QString &name);
    void takeWritten(const QString &name, const CvxCPP::NodeValue &before, const CvxCPP::NodeValue &after);
    void takeExecuted(const QString &name);
    void addStale(const QStringList &names);
    void noteEdit(const FeatureEdit &edit);
    void setPresent(const CvxCPP::NodeInfo &node, const Selectors &selectors, const std::string &value);
    bool isFollowed(const CvxCPP::NodeInfo &node) const;
    const CvxCPP::NodeInfo *find(const QString &name) const;

    FeatureClient &m_client;
    const PresentSelectors &m_selectors;
    State m_state = State::None;
    SettingsSnapshot m_snapshot;
    OpeningValues m_values;
    std::vector<FeatureEdit> m_earlyEdits; // Settings that were changed before they were read.
    std::shared_ptr<const FeatureDirectory> m_directory; // Shared with the thread of the connection.

    SnapshotPlan m_plan;
    ReadQueue m_stale; // To be compared again with the present values of their selectors.
    QSet<QString> m_written; // Since they were read; the camera may have rounded the value.
    ReadBatch m_batch;
    QTimer m_timer;
    bool m_isReading = false;
    bool m_isOpen = false; // The features of the camera are known, and it is not lost.
    bool m_isUntouched = true; // Nothing was written since the camera was opened.
    int m_failureCount = 0; // Failed calls in a row.
    int m_openCount = 0; // Identifies the camera to which a result belongs.
};
