#pragma once

#include <QWidget>

/// A handle of the contrast curve, which is moved with the mouse or, while it has the focus, with the arrow
/// keys. Reports where a person wants it; its owner moves it.
class ContrastHandle : public QWidget
{
    Q_OBJECT

public:
    ContrastHandle(const QString &name, const QColor &color, QWidget *parent);

signals:
    /// @param position In the parent's coordinates.
    void dragged(const QPointF &position);

    /// An arrow key was pressed. Right and up are positive.
    void stepped(int steps);

    void reset(); ///< Double-clicked.

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QColor m_color;
    QPointF m_grip; ///< Where in the handle the mouse button was pressed, from its centre.
};
