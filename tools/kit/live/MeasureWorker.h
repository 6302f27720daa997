#pragma once

#include "CvxCPP/Image.h"
#include "tools/kit/measure/PictureMeter.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

/// The thread of a Measurer. Every function may be called on any thread.
class MeasureWorker
{
public:
    /// @param notify Called on the thread of the worker when there is a result.
    explicit MeasureWorker(std::function<void()> notify);
    ~MeasureWorker();

    // See Measurer.
    void take(std::shared_ptr<const CvxCPP::Image> image);
    void setRequest(const MeasureRequest &request);
    void setFrozenImage(std::shared_ptr<const CvxCPP::Image> image);
    void clear();

    /// Returns what was measured last, unless it was returned before.
    std::optional<Measurements> takeResult();

private:
    using ImagePointer = std::shared_ptr<const CvxCPP::Image>;

    void run();

    const std::function<void()> m_notify;
    PictureMeter m_meter; // Only for the thread of the worker.

    std::mutex m_mutex; // Protects everything below except the thread.
    std::condition_variable m_changed;
    ImagePointer m_newest;
    ImagePointer m_frozen;
    MeasureRequest m_request;
    std::optional<Measurements> m_result;
    bool m_hasWork = false; // Image or request have changed since the last measurement.
    bool m_isEnding = false;
    std::uint64_t m_clearCount = 0;
    std::thread m_thread; // Declared last, because it uses everything above.
};
