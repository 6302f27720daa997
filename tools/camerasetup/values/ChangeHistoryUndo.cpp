#include "tools/camerasetup/values/ChangeHistory.h"

#include "sdk/features/SettingLabel.h"

#include <QStringList>

#include <algorithm>
#include <utility>

using namespace CvxCPP;
using Kind = HistoryEntry::Kind;
using StreamUse = CameraJobs::StreamUse;

// Undo and redo.

struct ChangeHistory::Run
{
    int entry = 0;
    Kind kind = Kind::Undo;
    QString title;
    std::vector<FeatureSetting> settings; // To be written.
    LoadReport report; // If several settings are written.
    std::vector<FeatureEdit> edits; // What was written.
    QStringList problems; // Sentences for people.
    bool isHopeless = false; // Nothing can ever be written.
};

void ChangeHistory::undo()
{
    if (!canUndo())
        return;
    const auto run = std::make_shared<Run>();
    run->entry = m_done.back();
    const HistoryEntry &entry = m_entries[run->entry];
    run->title = tr("Undo: %1").arg(entry.title);
    for (auto edit = entry.edits.rbegin(); edit != entry.edits.rend(); ++edit) {
        if (!edit->before || !isValueText(directory()->find(edit->name), *edit->before))
            run->problems.append(
                tr("The value of %1 before the change is unknown.").arg(QString::fromStdString(edit->name)));
        else
            run->settings.push_back({edit->selectors, edit->name, *edit->before, 0});
    }
    start(run);
}

void ChangeHistory::redo()
{
    if (!canRedo())
        return;
    const auto run = std::make_shared<Run>();
    run->entry = m_undone.back();
    run->kind = Kind::Redo;
    const HistoryEntry &entry = m_entries[run->entry];
    run->title = tr("Redo: %1").arg(entry.title);
    for (const FeatureEdit &edit : entry.edits)
        run->settings.push_back({edit.selectors, edit.name, edit.after, 0});
    start(run);
}

void ChangeHistory::start(const std::shared_ptr<Run> &run)
{
    m_sequence.end();
    if (run->settings.empty())
        return passOver(run);
    m_run = run;
    if (run->settings.size() == 1)
        writeOne(run, StreamUse::Keep);
    else
        writeSeveral(run);
    emit changed();
}

void ChangeHistory::writeOne(const std::shared_ptr<Run> &run, StreamUse stream)
{
    const auto written = std::make_shared<WrittenSetting>();
    const auto work
        = [features = directory(), setting = run->settings.front(), written](Device &device,
              const FeatureProgress &) { return writeSetting(device, *features, setting, *written); };
    m_jobs.start(run->title, stream, work, this, [this, run, stream, written](const CvxResult &result) {
        if (run == m_run)
            takeOne(run, stream, *written, result);
    });
}

void ChangeHistory::takeOne(
    const std::shared_ptr<Run> &run, StreamUse stream, const WrittenSetting &written, const CvxResult &result)
{
    // A job that began meanwhile may have changed the feature, so this run must not wait behind it.
    if (written.isStreamLocked && stream == StreamUse::Keep && !m_jobs.isBusy())
        return writeOne(run, StreamUse::Pause);
    const FeatureSetting &setting = run->settings.front();
    if (!result)
        run->problems.append(QString::fromStdString(result.text));
    else if (written.isStreamLocked)
        run->problems.append(tr("%1 cannot be changed while the camera is streaming.")
                                 .arg(QString::fromStdString(setting.name)));
    run->isHopeless = result.code == CvxErrorNotFound;
    if (written.isWritten && written.before != written.after)
        run->edits.push_back({setting.selectors, setting.name, written.before, written.after});
    finish(run);
}

void ChangeHistory::writeSeveral(const std::shared_ptr<Run> &run)
{
    const auto work = [run](Device &device, const FeatureProgress &progress) {
        return loadFeatures(device, {run->settings, {}}, run->report, progress);
    };
    m_jobs.start(run->title, StreamUse::Pause, work, this, [this, run](const CvxResult &result) {
        if (run == m_run)
            takeSeveral(run, result);
    });
}

void ChangeHistory::takeSeveral(const std::shared_ptr<Run> &run, const CvxResult &result)
{
    if (!result)
        run->problems.append(QString::fromStdString(result.text));
    for (const FeatureChange &change : run->report.changes) {
        const FeatureSetting &setting = change.setting;
        if (change.outcome == FeatureOutcome::Failed || change.outcome == FeatureOutcome::Overruled)
            run->problems.append(
                QString::fromStdString(settingLabel(setting.name, setting.selectors) + ": " + change.reason));
        else if (change.outcome == FeatureOutcome::Changed)
            run->edits.push_back({setting.selectors, setting.name, change.before, change.after});
    }
    if (run->report.isCancelled)
        run->problems.append(tr("It was cancelled."));
    finish(run);
}

/// Moves the entry from one stack to the other, unless nothing was written because of a problem.
void ChangeHistory::finish(const std::shared_ptr<Run> &run)
{
    m_run.reset();
    if (run->edits.empty() && run->isHopeless)
        return passOver(run);
    if (!run->edits.empty() || run->problems.isEmpty()) {
        const bool isUndo = run->kind == Kind::Undo;
        auto &from = isUndo ? m_done : m_undone;
        auto &target = isUndo ? m_undone : m_done;
        const bool isNewest = !m_done.empty() && m_done.back() <= run->entry;
        from.erase(std::remove(from.begin(), from.end(), run->entry), from.end());
        if (!isUndo || isNewest) // A change that was made meanwhile leaves nothing to redo.
            target.push_back(run->entry);
        m_entries[run->entry].isUndone = isUndo;
        if (!run->edits.empty()) { // Otherwise, the camera had the values already.
            addEntry(run->kind, run->title, run->edits);
            noteEdits(run->edits);
        }
    }
    emit changed();
    if (!run->problems.isEmpty())
        emit failed(run->title + QLatin1Char('\n') + run->problems.join(QLatin1Char('\n')));
}

/// The entry can never be undone or redone, and must not be in the way of the others.
void ChangeHistory::passOver(const std::shared_ptr<Run> &run)
{
    auto &from = run->kind == Kind::Undo ? m_done : m_undone;
    from.erase(std::remove(from.begin(), from.end(), run->entry), from.end());
    emit changed();
    emit failed(run->title + QLatin1Char('\n') + run->problems.join(QLatin1Char('\n')));
}
