#include "sdk/imagefile/Recorder.h"

#include "sdk/imagefile/DiskSpace.h"
#include "sdk/imagefile/ImageFileFormat.h"
#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/Sidecar.h"

#include <filesystem>

Recorder::~Recorder()
{
    end();
}

std::string Recorder::open(const std::string &path, const CameraRecord &camera)
{
    m_path = path;
    m_file = createRecordingFile(path, camera, m_correction);
    if (std::string problem = m_file->problem(); !problem.empty())
        return problem;
    m_sidecar = {{"file", std::filesystem::path(path).filename().string()},
        {"recording", {{"started", utcNow()}, {"ended", nullptr}}}};
    if (m_correction.correction && imageFileFormat(path) == ImageFileFormat::Tiff)
        m_sidecar["corrections"] = m_correction.files;
    m_sidecar.update(cameraJson(camera));
    if (std::string problem = updateSidecar(); !problem.empty())
        return problem;
    m_thread = std::thread(&Recorder::writeImages, this);
    return {};
}

void Recorder::add(std::shared_ptr<const CvxCPP::Image> image)
{
    const std::lock_guard lock(m_mutex);
    if (!m_problem.empty()) {
        ++m_counters.unwritten;
        return;
    }
    m_images.push_back(std::move(image));
    ++m_counters.waiting;
    m_changed.notify_one();
}

void Recorder::skip()
{
    const std::lock_guard lock(m_mutex);
    ++m_counters.skipped;
}

RecorderCounters Recorder::counters() const
{
    const std::lock_guard lock(m_mutex);
    return m_counters;
}

std::string Recorder::problem() const
{
    const std::lock_guard lock(m_mutex);
    return m_problem;
}

std::string Recorder::finish(const CvxCPP::StreamStatistics &statistics)
{
    if (!m_thread.joinable())
        return problem();
    end();
    const RecorderCounters counted = counters();
    auto &recording = m_sidecar["recording"];
    recording.update({{"ended", utcNow()}, {"images", counted.written}, {"incomplete", counted.incomplete},
        {"unwritten", counted.unwritten}, {"skipped", counted.skipped}, {"lost", statistics.lost},
        {"underruns", statistics.underruns}, {"reopened", statistics.reopenCount}});
    std::string ended = problem();
    if (!ended.empty())
        recording["problem"] = ended;
    std::string sidecarProblem = updateSidecar();
    return ended.empty() ? sidecarProblem : ended;
}

std::string Recorder::updateSidecar() const
{
    return isSpecialFile(m_path) ? std::string() : writeSidecar(sidecarPath(m_path), m_sidecar);
}

void Recorder::end()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        m_changed.notify_one();
    }
    m_thread.join();
    const bool isFinished = m_file->finish();
    const std::lock_guard lock(m_mutex);
    if (!isFinished && m_problem.empty())
        m_problem = m_file->problem();
}

void Recorder::writeImages()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_images.empty(); });
        if (m_images.empty())
            return;
        std::shared_ptr<const CvxCPP::Image> image = std::move(m_images.front());
        m_images.pop_front();
        lock.unlock();
        std::string problem = writeImage(*image);
        const std::uint64_t size = image->GetSize();
        const bool isIncomplete = !image->GetInfo().isComplete;
        image.reset(); // The stream gets its buffer back before anybody sees the counters.
        lock.lock();
        --m_counters.waiting;
        if (problem.empty()) {
            ++m_counters.written;
            m_counters.bytes += size;
            m_counters.incomplete += isIncomplete ? 1 : 0;
            continue;
        }
        m_counters.unwritten += 1 + m_images.size();
        m_counters.waiting = 0;
        m_images.clear();
        m_problem = std::move(problem);
    }
}

std::string Recorder::writeImage(const CvxCPP::Image &image)
{
    try {
        if (std::string problem = spaceProblem(image); !problem.empty())
            return problem;
        return m_file->append(image) ? std::string() : m_file->problem();
    } catch (const std::exception &) { // std::bad_alloc or std::length_error.
        return "the recording \"" + m_path + "\" has ended because there is not enough memory for an image";
    }
}

std::string Recorder::spaceProblem(const CvxCPP::Image &image) const
{
    const CvxCPP::ImageInfo &info = image.GetInfo();
    const RecordedSize needed = recordedSize(m_path, info.pixelFormat, info.width, info.height);
    const std::optional<std::uint64_t> usable = usableSpace(m_path);
    constexpr std::uint64_t descriptions = 1U << 16U; // Room for the image's tags, the index and the sidecar.
    if (!usable || needed.bytes + descriptions <= *usable)
        return {};
    return "the recording \"" + m_path + "\" has ended because the disk is almost full (" + byteText(*usable)
        + " left); free some space or choose another folder";
}
