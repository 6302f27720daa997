// What a person does in the view: keys, mouse and clipboard.
#include "tools/kit/editors/HexView.h"

#include "tools/kit/editors/HexText.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

// ---- Keys -------------------------------------------------------------------------------------------------

/// Returns true for the keys that must not become shortcuts of the window, such as the undo of the window,
/// which would take back the last change of the camera instead of what was typed here.
bool HexView::takesKey(const QKeyEvent &event) const
{
    if (event.key() == Qt::Key_Escape || event.matches(QKeySequence::Undo))
        return m_bytes.isModified();
    if (event.modifiers() & Qt::AltModifier)
        return false;
    if (event.modifiers() & Qt::ControlModifier)
        return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool isText = !event.text().isEmpty() && event.text().front().isPrint();
    return (isText && !m_isReadOnly) || targetOf(event);
}

bool HexView::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && takesKey(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

void HexView::keyPressEvent(QKeyEvent *event)
{
    if (m_bytes.size() == 0)
        return QAbstractScrollArea::keyPressEvent(event);
    if (const auto target = targetOf(*event)) {
        const qint64 last = static_cast<qint64>(m_bytes.size()) - 1;
        moveTo(static_cast<std::size_t>(std::clamp<qint64>(*target, 0, last)),
            event->modifiers() & Qt::ShiftModifier);
        return;
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && m_bytes.isModified())
        emit discardRequested();
    else if (event->matches(QKeySequence::Undo) && m_bytes.isModified())
        undo();
    else if (isReturn && event->modifiers() & Qt::ControlModifier && !m_isReadOnly)
        emit writeRequested();
    else
        editByKey(event);
}

void HexView::editByKey(QKeyEvent *event)
{
    const bool isText = event->text().size() == 1 && event->text().front().isPrint()
        && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (m_isReadOnly)
        QAbstractScrollArea::keyPressEvent(event);
    else if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete)
        restore(event->key() == Qt::Key_Backspace);
    else if (isText)
        type(event->text().front());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

/// Returns where a key moves the cursor, perhaps beyond the ends; no value for other keys.
std::optional<qint64> HexView::targetOf(const QKeyEvent &event) const
{
    const auto cursor = static_cast<qint64>(m_cursor);
    const qint64 row = m_bytesPerRow;
    const qint64 page = row * std::max(1, viewport()->height() / rowHeight());
    const bool isControl = event.modifiers() & Qt::ControlModifier;
    switch (event.key()) {
    case Qt::Key_Left:
        return cursor - 1;
    case Qt::Key_Right:
        return cursor + 1;
    case Qt::Key_Up:
        return cursor < row ? cursor : cursor - row;
    case Qt::Key_Down:
        return cursor + row < static_cast<qint64>(m_bytes.size()) ? cursor + row : cursor;
    case Qt::Key_PageUp:
        return cursor - page;
    case Qt::Key_PageDown:
        return cursor + page;
    case Qt::Key_Home:
        return isControl ? 0 : cursor - cursor % row;
    case Qt::Key_End:
        return isControl ? static_cast<qint64>(m_bytes.size()) - 1 : cursor - cursor % row + row - 1;
    default:
        return std::nullopt;
    }
}

/// Tab goes from the digits to the characters before it leaves the view, and back.
bool HexView::focusNextPrevChild(bool isNext)
{
    const Side target = isNext ? Side::Characters : Side::Digits;
    if (m_side == target)
        return QAbstractScrollArea::focusNextPrevChild(isNext);
    m_side = target;
    m_isLowDigit = false;
    describeCursor();
    viewport()->update();
    return true;
}

void HexView::moveTo(std::size_t index, bool isSelecting)
{
    m_cursor = index;
    if (!isSelecting)
        m_anchor = index;
    m_isLowDigit = false;
    showCursor();
}

void HexView::showCursor()
{
    const int top = static_cast<int>(m_cursor) / m_bytesPerRow * rowHeight();
    QScrollBar *const bar = verticalScrollBar();
    const int lowest = top + 2 * rowHeight() - viewport()->height();
    bar->setValue(std::max(std::min(bar->value(), top), lowest));
    describeCursor();
    viewport()->update();
}

/// Describes the byte under the cursor to screen readers.
void HexView::describeCursor()
{
    if (m_bytes.size() == 0)
        return setAccessibleDescription({});
    const std::uint8_t byte = m_bytes.shown()[m_cursor];
    setAccessibleDescription(m_side == Side::Digits
            ? tr("Offset %1, byte %2").arg(offsetText(m_cursor, m_bytes.size()), hexText({byte}))
            : tr("Offset %1, character %2")
                  .arg(offsetText(m_cursor, m_bytes.size()), QString(asciiCharacter(byte))));
}

// ---- Editing ----------------------------------------------------------------------------------------------

void HexView::type(QChar character)
{
    const auto digit = hexDigit(character);
    const auto code = parseAsciiText(QString(character));
    if (m_side == Side::Digits ? !digit.has_value() : !code.has_value())
        return;
    m_cursor = selectionStart();
    if (m_side == Side::Characters)
        m_bytes.overwrite(m_cursor, *code);
    else if (m_isLowDigit)
        m_bytes.setLowDigit(m_cursor, *digit);
    else
        m_bytes.setHighDigit(m_cursor, *digit);
    const bool isByteDone = m_side == Side::Characters || m_isLowDigit;
    moveTo(isByteDone ? std::min(m_cursor + 1, m_bytes.size() - 1) : m_cursor, false);
    m_isLowDigit = !isByteDone;
    afterEdit();
}

/// Shows the camera's bytes again: those of the selection, or the one before or under the cursor.
void HexView::restore(bool isBackwards)
{
    if (isBackwards && m_cursor == m_anchor && !m_isLowDigit)
        moveTo(m_cursor - std::min<std::size_t>(m_cursor, 1), false);
    m_bytes.restore(selectionStart(), selectionSize());
    moveTo(selectionStart(), false);
    afterEdit();
}

/// Takes back the last edit. If the camera has changed other bytes since, its bytes are shown at the end.
void HexView::undo()
{
    const auto first = m_bytes.undo();
    if (!first)
        m_bytes.restoreAll();
    moveTo(first.value_or(m_cursor), false);
    afterEdit();
}

void HexView::afterEdit()
{
    describeCursor();
    viewport()->update();
    emit edited();
}

std::size_t HexView::selectionStart() const
{
    return std::min(m_cursor, m_anchor);
}

/// Returns at least 1: without a selection, the byte under the cursor counts.
std::size_t HexView::selectionSize() const
{
    return std::max(m_cursor, m_anchor) - selectionStart() + 1;
}

HexBytes::Bytes HexView::selectedBytes() const
{
    const HexBytes::Bytes &shown = m_bytes.shown();
    const auto start = shown.begin() + static_cast<std::ptrdiff_t>(selectionStart());
    return {start, start + static_cast<std::ptrdiff_t>(selectionSize())};
}

// ---- Clipboard and mouse ----------------------------------------------------------------------------------

void HexView::copy()
{
    if (m_bytes.size() == 0)
        return;
    const HexBytes::Bytes bytes = selectedBytes();
    QApplication::clipboard()->setText(m_side == Side::Digits ? hexText(bytes) : asciiText(bytes));
}

void HexView::paste()
{
    if (m_isReadOnly || m_bytes.size() == 0)
        return;
    const QString text = QApplication::clipboard()->text();
    const auto bytes = m_side == Side::Digits ? parseHexText(text) : parseAsciiText(text);
    if (!bytes) {
        emit pasteRefused(m_side == Side::Digits ? tr("The clipboard contains no hexadecimal bytes.")
                                                 : tr("The clipboard contains no ASCII text."));
        return;
    }
    const std::size_t count = m_bytes.overwrite(selectionStart(), *bytes);
    moveTo(std::min(selectionStart() + count, m_bytes.size() - 1), false);
    afterEdit();
    if (count < bytes->size())
        emit pasteRefused(tr("The last %n byte(s) of the clipboard did not fit.", nullptr,
            static_cast<int>(bytes->size() - count)));
}

void HexView::selectAll()
{
    if (m_bytes.size() == 0)
        return;
    m_anchor = 0;
    m_cursor = m_bytes.size() - 1;
    m_isLowDigit = false;
    viewport()->update();
}

void HexView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_bytes.size() == 0)
        return;
    const Place place = placeAt(event->pos());
    m_side = place.side;
    moveTo(place.index, event->modifiers() & Qt::ShiftModifier);
}

void HexView::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton && m_bytes.size() > 0)
        moveTo(placeAt(event->pos()).index, true);
}

void HexView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason)
        m_side = Side::Digits;
    if (event->reason() == Qt::BacktabFocusReason)
        m_side = Side::Characters;
    describeCursor();
    viewport()->update();
}

void HexView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}
