#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/assistant/HtmlReport.h"
#include "tools/kit/measure/flatfield/FlatFieldResult.h"

#include <QImage>
#include <QStringList>

/// Pictures for the report; null ones are left out.
struct FlatFieldPictures
{
    QImage before; ///< A picture of the camera.
    QImage after; ///< The same picture, corrected.
    QImage profiles; ///< The diagram.
};

/// Returns an image of the camera as a picture of at most 800 pixels of width.
/// @param field Corrects the picture; null: the picture as it is.
QImage reportPicture(const CvxCPP::Image &image, const FlatField *field);

/// Returns the gains as grey values: black is the lowest gain, white the highest one.
QImage gainPicture(const FlatField &field);

/// Returns the report of one page.
HtmlReport flatFieldReport(const FlatFieldResult &result, const CameraRecord &camera,
    const FlatFieldPictures &pictures, const QStringList &warnings);
