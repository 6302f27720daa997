#pragma once

#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/Samples.h"

#include <cstdint>
#include <string>

/// Texts about one image of a TIFF file. Empty texts are not stored.
struct TiffTexts
{
    std::string description;
    std::string dateTime; ///< "2026:01:31 23:59:59", in UTC.
    std::string vendor;
    std::string model;
};

/// Appends images to a TIFF file, each as a directory of its own with one uncompressed strip. At any moment,
/// the file is valid up to the last image that was appended completely: a directory is linked only after all
/// of it has been written.
class TiffWriter
{
public:
    enum class Variant
    {
        Classic, ///< At most 4 GiB. Every program reads this variant.
        Big ///< BigTIFF: without this limit.
    };

    /// The file is empty and outlives the writer.
    TiffWriter(OutputFile &file, Variant variant);

    /// Returns false on failure; the file has the reason and ends with the previous image.
    bool append(const Samples &samples, const TiffTexts &texts);

private:
    /// How a variant stores links: in its header and behind the entries of a directory.
    struct Links
    {
        std::uint64_t headerSize;
        std::size_t headerLink; ///< Position of the first link in the header.
        std::size_t linkSize;
        std::size_t countSize; ///< Bytes of the number of entries.
        std::size_t entrySize;
    };
    static Links linksOf(Variant variant);

    OutputFile &m_file;
    const Variant m_variant;
    std::uint64_t m_linkPosition = 0; // Where the position of the next directory belongs.
};
