#pragma once

#include "tests/kit/canvas/CanvasImage.h"

#include <QMouseEvent>
#include <QVector>
#include <QWheelEvent>
#include <QtTest>

using ImagePointer = std::shared_ptr<const CvxCPP::Image>;

/// Returns a picture of random colours.
inline ImagePointer randomImage(std::uint32_t width, std::uint32_t height)
{
    return std::make_shared<CanvasImage>(TestPicture("RGB8", width, height).fillRandomly());
}

/// Returns all ways to turn a picture.
inline QVector<Orientation> allOrientations()
{
    return {{0, false}, {1, false}, {2, false}, {3, false}, {0, true}, {1, true}, {2, true}, {3, true}};
}

/// A canvas on the screen that answers each request, as long as it is connected.
class LiveCanvas : public ImageCanvas
{
public:
    LiveCanvas(const QSize &size, const ImagePointer &image) : m_image(image)
    {
        resize(size);
        QWidget::show();
        ::show(*this, image);
        m_answering = connect(this, &ImageCanvas::requestChanged, this, [this] { answer(); });
    }

    void stopAnswering() { disconnect(m_answering); }
    void answer() { setPicture(shownPicture(m_image, request())); }
    QImage painting() { return grab().toImage(); }

    QPoint placeOf(const QPoint &pixel) const
    {
        return view().toView(QPointF(pixel) + QPointF(0.5, 0.5)).toPoint();
    }
    void turnWheel(const QPointF &place, const QPoint &angle)
    {
        QWheelEvent event(place, mapToGlobal(place.toPoint()), {}, angle, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(this, &event);
    }
    // QTest::mouseMove() reports no pressed button.
    void movePointer(const QPoint &place, Qt::MouseButtons buttons = {})
    {
        QMouseEvent event(
            QEvent::MouseMove, place, mapToGlobal(place), Qt::NoButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &event);
    }
    void drag(Qt::MouseButton button, const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(this, button, {}, from);
        movePointer((from + to) / 2, button);
        movePointer(to, button);
        QTest::mouseRelease(this, button, {}, to);
    }

private:
    ImagePointer m_image;
    QMetaObject::Connection m_answering;
};
