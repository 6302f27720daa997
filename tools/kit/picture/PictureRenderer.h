#pragma once

#include "sdk/image/ImageConverter.h"
#include "sdk/image/RawImage.h"
#include "tools/kit/picture/DisplaySettings.h"

#include <cstddef>
#include <cstdint>
#include <memory>

/// Turns a region of a picture into pixels for the screen. One object serves one thread; its memory is
/// reused. Only the region is converted. Corrections, contrast and white balance are applied at the full
/// depth, before the reduction to 8 bits.
class PictureRenderer
{
public:
    PictureRenderer();
    PictureRenderer(PictureRenderer &&) noexcept;
    PictureRenderer &operator=(PictureRenderer &&) noexcept;
    ~PictureRenderer();

    /// Sets the place on the sensor of the pictures that follow, which matters for corrections.
    void setPlace(std::uint32_t offsetX, std::uint32_t offsetY);

    /// Writes `width` x `height` pixels of the form 0xffRRGGBB. A pixel is marked as clipped if any pixel of
    /// the picture in its place is at the lowest or highest value of the format; see ClipMarks.
    /// @param stride Pixels per output line.
    void render(const RawImage &picture, const Region &region, std::uint32_t width, std::uint32_t height,
        const DisplaySettings &settings, std::uint32_t *output, std::size_t stride);

private:
    class Workspace;
    std::unique_ptr<Workspace> m_workspace;
};
