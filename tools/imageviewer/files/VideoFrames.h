#pragma once

#include "CvxCPP/Image.h"
#include "sdk/image/ImageConverter.h"
#include "tools/imageviewer/files/FfmpegCommand.h"

#include <QByteArray>

/// Converts images to the frames of a video, all of the size and kind of the first one.
class VideoFrames
{
public:
    /// Returns the format of the frames that an image would have. Sizes are even, as common codecs need: an
    /// odd column or line at the end is left out. The size is empty if the image is smaller than 2 x 2
    /// pixels.
    static VideoFormat formatOf(const CvxCPP::Image &image);

    /// Returns the frame, which is valid until the next call.
    const QByteArray &convert(const CvxCPP::Image &image);

private:
    ImageConverter m_converter;
    QByteArray m_frame;
};
