#include "tools/kit/editors/TextEditor.h"

#include <QKeyEvent>
#include <QLineEdit>

TextEditor::TextEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : FeatureEditor(info, client, parent), m_line(new QLineEdit(this))
{
    m_line->installEventFilter(this);
    setControl(m_line);
    TextEditor::labelChanged();
    connect(m_line, &QLineEdit::editingFinished, this, &TextEditor::onEditingFinished);
}

void TextEditor::showState(const CvxCPP::NodeState &state)
{
    const auto *const text = std::get_if<std::string>(&state.value);
    m_value = text ? QString::fromStdString(*text) : QString();
    if (m_line->isModified())
        return;
    if (state.maxLength > 0)
        m_line->setMaxLength(static_cast<int>(qMin<qint64>(state.maxLength, INT16_MAX)));
    if (m_line->text() == m_value)
        return;
    m_line->setText(m_value);
    m_line->setCursorPosition(0);
}

void TextEditor::setEditable(bool isEditable)
{
    if (!isEditable && m_line->isModified())
        m_line->setText(m_value); // Otherwise the loss of the focus would submit what is half typed.
    // Read-only instead of disabled, so that a serial number can be copied.
    m_line->setReadOnly(!isEditable);
}

void TextEditor::labelChanged()
{
    m_line->setAccessibleName(label());
}

bool TextEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape
        || !m_line->isModified())
        return FeatureEditor::eventFilter(watched, event);
    m_line->setModified(false);
    refresh();
    return true;
}

void TextEditor::onEditingFinished()
{
    if (!m_line->isModified())
        return;
    m_line->setModified(false);
    submit(m_line->text().toStdString());
}
