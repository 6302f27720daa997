#include "tools/camerasetup/tree/InPlaceEditor.h"

#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/editors/EditorNote.h"
#include "tools/kit/editors/FeatureEditors.h"
#include "tools/kit/editors/NumberEditor.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int doneInterval = 50; ///< Milliseconds.

/// Returns the control of an editor that gets the focus.
QWidget *controlOf(const FeatureEditor &editor)
{
    if (auto *const box = editor.findChild<QAbstractSpinBox *>())
        return box;
    if (auto *const box = editor.findChild<QComboBox *>())
        return box;
    if (auto *const button = editor.findChild<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly))
        return button;
    return editor.findChild<QLineEdit *>();
}

bool asksAQuestion(const FeatureEditor &editor)
{
    const auto *const note = editor.findChild<EditorNote *>();
    return note && note->isQuestion();
}

} // namespace

InPlaceEditor *InPlaceEditor::create(
    const CvxCPP::NodeInfo &info, FeatureClient &client, StreamPauser *pauser, QWidget *parent)
{
    FeatureEditor *const editor = createFeatureEditor(info, client);
    if (!editor)
        return nullptr;
    editor->setStreamPauser(pauser);
    return new InPlaceEditor(editor, client, parent);
}

InPlaceEditor::InPlaceEditor(FeatureEditor *editor, FeatureClient &client, QWidget *parent)
    : QWidget(parent), m_editor(editor), m_client(client), m_control(controlOf(*editor))
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(editor);
    layout->addStretch();
    setAttribute(Qt::WA_StyledBackground);
    setAutoFillBackground(true);
    editor->setLabelWidth(0);
    if (auto *const number = qobject_cast<NumberEditor *>(editor))
        number->setSliderUse(NumberEditor::SliderUse::Never);
    if (auto *const box = qobject_cast<QComboBox *>(m_control))
        box->view()->installEventFilter(this);
    m_control->installEventFilter(this);
    setFocusProxy(m_control);
    watchNote();

    m_doneTimer.setInterval(doneInterval);
    connect(&m_doneTimer, &QTimer::timeout, this, &InPlaceEditor::checkDone);
    connect(&client, &FeatureClient::nodesGone, this, &InPlaceEditor::giveUp);
}

/// The buttons of the note can have the focus too.
void InPlaceEditor::watchNote()
{
    auto *const note = m_editor->findChild<EditorNote *>();
    const auto buttons = note->findChildren<QAbstractButton *>();
    for (QAbstractButton *const button : buttons)
        button->installEventFilter(this);
    connect(note, &EditorNote::accepted, this, &InPlaceEditor::takeFocusBack);
    connect(note, &EditorNote::rejected, this, &InPlaceEditor::takeFocusBack);
}

/// A button that vanishes gives the focus to whatever comes next in the window.
void InPlaceEditor::takeFocusBack()
{
    QWidget *const target = m_control->isEnabled() ? m_control : m_editor;
    target->setFocus();
}

void InPlaceEditor::setCell(const QRect &cell)
{
    m_cell = cell;
    place();
}

void InPlaceEditor::begin()
{
    if (auto *const box = qobject_cast<QComboBox *>(m_control)) {
        box->showPopup();
        return;
    }
    if (auto *const box = qobject_cast<QAbstractSpinBox *>(m_control))
        box->selectAll();
    if (auto *const line = qobject_cast<QLineEdit *>(m_control))
        line->selectAll();
    auto *const button = qobject_cast<QAbstractButton *>(m_control);
    if (!button)
        return;
    button->click();
    closeWhenDone();
}

/// Fills the cell, and covers what is below if there is something to say.
void InPlaceEditor::place()
{
    QRect place = m_cell;
    if (!m_editor->noteText().isEmpty()) {
        const int needed = layout()->hasHeightForWidth() ? layout()->heightForWidth(place.width())
                                                         : layout()->sizeHint().height();
        place.setHeight(qMax(place.height(), needed));
    }
    const int overlap = place.bottom() - parentWidget()->rect().bottom();
    if (overlap > 0)
        place.translate(0, -qMin(overlap, place.top()));
    setGeometry(place);
}

bool InPlaceEditor::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        place();
    return QWidget::event(event);
}

bool InPlaceEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (qobject_cast<QAbstractItemView *>(watched)) { // The list of an enumeration.
        if (event->type() == QEvent::Hide)
            QTimer::singleShot(0, this, &InPlaceEditor::closeWhenDone);
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress && watched == m_control)
        handleKey(static_cast<QKeyEvent *>(event)->key());
    if (event->type() == QEvent::FocusOut)
        QTimer::singleShot(0, this, &InPlaceEditor::leave);
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept(); // Otherwise a shortcut of the window would get the key.
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

/// Keeps the keys that the control has no use for from the tree, which would take them for its own.
void InPlaceEditor::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (event->key() == Qt::Key_Escape)
        giveUp();
}

/// Acts after the control has handled the key.
void InPlaceEditor::handleKey(int key)
{
    m_doneTimer.stop(); // The person goes on.
    if (key == Qt::Key_Escape)
        QTimer::singleShot(0, this, &InPlaceEditor::giveUp);
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        QTimer::singleShot(0, this, &InPlaceEditor::closeWhenDone);
}

void InPlaceEditor::leave()
{
    const QWidget *const focus = QApplication::focusWidget();
    const bool isInside = focus && isAncestorOf(focus);
    if (isInside || QApplication::activePopupWidget() || !QApplication::activeWindow())
        return;
    if (asksAQuestion(*m_editor))
        closeWhenDone();
    else
        emit finished();
}

void InPlaceEditor::closeWhenDone()
{
    m_doneTimer.start();
    checkDone();
}

void InPlaceEditor::checkDone()
{
    if (!m_editor->noteText().isEmpty() || m_client.isWriting(m_editor->feature()) || !m_editor->isEditable())
        return;
    giveUp();
}

void InPlaceEditor::giveUp()
{
    m_doneTimer.stop();
    emit finished();
}
