#pragma once

#include <QWidget>

/// A round handle of the contrast curve, which is moved with the mouse or, while it has the focus, with the
/// arrow keys. Reports where a person wants it; its owner moves it.
class ContrastHandle : public QWidget
{
    Q_OBJECT

public:
    ContrastHandle(const QString &name, const QColor &color, QWidget *parent);

    /// Puts the centre at a point of the parent.
    void moveCenter(const QPointF &center);

signals:
    void dragged(const QPointF &center); ///< In the parent's coordinates.

    /// An arrow key was pressed; with Page Up and Page Down, ten steps at once. Right and up are positive.
    void stepped(int steps);

    void resetRequested(); ///< Double-clicked, or the key Delete.

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QColor m_color;
    QPointF m_grip; ///< Where the mouse button was pressed, from the centre.
};
