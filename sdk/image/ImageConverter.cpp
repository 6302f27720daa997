#include "sdk/image/ImageConverter.h"

#include "sdk/image/ColorLines.h"
#include "sdk/image/ScreenScaler.h"

class ImageConverter::Workspace
{
public:
    explicit Workspace(const PixelKernels &kernels) : bytes(kernels), words(kernels) { }

    ColorLines<std::uint8_t> bytes;
    ColorLines<std::uint16_t> words;
    ScreenScaler scaler;
};

namespace {

/// Returns true if each pixel contains its own red, green and blue in three bytes, in any order.
bool hasColorBytes(const PixelLayout &layout)
{
    return layout.format.kind == PixelKind::Rgb && layout.packing == Packing::Bytes
        && layout.planes == Planes::Interleaved;
}

} // namespace

ImageConverter::ImageConverter() : ImageConverter(bestKernels()) { }

ImageConverter::ImageConverter(const PixelKernels &kernels)
    : m_workspace(std::make_unique<Workspace>(kernels))
{ }

ImageConverter::ImageConverter(ImageConverter &&) noexcept = default;
ImageConverter &ImageConverter::operator=(ImageConverter &&) noexcept = default;
ImageConverter::~ImageConverter() = default;

void ImageConverter::setCorrection(const PlacedCorrection &correction)
{
    m_workspace->bytes.reader().setCorrection(correction);
    m_workspace->words.reader().setCorrection(correction);
}

unsigned ImageConverter::screenChannels(std::uint32_t pixelFormat)
{
    return findPixelLayout(pixelFormat).screenChannels();
}

void ImageConverter::toScreen(
    const RawImage &picture, const ScreenRequest &request, std::uint8_t *output, std::size_t stride)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const Region &region = request.region;
    ColorLines<std::uint8_t> &lines = m_workspace->bytes;
    lines.start(picture, layout, region, request.demosaicing);
    const bool isScaled = region.width != request.width || region.height != request.height;
    if (isScaled || !hasColorBytes(layout)) {
        m_workspace->scaler.scale(
            lines, region, {request.width, request.height, layout.screenChannels(), output, stride});
        return;
    }
    for (std::uint32_t y = 0; y < region.height; ++y, output += stride)
        lines.reader().write(region.y + y, region.x, region.width, 3, output);
}

unsigned ImageConverter::wordChannels(std::uint32_t pixelFormat)
{
    return findPixelLayout(pixelFormat).format.components;
}

void ImageConverter::toWords(
    const RawImage &picture, const Region &region, std::uint16_t *output, std::size_t stride)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    LineReader<std::uint16_t> &reader = m_workspace->words.reader();
    reader.setPicture(picture, layout);
    for (std::uint32_t y = 0; y < region.height; ++y, output += stride) {
        if (layout.format.kind == PixelKind::BiColor)
            reader.writeComponents(region.y + y, region.x, region.width, output);
        else
            reader.write(region.y + y, region.x, region.width, layout.format.components, output);
    }
}

void ImageConverter::toColorWords(const RawImage &picture, const Region &region, Demosaicing demosaicing,
    std::uint16_t *output, std::size_t stride)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    ColorLines<std::uint16_t> &lines = m_workspace->words;
    lines.start(picture, layout, region, demosaicing);
    const bool isGrey = layout.screenChannels() == 1;
    for (std::uint32_t y = 0; y < region.height; ++y, output += stride) {
        const std::array<const std::uint16_t *, 3> colors = lines.line(y).channels;
        const std::uint16_t *const red = colors[0];
        const std::uint16_t *const green = isGrey ? red : colors[1];
        const std::uint16_t *const blue = isGrey ? red : colors[2];
        for (std::size_t i = 0; i < region.width; ++i) {
            output[3 * i] = red[i];
            output[3 * i + 1] = green[i];
            output[3 * i + 2] = blue[i];
        }
    }
}
