#include "tools/imageviewer/files/ImageKeeper.h"

#include <algorithm>
#include <new>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace CvxCPP;

namespace {

/// A copy of an image that occupies no buffer of the stream.
class ImageCopy final : public Image
{
public:
    explicit ImageCopy(const Image &image)
        : m_info(image.GetInfo()),
          m_chunks(image.GetChunks()),
          m_bytes(image.GetData(), image.GetData() + image.GetSize())
    { }

    const std::uint8_t *GetData() const override { return m_bytes.data(); }
    std::size_t GetSize() const override { return m_bytes.size(); }
    const ImageInfo &GetInfo() const override { return m_info; }
    std::vector<ChunkValue> GetChunks() const override { return m_chunks; }

private:
    const ImageInfo m_info;
    const std::vector<ChunkValue> m_chunks;
    const std::vector<std::uint8_t> m_bytes;
};

} // namespace

ImageKeeper::ImageKeeper(unsigned maxHeld, std::size_t maxCopied) : m_maxHeld(maxHeld), m_maxCopied(maxCopied)
{ }

std::shared_ptr<const Image> ImageKeeper::keep(const std::shared_ptr<const Image> &image)
{
    if (m_usage->held.fetch_add(1) < m_maxHeld)
        return {image.get(), [held = image, usage = m_usage](const Image *) mutable {
                    held.reset();
                    --usage->held;
                }};
    --m_usage->held;
    return copyOf(*image);
}

std::shared_ptr<const Image> ImageKeeper::copyOf(const Image &image) const
{
    const std::size_t size = image.GetSize();
    if (m_usage->copied.fetch_add(size) + size <= m_maxCopied) {
        try {
            return {new ImageCopy(image), [size, usage = m_usage](const Image *copy) {
                        delete copy;
                        usage->copied -= size;
                    }};
        } catch (const std::bad_alloc &) { // Counted by the caller, like an image beyond the limit.
        }
    }
    m_usage->copied -= size;
    return nullptr;
}

std::size_t ImageKeeper::defaultCopyLimit()
{
    constexpr std::size_t most = std::size_t(512) << 20U;
    constexpr std::size_t share = 8;
    const long pages = sysconf(_SC_AVPHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    const std::size_t free
        = static_cast<std::size_t>(std::max(pages, 0L)) * static_cast<std::size_t>(pageSize);
    return std::min(most, free / share);
}
