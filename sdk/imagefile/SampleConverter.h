#pragma once

#include "sdk/image/ImageConverter.h"
#include "sdk/imagefile/Samples.h"

#include <string>
#include <vector>

/// Converts pictures to the samples of image files. The returned samples are valid until the next call, and
/// as long as the picture. Its memory grows with the largest picture and is then reused.
class SampleConverter
{
public:
    /// Corrects the pictures that follow, unless the correction does not fit them; see Correction::problem().
    void setCorrection(const PlacedCorrection &correction);

    /// Returns the samples with the values that the camera has measured: 8 bits if the format has at most 8,
    /// otherwise 16. Bayer pictures keep their pattern. A picture in memory that already looks like this is
    /// not copied.
    Samples unscaled(const RawImage &picture);

    /// Returns grey or colour for the eye, the brightest value being 255. Bayer pictures are demosaiced.
    Samples fullRange8(const RawImage &picture);

    /// Returns grey or colour for the eye, the brightest value being 65535. Bayer pictures are demosaiced.
    Samples fullRange16(const RawImage &picture);

private:
    bool isCorrected(const RawImage &picture) const;

    PlacedCorrection m_correction;
    ImageConverter m_converter;
    std::vector<std::uint16_t> m_words;
    std::vector<std::uint8_t> m_bytes;
};

/// Returns why pictures of this format cannot be stored in PNG and TIFF files, for people; empty if they can.
std::string fileFormatProblem(std::uint32_t pixelFormat);

/// Returns why an image cannot be converted: its format, or that it has no pixels. Else an empty string.
std::string imageFileProblem(const CvxCPP::ImageInfo &info);

/// Returns the bytes that unscaled() has for a format that can be stored.
std::uint64_t unscaledSize(std::uint32_t pixelFormat, std::uint32_t width, std::uint32_t height);

/// Returns the name of a PFNC code, or the code as "0x01080001" if it has none.
std::string pixelFormatName(std::uint32_t pixelFormat);
