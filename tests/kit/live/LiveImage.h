#pragma once

#include "CvxCPP/Image.h"

#include <memory>

/// A Mono8 image in memory whose pixels all have one value.
class LiveImage : public CvxCPP::Image
{
public:
    LiveImage(std::uint64_t frameId, std::uint32_t width, std::uint32_t height, std::uint8_t value);

    /// Returns an image of 4 x 2 pixels with the frame ID as their value.
    static std::shared_ptr<const CvxCPP::Image> make(
        std::uint64_t frameId, std::uint32_t width = 4, std::uint32_t height = 2);

    const std::uint8_t *GetData() const override { return m_bytes.data(); }
    std::size_t GetSize() const override { return m_bytes.size(); }
    const CvxCPP::ImageInfo &GetInfo() const override { return m_info; }
    std::vector<CvxCPP::ChunkValue> GetChunks() const override { return {}; }

private:
    CvxCPP::ImageInfo m_info;
    std::vector<std::uint8_t> m_bytes;
};
