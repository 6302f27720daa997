#pragma once

#include "CvxCPP/Image.h"
#include "sdk/device/ChunkDecoder.h"
#include "sdk/device/StreamMemory.h"

#include <memory>

/// The API object for one image. Holds a buffer of its stream and releases it at the end.
class ImageObject final : public CvxCPP::Image
{
public:
    /// Takes over a claimed buffer with its record.
    ImageObject(std::shared_ptr<StreamMemory> memory, std::uint32_t buffer, const ImageRecord &record,
        std::shared_ptr<const ChunkDecoder> decoder);
    ~ImageObject() override;
    ImageObject(const ImageObject &) = delete;
    ImageObject &operator=(const ImageObject &) = delete;

    const std::uint8_t *GetData() const override;
    std::size_t GetSize() const override { return m_record.imageSize; }
    const CvxCPP::ImageInfo &GetInfo() const override { return m_info; }
    std::vector<CvxCPP::ChunkValue> GetChunks() const override;

private:
    const std::shared_ptr<StreamMemory> m_memory;
    const std::uint32_t m_buffer;
    const ImageRecord m_record;
    const std::shared_ptr<const ChunkDecoder> m_decoder;
    const CvxCPP::ImageInfo m_info;
};
