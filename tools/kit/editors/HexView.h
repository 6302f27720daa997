#pragma once

#include "tools/kit/editors/HexBytes.h"

#include <QAbstractScrollArea>

#include <optional>

/// Shows bytes as hexadecimal digits and as characters, with a cursor that types over them. Tab changes
/// between digits and characters. Bytes that differ from the camera are marked.
class HexView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit HexView(QWidget *parent = nullptr);

    const HexBytes &bytes() const { return m_bytes; }

    /// Shows what the camera has now; what a person has typed stays.
    void setCamera(const HexBytes::Bytes &bytes);

    /// Shows what the camera has instead of what was typed.
    void discard();

    void setReadOnly(bool isReadOnly);
    bool isReadOnly() const { return m_isReadOnly; }

    std::size_t cursor() const { return m_cursor; }
    int bytesPerRow() const { return m_bytesPerRow; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void copy(); ///< Copies the selection as digits or as characters, depending on where the cursor is.
    void paste(); ///< Types over the bytes from the cursor, or from the start of the selection, on.
    void selectAll();

signals:
    void edited(); ///< The shown bytes were changed here, not by the camera.
    void writeRequested(); ///< Ctrl+Return was pressed while the bytes can be changed.
    void discardRequested(); ///< Escape was pressed.
    void pasteRefused(const QString &reason); ///< For people.

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool focusNextPrevChild(bool isNext) override;

private:
    enum class Side
    {
        Digits,
        Characters
    };

    /// A place that the mouse points to.
    struct Place
    {
        std::size_t index = 0;
        Side side = Side::Digits;
    };

    void addActions();
    void paintRow(QPainter &painter, int row) const;
    void paintByte(QPainter &painter, std::size_t index, int y) const;
    void paintBackground(QPainter &painter, std::size_t index, const QRect &box, Side side) const;
    void layOut();
    int rowHeight() const;
    int rowCount() const;
    int digitsX(int column) const;
    int charactersX(int column) const;
    int rowWidth(int bytesPerRow) const;
    Place placeAt(const QPoint &point) const;

    std::optional<qint64> targetOf(const QKeyEvent &event) const;
    bool takesKey(const QKeyEvent &event) const;
    void editByKey(QKeyEvent *event);
    void moveTo(std::size_t index, bool isSelecting);
    void showCursor();
    void type(QChar character);
    void restore(bool isBackwards);
    void undo();
    std::size_t selectionStart() const;
    std::size_t selectionSize() const;
    HexBytes::Bytes selectedBytes() const;
    void describeCursor();
    void afterEdit();

    HexBytes m_bytes;
    int m_bytesPerRow = 16;
    std::size_t m_cursor = 0;
    std::size_t m_anchor = 0; ///< The other end of the selection.
    bool m_isLowDigit = false; ///< The next digit is the second one of its byte.
    Side m_side = Side::Digits;
    bool m_isReadOnly = true;
};
