#pragma once

#include "sdk/features/UserSets.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/LastingJob.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/SettingsChange.h"

#include <QObject>

#include <optional>

class FeatureClient;

/// Reads, loads and saves the user sets of the connected camera in the background. What a load has changed,
/// and the choice of the set for power-on, are recorded in the history.
class UserSetControl : public QObject
{
    Q_OBJECT

public:
    /// What the control works with; everything outlives it.
    struct Parts
    {
        FeatureClient &client;
        CameraJobs &jobs;
        ChangeHistory &history;
        OpeningSnapshot &opening; ///< Knows how many features a load would overwrite.
    };

    explicit UserSetControl(const Parts &parts, QObject *parent = nullptr);
    ~UserSetControl() override;

    /// Returns no value before the sets were read; see read().
    const std::optional<UserSets> &userSets() const { return m_userSets; }
    bool isDefault(const UserSet &userSet) const;
    bool isBusy() const { return m_parts.jobs.isBusy(); }

    QString title(const UserSet &userSet) const; ///< For people.

    // These functions return why something cannot be done, for people, or an empty text. The stream is paused
    // where it locks a command, so it is no reason.
    QString loadProblem(const UserSet &userSet) const;
    QString saveProblem(const UserSet &userSet) const;
    QString defaultProblem(const UserSet &userSet) const;
    QString compareProblem(const UserSet &userSet) const; ///< A comparison loads the set for a moment.

    /// Returns how many features differ from the opening; no value while this is unknown.
    std::optional<int> countChanges() const;

    /// Reads the sets, unless they are known or no camera is open.
    void read();

    void load(const UserSet &userSet);
    void save(const UserSet &userSet);
    void makeDefault(const UserSet &userSet);

signals:
    /// The sets, or what can be done with them, have changed.
    void changed();
    void succeeded(const QString &text);
    void failed(const QString &text);

private:
    void forget();
    void takeUserSets(const CvxCPP::CvxResult &result, const UserSets &userSets);
    void followFeature(const QString &name);
    QString lockTextOf(const CvxCPP::NodeState &state, const QString &title) const;
    QString commandProblem(const char *command, const CvxCPP::NodeState &state, const QString &title) const;
    void takeLoaded(const QString &title, const CvxCPP::CvxResult &result, const SettingsChange &change);
    void report(const CvxCPP::CvxResult &result, const QString &successText);

    const Parts m_parts;
    std::optional<UserSets> m_userSets;
    LastingJob m_reading;
};
