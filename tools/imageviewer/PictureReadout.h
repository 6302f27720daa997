#pragma once

#include "tools/kit/live/PictureFeed.h"

#include <QCoreApplication>
#include <QPoint>
#include <QString>

/// Describes one pixel for people.
class PictureReadout
{
    Q_DECLARE_TR_FUNCTIONS(PictureReadout)

public:
    /// Returns the position, the raw value of each component at its full depth, and the colour that the
    /// screen shows; for example "x 12, y 7 · raw R 3071 · shown 191 64 64". Returns an empty text if the
    /// pixel is outside the picture.
    static QString describe(const ShownPicture &picture, const QPoint &pixel);
};
