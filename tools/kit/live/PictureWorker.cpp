#include "tools/kit/live/PictureWorker.h"

#include "sdk/image/RawImage.h"

#include <utility>

namespace {

QSize sizeOf(const CvxCPP::Image &image)
{
    return {static_cast<int>(image.GetInfo().width), static_cast<int>(image.GetInfo().height)};
}

} // namespace

PictureWorker::PictureWorker(std::function<void()> notify)
    : m_notify(std::move(notify)), m_thread([this] { run(); })
{ }

PictureWorker::~PictureWorker()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void PictureWorker::take(std::shared_ptr<const CvxCPP::Image> image)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_isFrozen)
            return;
        m_newest.swap(image); // The older image is released after the lock.
        m_skipped += image ? 1 : 0;
        if (!canUse(sizeOf(*m_newest)))
            return;
    }
    m_changed.notify_one();
}

void PictureWorker::setRequest(const PictureRequest &request)
{
    {
        const std::lock_guard lock(m_mutex);
        m_request = request;
        m_request.region &= QRect(QPoint(), request.pictureSize);
        m_isRequestNew = true;
        m_isAccepted = true;
        m_reportedSize = QSize();
    }
    m_changed.notify_one();
}

void PictureWorker::setFrozen(bool isFrozen)
{
    ImagePointer released;
    const std::lock_guard lock(m_mutex);
    m_isFrozen = isFrozen;
    if (!isFrozen)
        return;
    m_newest.swap(released);
    m_skipped += released ? 1 : 0;
}

bool PictureWorker::isFrozen() const
{
    const std::lock_guard lock(m_mutex);
    return m_isFrozen;
}

void PictureWorker::accept()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isAccepted = true;
    }
    m_changed.notify_one();
}

void PictureWorker::clear()
{
    ImagePointer newest;
    ImagePointer present;
    Result result;
    const std::lock_guard lock(m_mutex);
    newest.swap(m_newest);
    present.swap(m_present);
    std::swap(result, m_result);
    m_isFrozen = false;
    m_isAccepted = true;
    m_reportedSize = QSize();
    m_shown = m_skipped = 0;
    ++m_clearCount;
}

std::shared_ptr<const CvxCPP::Image> PictureWorker::image() const
{
    const std::lock_guard lock(m_mutex);
    return m_present;
}

std::uint64_t PictureWorker::shownCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_shown;
}

std::uint64_t PictureWorker::skippedCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_skipped;
}

PictureWorker::Result PictureWorker::takeResult()
{
    Result result;
    const std::lock_guard lock(m_mutex);
    std::swap(result, m_result);
    return result;
}

void PictureWorker::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        ImagePointer image = nextImage();
        const bool hasNewSize = std::exchange(m_hasNewSize, false);
        if (!image && !hasNewSize) {
            m_changed.wait(lock);
            continue;
        }
        const PictureRequest request = m_request;
        const std::uint64_t clearCount = m_clearCount;
        lock.unlock();
        if (image) {
            ShownPicture picture = render(image, request);
            image.reset();
            lock.lock();
            if (clearCount == m_clearCount)
                m_result.picture = std::move(picture);
            lock.unlock();
        }
        m_notify();
        lock.lock();
    }
}

/// Returns true if the thread has something to do for an image of this size. If not, accept() or setRequest()
/// wakes it later.
bool PictureWorker::canUse(const QSize &size) const
{
    return size == m_request.pictureSize ? canRender() : size != m_reportedSize;
}

bool PictureWorker::canRender() const
{
    return m_isAccepted && !m_request.region.isEmpty() && !m_request.size.isEmpty();
}

/// Returns the image that is to be rendered now, or null.
PictureWorker::ImagePointer PictureWorker::nextImage()
{
    const bool isNewer = m_newest != nullptr; // Never while frozen.
    if (!isNewer && !(m_present && m_isRequestNew))
        return nullptr;
    const QSize size = sizeOf(isNewer ? *m_newest : *m_present);
    if (size != m_request.pictureSize) {
        if (size != m_reportedSize) {
            m_reportedSize = size;
            m_result.newSize = size;
            m_hasNewSize = true;
        }
        return nullptr;
    }
    if (!canRender())
        return nullptr;
    if (isNewer) {
        m_present = std::move(m_newest);
        m_newest.reset();
        ++m_shown;
    }
    m_isRequestNew = false;
    m_isAccepted = false;
    return m_present;
}

ShownPicture PictureWorker::render(const ImagePointer &image, const PictureRequest &request)
{
    QImage &pixels = m_pool.take(request.size);
    const QRect &rect = request.region;
    const Region region{static_cast<std::uint32_t>(rect.x()), static_cast<std::uint32_t>(rect.y()),
        static_cast<std::uint32_t>(rect.width()), static_cast<std::uint32_t>(rect.height())};
    m_renderer.setPlace(image->GetInfo().offsetX, image->GetInfo().offsetY);
    m_renderer.render(rawImage(*image), region, static_cast<std::uint32_t>(request.size.width()),
        static_cast<std::uint32_t>(request.size.height()), request.settings,
        reinterpret_cast<std::uint32_t *>(pixels.bits()),
        static_cast<std::size_t>(pixels.bytesPerLine()) / sizeof(std::uint32_t));
    return {pixels, rect, request.pictureSize, image};
}
