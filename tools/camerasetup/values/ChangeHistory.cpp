#include "tools/camerasetup/values/ChangeHistory.h"

#include "sdk/features/FeatureText.h"
#include "sdk/features/SettingLabel.h"
#include "tools/camerasetup/values/ChangeScript.h"

#include <utility>

using namespace CvxCPP;
using Kind = HistoryEntry::Kind;

namespace {

QString labelOf(const FeatureEdit &edit)
{
    return QString::fromStdString(settingLabel(edit.name, edit.selectors));
}

bool isUnchanged(const FeatureEdit &edit)
{
    return edit.before == edit.after;
}

} // namespace

ChangeHistory::ChangeHistory(FeatureClient &client, CameraJobs &jobs, const PresentSelectors &selectors,
    OpeningSnapshot &opening, QObject *parent)
    : QObject(parent), m_client(client), m_jobs(jobs), m_selectors(selectors), m_opening(opening)
{
    connect(&client, &FeatureClient::written, this, &ChangeHistory::takeWritten);
    connect(&client, &FeatureClient::executed, this, &ChangeHistory::takeExecuted);
    connect(&client, &FeatureClient::failed, this, &ChangeHistory::changed);
    connect(&jobs, &CameraJobs::changed, this, &ChangeHistory::checkJobs);
    connect(&client.connection(), &CameraConnection::stateChanged, this, &ChangeHistory::followConnection);
}

void ChangeHistory::followConnection()
{
    const CameraConnection::State state = m_client.connection().state();
    if (state != CameraConnection::State::Open && state != CameraConnection::State::Lost)
        m_run.reset(); // Its result will not arrive.
    if (state == CameraConnection::State::Opening) {
        m_entries.clear();
        m_done.clear();
        m_undone.clear();
        m_sequence.end();
    }
    emit changed();
}

void ChangeHistory::checkJobs()
{
    const bool wasBusy = std::exchange(m_isBusy, m_jobs.isBusy());
    if (wasBusy != m_isBusy)
        emit changed();
}

// ---- Recording --------------------------------------------------------------------------------------------

void ChangeHistory::takeWritten(const QString &name, const NodeValue &before, const NodeValue &after)
{
    if (m_isNoting)
        return;
    const std::string feature = name.toStdString();
    const auto selectors = m_selectors.of(feature);
    if (selectors)
        return addEdit({*selectors, feature, knownText(before), settingText(after)});
    // Nobody knows for which values of the selectors the previous value was valid.
    addEdit({{}, feature, std::nullopt, settingText(after)});
}

void ChangeHistory::takeExecuted(const QString &name)
{
    const std::string command = name.toStdString();
    const FeatureEdit edit{
        m_selectors.of(command).value_or(std::vector<SelectorSetting>()), command, std::nullopt, {}};
    addEntry(Kind::Command, labelOf(edit), {edit});
}

void ChangeHistory::addEdit(const FeatureEdit &edit)
{
    if (m_sequence.continues(edit, EditSequence::Clock::now()) && mergeEdit(edit)) {
        emit changed();
        return;
    }
    if (isUnchanged(edit)) {
        m_sequence.end();
        emit changed(); // The write has ended.
        return;
    }
    if (m_selectors.directory().isSelector(edit.name))
        addEntry(Kind::Edit, labelOf(edit), {edit});
    else
        addStep(Kind::Edit, labelOf(edit), {edit});
    m_sequence.continues(edit, EditSequence::Clock::now());
}

/// Changes the last entry, which is one of the same feature. Returns false if there is none.
bool ChangeHistory::mergeEdit(const FeatureEdit &edit)
{
    if (m_entries.isEmpty())
        return false;
    HistoryEntry &last = m_entries.last();
    last.edits.front().after = edit.after;
    last.time = QDateTime::currentDateTime();
    if (!isUnchanged(last.edits.front()))
        return true;
    // The value is the one from before again.
    if (!m_done.empty() && m_done.back() == m_entries.size() - 1)
        m_done.pop_back();
    m_entries.removeLast();
    m_sequence.end();
    return true;
}

void ChangeHistory::addEdits(const QString &title, const std::vector<FeatureEdit> &edits)
{
    if (edits.empty())
        return;
    noteEdits(edits);
    addStep(Kind::Load, title, edits);
}

/// Adds a change that can be undone.
void ChangeHistory::addStep(Kind kind, const QString &title, const std::vector<FeatureEdit> &edits)
{
    m_undone.clear();
    m_done.push_back(m_entries.size());
    addEntry(kind, title, edits);
}

void ChangeHistory::addEntry(Kind kind, const QString &title, const std::vector<FeatureEdit> &edits)
{
    m_sequence.end();
    m_entries.append({QDateTime::currentDateTime(), kind, title, edits, false});
    emit changed();
}

/// Reports changes that were not made through the FeatureClient.
void ChangeHistory::noteEdits(const std::vector<FeatureEdit> &edits)
{
    m_opening.noteEdits(edits);
    const auto valueOf = [this](const std::string &name, const std::string &text) {
        const NodeInfo *const node = m_selectors.directory().find(name);
        const auto value = settingValue(node ? node->type : NodeType::Category, text);
        const auto *const typed = std::get_if<NodeValue>(&value);
        return typed ? *typed : NodeValue();
    };
    m_isNoting = true;
    for (const FeatureEdit &edit : edits) {
        const NodeValue after = valueOf(edit.name, edit.after);
        if (after.index() != 0 && m_selectors.of(edit.name) == edit.selectors)
            m_client.noteWritten(QString::fromStdString(edit.name),
                edit.before ? valueOf(edit.name, *edit.before) : NodeValue(), after);
    }
    m_isNoting = false;
}

// ---- Questions --------------------------------------------------------------------------------------------

bool ChangeHistory::canUndo() const
{
    return !m_done.empty() && isFree();
}

bool ChangeHistory::canRedo() const
{
    return !m_undone.empty() && isFree();
}

/// Returns true if undo or redo could begin at once.
bool ChangeHistory::isFree() const
{
    return !m_run && !m_jobs.isBusy() && m_client.isIdle() && m_client.connection().isControlled()
        && directory();
}

QString ChangeHistory::undoTitle() const
{
    return m_done.empty() ? QString() : m_entries[m_done.back()].title;
}

QString ChangeHistory::redoTitle() const
{
    return m_undone.empty() ? QString() : m_entries[m_undone.back()].title;
}

QString ChangeHistory::script() const
{
    const CameraEntry &entry = m_client.connection().camera();
    ScriptCamera camera{entry.id, entry.title(), {}};
    for (const NodeInfo &node : m_client.nodes()) {
        const NodeState *const state = m_client.state(QString::fromStdString(node.name));
        const bool hasOneValue
            = state && (state->lockReason == LockReason::ReadOnlyNode || state->availableEntries.size() == 1);
        if (hasOneValue && !node.selected.empty())
            camera.fixedSelectors.insert(node.name);
    }
    return changeScript(m_entries, camera);
}
