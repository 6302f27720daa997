#include "sdk/imagefile/PngWriter.h"

#include <png.h>

namespace {

// libpng reports errors by longjmp(), so these functions own nothing that needs a destructor.

void writeBytes(png_structp png, png_bytep data, std::size_t size)
{
    if (!static_cast<OutputFile *>(png_get_io_ptr(png))->append(data, size))
        png_error(png, "the file cannot be written");
}

void flushBytes(png_structp) { }

[[noreturn]] void endOnError(png_structp png, png_const_charp message)
{
    static_cast<OutputFile *>(png_get_error_ptr(png))->fail(message);
    png_longjmp(png, 1);
}

void ignoreWarning(png_structp, png_const_charp) { }

void writeHeader(png_structp png, png_infop info, const Samples &samples)
{
    png_set_IHDR(png, info, samples.width, samples.height, static_cast<int>(samples.bits),
        samples.isColor ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_GRAY, PNG_INTERLACE_NONE,
        PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (samples.significantBits < samples.bits) {
        const auto bits = static_cast<png_byte>(samples.significantBits);
        png_color_8 significant{};
        significant.red = significant.green = significant.blue = significant.gray = bits;
        png_set_sBIT(png, info, &significant);
    }
    png_write_info(png, info);
}

bool writeChunks(png_structp png, png_infop info, const Samples &samples)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    constexpr std::size_t dataChunk = 1U << 18U; // Bytes; small chunks are many small writes.
    png_set_compression_buffer_size(png, dataChunk);
    png_set_compression_level(png, 1); // Noise hardly compresses, and a person waits.
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
    writeHeader(png, info, samples);
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
    if (samples.bits == 16)
        png_set_swap(png);
#endif
    for (std::uint32_t y = 0; y < samples.height; ++y)
        png_write_row(png, samples.data + y * samples.lineSize());
    png_write_end(png, info);
    return true;
}

} // namespace

bool writePng(OutputFile &file, const Samples &samples)
{
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &file, endOnError, ignoreWarning);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (!info) {
        png_destroy_write_struct(&png, nullptr);
        return file.fail("there is not enough memory");
    }
    png_set_write_fn(png, &file, writeBytes, flushBytes);
    const bool isWritten = writeChunks(png, info, samples);
    png_destroy_write_struct(&png, &info);
    return isWritten;
}
