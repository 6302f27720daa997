#pragma once

#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/LastingJob.h"
#include "tools/camerasetup/values/SettingsChange.h"

#include <QObject>

#include <memory>

/// Loads settings into the camera: plans what would change, then loads, and puts everything back if a person
/// wants that. Each step runs in the background; what was loaded or put back is recorded in the history.
class SettingsLoad : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Planning,
        Planned,
        Loading,
        Loaded, ///< Also if settings have failed or the load was cancelled; see report().
        Undoing,
        Undone,
        Failed ///< The last step has ended early; see error().
    };
    Q_ENUM(State)

    enum class Mode
    {
        WhatFits, ///< Keeps what could be loaded.
        AllOrNothing ///< Puts everything back if one setting fails or the load is cancelled.
    };

    /// Starts to plan.
    /// @param title What is loaded, for people.
    SettingsLoad(const QString &title, const FeatureFile &file, CameraJobs &jobs, ChangeHistory &history,
        QObject *parent = nullptr);

    State state() const { return m_state; }
    bool isWorking() const;
    const QString &title() const { return m_title; }
    const FeatureFile &file() const { return m_file; }

    /// The plan, or what the load has done. After the state Undone, the notes say what was not put back.
    const LoadReport &report() const { return m_report; }

    const QString &error() const { return m_error; } ///< Why the state is Failed, for people.

    /// Returns true if the load has written something that was not put back yet.
    bool canUndo() const;

    void load(Mode mode);

    /// Writes back all settings from before the load.
    void undo();

    /// Lets the running step stop at the next setting; undoing is never cancelled.
    void cancel();

signals:
    void changed();

private:
    struct Step;
    using Work = std::function<CvxCPP::CvxResult(CvxCPP::Device &, const FeatureProgress &)>;

    void plan();
    void start(State state, const QString &title, const std::shared_ptr<Step> &step, Work work, State next);
    void finish(const Step &step, const CvxCPP::CvxResult &result, State next);
    void take(const Step &step, const CvxCPP::CvxResult &result);
    void setState(State state);

    const QString m_title;
    const FeatureFile m_file;
    LastingJob m_job;
    ChangeHistory &m_history;
    State m_state = State::Planning;
    LoadReport m_report;
    FeatureBackup m_backup; ///< The settings as they were before the load.
    bool m_isWritten = false; ///< The load has written settings.
    QString m_error;
};
