#include "tools/kit/picture/PictureRenderer.h"

#include "sdk/image/ColorLines.h"
#include "tools/kit/picture/BrightnessTables.h"
#include "tools/kit/picture/ClipMarks.h"

#include <algorithm>

namespace {

// The formats of the pictures that have their final brightness.
constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t rgb8Planar = 0x02180021;

bool isNeutral(const DisplaySettings &settings, unsigned channels)
{
    const bool hasGains = channels > 1 && settings.gains != std::array<double, 3>{1, 1, 1};
    return settings.curve.isNeutral() && !hasGains;
}

void expandGrey(const std::uint8_t *bytes, std::size_t count, std::uint32_t *output)
{
    for (std::size_t i = 0; i < count; ++i)
        output[i] = 0xff000000U | bytes[i] * 0x010101U;
}

void expandColor(const std::uint8_t *bytes, std::size_t count, std::uint32_t *output)
{
    for (std::size_t i = 0; i < count; ++i, bytes += 3)
        output[i] = 0xff000000U | unsigned(bytes[0]) << 16U | unsigned(bytes[1]) << 8U | bytes[2];
}

} // namespace

class PictureRenderer::Workspace
{
public:
    void convert(const RawImage &picture, const ImageConverter::ScreenRequest &request, unsigned channels,
        std::uint32_t *output, std::size_t stride);
    RawImage withBrightness(const RawImage &picture, const PixelLayout &layout, const Region &region,
        const DisplaySettings &settings);

    std::uint32_t offsetX = 0;
    std::uint32_t offsetY = 0;
    ImageConverter converter;
    ColorLines<std::uint16_t> colors{bestKernels()};
    BrightnessTables tables;
    ClipMarks marks;
    std::vector<std::uint8_t> bright; ///< The region with its final brightness, before it is scaled.
    std::vector<std::uint8_t> scaled;
};

/// Converts to 8 bits and then to pixels of 32 bits.
void PictureRenderer::Workspace::convert(const RawImage &picture,
    const ImageConverter::ScreenRequest &request, unsigned channels, std::uint32_t *output,
    std::size_t stride)
{
    const std::size_t lineBytes = std::size_t(request.width) * channels;
    scaled.resize(std::max(scaled.size(), lineBytes * request.height));
    converter.toScreen(picture, request, scaled.data(), lineBytes);
    const auto expand = channels == 1 ? expandGrey : expandColor;
    for (std::uint32_t y = 0; y < request.height; ++y, output += stride)
        expand(scaled.data() + y * lineBytes, request.width, output);
}

/// Returns the region as a picture of 8 bits to which white balance and contrast have been applied.
RawImage PictureRenderer::Workspace::withBrightness(
    const RawImage &picture, const PixelLayout &layout, const Region &region, const DisplaySettings &settings)
{
    const unsigned channels = layout.screenChannels();
    const std::size_t planeBytes = std::size_t(region.width) * region.height;
    bright.resize(std::max(bright.size(), planeBytes * channels));
    tables.set(std::min<unsigned>(layout.format.depth, 16), channels, settings);
    colors.reader().setCorrection({settings.correction, offsetX, offsetY});
    colors.start(picture, layout, region, settings.demosaicing);
    for (std::uint32_t y = 0; y < region.height; ++y) {
        const std::array<const std::uint16_t *, 3> line = colors.line(y).channels;
        for (unsigned channel = 0; channel < channels; ++channel) {
            const std::uint8_t *const table = tables.table(channel);
            const std::uint16_t *const values = line[channel];
            std::uint8_t *const target = bright.data() + channel * planeBytes + std::size_t(y) * region.width;
            for (std::size_t x = 0; x < region.width; ++x)
                target[x] = table[values[x]];
        }
    }
    return {bright.data(), planeBytes * channels, region.width, region.height, 0,
        channels == 1 ? mono8 : rgb8Planar, false};
}

PictureRenderer::PictureRenderer() : m_workspace(std::make_unique<Workspace>()) { }
PictureRenderer::PictureRenderer(PictureRenderer &&) noexcept = default;
PictureRenderer &PictureRenderer::operator=(PictureRenderer &&) noexcept = default;
PictureRenderer::~PictureRenderer() = default;

void PictureRenderer::setPlace(std::uint32_t offsetX, std::uint32_t offsetY)
{
    m_workspace->offsetX = offsetX;
    m_workspace->offsetY = offsetY;
}

void PictureRenderer::render(const RawImage &picture, const Region &region, std::uint32_t width,
    std::uint32_t height, const DisplaySettings &settings, std::uint32_t *output, std::size_t stride)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const unsigned channels = layout.screenChannels();
    if (isNeutral(settings, channels)) {
        m_workspace->converter.setCorrection(
            {settings.correction, m_workspace->offsetX, m_workspace->offsetY});
        m_workspace->convert(
            picture, {region, width, height, settings.demosaicing}, channels, output, stride);
    } else {
        m_workspace->converter.setCorrection({}); // It only converts what has been corrected.
        const RawImage bright = m_workspace->withBrightness(picture, layout, region, settings);
        m_workspace->convert(
            bright, {{0, 0, region.width, region.height}, width, height}, channels, output, stride);
    }
    if (settings.hasClipMarks)
        m_workspace->marks.paint(picture, region, width, height, output, stride);
}
