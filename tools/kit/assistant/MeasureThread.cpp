#include "tools/kit/assistant/MeasureThread.h"

#include <utility>

namespace {

/// Images that wait for a measurement that is slower than the camera.
constexpr std::size_t queuedImages = 4;

} // namespace

MeasureThread::MeasureThread(Task task)
    : m_task(std::move(task)), m_frames(queuedImages), m_thread([this] { run(); })
{ }

MeasureThread::~MeasureThread()
{
    cancel();
    m_thread.join();
}

void MeasureThread::cancel()
{
    m_isCancelled = true;
    m_frames.close();
}

void MeasureThread::run()
{
    const CameraRecord record = readCameraRecord(*m_task.camera, *m_task.device);
    const MeasureProgress progress = [this](std::size_t done, std::size_t total) {
        m_done = done;
        m_total = total;
        return !m_isCancelled;
    };
    const MeasureContext context{*m_task.device, m_frames, progress};
    // TODO: begin and end the temporary changes here.
    Sentence sentence = m_isCancelled ? cancelledSentence() : m_task.work(context, record);
    if (m_isCancelled)
        sentence = cancelledSentence();
    m_task.ended(sentence);
}
