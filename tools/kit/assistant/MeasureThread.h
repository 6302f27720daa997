#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/assistant/QueuedFrames.h"
#include "tools/kit/measure/run/MeasureContext.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>

/// One measurement on a thread of its own. Every function may be called on any thread.
class MeasureThread
{
public:
    struct Task
    {
        std::shared_ptr<CvxCPP::Camera> camera;
        std::shared_ptr<CvxCPP::Device> device; ///< Opened for control.
        bool keepsChanges = false; ///< Keeps the changed settings if the work succeeds.
        std::function<Sentence(const MeasureContext &context, const CameraRecord &camera)> work;
        /// Called last, on the thread, with what the work has returned, and why settings were not put back.
        std::function<void(const Sentence &sentence, const std::string &notPutBack)> ended;
    };

    /// Starts the work.
    explicit MeasureThread(Task task);

    /// Cancels the work and waits for its end.
    ~MeasureThread();

    MeasureThread(const MeasureThread &) = delete;
    MeasureThread &operator=(const MeasureThread &) = delete;

    /// Lets the work end soon: its progress says so, and no more images arrive.
    void cancel();

    QueuedFrames &frames() { return m_frames; }
    std::size_t done() const { return m_done; }
    std::size_t total() const { return m_total; }

private:
    void run();
    Sentence measure();

    const Task m_task;
    QueuedFrames m_frames;
    std::atomic<bool> m_isCancelled = false;
    std::atomic<std::size_t> m_done = 0;
    std::atomic<std::size_t> m_total = 0;
    std::thread m_thread; // Declared last, because it uses everything above.
};
