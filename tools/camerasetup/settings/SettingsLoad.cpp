#include "tools/camerasetup/settings/SettingsLoad.h"

#include <utility>

using CvxCPP::CvxResult;
using CvxCPP::Device;

/// What a step works with; only the thread of the connection uses it until the step ends.
struct SettingsLoad::Step
{
    FeatureFile file;
    LoadReport report;
    SettingsChange change;
    FeatureBackup backup; ///< What is written back.
};

SettingsLoad::SettingsLoad(
    const QString &title, const FeatureFile &file, CameraJobs &jobs, ChangeHistory &history, QObject *parent)
    : QObject(parent), m_title(title), m_file(file), m_job(jobs), m_history(history)
{
    plan();
}

bool SettingsLoad::isWorking() const
{
    return m_state == State::Planning || m_state == State::Loading || m_state == State::Undoing;
}

bool SettingsLoad::canUndo() const
{
    return m_isWritten && !isWorking();
}

void SettingsLoad::plan()
{
    const auto step = std::make_shared<Step>();
    step->file = m_file;
    const auto work = [step](Device &device, const FeatureProgress &progress) {
        return planFeatures(device, step->file, step->report, progress);
    };
    start(State::Planning, tr("Comparing %1 with the camera").arg(m_title), step, work, State::Planned);
}

void SettingsLoad::load(Mode mode)
{
    const auto step = std::make_shared<Step>();
    step->file = m_file;
    step->report = m_report;
    const auto loadStep = [step, mode](Device &device, const FeatureProgress &progress) {
        if (mode == Mode::WhatFits)
            return loadFeatures(device, step->file, step->report, progress);
        std::optional<FeatureBackup> backup = step->change.before;
        return loadAllFeatures(device, step->file, backup, step->report, progress);
    };
    const auto work = [step, loadStep](Device &device, const FeatureProgress &progress) {
        CvxResult result = recordChange(
            device, step->file.settings, [&](const FeatureProgress &part) { return loadStep(device, part); },
            step->change, progress);
        step->report.isCancelled = step->report.isCancelled || step->change.before.isCancelled;
        return result;
    };
    start(State::Loading, tr("Loading %1").arg(m_title), step, work, State::Loaded);
}

void SettingsLoad::undo()
{
    const auto step = std::make_shared<Step>();
    step->file = m_file;
    step->report = m_report;
    step->report.notes.clear();
    step->report.isRestored = false;
    step->backup = m_backup;
    const auto work = [step](Device &device, const FeatureProgress &progress) {
        return recordChange(
            device, step->file.settings,
            [&](const FeatureProgress &part) {
                return restoreBackup(device, step->backup, step->report, part);
            },
            step->change, withoutCancel(progress));
    };
    start(State::Undoing, tr("Putting back the settings from before %1").arg(m_title), step, work,
        State::Undone);
}

void SettingsLoad::cancel()
{
    if (m_state == State::Planning || m_state == State::Loading)
        m_job.cancel();
}

/// @param next The state after a success.
void SettingsLoad::start(
    State state, const QString &title, const std::shared_ptr<Step> &step, Work work, State next)
{
    m_job.start(title, CameraJobs::StreamUse::Pause, std::move(work),
        [this, step, next](const CvxResult &result) { finish(*step, result, next); });
    setState(state);
}

void SettingsLoad::finish(const Step &step, const CvxResult &result, State next)
{
    if (result.code
        != CvxCPP::CvxErrorClosed) // Otherwise, the thread of the connection may still use the step.
        take(step, result);
    m_error = QString::fromStdString(result.text);
    setState(result ? next : State::Failed);
}

void SettingsLoad::take(const Step &step, const CvxResult &result)
{
    if (result)
        m_report = step.report;
    if (m_state == State::Loading) {
        m_backup = step.change.before;
        m_history.addEdits(tr("Load %1").arg(m_title), step.change.edits);
    } else if (m_state == State::Undoing) {
        m_history.addEdits(tr("Undo loading %1").arg(m_title), step.change.edits);
    }
    const bool isPutBack = step.report.isRestored && step.report.notes.empty();
    m_isWritten = (m_state == State::Undoing || step.report.isApplied) && !isPutBack;
}

void SettingsLoad::setState(State state)
{
    m_state = state;
    emit changed();
}
