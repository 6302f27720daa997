#include "tools/imageviewer/numbers/BufferWatch.h"

#include <algorithm>

namespace {

void forgetReleased(std::deque<std::weak_ptr<const CvxCPP::Image>> &images)
{
    images.erase(
        std::remove_if(images.begin(), images.end(), [](const auto &image) { return image.expired(); }),
        images.end());
}

} // namespace

void BufferWatch::take(const std::shared_ptr<const CvxCPP::Image> &image)
{
    const std::lock_guard lock(m_mutex);
    forgetReleased(m_images);
    m_images.push_back(image);
}

unsigned BufferWatch::usedBuffers() const
{
    const std::lock_guard lock(m_mutex);
    forgetReleased(m_images);
    return static_cast<unsigned>(m_images.size());
}
