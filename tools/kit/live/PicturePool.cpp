#include "tools/kit/live/PicturePool.h"

QImage &PicturePool::take(const QSize &size)
{
    for (QImage &image : m_images)
        if (image.size() == size && image.isDetached())
            return image;
    m_last = (m_last + 1) % m_images.size();
    m_images[m_last] = QImage(size, QImage::Format_RGB32);
    return m_images[m_last];
}
