#pragma once

#include "tools/kit/canvas/ViewTransform.h"
#include "tools/kit/live/PictureFeed.h"

#include <QLine>
#include <QPoint>
#include <QRect>
#include <QWidget>

/// Shows a picture: fitted, at its own size, or zoomed and moved with wheel, mouse and keys. Draws what helps
/// to read the picture, and lets a person draw a region or a line on it. All coordinates in the interface are
/// pixels of the picture as the camera sends it, however it is rotated or mirrored on the screen.
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

    /// Tells the size of the pictures that follow; keeps "fit" if that is the mode.
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
    void regionChanged(const QRect &region); ///< Drawn, moved or removed by a person.
    void lineChanged(const QLine &line);
    void picked(const QPoint &pixel);

private:
    ViewTransform m_view;
    ShownPicture m_picture;
    DisplaySettings m_settings;
    Tool m_tool = Tool::Pan;
    QRect m_region;
    QLine m_line;
    bool m_hasGrid = false;
    bool m_hasCrosshair = false;
    double m_micrometresPerPixel = 0;
    QString m_notice;
    QString m_hint;
};
