#include "tools/camerasetup/values/OpeningSnapshot.h"

#include "sdk/features/FeatureText.h"

using namespace CvxCPP;

// What a person, a file and the camera change.

namespace {

// Features that are shown are read meanwhile by the FeatureClient.
constexpr std::chrono::milliseconds staleDelay{300};

/// Returns the value of a file in the form in which values are read.
std::string normalized(const FeatureDirectory &directory, const std::string &name, const std::string &text)
{
    const NodeInfo *const node = directory.find(name);
    if (!node)
        return text;
    const auto value = settingValue(node->type, text);
    const auto *const typed = std::get_if<NodeValue>(&value);
    return typed ? settingText(*typed) : text;
}

} // namespace

const NodeInfo *OpeningSnapshot::find(const QString &name) const
{
    return m_directory ? m_directory->find(name.toStdString()) : nullptr;
}

/// Returns true if a change of the feature counts.
bool OpeningSnapshot::isFollowed(const NodeInfo &node) const
{
    return m_directory->hasValue(node.name) && !m_directory->isSelector(node.name)
        && !isIgnorableFeature(node.name);
}

void OpeningSnapshot::setPresent(const NodeInfo &node, const Selectors &selectors, const std::string &value)
{
    if (isFollowed(node) && m_values.setPresent(node, selectors, value))
        emit changedFeatures({QString::fromStdString(node.name)});
}

/// Takes what the FeatureClient has read.
void OpeningSnapshot::takeState(const QString &name)
{
    const NodeInfo *const node = find(name);
    const NodeState *const state = m_client.state(name);
    if (!node || !state || state->value.index() == 0 || !isFollowed(*node))
        return;
    const auto selectors = m_selectors.of(node->name);
    if (!selectors)
        return;
    const std::string value = settingText(state->value);
    if (m_isUntouched && !node->isStreamable && state->access == NodeAccess::ReadWrite)
        m_values.setOpening(node->name, *selectors, value);
    // The state of a selected feature may have been read before its selector has changed.
    if (!selectors->empty())
        return;
    m_stale.remove(name);
    m_written.remove(name);
    setPresent(*node, {}, value);
}

void OpeningSnapshot::takeWritten(const QString &name, const NodeValue &before, const NodeValue &after)
{
    const NodeInfo *const node = find(name);
    if (!node || !isFollowed(*node))
        return;
    const auto selectors = m_selectors.of(node->name);
    m_isUntouched = false;
    m_written.insert(name);
    if (selectors)
        return noteEdit({*selectors, node->name, knownText(before), settingText(after)});
    if (m_plan.contains(node->name)) {
        m_plan.remove(node->name);
        addNote(m_snapshot.notes, node->name,
            tr("%1 was changed before its value at opening was read.").arg(name).toStdString());
    }
}

void OpeningSnapshot::takeExecuted(const QString &name)
{
    m_isUntouched = false;
    if (m_state == State::Reading)
        addNote(m_snapshot.notes, name.toStdString(),
            tr("%1 was executed before all settings were read, so some of them may be those after it.")
                .arg(name)
                .toStdString());
    if (name != QStringLiteral("UserSetLoad") || !m_directory)
        return;
    for (const std::string &setting : settingNames(*m_directory))
        m_plan.add(*m_directory, setting);
    readSoon();
}

void OpeningSnapshot::noteEdits(const std::vector<FeatureEdit> &edits)
{
    if (!m_directory || edits.empty())
        return;
    m_isUntouched = false;
    for (FeatureEdit edit : edits) {
        const NodeInfo *const node = m_directory->find(edit.name);
        if (!node || !isFollowed(*node) || !isValueText(node, edit.after))
            continue;
        for (SelectorSetting &selector : edit.selectors)
            selector.value = normalized(*m_directory, selector.name, selector.value);
        if (edit.before)
            edit.before = normalized(*m_directory, edit.name, *edit.before);
        edit.after = normalized(*m_directory, edit.name, edit.after);
        noteEdit(edit);
    }
}

void OpeningSnapshot::noteEdit(const FeatureEdit &edit)
{
    const NodeInfo &node = *m_directory->find(edit.name);
    const bool mayBeFirst = m_state == State::Reading || !node.isStreamable;
    if (mayBeFirst && (!edit.before || !isValueText(&node, *edit.before)))
        m_values.setLost(edit.name, edit.selectors);
    else if (mayBeFirst)
        m_values.setOpening(edit.name, edit.selectors, *edit.before);
    if (m_state == State::Reading && node.isStreamable)
        m_earlyEdits.push_back(edit);
    setPresent(node, edit.selectors, edit.after);
}

/// Compares features again that may have changed: also if they are being read under the values of their
/// selectors, because those that were read already may have changed.
void OpeningSnapshot::addStale(const QStringList &names)
{
    QStringList followed;
    for (const QString &name : names) {
        const NodeInfo *const node = find(name);
        if (node && isFollowed(*node) && m_values.contains(node->name))
            followed.append(name);
    }
    m_stale.append(followed);
    if (!followed.isEmpty() && m_isOpen && !m_isReading && !m_timer.isActive())
        m_timer.start(staleDelay);
}
