#include "sdk/imagefile/TiffWriter.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <tiffio.h>

namespace {

/// The file as libtiff sees it while it writes one image: the parts before are a header without directories.
/// libtiff links a directory before it writes it, so the header stays in memory until the image is complete.
/// That also spares libtiff the search for the last directory.
struct TiffTarget
{
    OutputFile &file;
    std::uint64_t headerSize;
    std::uint64_t end; // Where the image begins, later where it ends.
    std::uint64_t position = 0;
    std::array<std::uint8_t, 16> header{};
};

tmsize_t readTarget(thandle_t handle, void *data, tmsize_t size)
{
    auto &target = *static_cast<TiffTarget *>(handle);
    const auto count = static_cast<std::size_t>(size);
    if (target.position + count <= target.headerSize)
        std::memcpy(data, target.header.data() + target.position, count);
    else if (!target.file.read(target.position, data, count))
        return -1;
    target.position += count;
    return size;
}

tmsize_t writeTarget(thandle_t handle, void *data, tmsize_t size)
{
    auto &target = *static_cast<TiffTarget *>(handle);
    const auto count = static_cast<std::size_t>(size);
    if (target.position + count <= target.headerSize)
        std::memcpy(target.header.data() + target.position, data, count);
    else if (!target.file.write(target.position, data, count))
        return -1;
    target.position += count;
    target.end = std::max(target.end, target.position);
    return size;
}

toff_t seekTarget(thandle_t handle, toff_t offset, int origin)
{
    auto &target = *static_cast<TiffTarget *>(handle);
    const std::uint64_t base = origin == SEEK_SET ? 0 : (origin == SEEK_CUR ? target.position : target.end);
    target.position = base + offset;
    return target.position;
}

int closeTarget(thandle_t)
{
    return 0;
}

toff_t sizeOfTarget(thandle_t handle)
{
    return static_cast<TiffTarget *>(handle)->end;
}

int mapTarget(thandle_t, void **, toff_t *)
{
    return 0;
}

void unmapTarget(thandle_t, void *, toff_t) { }

/// Makes libtiff print nothing: OutputFile knows why a file cannot be written.
void silenceLibrary()
{
    static const bool isSilent = [] {
        TIFFSetErrorHandler(nullptr);
        TIFFSetWarningHandler(nullptr);
        return true;
    }();
    static_cast<void>(isSilent);
}

bool setText(TIFF *tiff, std::uint32_t tag, const std::string &text)
{
    return text.empty() || TIFFSetField(tiff, tag, text.c_str()) != 0;
}

bool setNumbers(TIFF *tiff, const Samples &samples)
{
    if (samples.isFloat)
        return TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_IEEEFP) != 0;
    const unsigned maximum = (1U << (samples.significantBits - (samples.isSigned ? 1U : 0U))) - 1;
    return TIFFSetField(tiff, TIFFTAG_MAXSAMPLEVALUE, maximum) != 0
        && (!samples.isSigned || TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_INT) != 0);
}

bool setLayout(TIFF *tiff, const Samples &samples)
{
    const unsigned colors = samples.isColor ? 3 : 1;
    const std::array<std::uint16_t, 4> extraSamples{}; // Without a meaning that a reader would use.
    const unsigned extraCount = samples.channels - colors;
    return TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, samples.width) != 0
        && TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, samples.height) != 0
        && TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, samples.channels) != 0
        && TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, samples.bits) != 0 && setNumbers(tiff, samples)
        && TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, samples.isColor ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK)
        != 0
        && (extraCount == 0 || TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, extraCount, extraSamples.data()) != 0)
        && TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) != 0
        && TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_NONE) != 0
        && TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, samples.height) != 0;
}

bool setTexts(TIFF *tiff, const TiffTexts &texts)
{
    return setText(tiff, TIFFTAG_IMAGEDESCRIPTION, texts.description)
        && setText(tiff, TIFFTAG_DATETIME, texts.dateTime) && setText(tiff, TIFFTAG_MAKE, texts.vendor)
        && setText(tiff, TIFFTAG_MODEL, texts.model);
}

bool writeStrip(TIFF *tiff, const Samples &samples)
{
    const auto size = static_cast<tmsize_t>(samples.size());
    // libtiff only reads the data, because it swaps no bytes and compresses nothing.
    return TIFFWriteRawStrip(tiff, 0, const_cast<std::uint8_t *>(samples.data), size) == size;
}

/// Returns a number of 2, 4 or 8 bytes in the byte order of this machine, which is that of the file.
std::uint64_t numberAt(const std::uint8_t *bytes, std::size_t size)
{
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
        constexpr bool isBigEndian = __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__;
        number |= std::uint64_t(bytes[i]) << (8 * (isBigEndian ? size - 1 - i : i));
    }
    return number;
}

/// Writes an image at the end of the target.
bool writeImage(TiffTarget &target, const char *mode, const Samples &samples, const TiffTexts &texts)
{
    TIFF *const tiff = TIFFClientOpen("image", mode, &target, readTarget, writeTarget, seekTarget,
        closeTarget, sizeOfTarget, mapTarget, unmapTarget);
    if (!tiff)
        return false;
    const bool isWritten = setLayout(tiff, samples) && setTexts(tiff, texts) && writeStrip(tiff, samples)
        && TIFFWriteDirectory(tiff) != 0;
    TIFFClose(tiff);
    return isWritten;
}

} // namespace

TiffWriter::TiffWriter(OutputFile &file, Variant variant) : m_file(file), m_variant(variant)
{
    silenceLibrary();
}

TiffWriter::Links TiffWriter::linksOf(Variant variant)
{
    return variant == Variant::Big ? Links{16, 8, 8, 8, 20} : Links{8, 4, 4, 2, 12};
}

bool TiffWriter::append(const Samples &samples, const TiffTexts &texts)
{
    const Links links = linksOf(m_variant);
    const std::uint64_t start = m_file.size();
    TiffTarget target{m_file, links.headerSize, std::max(start, links.headerSize)};
    if (!writeImage(target, m_variant == Variant::Big ? "w8" : "w", samples, texts)) {
        m_file.fail("libtiff does not accept the image");
        m_file.truncate(start);
        return false;
    }
    const std::uint8_t *const link = target.header.data() + links.headerLink;
    const std::uint64_t directory = numberAt(link, links.linkSize);
    std::array<std::uint8_t, 8> count{};
    if (!m_file.read(directory, count.data(), links.countSize))
        return false;
    const bool isLinked = m_linkPosition == 0 ? m_file.write(0, target.header.data(), links.headerSize)
                                              : m_file.write(m_linkPosition, link, links.linkSize);
    m_linkPosition = directory + links.countSize + numberAt(count.data(), links.countSize) * links.entrySize;
    return isLinked;
}
