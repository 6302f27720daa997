#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/canvas/Minimap.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace {

constexpr int wheelStep = 120; ///< What QWheelEvent::angleDelta() reports for one notch.
constexpr double panShare = 0.1; ///< The share of the view for one key press or notch.
constexpr double farPanShare = 0.5;

/// Returns the direction of an arrow key on the screen; null for other keys.
QPoint arrow(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

/// Returns the steps in the picture that go into a direction of the screen.
QPoint toPictureDirection(const ViewTransform &view, const QPoint &direction)
{
    const QTransform turn = view.orientation().transform(QSizeF(0, 0)).inverted();
    return turn.map(direction);
}

struct KeySlot
{
    int key;
    void (ImageCanvas::*slot)();
};

constexpr KeySlot keySlots[] = {{Qt::Key_Plus, &ImageCanvas::zoomIn}, {Qt::Key_Equal, &ImageCanvas::zoomIn},
    {Qt::Key_Minus, &ImageCanvas::zoomOut}, {Qt::Key_0, &ImageCanvas::fit},
    {Qt::Key_1, &ImageCanvas::showActualSize}};

} // namespace

void ImageCanvas::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateViewSize();
}

void ImageCanvas::wheelEvent(QWheelEvent *event)
{
    const QPoint angle = event->angleDelta();
    event->accept();
    if (std::abs(angle.x()) > std::abs(angle.y())) {
        m_view.pan(QPointF(angle.x() * panShare * width() / wheelStep, 0));
        finishViewChange();
        return;
    }
    const bool isTurnedBack = (m_wheelAngle > 0) != (angle.y() > 0);
    m_wheelAngle = isTurnedBack ? angle.y() : m_wheelAngle + angle.y();
    for (; m_wheelAngle >= wheelStep; m_wheelAngle -= wheelStep)
        m_view.zoomIn(event->position());
    for (; m_wheelAngle <= -wheelStep; m_wheelAngle += wheelStep)
        m_view.zoomOut(event->position());
    m_pointer = event->position();
    finishViewChange();
}

/// Returns what pressing the button begins.
ImageCanvas::Drag ImageCanvas::dragFor(const QMouseEvent &event) const
{
    if (event.button() == Qt::MiddleButton)
        return Drag::Pan;
    if (event.button() != Qt::LeftButton)
        return Drag::None;
    if (Minimap(m_view).rect().contains(event.localPos()))
        return Drag::Minimap;
    if (m_isSpacePressed || m_tool == Tool::Pan)
        return Drag::Pan;
    return m_tool == Tool::Pick || m_view.isEmpty() ? Drag::None : Drag::Draw;
}

void ImageCanvas::mousePressEvent(QMouseEvent *event)
{
    m_pointer = event->localPos();
    m_drag = dragFor(*event);
    if (m_drag == Drag::Draw)
        drawingTool()->press(m_view, *m_pointer);
    if (m_drag == Drag::Minimap)
        mouseMoveEvent(event);
    const std::optional<QPoint> pixel = m_view.pixelAt(*m_pointer);
    if (m_drag == Drag::None && m_tool == Tool::Pick && event->button() == Qt::LeftButton && pixel)
        emit picked(*pixel);
    updateCursor();
}

void ImageCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF before = m_pointer.value_or(event->localPos());
    m_pointer = event->localPos();
    switch (m_drag) {
    case Drag::None:
        reportPointer();
        updateCursor();
        break;
    case Drag::Pan:
        m_view.pan(*m_pointer - before);
        finishViewChange();
        break;
    case Drag::Minimap:
        m_view.centerOn(Minimap(m_view).toPicture(*m_pointer));
        finishViewChange();
        break;
    case Drag::Draw:
        dragDrawing();
        reportPointer();
        break;
    }
}

void ImageCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    m_pointer = event->localPos();
    const Drag ended = std::exchange(m_drag, Drag::None);
    updateCursor();
    if (ended == Drag::Draw)
        finishDrawing();
}

void ImageCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    const Drag drag = dragFor(*event);
    if (event->button() != Qt::LeftButton || drag == Drag::None || drag == Drag::Minimap) {
        mousePressEvent(event);
        return;
    }
    if (m_view.isFitted())
        m_view.setScale(1, event->localPos());
    else
        m_view.fit();
    finishViewChange();
}

void ImageCanvas::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    m_pointer.reset();
    reportPointer();
}

void ImageCanvas::keyPressEvent(QKeyEvent *event)
{
    for (const KeySlot &entry : keySlots) {
        if (event->key() == entry.key) {
            (this->*entry.slot)();
            return;
        }
    }
    if (!arrow(event->key()).isNull()) {
        const bool hasShift = event->modifiers().testFlag(Qt::ShiftModifier);
        if (event->modifiers().testFlag(Qt::ControlModifier))
            changeDrawingByKey(event->key(), hasShift);
        else
            panByKey(event->key(), hasShift);
        return;
    }
    DrawingTool *const drawing = drawingTool();
    switch (event->key()) {
    case Qt::Key_Space:
        m_isSpacePressed = true;
        updateCursor();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->setAccepted(drawing && !drawing->isEmpty());
        finishDrawing();
        return;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (drawing)
            drawing->remove();
        break;
    case Qt::Key_Insert:
        if (drawing && !m_view.isEmpty())
            drawing->create(m_view.visibleRegion());
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    reportDrawing();
}

void ImageCanvas::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        m_isSpacePressed = false;
        updateCursor();
    }
    QWidget::keyReleaseEvent(event);
}

void ImageCanvas::panByKey(int key, bool isFar)
{
    const double share = isFar ? farPanShare : panShare;
    const QPoint direction = arrow(key);
    // The view goes into the direction of the arrow, so the picture goes into the opposite one.
    m_view.pan(QPointF(-direction.x() * share * width(), -direction.y() * share * height()));
    finishViewChange();
}

void ImageCanvas::changeDrawingByKey(int key, bool resizes)
{
    DrawingTool *const drawing = drawingTool();
    if (!drawing || drawing->isEmpty())
        return;
    const QPoint step = toPictureDirection(m_view, arrow(key));
    if (resizes)
        drawing->resizeBy(step, m_view.pictureSize());
    else
        drawing->moveBy(step, m_view.pictureSize());
    reportDrawing();
}

void ImageCanvas::dragDrawing()
{
    if (m_view.isEmpty())
        return;
    drawingTool()->drag(m_view, *m_pointer);
    cutDrawings(); // The picture may have become smaller since the button was pressed.
}

void ImageCanvas::finishDrawing()
{
    const DrawingTool *const drawing = drawingTool();
    if (drawing && !drawing->isEmpty() && !m_view.isEmpty())
        emit drawingFinished();
}

void ImageCanvas::focusInEvent(QFocusEvent *event)
{
    const Qt::FocusReason reason = event->reason();
    m_hasFocusFrame = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    QWidget::focusInEvent(event);
}

void ImageCanvas::focusOutEvent(QFocusEvent *event)
{
    m_hasFocusFrame = false;
    m_isSpacePressed = false;
    QWidget::focusOutEvent(event);
}

void ImageCanvas::updateCursor()
{
    const bool pans = m_tool == Tool::Pan || m_isSpacePressed || m_drag == Drag::Pan;
    const bool isOnMinimap = m_pointer && Minimap(m_view).rect().contains(*m_pointer);
    if (m_view.isEmpty() || isOnMinimap)
        setCursor(Qt::ArrowCursor);
    else if (pans)
        setCursor(m_drag == Drag::Pan   ? Qt::ClosedHandCursor
                : m_view.isAllVisible() ? Qt::ArrowCursor
                                        : Qt::OpenHandCursor);
    else if (m_tool == Tool::Pick || !m_pointer)
        setCursor(Qt::CrossCursor);
    else if (m_drag == Drag::None)
        setCursor(drawingTool()->cursor(m_view, *m_pointer));
}
