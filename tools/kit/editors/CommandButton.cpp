#include "tools/kit/editors/CommandButton.h"

#include <QPushButton>

#include <utility>

CommandButton::CommandButton(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : FeatureEditor(info, client, parent), m_button(new QPushButton(this))
{
    hideLabel();
    setControl(m_button);
    CommandButton::labelChanged();
    connect(m_button, &QPushButton::clicked, this, &CommandButton::onClicked);
}

void CommandButton::setQuestion(std::function<QString()> question)
{
    m_question = std::move(question);
}

void CommandButton::showState(const CvxCPP::NodeState &state)
{
    m_isDone = state.isCommandDone;
    labelChanged();
}

void CommandButton::setEditable(bool isEditable)
{
    m_button->setEnabled(isEditable && m_isDone);
}

void CommandButton::labelChanged()
{
    m_button->setText(m_isDone ? label() : tr("%1 …").arg(label()));
}

void CommandButton::onClicked()
{
    const QString question = m_question ? m_question() : QString();
    if (question.isEmpty())
        execute();
    else
        ask(question, label(), [this] { execute(); });
}
