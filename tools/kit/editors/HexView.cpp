#include "tools/kit/editors/HexView.h"

#include "tools/kit/editors/HexText.h"

#include <QAction>
#include <QEvent>
#include <QFont>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int wideRow = 16;
constexpr int narrowRow = 4;
constexpr int groupSize = 4; ///< After this many bytes, there is a gap.
constexpr int margin = 6;
constexpr int mostRowsAtOnce = 12; ///< A longer register scrolls.
constexpr int fewestRowsAtOnce = 2;

constexpr QRgb offsetColor = 0xff94a3b8;
constexpr QRgb textColor = 0xffe8edf2;
constexpr QRgb readOnlyColor = 0xffb6c2d1;
constexpr QRgb changedColor = 0xfff59e0b;
constexpr QRgb cursorColor = 0xff2196f3;
constexpr QRgb otherCursorColor = 0xff3a4a5e; ///< The same byte on the other side.
constexpr QRgb selectionColor = 0xff17405f;

} // namespace

HexView::HexView(QWidget *parent) : QAbstractScrollArea(parent)
{
    setObjectName(QStringLiteral("hexView"));
    QFont digitsFont(QStringLiteral("DejaVu Sans Mono"), font().pointSize());
    digitsFont.setStyleHint(QFont::TypeWriter);
    setFont(digitsFont);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    viewport()->setCursor(Qt::IBeamCursor);
    addActions();
    layOut();
}

void HexView::addActions()
{
    struct Entry
    {
        QString text;
        QKeySequence::StandardKey key;
        void (HexView::*slot)();
    };
    for (const Entry &entry : {Entry{tr("Copy"), QKeySequence::Copy, &HexView::copy},
             Entry{tr("Paste"), QKeySequence::Paste, &HexView::paste},
             Entry{tr("Select all"), QKeySequence::SelectAll, &HexView::selectAll}}) {
        auto *const action = new QAction(entry.text, this);
        action->setShortcut(entry.key);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, entry.slot);
        addAction(action);
    }
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void HexView::setCamera(const HexBytes::Bytes &bytes)
{
    const std::size_t size = m_bytes.size();
    m_bytes.setCamera(bytes);
    if (size != m_bytes.size()) {
        m_cursor = std::min(m_cursor, m_bytes.size() - std::min<std::size_t>(m_bytes.size(), 1));
        m_anchor = m_cursor;
        layOut();
        updateGeometry();
    }
    viewport()->update();
}

void HexView::discard()
{
    m_bytes.restoreAll();
    m_isLowDigit = false;
    afterEdit();
}

void HexView::setReadOnly(bool isReadOnly)
{
    m_isReadOnly = isReadOnly;
    viewport()->update();
}

QSize HexView::sizeHint() const
{
    const int rows = std::clamp(rowCount(), fewestRowsAtOnce, mostRowsAtOnce);
    return {rowWidth(wideRow) + 2 * frameWidth() + verticalScrollBar()->sizeHint().width(),
        rows * rowHeight() + 2 * margin + 2 * frameWidth()};
}

QSize HexView::minimumSizeHint() const
{
    const int rows = std::clamp(rowCount(), fewestRowsAtOnce, mostRowsAtOnce);
    return {rowWidth(narrowRow) + 2 * frameWidth() + verticalScrollBar()->sizeHint().width(),
        rows * rowHeight() + 2 * margin + 2 * frameWidth()};
}

// ---- Layout -----------------------------------------------------------------------------------------------

int HexView::rowHeight() const
{
    return fontMetrics().height() + 2;
}

int HexView::rowCount() const
{
    return (static_cast<int>(m_bytes.size()) + m_bytesPerRow - 1) / m_bytesPerRow;
}

int HexView::digitsX(int column) const
{
    const int character = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int offsetDigits = offsetText(0, m_bytes.size()).size();
    // Two digits and a space for each byte, and a space more after each group.
    return margin + character * (offsetDigits + 2 + 3 * column + column / groupSize);
}

int HexView::charactersX(int column) const
{
    const int character = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    return digitsX(m_bytesPerRow) + character * column;
}

