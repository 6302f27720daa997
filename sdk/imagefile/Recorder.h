#pragma once

#include "CvxCPP/Device.h"
#include "CvxCPP/Image.h"
#include "sdk/imagefile/CameraRecord.h"
#include "sdk/imagefile/RecordingFile.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

/// What a recorder has done with the images so far.
struct RecorderCounters
{
    std::uint64_t written = 0; ///< Images in the file, including incomplete ones.
    std::uint64_t incomplete = 0; ///< Images in the file that lack data.
    std::uint64_t unwritten = 0; ///< Images that a failure kept from the file.
    std::uint64_t skipped = 0; ///< Images of which skip() was told.
    std::uint64_t waiting = 0; ///< Images that wait for the disk.
    std::uint64_t bytes = 0; ///< Bytes of the written images as the camera has sent them.
};

/// Records images to a file on a thread of its own. The images that wait for the disk occupy the buffers of
/// their stream, so a slow disk holds up nothing until the buffers are used up; the stream then counts
/// underruns. Every function may be called from any thread.
class Recorder
{
public:
    Recorder() = default;
    /// Writes the waiting images and closes the file; the sidecar stays without counters.
    ~Recorder();
    Recorder(const Recorder &) = delete;
    Recorder &operator=(const Recorder &) = delete;

    /// Creates the file and its sidecar. Call this function once. Returns why that failed, for people; empty
    /// if it succeeded.
    std::string open(const std::string &path, const CameraRecord &camera);

    /// Corrects the pictures of a TIFF recording; the sidecar names the files of the correction. Raw
    /// recordings stay what the camera has sent. Call this function before open().
    void setCorrection(CorrectionSource correction) { m_correction = std::move(correction); }

    /// Appends an image. Returns immediately. Once a failure has ended the recording, images are only
    /// counted.
    void add(std::shared_ptr<const CvxCPP::Image> image);

    /// Counts an image that the program did not add, because too many are waiting for the disk.
    void skip();

    RecorderCounters counters() const;

    /// Returns why the recording has ended, for example because the disk is full; empty while it runs.
    std::string problem() const;

    /// Writes the waiting images, closes the file and adds counters and losses to the sidecar. Blocks until
    /// the disk has taken all images. Returns why the recording is not complete; empty if it is.
    std::string finish(const CvxCPP::StreamStatistics &statistics);

private:
    void writeImages();
    std::string writeImage(const CvxCPP::Image &image);
    std::string spaceProblem(const CvxCPP::Image &image) const;
    std::string updateSidecar() const;
    void end();

    CorrectionSource m_correction;
    std::string m_path;
    nlohmann::ordered_json m_sidecar;
    std::unique_ptr<RecordingFile> m_file; // Used by the thread while it runs.
    std::thread m_thread;
    std::condition_variable m_changed;
    mutable std::mutex m_mutex; // Protects the following members.
    std::deque<std::shared_ptr<const CvxCPP::Image>> m_images;
    RecorderCounters m_counters;
    std::string m_problem;
    bool m_isEnding = false;
};
