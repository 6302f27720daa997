#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/live/LiveStream.h"
#include "tools/kit/measure/run/MeasureContext.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

class MeasureThread;

/// Runs one measurement at a time on a thread of its own, with the images of the live stream. Settings that
/// the measurement changes are put back when it ends, however it ends; see Device::BeginTemporaryChanges().
/// All functions are called on the GUI thread.
class MeasureJob : public QObject
{
    Q_OBJECT

public:
    /// Does the work on the thread of the job. Returns why it failed; empty if it succeeded. It must not use
    /// objects of the GUI thread: results go into an object that it shares with `done`.
    using Work = std::function<Sentence(const MeasureContext &context, const CameraRecord &camera)>;

    /// Called on the GUI thread. The text is empty if the work succeeded.
    using Done = std::function<void(const QString &problem)>;

    /// What happens to the settings that the work has changed, if it succeeds. Otherwise, they are put back.
    enum class Changes
    {
        PutBack,
        Keep
    };

    /// Enough for the picture, an analysis and a measurement.
    static constexpr unsigned streamBuffers = 12;

    MeasureJob(CameraConnection &connection, LiveStream &stream, QObject *parent = nullptr);

    /// Cancels a running measurement and waits for it: for at most the time of one call of the SDK.
    ~MeasureJob() override;

    /// Starts the work, and the stream before if it does not run. Does nothing if isRunning(). Fails with a
    /// text if the camera is not open for control. `done` is not called if `context` was destroyed.
    /// @param title What is being done, for people, for example "Taking the dark images".
    void start(const QString &title, Changes changes, const Work &work, QObject *context, const Done &done);

    bool isRunning() const;
    QString title() const; ///< Empty if nothing runs.
    std::size_t done() const; ///< Steps that are done.
    std::size_t total() const; ///< 0 if unknown.

    /// Lets the measurement end soon. `done` is called with the sentence that it was cancelled.
    void cancel();

signals:
    /// A measurement has started or ended; also ten times per second while it is running.
    void changed();

private:
    void watchConnection();
    void watchStream();
    void abort(const QString &problem);
    void finish(const Sentence &sentence, const std::string &notPutBack);

    CameraConnection &m_connection;
    LiveStream &m_stream;
    QTimer m_progressTimer;
    std::unique_ptr<MeasureThread> m_thread; ///< Null if nothing runs.
    QString m_title;
    QString m_problem; ///< Why the measurement was ended by this object; empty if it was not.
    QPointer<QObject> m_context;
    Done m_done;
};
