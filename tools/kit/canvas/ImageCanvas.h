#pragma once

#include "tools/kit/canvas/LineTool.h"
#include "tools/kit/canvas/PictureLayer.h"
#include "tools/kit/canvas/PixelValuePainter.h"
#include "tools/kit/canvas/RegionTool.h"
#include "tools/kit/canvas/ViewTransform.h"
#include "tools/kit/live/PictureFeed.h"

#include <QLine>
#include <QPoint>
#include <QRect>
#include <QWidget>

#include <optional>
#include <vector>

class CanvasOverlay;

/// Shows a picture: fitted, at its own size, or zoomed and moved with wheel, mouse and keys. Draws what helps
/// to read the picture, and lets a person draw a region or a line on it. All coordinates in the interface are
/// pixels of the picture as the camera sends it, however it is rotated or mirrored on the screen.
///
/// Wheel: zoom about the pointer, or move sideways. Double click: fit, or actual size at the pointer.
/// Dragging with the middle button or with the space bar pressed moves the picture, whatever the tool is.
/// Keys: + and - zoom, 0 fits, 1 shows the actual size, arrows move the view, with Shift by half of it. With
/// the tools Region and Line, Insert draws a shape, Delete removes it, Ctrl with arrows moves it by a pixel,
/// Ctrl and Shift with arrows resize it, and Return or Enter finishes it.
class ImageCanvas : public QWidget
{
    Q_OBJECT

public:
    /// What dragging with the left mouse button does.
    enum class Tool
    {
        Pan,
        Region,
        Line,
        Pick ///< A click picks one pixel.
    };
    Q_ENUM(Tool)

    explicit ImageCanvas(QWidget *parent = nullptr);
    ~ImageCanvas() override;

    /// Shows the pixels. A picture for another size or region than the present one is placed where it
    /// belongs.
    void setPicture(const ShownPicture &picture);

    /// Sets the size of the pictures that follow; keeps "fit" if that is the mode.
    void setPictureSize(const QSize &size);

    /// Removes the picture.
    void clear();

    const ShownPicture &picture() const;
    const ViewTransform &view() const;

    /// Returns what is visible; `settings` are those of setDisplaySettings().
    PictureRequest request() const;
    void setDisplaySettings(const DisplaySettings &settings);

    Tool tool() const;
    void setTool(Tool tool);

    QRect region() const; ///< Empty if none is drawn.
    void setRegion(const QRect &region);
    QLine line() const; ///< Null if none is drawn.
    void setLine(const QLine &line);

    bool hasGrid() const;
    bool hasCrosshair() const;
    double micrometresPerPixel() const; ///< 0 if unknown.

    /// Greys the picture out and shows a text over it; an empty text removes both.
    void setNotice(const QString &text);

    /// Sets the text in the middle of a canvas that has no picture.
    void setHint(const QString &text);

    /// Sets how the picture is turned, for example as it was when the program ended.
    void setOrientation(const Orientation &orientation);

    /// Paints the overlay over every picture, above the overlays that were added before. It must stay valid
    /// until removeOverlay(). Call update() when what it paints has changed.
    void addOverlay(const CanvasOverlay *overlay);
    void removeOverlay(const CanvasOverlay *overlay);

    /// Moves the pixel to the middle of the view, with at least this scale.
    void showPixel(const QPoint &pixel, double minScale);

public slots:
    void fit();
    void showActualSize();
    void zoomIn();
    void zoomOut();
    void rotateRight();
    void rotateLeft();
    void mirrorHorizontally();
    void mirrorVertically();
    void setGrid(bool isVisible);
    void setCrosshair(bool isVisible);
    void setMicrometresPerPixel(double micrometres);

signals:
    /// What is visible has changed; see request().
    void requestChanged();

    /// A picture was painted, so the next one is welcome.
    void painted();

    void viewChanged(); ///< Scale, rotation or mirroring.
    void pointerMoved(const QPoint &pixel);
    void pointerLeft(); ///< The pointer is outside the picture.

    /// Drawn, moved or removed by a person, or cut because the picture became smaller.
    void regionChanged(const QRect &region);
    void lineChanged(const QLine &line);

    /// There is a region or a line, and the person is done with it: has released the mouse button after it
    /// was drawn or moved, or has pressed Return or Enter.
    void drawingFinished();

    void picked(const QPoint &pixel);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    /// What the mouse does while a button is pressed.
    enum class Drag
    {
        None,
        Pan,
        Minimap,
        Draw
    };

    QPointF center() const { return {width() / 2.0, height() / 2.0}; }
    DrawingTool *drawingTool();
    void updateViewSize();
    void finishViewChange();
    void updateLayers();
    void cutDrawings();
    void updateAccessibleDescription();
    void updateCursor();
    void reportPointer();
    void reportDrawing();
    bool isPicture(const CvxCPP::Image &image) const;

    Drag dragFor(const QMouseEvent &event) const;
    void panByKey(int key, bool isFar);
    void changeDrawingByKey(int key, bool resizes);
    void dragDrawing();
    void finishDrawing();

    void paintPicture(QPainter &painter);
    void paintOverlays(QPainter &painter);

    ViewTransform m_view;
    ShownPicture m_picture;
    ShownPicture m_wholePicture; ///< The last one that contained everything.
    PictureLayer m_layer;
    PictureLayer m_wholeLayer;
    DisplaySettings m_settings;
    PixelValuePainter m_pixelValues;
    bool m_isNewPicture = false; ///< Not painted yet.
    QString m_notice;
    QString m_hint;

    Tool m_tool = Tool::Pan;
    std::vector<const CanvasOverlay *> m_overlays; ///< The first one is painted first.
    RegionTool m_regionTool;
    LineTool m_lineTool;
    bool m_hasGrid = false;
    bool m_hasCrosshair = false;
    double m_micrometresPerPixel = 0;

    Drag m_drag = Drag::None;
    std::optional<QPointF> m_pointer; ///< Position of the pointer in the view.
    std::optional<QPoint> m_reportedPixel;
    bool m_isSpacePressed = false;
    int m_wheelAngle = 0; ///< What small movements of the wheel add up to.
    bool m_hasFocusFrame = false;

    // What was reported last.
    QRect m_reportedRegion;
    QSize m_reportedSize;
    double m_reportedScale = 0;
    Orientation m_reportedOrientation;
    QRect m_reportedDrawnRegion;
    QLine m_reportedLine;
};
