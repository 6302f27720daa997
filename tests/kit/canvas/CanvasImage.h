#pragma once

#include "tests/kit/picture/TestPicture.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/picture/PictureRenderer.h"

/// An image of a stream whose pixels a test has written.
class CanvasImage : public CvxCPP::Image
{
public:
    explicit CanvasImage(const TestPicture &picture) : m_picture(picture)
    {
        m_info.width = m_picture.raw().width;
        m_info.height = m_picture.raw().height;
        m_info.pixelFormat = m_picture.raw().pixelFormat;
    }

    const std::uint8_t *GetData() const override { return m_picture.raw().data; }
    std::size_t GetSize() const override { return m_picture.raw().size; }
    const CvxCPP::ImageInfo &GetInfo() const override { return m_info; }
    std::vector<CvxCPP::ChunkValue> GetChunks() const override { return {}; }

private:
    TestPicture m_picture;
    CvxCPP::ImageInfo m_info;
};

/// Converts an image as the canvas requests it.
inline ShownPicture shownPicture(
    const std::shared_ptr<const CvxCPP::Image> &image, const PictureRequest &request)
{
    QImage pixels(request.size, QImage::Format_RGB32);
    const QRect &region = request.region;
    const auto number = [](int value) { return static_cast<std::uint32_t>(value); };
    PictureRenderer().render(rawImage(*image),
        {number(region.x()), number(region.y()), number(region.width()), number(region.height())},
        number(request.size.width()), number(request.size.height()), request.settings,
        reinterpret_cast<std::uint32_t *>(pixels.bits()),
        static_cast<std::size_t>(pixels.bytesPerLine()) / 4);
    return {pixels, region, request.pictureSize, image};
}

/// Shows an image in the canvas, as a stream does.
inline void show(ImageCanvas &canvas, const std::shared_ptr<const CvxCPP::Image> &image)
{
    const CvxCPP::ImageInfo &info = image->GetInfo();
    canvas.setPictureSize({static_cast<int>(info.width), static_cast<int>(info.height)});
    canvas.setPicture(shownPicture(image, canvas.request()));
}
