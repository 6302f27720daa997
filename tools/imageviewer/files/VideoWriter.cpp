#include "tools/imageviewer/files/VideoWriter.h"

#include "sdk/imagefile/Sidecar.h"
#include "tools/imageviewer/files/Encoder.h"
#include "tools/imageviewer/files/VideoFrames.h"

#include <QFileInfo>

VideoWriter::VideoWriter(Options options, ImageKeeper keeper)
    : m_options(std::move(options)), m_keeper(std::move(keeper))
{ }

VideoWriter::~VideoWriter()
{
    end();
}

QString VideoWriter::open()
{
    if (findFfmpeg().isEmpty())
        return tr("videos need the program ffmpeg, which is not installed; install it with: %1")
            .arg(QStringLiteral("sudo apt install ffmpeg"));
    m_sidecar = {{"file", QFileInfo(m_options.path).fileName().toStdString()},
        {"recording", {{"started", utcNow()}, {"ended", nullptr}, {"playbackRate", m_options.rate}}}};
    m_sidecar.update(cameraJson(m_options.camera));
    const QString problem = updateSidecar();
    if (!problem.isEmpty())
        return problem;
    m_thread.reset(QThread::create([this] { encodeImages(); }));
    m_thread->start();
    return {};
}

void VideoWriter::add(const std::shared_ptr<const CvxCPP::Image> &image)
{
    auto kept = m_keeper.keep(image);
    const std::lock_guard lock(m_mutex);
    if (!m_problem.isEmpty()) {
        ++m_counters.unwritten;
        return;
    }
    if (!kept) {
        ++m_counters.skipped;
        return;
    }
    m_images.push_back(std::move(kept));
    ++m_counters.waiting;
    m_changed.notify_one();
}

TargetCounters VideoWriter::counters() const
{
    const std::lock_guard lock(m_mutex);
    return m_counters;
}

QString VideoWriter::problem() const
{
    const std::lock_guard lock(m_mutex);
    return m_problem;
}

QString VideoWriter::finish(const CvxCPP::StreamStatistics &losses)
{
    end();
    const TargetCounters counted = counters();
    auto &recording = m_sidecar["recording"];
    recording.update({{"ended", utcNow()}, {"images", counted.written}, {"incomplete", counted.incomplete},
        {"unwritten", counted.unwritten}, {"skipped", counted.skipped}, {"lost", losses.lost},
        {"underruns", losses.underruns}, {"reopened", losses.reopenCount}});
    const QString ended = problem();
    if (!ended.isEmpty())
        recording["problem"] = ended.toStdString();
    const QString sidecarProblem = updateSidecar();
    return ended.isEmpty() ? sidecarProblem : ended;
}

QString VideoWriter::updateSidecar() const
{
    return QString::fromStdString(writeSidecar(sidecarPath(m_options.path.toStdString()), m_sidecar));
}

void VideoWriter::end()
{
    if (!m_thread)
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        m_changed.notify_one();
    }
    m_thread->wait();
    m_thread.reset();
}

void VideoWriter::encodeImages()
{
    Encoder encoder;
    VideoFrames frames;
    VideoFormat format;
    while (const std::shared_ptr<const CvxCPP::Image> image = nextImage()) {
        const VideoFormat present = VideoFrames::formatOf(*image);
        if (present.size.isEmpty()) {
            failWith(tr("the images are too small for a video"));
            return;
        }
        if (format.size.isEmpty()) {
            format = present;
            format.rate = m_options.rate;
            if (!encoder.start(ffmpegArguments(m_options.codec, format, m_options.path))) {
                failWith(encoder.problem());
                return;
            }
        }
        if (present.size != format.size || present.isColor != format.isColor) {
            failWith(tr("the format of the images has changed, which a video cannot contain; start another "
                        "recording"));
            break;
        }
        if (!encoder.write(frames.convert(*image))) {
            failWith(encoder.problem());
            return;
        }
        countWritten(*image);
    }
    if (!format.size.isEmpty() && !encoder.finish())
        failWith(encoder.problem());
}

std::shared_ptr<const CvxCPP::Image> VideoWriter::nextImage()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isEnding || !m_images.empty(); });
    if (m_images.empty())
        return nullptr;
    auto image = std::move(m_images.front());
    m_images.pop_front();
    return image;
}

void VideoWriter::countWritten(const CvxCPP::Image &image)
{
    const std::lock_guard lock(m_mutex);
    --m_counters.waiting;
    ++m_counters.written;
    m_counters.bytes += image.GetSize();
    m_counters.incomplete += image.GetInfo().isComplete ? 0 : 1;
}

void VideoWriter::failWith(const QString &problem)
{
    const std::lock_guard lock(m_mutex);
    m_counters.unwritten += m_counters.waiting; // `waiting` includes the image that has failed.
    m_counters.waiting = 0;
    m_images.clear();
    if (m_problem.isEmpty())
        m_problem = problem;
}
