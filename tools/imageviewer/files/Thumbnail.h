#pragma once

#include "sdk/image/ImageConverter.h"
#include "sdk/image/RawImage.h"

#include <QImage>
#include <QSize>

/// Returns a picture for the eye that fits into the size. Null if the image has no pixels.
QImage thumbnailOf(const RawImage &image, const QSize &size, ImageConverter &converter);
