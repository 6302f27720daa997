#pragma once

#include "tools/imageviewer/files/RecordingTarget.h"
#include "tools/kit/live/ImageSink.h"

#include <QObject>

#include <chrono>
#include <mutex>
#include <optional>

/// Passes the images of the stream to a recording until a limit is reached.
class RecordingSink : public QObject, public ImageSink
{
    Q_OBJECT

public:
    /// @param maxImages 0 for no limit.
    /// @param maxSeconds From the first image on; 0 for no limit.
    RecordingSink(RecordingTarget &target, std::uint64_t maxImages, double maxSeconds);

    void take(const std::shared_ptr<const CvxCPP::Image> &image) override;

    /// Returns the time since the first image; 0 before it. Any thread.
    double seconds() const;

    /// Returns true if a limit is reached, also if no image arrives any more. Any thread.
    bool isComplete() const;

    /// Returns true if width or format of the images has changed. Any thread.
    bool hasFormatChanged() const;

signals:
    /// A limit is reached: later images are ignored. Emitted on the thread of the stream, once.
    void complete();

private:
    using Clock = std::chrono::steady_clock;

    struct Decision
    {
        bool isTaken = false;
        bool isLast = false;
    };

    Decision decide(const CvxCPP::ImageInfo &info);
    bool isTimeOver() const; // The caller holds the mutex.

    RecordingTarget &m_target;
    const std::uint64_t m_maxImages;
    const double m_maxSeconds;
    mutable std::mutex m_mutex; // Protects the following members.
    std::uint64_t m_images = 0;
    std::optional<Clock::time_point> m_start;
    CvxCPP::ImageInfo m_first;
    bool m_hasFormatChanged = false;
    bool m_isComplete = false;
};
