#pragma once

#include "tools/imageviewer/files/CameraRecordReader.h"
#include "tools/imageviewer/files/NewFile.h"
#include "tools/imageviewer/files/RecordingOptions.h"
#include "tools/imageviewer/files/RecordingSink.h"
#include "tools/imageviewer/files/RecordingSummary.h"
#include "tools/imageviewer/files/RecordingTarget.h"
#include "tools/kit/live/LiveStream.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <memory>

/// Records the stream to a file. A slow disk holds up neither the stream nor the live picture: images wait in
/// a few buffers of the stream, then in memory, and those that do not fit there are counted as skipped. A
/// lost camera does not end a recording, which goes on when the camera is back. All functions are called on
/// the GUI thread and return immediately.
class RecordingControl : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Idle,
        Preparing, ///< Reads the camera's settings and creates the file.
        Recording,
        Finishing ///< Writes what waits in memory.
    };
    Q_ENUM(State)

    RecordingControl(LiveStream &stream, CameraRecordReader &records, QObject *parent = nullptr);

    /// Ends a recording. Blocks until the disk has taken the waiting images.
    ~RecordingControl() override;

    State state() const { return m_state; }
    const RecordingProgress &progress() const { return m_result.progress; }

    /// Returns true if the recording waits for a camera that is gone.
    bool isCameraLost() const;

    /// Corrects the TIFF recordings that begin from now on.
    void setCorrection(const CorrectionSource &correction) { m_correction = correction; }

    /// Begins a recording. Has no effect unless the state is Idle.
    void start(const RecordingOptions &options);

    /// Ends the recording; what was recorded so far is kept.
    void stop();

signals:
    void stateChanged();
    void progressChanged();

    /// The recording has ended, or has not begun; see RecordingResult::problem.
    void finished(const RecordingResult &result);

private:
    // What the worker hands over when the file exists, or cannot be created.
    struct Prepared
    {
        std::shared_ptr<NewFile> file;
        std::shared_ptr<RecordingTarget> target;
        QString problem;
    };

    void prepare(const CameraRecord &record);
    static Prepared open(const RecordingOptions &options, const CameraRecord &record,
        const CorrectionSource &correction, double rate);
    void begin(const Prepared &prepared);
    void finish();
    void report(const QString &problem);
    void stopIfComplete();
    void followStream();
    void followCamera();
    void update();
    void countLosses();
    CvxCPP::StreamStatistics losses() const;
    void takeCounters();
    void measureSpace();
    void takeSpace(std::optional<std::uint64_t> spaceLeft, std::uint64_t fileBytes);
    void setState(State state);

    LiveStream &m_stream;
    CameraRecordReader &m_records;
    State m_state = State::Idle;
    RecordingOptions m_options;
    CorrectionSource m_correction;
    RecordingResult m_result;
    QString m_endProblem; // Why the recording has to end, if the target does not know it.
    CvxCPP::StreamStatistics m_before; // When the recording began.
    CvxCPP::StreamStatistics m_counted; // When losses were counted last.
    Prepared m_prepared;
    std::unique_ptr<RecordingSink> m_sink; // Null unless the state is Recording.
    bool m_isMeasuring = false;
    QTimer m_timer;
    QThreadPool m_pool; // Ends before the other members.
};

Q_DECLARE_METATYPE(RecordingResult)
