#pragma once

#include "tools/kit/live/PictureFeed.h"
#include "tools/kit/live/PicturePool.h"
#include "tools/kit/picture/PictureRenderer.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

/// The thread of a PictureFeed. Every function may be called on any thread.
class PictureWorker
{
public:
    struct Result
    {
        std::optional<ShownPicture> picture;
        std::optional<QSize> newSize; ///< An image has this size, which is not that of the request.
    };

    /// @param notify Called on the thread of the worker when there is a result.
    explicit PictureWorker(std::function<void()> notify);
    ~PictureWorker();

    // See PictureFeed.
    void take(std::shared_ptr<const CvxCPP::Image> image);
    void setRequest(const PictureRequest &request);
    void setFrozen(bool isFrozen);
    bool isFrozen() const;
    void accept();
    void clear();
    std::shared_ptr<const CvxCPP::Image> image() const;
    std::uint64_t shownCount() const;
    std::uint64_t skippedCount() const;

    /// Returns what has been found since the last call.
    Result takeResult();

private:
    using ImagePointer = std::shared_ptr<const CvxCPP::Image>;

    void run();
    bool canUse(const QSize &size) const;
    bool canRender() const;
    ImagePointer nextImage();
    ShownPicture render(const ImagePointer &image, const PictureRequest &request);

    const std::function<void()> m_notify;
    PictureRenderer m_renderer; // Only for the thread of the worker.
    PicturePool m_pool; // Likewise.

    mutable std::mutex m_mutex; // Protects everything below except the thread.
    std::condition_variable m_changed;
    ImagePointer m_newest; // Has never been rendered.
    ImagePointer m_present; // Was rendered last.
    PictureRequest m_request;
    Result m_result;
    bool m_isRequestNew = false; // The present image has not been rendered for the request.
    bool m_isAccepted = true;
    bool m_isFrozen = false;
    bool m_isEnding = false;
    bool m_hasNewSize = false; // The result has a size that was not notified yet.
    QSize m_reportedSize; // Reported since the last request.
    std::uint64_t m_clearCount = 0;
    std::uint64_t m_shown = 0;
    std::uint64_t m_skipped = 0;
    std::thread m_thread; // Declared last, because it uses everything above.
};
