#include "tools/cvxctl/ImageFile.h"

#include "tools/cvxctl/Demosaicing.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <png.h>
#include <vector>

namespace {

// Codes of the GenICam Pixel Format Naming Convention.
constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t bayerRG8 = 0x01080009;
constexpr std::uint32_t rgb8 = 0x02180014;

/// The pixels of a PNG file.
struct Pixels
{
    std::vector<std::uint8_t> owned; ///< Empty if `data` points into the image.
    const std::uint8_t *data = nullptr;
    std::size_t lineSize = 0;
    bool isColor = false;
};

std::string systemError(const std::string &path)
{
    return "\"" + path + "\" cannot be written: " + std::strerror(errno);
}

std::string findPixels(const CvxCPP::Image &image, Pixels &pixels)
{
    const CvxCPP::ImageInfo &info = image.GetInfo();
    std::array<char, 11> code{};
    std::snprintf(code.data(), code.size(), "0x%08X", info.pixelFormat);
    if (info.pixelFormat != mono8 && info.pixelFormat != bayerRG8 && info.pixelFormat != rgb8)
        return std::string("the pixel format ") + code.data()
            + " cannot be written as PNG; write a raw file (.raw) or set PixelFormat to Mono8, BayerRG8 or "
              "RGB8";
    const std::size_t bytesPerPixel = info.pixelFormat == rgb8 ? 3 : 1;
    pixels.lineSize = bytesPerPixel * info.width + info.paddingX;
    pixels.data = image.GetData();
    pixels.isColor = info.pixelFormat != mono8;
    if (info.width < 2 || info.height < 2)
        return "the image is smaller than 2 × 2 pixels";
    // The padding of the last line may be missing.
    if (image.GetSize() + info.paddingX < pixels.lineSize * info.height)
        return "the image is not complete";
    if (info.pixelFormat != bayerRG8)
        return {};
    pixels.owned = demosaicBayerRG8(pixels.data, info.width, info.height, pixels.lineSize);
    pixels.data = pixels.owned.data();
    pixels.lineSize = std::size_t(3) * info.width;
    return {};
}

} // namespace

std::string writePng(const CvxCPP::Image &image, const std::string &path)
{
    Pixels pixels;
    if (std::string problem = findPixels(image, pixels); !problem.empty())
        return problem;
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = image.GetInfo().width;
    png.height = image.GetInfo().height;
    png.format = pixels.isColor ? PNG_FORMAT_RGB : PNG_FORMAT_GRAY;
    png.flags = PNG_IMAGE_FLAG_FAST;
    // The function wants the distance of two lines in components, which are bytes here.
    const int isWritten = png_image_write_to_file(
        &png, path.c_str(), 0, pixels.data, static_cast<png_int_32>(pixels.lineSize), nullptr);
    return isWritten != 0 ? std::string() : "\"" + path + "\" cannot be written: " + png.message;
}

std::string writeRaw(const CvxCPP::Image &image, const std::string &path)
{
    std::FILE *const file = std::fopen(path.c_str(), "wb");
    if (!file)
        return systemError(path);
    const bool isWritten = std::fwrite(image.GetData(), 1, image.GetSize(), file) == image.GetSize();
    const int writeError = errno;
    if (std::fclose(file) == 0 && isWritten)
        return {};
    if (!isWritten)
        errno = writeError;
    return systemError(path);
}
