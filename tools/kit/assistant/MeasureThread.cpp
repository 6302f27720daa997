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
    CvxCPP::Device &device = *m_task.device;
    const CvxCPP::CvxResult begun = device.BeginTemporaryChanges();
    // Settings that an earlier measurement could not put back are still remembered.
    if (!begun && begun.code != CvxCPP::CvxErrorAlreadyStarted)
        return m_task.ended(untranslated(begun.text), {});
    const Sentence sentence = measure();
    const bool isKept = m_task.keepsChanges && sentence.isEmpty();
    const CvxCPP::CvxResult ended = device.EndTemporaryChanges(
        isKept ? CvxCPP::TemporaryChanges::Keep : CvxCPP::TemporaryChanges::PutBack);
    // The settings of a lost camera are put back as soon as the camera is open again.
    const bool isLost = ended.code == CvxCPP::CvxErrorDeviceLost || ended.code == CvxCPP::CvxErrorClosed;
    m_task.ended(sentence, isLost ? std::string() : ended.text);
}

Sentence MeasureThread::measure()
{
    const CameraRecord record = readCameraRecord(*m_task.camera, *m_task.device);
    const MeasureProgress progress = [this](std::size_t done, std::size_t total) {
        m_done = done;
        m_total = total;
        return !m_isCancelled;
    };
    Sentence sentence;
    if (!m_isCancelled)
        sentence = m_task.work({*m_task.device, m_frames, progress}, record);
    return m_isCancelled ? cancelledSentence() : sentence;
}
