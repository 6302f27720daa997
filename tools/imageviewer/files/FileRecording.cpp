#include "tools/imageviewer/files/FileRecording.h"

FileRecording::FileRecording(
    const QString &path, CameraRecord camera, const CorrectionSource &correction, ImageKeeper keeper)
    : m_path(path.toStdString()), m_camera(std::move(camera)), m_keeper(std::move(keeper))
{
    m_recorder.setCorrection(correction);
}

QString FileRecording::open()
{
    return QString::fromStdString(m_recorder.open(m_path, m_camera));
}

void FileRecording::add(const std::shared_ptr<const CvxCPP::Image> &image)
{
    if (auto kept = m_keeper.keep(image))
        m_recorder.add(std::move(kept));
    else
        m_recorder.skip();
}

TargetCounters FileRecording::counters() const
{
    const RecorderCounters counters = m_recorder.counters();
    return {counters.written, counters.incomplete, counters.unwritten, counters.skipped, counters.waiting,
        counters.bytes};
}

QString FileRecording::problem() const
{
    return QString::fromStdString(m_recorder.problem());
}

QString FileRecording::finish(const CvxCPP::StreamStatistics &losses)
{
    return QString::fromStdString(m_recorder.finish(losses));
}
