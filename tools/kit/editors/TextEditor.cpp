#include "tools/kit/editors/TextEditor.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVariant>

TextEditor::TextEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : FeatureEditor(info, client, parent), m_line(new QLineEdit(this)), m_length(new QLabel(this))
{
    auto *const control = new QWidget(this);
    auto *const layout = new QHBoxLayout(control);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line, 1);
    layout->addWidget(m_length);
    m_length->setProperty("role", QStringLiteral("secondary"));
    m_line->installEventFilter(this);
    control->setFocusProxy(m_line);
    setControl(control);
    TextEditor::labelChanged();
    showLength();
    connect(m_line, &QLineEdit::textChanged, this, &TextEditor::showLength);
    connect(m_line, &QLineEdit::editingFinished, this, &TextEditor::onEditingFinished);
}

void TextEditor::showState(const CvxCPP::NodeState &state)
{
    const auto *const text = std::get_if<std::string>(&state.value);
    m_value = text ? QString::fromStdString(*text) : QString();
    if (m_line->isModified())
        return;
    m_maxLength = static_cast<int>(qBound<qint64>(0, state.maxLength, INT16_MAX));
    if (m_maxLength > 0)
        m_line->setMaxLength(m_maxLength);
    m_line->setToolTip(m_maxLength > 0 ? tr("At most %n character(s)", nullptr, m_maxLength) : QString());
    if (m_line->text() != m_value) {
        m_line->setText(m_value);
        m_line->setCursorPosition(0);
    }
    showLength();
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

void TextEditor::showLength()
{
    m_length->setText(tr("%1 of %2").arg(m_line->text().size()).arg(m_maxLength));
    m_length->setVisible(m_maxLength > 0 && m_line->isModified());
}

void TextEditor::onEditingFinished()
{
    if (!m_line->isModified())
        return;
    m_line->setModified(false);
    showLength();
    submit(m_line->text().toStdString());
}
