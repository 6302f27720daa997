#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/live/ImageSink.h"

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class StreamSession;

/// The stream of the connected camera. Receives every image on a thread of its own and gives it to the sinks,
/// so nothing that a window does makes the stream lose images. All functions are called on the GUI thread;
/// only take() of the sinks is called on the thread of the stream. A stream whose camera is lost continues
/// when the SDK has opened the camera again. If the connection is closed or opens another camera, the state
/// becomes Stopped.
class LiveStream : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Stopped,
        Starting,
        Running,
        Stopping,
        Failed ///< Starting failed, or the stream ended by itself; see problem().
    };
    Q_ENUM(State)

    explicit LiveStream(CameraConnection &connection, QObject *parent = nullptr);

    /// Stops the stream. Blocks for at most 3 s.
    ~LiveStream() override;

    State state() const;
    QString problem() const; ///< For people; empty unless the state is Failed.

    /// Starts the stream with this number of buffers, 2 to 256. Has no effect unless the state is Stopped or
    /// Failed. A start that fails because the camera is lost is repeated when the camera is back.
    void start(unsigned buffers);

    /// Stops the stream. The sinks still receive all images that have arrived before.
    void stop();

    /// Stops the stream if it runs, makes a call, and starts the stream again if it ran, whatever the call
    /// returned. `done` receives the result of the call; `context` must not be null if there is a `done`.
    void pauseFor(CameraConnection::Call call, QObject *context, CameraConnection::Done done);

    /// Returns the counters of the running stream, or those of the last one.
    CvxCPP::StreamStatistics statistics() const;

    /// Returns the counters since the camera was opened: a stream that was stopped and started again, for
    /// example to change the pixel format, does not forget its losses.
    CvxCPP::StreamStatistics totals() const;

    /// The sink must stay valid until removeSink(), which waits for a running take().
    void addSink(ImageSink *sink);
    void removeSink(ImageSink *sink);

signals:
    void stateChanged();

private:
    void createSession();
    void releaseSession();
    void followConnection();
    void followSession();
    void finishCall(const StreamSession *session, const CvxCPP::CvxResult &result);
    void setState(State state);

    CameraConnection &m_connection;
    State m_state = State::Stopped;
    QString m_problem;
    unsigned m_buffers = 2;
    bool m_startsWhenBack = false; ///< The last start failed because the camera was lost.
    int m_pendingCalls = 0; ///< Calls of the connection whose results are awaited.
    CvxCPP::CvxResult m_startResult; ///< The result of the last start; success after a stop.
    std::weak_ptr<CvxCPP::Device> m_device; ///< The device of the session.
    std::shared_ptr<StreamSession> m_session; ///< Null unless start() was called for the present device.
    std::vector<std::shared_ptr<StreamSession>> m_releasedSessions; ///< Their threads are ending.
    CvxCPP::StreamStatistics m_lastStatistics; ///< The statistics of the last released session.
    CvxCPP::StreamStatistics m_lastTotals; ///< The totals of the last released session.
    std::vector<ImageSink *> m_sinks;
};
