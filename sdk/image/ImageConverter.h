#pragma once

#include "sdk/image/Correction.h"
#include "sdk/image/PixelFormat.h"
#include "sdk/image/RawImage.h"

#include <cstddef>
#include <cstdint>
#include <memory>

struct PixelKernels;

/// How the missing colours of a Bayer picture are found.
enum class Demosaicing : std::uint8_t
{
    Bilinear, ///< The rounded mean of the two or four nearest pixels of a colour.
    EdgeAware ///< Hamilton and Adams: interpolates along edges; slower, with fewer colour fringes.
};

/// Converts pictures. One object serves one thread; its working memory grows with the largest picture and is
/// then reused, so a conversion allocates nothing. Pixels that an incomplete picture lacks become 0.
/// A format that is not in the table is shown as grey bytes: each pixel as the byte in which it begins.
/// Regions lie inside the picture, and no size is 0.
class ImageConverter
{
public:
    /// Uses the fastest code that this processor can run.
    ImageConverter();

    /// Uses the given code, which the processor must be able to run.
    explicit ImageConverter(const PixelKernels &kernels);

    ImageConverter(ImageConverter &&) noexcept;
    ImageConverter &operator=(ImageConverter &&) noexcept;
    ~ImageConverter();

    /// Corrects the pictures that follow, before colours are computed: defect pixels, then offset and gain.
    /// Pictures that the correction does not fit are converted without it; see Correction::problem().
    void setCorrection(const PlacedCorrection &correction);

    /// What toScreen() converts: the region of the picture, scaled to `width` x `height` output pixels.
    struct ScreenRequest
    {
        Region region; ///< Inside the picture.
        std::uint32_t width = 0;
        std::uint32_t height = 0;
        Demosaicing demosaicing = Demosaicing::Bilinear;
    };

    /// Returns the channels of toScreen() for a format: 1 (grey) or 3 (red, green, blue).
    static unsigned screenChannels(std::uint32_t pixelFormat);

    /// Converts to 8 bits per channel for the screen: the highest 8 significant bits of each component, or
    /// its range scaled to 8 bits if it has fewer. Signed numbers are shifted, so that 0 becomes grey, and
    /// floating-point numbers are shown from the lowest to the highest one of the whole picture, whatever the
    /// region. Coordinates are shown by their first component. A pixel without chroma of its own takes the
    /// nearest one. Enlarging repeats pixels, reducing averages them; see ScreenScaler. The lines of `output`
    /// have `stride` bytes.
    void toScreen(
        const RawImage &picture, const ScreenRequest &request, std::uint8_t *output, std::size_t stride);

    /// Returns the values per pixel of toWords() for a format: 1 to 4.
    static unsigned wordChannels(std::uint32_t pixelFormat);

    /// Unpacks a region to words of 16 bits without changing the values except by the correction: Bayer
    /// pictures keep their pattern, RGB gets the order red, green, blue (alpha), luma and chroma stay what
    /// they are and belong to each pixel. Signed numbers are in two's complement. Integers of 32 and 64 bits
    /// keep their highest 16 bits, and floating-point numbers are mapped to the range of 16 bits as for the
    /// screen. `output` has one line of `stride` words per line of the region.
    void toWords(const RawImage &picture, const Region &region, std::uint16_t *output, std::size_t stride);

    /// Converts a region to red, green and blue of 16 bits with the range of the component's depth, but at
    /// most 16 bits, with demosaicing for Bayer pictures. Grey is repeated, and signed numbers are shifted to
    /// the range from 0. `output` has one line of `stride` words per line of the region.
    void toColorWords(const RawImage &picture, const Region &region, Demosaicing demosaicing,
        std::uint16_t *output, std::size_t stride);

private:
    class Workspace;
    std::unique_ptr<Workspace> m_workspace;
};
