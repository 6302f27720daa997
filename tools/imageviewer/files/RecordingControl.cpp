#include "tools/imageviewer/files/RecordingControl.h"

#include "sdk/imagefile/DiskSpace.h"
#include "tools/imageviewer/files/FfmpegCommand.h"
#include "tools/imageviewer/files/FileRecording.h"
#include "tools/imageviewer/files/ImageFileNames.h"
#include "tools/imageviewer/files/VideoWriter.h"

#include <QFileInfo>

namespace {

constexpr int updateInterval = 250; // Milliseconds.
constexpr unsigned maxHeldImages = 3; // Buffers of the stream that a recording may occupy.

std::shared_ptr<RecordingTarget> createTarget(const QString &path, const RecordingOptions &options,
    const CameraRecord &record, const CorrectionSource &correction, double rate)
{
    const ImageKeeper keeper(maxHeldImages, ImageKeeper::defaultCopyLimit());
    if (!isVideo(options.format))
        return std::make_shared<FileRecording>(path, record, correction, keeper);
    return std::make_shared<VideoWriter>(VideoWriter::Options{path, options.format, rate, record}, keeper);
}

/// Returns true if the counters have begun anew.
bool isOfAnotherCamera(const CvxCPP::StreamStatistics &now, const CvxCPP::StreamStatistics &before)
{
    return now.delivered < before.delivered || now.lost < before.lost || now.underruns < before.underruns;
}

/// Problems are parts of a sentence, but the texts of cameras are sentences.
QString withoutFullStop(QString problem)
{
    if (problem.endsWith(QLatin1Char('.')))
        problem.chop(1);
    return problem;
}

} // namespace

RecordingControl::RecordingControl(LiveStream &stream, CameraRecordReader &records, QObject *parent)
    : QObject(parent), m_stream(stream), m_records(records)
{
    qRegisterMetaType<RecordingResult>();
    m_pool.setMaxThreadCount(1);
    m_timer.setInterval(updateInterval);
    connect(&m_timer, &QTimer::timeout, this, &RecordingControl::update);
    connect(&m_stream, &LiveStream::stateChanged, this, &RecordingControl::followStream);
    connect(&m_records.connection(), &CameraConnection::stateChanged, this, &RecordingControl::followCamera);
}

RecordingControl::~RecordingControl()
{
    m_pool.waitForDone();
    if (!m_sink)
        return;
    m_stream.removeSink(m_sink.get());
    countLosses();
    m_prepared.target->finish(losses());
}

bool RecordingControl::isCameraLost() const
{
    return m_state == State::Recording && m_records.connection().state() == CameraConnection::State::Lost;
}

void RecordingControl::start(const RecordingOptions &options)
{
    if (m_state != State::Idle)
        return;
    m_options = options;
    m_result = {};
    m_endProblem.clear();
    if (m_stream.state() != LiveStream::State::Running) {
        report(tr("no pictures arrive; start the live picture first"));
        return;
    }
    if (const QString problem = FileNamePattern(options.pattern).problem(); !problem.isEmpty()) {
        report(problem);
        return;
    }
    setState(State::Preparing);
    m_records.read(this, [this](const CameraRecord &record) { prepare(record); });
}

void RecordingControl::prepare(const CameraRecord &record)
{
    followCamera(); // The record is also told if the camera was closed meanwhile.
    if (!m_endProblem.isEmpty()) {
        report({});
        return;
    }
    constexpr double usualRate = 25;
    const double measuredRate = m_stream.statistics().imagesPerSecond;
    const double recordedRate = measuredRate > 0 ? measuredRate : usualRate;
    const double rate = m_options.playbackRate > 0 ? m_options.playbackRate : recordedRate;
    m_pool.start([this, options = m_options, correction = m_correction, record, rate] {
        const Prepared prepared = open(options, record, correction, rate);
        QMetaObject::invokeMethod(
            this, [this, prepared] { begin(prepared); }, Qt::QueuedConnection);
    });
}

RecordingControl::Prepared RecordingControl::open(const RecordingOptions &options, const CameraRecord &record,
    const CorrectionSource &correction, double rate)
{
    Prepared prepared;
    prepared.file = std::make_shared<NewFile>(options.folder, FileNamePattern(options.pattern),
        fileNameValues(record), recordingExtension(options.format));
    prepared.target = createTarget(prepared.file->path(), options, record, correction, rate);
    prepared.problem = prepared.target->open();
    return prepared;
}

