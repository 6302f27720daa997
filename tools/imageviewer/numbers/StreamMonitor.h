#pragma once

#include "tools/imageviewer/numbers/BufferWatch.h"
#include "tools/imageviewer/numbers/LossAdviser.h"
#include "tools/imageviewer/numbers/LossWindow.h"
#include "tools/imageviewer/numbers/RateHistory.h"
#include "tools/imageviewer/numbers/StreamNumbers.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/live/LiveStream.h"
#include "tools/kit/live/PictureFeed.h"

#include <QElapsedTimer>
#include <QTimer>

/// Reads the counters of the stream twice a second for everything that shows them. The numbers begin anew
/// when another camera is opened.
class StreamMonitor : public QObject
{
    Q_OBJECT

public:
    StreamMonitor(LiveStream &stream, PictureFeed &feed, FeatureClient &features, QObject *parent = nullptr);
    ~StreamMonitor() override;

    /// Sets the number of buffers with which the stream is started.
    void setBuffers(unsigned buffers) { m_buffers = buffers; }

    const StreamFigures &figures() const { return m_figures; }
    const RateHistory &history() const { return m_history; }
    const LossAdvice &advice() const { return m_adviser.advice(); }

signals:
    /// Figures, history or advice are new.
    void updated();

private:
    void followCamera();
    void followFeatures();
    void update();
    void readFeatures();
    void readResends();
    void takeResends(const CvxCPP::CvxResult &result, std::int64_t value);
    void adviseOnLosses();
    void beginAnew();

    LiveStream &m_stream;
    PictureFeed &m_feed;
    FeatureClient &m_features;
    unsigned m_buffers = 0;
    BufferWatch m_bufferWatch;
    StreamFigures m_figures;
    std::string m_resendCounter; // Name of the feature; empty if the camera has none.
    bool m_isReadingResends = false;
    RateHistory m_history;
    LossWindow m_lossWindow;
    LossAdviser m_adviser;
    QElapsedTimer m_clock;
    QTimer m_timer;
};
