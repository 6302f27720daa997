#pragma once

#include "CvxCPP/Image.h"
#include "sdk/imagefile/CameraRecord.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using ByteList = std::vector<std::uint8_t>;

// Codes of the GenICam Pixel Format Naming Convention.
constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t mono10 = 0x01100003;
constexpr std::uint32_t mono12p = 0x010C0047;
constexpr std::uint32_t mono32 = 0x01200111;
constexpr std::uint32_t bayerRG8 = 0x01080009;
constexpr std::uint32_t bayerRG10 = 0x0110000D;
constexpr std::uint32_t rgb8 = 0x02180014;
constexpr std::uint32_t bgr8 = 0x02180015;
constexpr std::uint32_t unknownFormat = 0x81080001;

/// An image in memory.
class MemoryImage final : public CvxCPP::Image
{
public:
    MemoryImage(std::uint32_t format, std::uint32_t width, std::uint32_t height, ByteList bytes);

    const std::uint8_t *GetData() const override { return m_bytes.data(); }
    std::size_t GetSize() const override { return m_bytes.size(); }
    const CvxCPP::ImageInfo &GetInfo() const override { return m_info; }
    std::vector<CvxCPP::ChunkValue> GetChunks() const override { return m_chunks; }

    CvxCPP::ImageInfo m_info;
    std::vector<CvxCPP::ChunkValue> m_chunks;

private:
    ByteList m_bytes;
};

/// A test with a folder of its own.
class ImageFileTest : public testing::Test
{
protected:
    ImageFileTest();
    ~ImageFileTest() override;

    std::string path(const std::string &name) const { return m_folder / name; }
    /// Returns the names of the files in the folder, sorted.
    std::vector<std::string> names() const;

    static ByteList contentOf(const std::string &path);
    static nlohmann::json jsonOf(const std::string &path);

    /// Returns what a command of the shell prints on standard output and standard error.
    static std::string outputOf(const std::string &command);

    /// Returns the samples that ImageMagick reads from a file: 16 bits, little endian.
    /// @param kind "gray" or "rgb".
    static std::vector<std::uint16_t> readSamples(const std::string &file, const std::string &kind);

private:
    std::filesystem::path m_folder;
};

/// Returns a record with every field.
CameraRecord someCamera();