int HexView::rowWidth(int bytesPerRow) const
{
    const int character = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    return digitsX(bytesPerRow) + character * bytesPerRow + margin;
}

/// Chooses the bytes per row by the width, and the range of the scroll bar.
void HexView::layOut()
{
    int bytesPerRow = wideRow;
    while (bytesPerRow > narrowRow && viewport()->width() < rowWidth(bytesPerRow))
        bytesPerRow /= 2;
    if (bytesPerRow != m_bytesPerRow) {
        m_bytesPerRow = bytesPerRow;
        updateGeometry();
    }
    const int height = rowCount() * rowHeight() + 2 * margin;
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(rowHeight());
}

void HexView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void HexView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        layOut();
    viewport()->update();
}

HexView::Place HexView::placeAt(const QPoint &point) const
{
    const int y = point.y() - margin + verticalScrollBar()->value();
    const int row = std::clamp(y / rowHeight(), 0, std::max(0, rowCount() - 1));
    const Side side = point.x() < charactersX(0) ? Side::Digits : Side::Characters;
    int column = m_bytesPerRow - 1;
    while (column > 0 && point.x() < (side == Side::Digits ? digitsX(column) : charactersX(column)))
        --column;
    const auto index = static_cast<std::size_t>(row * m_bytesPerRow + column);
    return {std::min(index, m_bytes.size() - 1), side};
}

// ---- Painting ---------------------------------------------------------------------------------------------

void HexView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.setFont(font());
    const int top = verticalScrollBar()->value() - margin;
    const int first = std::max(0, top / rowHeight());
    const int last = std::min(rowCount() - 1, (top + viewport()->height()) / rowHeight());
    for (int row = first; row <= last; ++row)
        paintRow(painter, row);
}

void HexView::paintRow(QPainter &painter, int row) const
{
    const int y = margin + row * rowHeight() - verticalScrollBar()->value();
    const auto first = static_cast<std::size_t>(row * m_bytesPerRow);
    painter.setPen(QColor(offsetColor));
    painter.drawText(margin, y + fontMetrics().ascent() + 1, offsetText(first, m_bytes.size()));
    const std::size_t end = std::min(first + static_cast<std::size_t>(m_bytesPerRow), m_bytes.size());
    for (std::size_t index = first; index < end; ++index)
        paintByte(painter, index, y);
}

void HexView::paintByte(QPainter &painter, std::size_t index, int y) const
{
    const int column = static_cast<int>(index) % m_bytesPerRow;
    const int character = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const QRect digits(digitsX(column), y, 2 * character, rowHeight());
    const QRect letter(charactersX(column), y, character, rowHeight());
    paintBackground(painter, index, digits, Side::Digits);
    paintBackground(painter, index, letter, Side::Characters);

    const std::uint8_t byte = m_bytes.shown()[index];
    painter.setPen(QColor(m_bytes.isChanged(index) ? changedColor
            : m_isReadOnly                         ? readOnlyColor
                                                   : textColor));
    const int baseline = y + fontMetrics().ascent() + 1;
    painter.drawText(digits.left(), baseline, hexText({byte}));
    painter.drawText(letter.left(), baseline, asciiCharacter(byte));
}

void HexView::paintBackground(QPainter &painter, std::size_t index, const QRect &box, Side side) const
{
    const std::size_t start = selectionStart();
    const bool isSelected = m_cursor != m_anchor && index >= start && index < start + selectionSize();
    if (isSelected)
        painter.fillRect(box, QColor(selectionColor));
    if (index != m_cursor || !hasFocus())
        return;
    QRect cursor = box;
    if (side == Side::Digits && side == m_side) // One of the two digits is typed next.
        cursor.setWidth(box.width() / 2);
    if (side == Side::Digits && side == m_side && m_isLowDigit)
        cursor.translate(box.width() / 2, 0);
    if (side == m_side)
        painter.fillRect(cursor, QColor(cursorColor));
    else if (!isSelected)
        painter.fillRect(box, QColor(otherCursorColor));
}
