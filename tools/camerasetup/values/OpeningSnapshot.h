#pragma once

#include "tools/camerasetup/values/FeatureEdit.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/camerasetup/values/SettingsSnapshot.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <map>
#include <optional>

class CameraJobs;

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

    /// Returns the value at opening, with these values of the selectors, as the text of a settings file; no
    /// value if it is unknown.
    std::optional<std::string> value(
        const std::string &name, const std::vector<SelectorSetting> &selectors) const;

    /// Returns true if the feature is known to differ from the opening, for any values of its selectors. Also
    /// follows changes that the camera makes by itself after a change of another feature.
    bool isChanged(const QString &name) const { return m_changed.contains(name); }

    /// Takes the changes of a file that was loaded, and the like: values under selectors which are not the
    /// present ones.
    void noteEdits(const std::vector<FeatureEdit> &edits);

signals:
    void stateChanged();

    /// isChanged() may return another value for these features.
    void changedFeatures(const QStringList &names);

private:
    FeatureClient &m_client;
    const PresentSelectors &m_selectors;
    State m_state = State::None;
    SettingsSnapshot m_snapshot;
    QSet<QString> m_changed;
};
