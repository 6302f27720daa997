#pragma once

#include "CvxCPP/Image.h"

#include <atomic>
#include <cstddef>
#include <memory>

/// Keeps images that wait for a slow disk or encoder. The first few stay in the buffers of the stream; more
/// of them are copied, so that the stream always has free buffers and the live picture goes on. Any thread.
class ImageKeeper
{
public:
    /// @param maxHeld Images that may occupy buffers of the stream.
    /// @param maxCopied Bytes that copies may occupy.
    ImageKeeper(unsigned maxHeld, std::size_t maxCopied);

    /// Returns the image, or a copy of it. Returns null if both limits are reached or there is no memory; the
    /// image is then lost for the caller.
    std::shared_ptr<const CvxCPP::Image> keep(const std::shared_ptr<const CvxCPP::Image> &image);

    /// Returns a limit for copies that leaves the machine most of its memory.
    static std::size_t defaultCopyLimit();

private:
    struct Usage
    {
        std::atomic<unsigned> held{0};
        std::atomic<std::size_t> copied{0};
    };

    std::shared_ptr<const CvxCPP::Image> copyOf(const CvxCPP::Image &image) const;

    const unsigned m_maxHeld;
    const std::size_t m_maxCopied;
    const std::shared_ptr<Usage> m_usage = std::make_shared<Usage>(); // Kept images may outlive us.
};
