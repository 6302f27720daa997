#include "tools/kit/editors/StepBox.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int preferredCharacters = 11;
constexpr int fewestCharacters = 6;
constexpr int arrowsWidth = 30;

} // namespace

StepBox::StepBox(QWidget *parent) : QAbstractSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccelerated(true);
    connect(lineEdit(), &QLineEdit::textEdited, this, &StepBox::noteEditing);
    connect(this, &QAbstractSpinBox::editingFinished, this, &StepBox::confirm);
}

void StepBox::showText(const QString &text)
{
    if (m_isBeingEdited || lineEdit()->text() == text)
        return;
    lineEdit()->setText(text);
    if (!hasFocus())
        lineEdit()->setCursorPosition(0); // Shows the first digits if the line is too narrow.
}

void StepBox::setSteps(StepEnabled steps)
{
    m_steps = steps;
    update();
}

void StepBox::endEditing()
{
    m_isBeingEdited = false;
}

void StepBox::stepBy(int steps)
{
    confirm(); // A step starts from what was typed.
    emit stepped(steps);
}

QSize StepBox::sizeHint() const
{
    const int width = fontMetrics().horizontalAdvance(QLatin1Char('0')) * preferredCharacters + arrowsWidth;
    return {width, QAbstractSpinBox::sizeHint().height()};
}

QSize StepBox::minimumSizeHint() const
{
    const int width = fontMetrics().horizontalAdvance(QLatin1Char('0')) * fewestCharacters + arrowsWidth;
    return {width, QAbstractSpinBox::minimumSizeHint().height()};
}

QAbstractSpinBox::StepEnabled StepBox::stepEnabled() const
{
    return isReadOnly() ? StepEnabled(StepNone) : m_steps;
}

bool StepBox::event(QEvent *event)
{
    // Otherwise a shortcut of the window would get the key.
    if (event->type() == QEvent::ShortcutOverride && m_isBeingEdited
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QAbstractSpinBox::event(event);
}

void StepBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !m_isBeingEdited) {
        QAbstractSpinBox::keyPressEvent(event);
        return;
    }
    endEditing();
    emit cancelled();
    event->accept();
}

void StepBox::noteEditing()
{
    m_isBeingEdited = true;
}

void StepBox::confirm()
{
    if (!m_isBeingEdited)
        return;
    endEditing();
    emit confirmed(lineEdit()->text());
}
