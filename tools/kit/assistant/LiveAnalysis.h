#pragma once

#include "tools/kit/live/ImageSink.h"

#include <QObject>

#include <functional>
#include <memory>

/// Analyses the newest image again and again on a thread of its own, at most `maxRate` times per second and
/// for at most half of the time, and passes the results to the GUI thread. Images in between are left out.
/// Remove it from its stream before it is destroyed.
class LiveAnalysis : public QObject, public ImageSink
{
    Q_OBJECT

public:
    /// Passes the result on, on the GUI thread.
    using Deliver = std::function<void()>;

    /// Analyses an image on the analysis' thread. Returns what is done with the result; may be empty.
    using Analyse = std::function<Deliver(const std::shared_ptr<const CvxCPP::Image> &image)>;

    /// @param maxRate Analyses per second.
    LiveAnalysis(Analyse analyse, double maxRate, QObject *parent = nullptr);

    /// Waits for a running analysis.
    ~LiveAnalysis() override;

    void take(const std::shared_ptr<const CvxCPP::Image> &image) override;

    /// Analyses the last image again, because parameters have changed. GUI thread.
    void repeat();

    /// Forgets the image; a result that is on its way is not delivered any more. GUI thread.
    void clear();

private:
    class Worker;
    std::unique_ptr<Worker> m_worker;
};
