#include "tools/imageviewer/files/Thumbnail.h"

QImage thumbnailOf(const RawImage &image, const QSize &size, ImageConverter &converter)
{
    if (image.width == 0 || image.height == 0)
        return {};
    const QSize whole(static_cast<int>(image.width), static_cast<int>(image.height));
    const QSize fitting = whole.scaled(whole.boundedTo(size), Qt::KeepAspectRatio).expandedTo({1, 1});
    const bool isColor = ImageConverter::screenChannels(image.pixelFormat) == 3;
    QImage thumbnail(fitting, isColor ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
    ImageConverter::ScreenRequest request;
    request.region = {0, 0, image.width, image.height};
    request.width = static_cast<std::uint32_t>(fitting.width());
    request.height = static_cast<std::uint32_t>(fitting.height());
    converter.toScreen(image, request, thumbnail.bits(), static_cast<std::size_t>(thumbnail.bytesPerLine()));
    return thumbnail;
}
