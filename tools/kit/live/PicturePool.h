#pragma once

#include <QImage>
#include <QSize>

#include <array>

/// Provides images to draw into, and reuses those that nobody else shows any more.
class PicturePool
{
public:
    /// Returns an RGB32 image of this size, which only the caller and the pool have.
    QImage &take(const QSize &size);

    /// Releases the memory.
    void clear() { m_images = {}; }

private:
    std::array<QImage, 3> m_images; ///< One that is shown, one that waits for the screen, one to draw into.
    std::size_t m_last = 0;
};
