#include "sdk/camerahost/DescriptionArchive.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <strings.h>
#include <zlib.h>

namespace {

constexpr std::string_view fileSignature("PK\3\4", 4);
constexpr std::string_view directorySignature("PK\1\2", 4);
constexpr std::string_view endSignature("PK\5\6", 4);
constexpr std::size_t fileHeaderSize = 30;
constexpr std::size_t directoryHeaderSize = 46;
constexpr std::size_t endRecordSize = 22;
constexpr unsigned stored = 0;
constexpr unsigned deflated = 8;
constexpr unsigned encryptedFlag = 1;

/// One file of the archive, as the directory at the end of the archive describes it. The headers before the
/// files may lack the sizes.
struct ArchivedFile
{
    std::string_view name;
    unsigned flags = 0;
    unsigned method = 0;
    std::uint32_t checksum = 0;
    std::size_t packedSize = 0;
    std::size_t size = 0;
    std::size_t offset = 0;
};

/// Returns the little-endian number of `Size` bytes; the caller has checked that the bytes exist.
template <std::size_t Size>
std::uint32_t numberAt(std::string_view bytes, std::size_t offset)
{
    std::uint32_t number = 0;
    for (std::size_t i = Size; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[offset + i]);
    return number;
}

bool hasAt(std::string_view bytes, std::size_t offset, std::string_view signature, std::size_t size)
{
    return offset <= bytes.size() && bytes.size() - offset >= size
        && bytes.substr(offset, signature.size()) == signature;
}

/// Returns the offset of the directory, which the record at the end of the archive states. Bytes may follow
/// the archive.
std::optional<std::size_t> findDirectory(std::string_view archive)
{
    for (std::size_t at = archive.rfind(endSignature); at != std::string_view::npos;
         at = at == 0 ? std::string_view::npos : archive.rfind(endSignature, at - 1)) {
        if (hasAt(archive, at, endSignature, endRecordSize))
            return numberAt<4>(archive, at + 16);
    }
    return std::nullopt;
}

bool hasXmlName(std::string_view name)
{
    return name.size() >= 4 && strncasecmp(name.data() + name.size() - 4, ".xml", 4) == 0;
}

std::optional<ArchivedFile> findXmlFile(std::string_view archive)
{
    std::optional<std::size_t> at = findDirectory(archive);
    while (at && hasAt(archive, *at, directorySignature, directoryHeaderSize)) {
        const std::string_view header = archive.substr(*at);
        const std::size_t nameSize = numberAt<2>(header, 28);
        const ArchivedFile file{header.substr(directoryHeaderSize, nameSize), numberAt<2>(header, 8),
            numberAt<2>(header, 10), numberAt<4>(header, 16), numberAt<4>(header, 20),
            numberAt<4>(header, 24), numberAt<4>(header, 42)};
        if (hasXmlName(file.name))
            return file;
        *at += directoryHeaderSize + nameSize + numberAt<2>(header, 30) + numberAt<2>(header, 32);
    }
    return std::nullopt;
}

/// Returns the packed bytes of the file.
std::optional<std::string_view> packedBytes(std::string_view archive, const ArchivedFile &file)
{
    if (!hasAt(archive, file.offset, fileSignature, fileHeaderSize))
        return std::nullopt;
    const std::string_view header = archive.substr(file.offset);
    const std::size_t start = fileHeaderSize + numberAt<2>(header, 26) + numberAt<2>(header, 28);
    if (header.size() < start || header.size() - start < file.packedSize)
        return std::nullopt;
    return header.substr(start, file.packedSize);
}

/// Inflates into exactly `size` bytes; returns nothing if the data are damaged or have another size.
std::optional<std::string> inflated(std::string_view packed, std::size_t size)
{
    // One byte more than expected, or a file that is larger than stated would go unnoticed.
    std::string bytes(size + 1, '\0');
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK)
        return std::nullopt;
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef *>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    const int status = inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    if (status != Z_STREAM_END || stream.total_out != size)
        return std::nullopt;
    bytes.resize(size);
    return bytes;
}

bool hasChecksum(const std::string &bytes, std::uint32_t checksum)
{
    return crc32(0, reinterpret_cast<const Bytef *>(bytes.data()), static_cast<uInt>(bytes.size()))
        == checksum;
}

DescriptionProblem archiveProblem(const std::string &reason)
{
    return {"the zip archive " + reason};
}

} // namespace

bool isZipArchive(std::string_view bytes)
{
    return bytes.substr(0, fileSignature.size()) == fileSignature;
}

std::variant<std::string, DescriptionProblem> extractDescription(
    std::string_view archive, std::size_t maxSize)
{
    const std::optional<ArchivedFile> file = findXmlFile(archive);
    if (!file)
        return archiveProblem("is damaged or contains no XML file");
    if (file->size > maxSize)
        return archiveProblem("contains a file of " + std::to_string(file->size) + " bytes, more than the "
            + std::to_string(maxSize) + " bytes that are allowed");
    if (file->flags & encryptedFlag)
        return archiveProblem("is encrypted");
    if (file->method != stored && file->method != deflated)
        return archiveProblem("uses the unknown compression method " + std::to_string(file->method));

    const std::optional<std::string_view> packed = packedBytes(archive, *file);
    if (!packed)
        return archiveProblem("is damaged or incomplete");
    std::optional<std::string> bytes
        = file->method == stored ? std::string(*packed) : inflated(*packed, file->size);
    if (!bytes || bytes->size() != file->size || !hasChecksum(*bytes, file->checksum))
        return archiveProblem("is damaged");
    return *std::move(bytes);
}