void RecordingControl::begin(const Prepared &prepared)
{
    if (!prepared.problem.isEmpty()) {
        report(prepared.problem);
        return;
    }
    m_prepared = prepared;
    m_result.path = prepared.file->path();
    m_before = m_counted = m_stream.totals();
    m_sink = std::make_unique<RecordingSink>(*m_prepared.target, m_options.maxImages, m_options.maxSeconds);
    if (m_state == State::Finishing || !m_endProblem.isEmpty()) { // Stopped, or the camera was closed.
        finish();
        return;
    }
    connect(m_sink.get(), &RecordingSink::complete, this, &RecordingControl::stopIfComplete);
    m_stream.addSink(m_sink.get());
    m_timer.start();
    setState(State::Recording);
    followStream(); // It may have failed meanwhile.
}

void RecordingControl::stop()
{
    if (m_state == State::Preparing)
        setState(State::Finishing);
    else if (m_state == State::Recording)
        finish();
}

void RecordingControl::stopIfComplete()
{
    if (m_sink && m_sink->isComplete())
        stop();
}

void RecordingControl::finish()
{
    m_timer.stop();
    m_stream.removeSink(m_sink.get());
    countLosses();
    m_result.progress.seconds = m_sink->seconds();
    m_result.hasFormatChanged = m_sink->hasFormatChanged();
    m_sink.reset();
    setState(State::Finishing);
    m_pool.start([this, target = m_prepared.target, losses = losses()] {
        const QString problem = target->finish(losses);
        QMetaObject::invokeMethod(
            this, [this, problem] { report(problem); }, Qt::QueuedConnection);
    });
}

void RecordingControl::report(const QString &problem)
{
    m_result.problem = withoutFullStop(problem.isEmpty() ? m_endProblem : problem);
    if (m_prepared.target)
        takeCounters();
    m_prepared = {};
    setState(State::Idle);
    emit finished(m_result);
}

void RecordingControl::followStream()
{
    if (m_state != State::Recording)
        return;
    countLosses(); // The counters begin anew with another camera.
    if (m_stream.state() != LiveStream::State::Failed)
        return;
    m_endProblem = m_stream.problem();
    finish();
}

void RecordingControl::followCamera()
{
    if (m_state != State::Preparing && m_state != State::Recording)
        return;
    const CameraConnection::State state = m_records.connection().state();
    if (state == CameraConnection::State::Lost)
        m_result.wasCameraLost = true;
    else if (state != CameraConnection::State::Open)
        m_endProblem = tr("the camera was closed");
    if (m_state == State::Recording && !m_endProblem.isEmpty())
        finish();
    else
        emit progressChanged();
}

void RecordingControl::countLosses()
{
    if (!m_sink)
        return;
    const CvxCPP::StreamStatistics now = m_stream.totals();
    if (isOfAnotherCamera(now, m_counted))
        return; // What was counted last stays.
    m_counted = now;
    m_result.progress.lost = now.lost - m_before.lost;
    m_result.progress.underruns = now.underruns - m_before.underruns;
    m_result.progress.reopened = now.reopenCount - m_before.reopenCount;
}

CvxCPP::StreamStatistics RecordingControl::losses() const
{
    CvxCPP::StreamStatistics losses;
    losses.lost = m_result.progress.lost;
    losses.underruns = m_result.progress.underruns;
    losses.reopenCount = m_result.progress.reopened;
    return losses;
}

void RecordingControl::takeCounters()
{
    const TargetCounters counters = m_prepared.target->counters();
    RecordingProgress &progress = m_result.progress;
    progress.images = counters.written;
    progress.bytes = counters.bytes;
    progress.waiting = counters.waiting;
    progress.skipped = counters.skipped;
    progress.unwritten = counters.unwritten;
    progress.incomplete = counters.incomplete;
}

void RecordingControl::update()
{
    countLosses();
    takeCounters();
    m_result.progress.seconds = m_sink->seconds();
    emit progressChanged();
    if (m_sink->isComplete() || !m_prepared.target->problem().isEmpty())
        finish();
    else if (!m_isMeasuring)
        measureSpace();
}

void RecordingControl::measureSpace()
{
    m_isMeasuring = true; // A network file system may take its time.
    m_pool.start([this, path = m_result.path] {
        const auto spaceLeft = usableSpace(path.toStdString());
        const auto fileBytes = static_cast<std::uint64_t>(QFileInfo(path).size());
        QMetaObject::invokeMethod(
            this, [this, spaceLeft, fileBytes] { takeSpace(spaceLeft, fileBytes); }, Qt::QueuedConnection);
    });
}

void RecordingControl::takeSpace(std::optional<std::uint64_t> spaceLeft, std::uint64_t fileBytes)
{
    m_isMeasuring = false;
    m_result.progress.spaceLeft = spaceLeft;
    m_result.progress.fileBytes = fileBytes;
    if (m_state != State::Recording || !spaceLeft || *spaceLeft >= m_options.minFreeBytes)
        return;
    m_result.note = tr("The recording ended because the limit of free space was reached.");
    finish();
}

void RecordingControl::setState(State state)
{
    if (m_state == state)
        return;
    m_state = state;
    emit stateChanged();
}
