#include "tools/imageviewer/files/VideoFrames.h"

#include "sdk/image/RawImage.h"

VideoFormat VideoFrames::formatOf(const CvxCPP::Image &image)
{
    constexpr std::uint32_t even = ~1U;
    const CvxCPP::ImageInfo &info = image.GetInfo();
    VideoFormat format;
    format.size = QSize(static_cast<int>(info.width & even), static_cast<int>(info.height & even));
    format.isColor = ImageConverter::screenChannels(info.pixelFormat) == 3;
    return format;
}

const QByteArray &VideoFrames::convert(const CvxCPP::Image &image)
{
    const VideoFormat format = formatOf(image);
    const int lineSize = format.size.width() * (format.isColor ? 3 : 1);
    m_frame.resize(lineSize * format.size.height());
    ImageConverter::ScreenRequest request;
    request.width = static_cast<std::uint32_t>(format.size.width());
    request.height = static_cast<std::uint32_t>(format.size.height());
    request.region = {0, 0, request.width, request.height};
    m_converter.toScreen(rawImage(image), request, reinterpret_cast<std::uint8_t *>(m_frame.data()),
        static_cast<std::size_t>(lineSize));
    return m_frame;
}
