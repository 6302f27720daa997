// What a person asks of the camera through the editor: changes, with a question first if necessary.
#include "tools/kit/editors/FeatureEditor.h"

#include "tools/kit/editors/EditorNote.h"
#include "tools/kit/editors/StreamPauser.h"

#include <utility>

using CvxCPP::LockReason;

namespace {

/// Reports a change that was made while the stream was stopped, also if its editor is gone meanwhile.
void note(FeatureClient &client, const std::string &name, const CvxCPP::NodeValue &before,
    const std::optional<CvxCPP::NodeValue> &after)
{
    if (after)
        client.noteWritten(QString::fromStdString(name), before, *after);
    else
        client.noteExecuted(QString::fromStdString(name));
}

} // namespace

void FeatureEditor::submit(const CvxCPP::NodeValue &value)
{
    forgetMessages();
    m_submitted = value;
    const CvxCPP::NodeState *const read = state();
    if (read && read->value == value && !m_client->isWriting(m_feature)) {
        rejectQuestion(); // The change was taken back.
        return;
    }
    if (read && read->lockReason == LockReason::StreamRunning && m_pauser) {
        askToPause(value);
        return;
    }
    m_client->write(m_feature, value);
    showNote();
}

void FeatureEditor::execute()
{
    forgetMessages();
    const CvxCPP::NodeState *const read = state();
    if (read && read->lockReason == LockReason::StreamRunning && m_pauser) {
        askToPause(std::nullopt);
        return;
    }
    m_client->execute(m_feature);
    showNote();
}

void FeatureEditor::ask(const QString &question, const QString &acceptText, std::function<void()> action)
{
    forgetMessages();
    m_action = std::move(action);
    m_note->showQuestion(question, acceptText);
}

void FeatureEditor::acceptQuestion()
{
    const std::function<void()> action = std::exchange(m_action, {});
    showNote();
    if (action)
        action();
}

void FeatureEditor::rejectQuestion()
{
    m_action = {};
    refresh();
}

/// @param value No value for a command.
void FeatureEditor::askToPause(const std::optional<CvxCPP::NodeValue> &value)
{
    ask(tr("For this change, the stream has to be stopped for a moment."), tr("Stop, set, start"),
        [this, value] { pauseFor(value); });
}

void FeatureEditor::pauseFor(const std::optional<CvxCPP::NodeValue> &value)
{
    m_isPausing = true;
    refresh();
    const CvxCPP::NodeState *const read = state();
    const CvxCPP::NodeValue before = read ? read->value : CvxCPP::NodeValue();
    const auto call = [name = m_info.name, value](CvxCPP::Device &device) {
        return value ? device.Write(name, *value) : device.Execute(name);
    };
    const auto done = [client = m_client.data(), editor = QPointer<FeatureEditor>(this), name = m_info.name,
                          before, value](const CvxCPP::CvxResult &result) {
        if (result)
            note(*client, name, before, value);
        if (editor)
            editor->onPaused(result);
    };
    m_pauser->pauseFor(call, m_client, done);
}

void FeatureEditor::onPaused(const CvxCPP::CvxResult &result)
{
    m_isPausing = false;
    m_error = QString::fromStdString(result.text);
    refresh();
}

void FeatureEditor::unlock()
{
    forgetMessages();
    const LockAdvice found = advice();
    if (!found.unlockText.isEmpty())
        m_client->write(found.lockingFeature, found.unlockValue);
    showNote();
}
