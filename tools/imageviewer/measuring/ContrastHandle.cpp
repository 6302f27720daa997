#include "tools/imageviewer/measuring/ContrastHandle.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <array>

namespace {

constexpr int handleSize = 17;
constexpr double handleRadius = 5;
constexpr QRgb focusColor = 0xff2196f3;
constexpr QRgb outlineColor = 0xff94a3b8;

struct KeyStep
{
    int key;
    int steps;
};

constexpr std::array keySteps = {
    KeyStep{Qt::Key_Left, -1},
    KeyStep{Qt::Key_Down, -1},
    KeyStep{Qt::Key_Right, 1},
    KeyStep{Qt::Key_Up, 1},
    KeyStep{Qt::Key_PageDown, -10},
    KeyStep{Qt::Key_PageUp, 10},
};

} // namespace

ContrastHandle::ContrastHandle(const QString &name, const QColor &color, QWidget *parent)
    : QWidget(parent), m_color(color)
{
    setAccessibleName(name);
    setToolTip(tr("%1: drag it, or use the arrow keys. A double click resets it.").arg(name));
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(handleSize, handleSize);
    setCursor(Qt::PointingHandCursor);
}

void ContrastHandle::moveCenter(const QPointF &center)
{
    move(qRound(center.x() - handleSize / 2.0), qRound(center.y() - handleSize / 2.0));
}

void ContrastHandle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF center = QRectF(rect()).center();
    if (hasFocus()) {
        painter.setPen(QPen(QColor(focusColor), 2));
        painter.drawEllipse(center, handleRadius + 2.5, handleRadius + 2.5);
    }
    painter.setPen(QPen(QColor(outlineColor), 1.5));
    painter.setBrush(m_color);
    painter.drawEllipse(center, handleRadius, handleRadius);
}

void ContrastHandle::mousePressEvent(QMouseEvent *event)
{
    m_grip = event->localPos() - QRectF(rect()).center();
}

void ContrastHandle::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        emit dragged(event->localPos() + QPointF(pos()) - m_grip);
}

void ContrastHandle::mouseDoubleClickEvent(QMouseEvent *)
{
    emit resetRequested();
}

void ContrastHandle::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete) {
        emit resetRequested();
        return;
    }
    for (const KeyStep &step : keySteps) {
        if (step.key == event->key()) {
            emit stepped(step.steps);
            return;
        }
    }
    QWidget::keyPressEvent(event);
}
