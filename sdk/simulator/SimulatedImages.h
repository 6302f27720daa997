#pragma once

#include "sdk/producer/OpenCamera.h"
#include "sdk/simulator/AcquisitionSequence.h"
#include "sdk/simulator/PictureSource.h"
#include "sdk/simulator/RegisterFile.h"

#include <atomic>
#include <cstdint>
#include <thread>

/// The stream of a simulated camera. One thread takes the images and writes them into the consumer's buffers.
/// In the process that controls the camera, this thread decides when an image is taken. The thread of a
/// watcher renders the same images, with the same frame IDs and times.
class SimulatedImages final : public ImageSource
{
public:
    /// @param access How the consumer has opened the camera.
    SimulatedImages(RegisterFile &registers, const CameraModel &model, GenTL::DEVICE_ACCESS_FLAGS access);
    ~SimulatedImages() override;

    std::size_t payloadSize() const override;
    std::optional<std::size_t> maxChunks() const override;
    void start(BufferQueue &queue) override;
    void stop(bool isImmediate) override;
    void bufferQueued() override { m_registers.wakeCounter().wake(); }
    std::uint64_t startedImages() const override { return m_started; }
    std::uint64_t lostImages() const override { return 0; } // Missing images are underruns.

    /// Called when the camera is lost: no more images are taken.
    void cameraLost();

private:
    void run(BufferQueue &queue);
    void follow(BufferQueue &queue);
    bool updateSettings(std::int64_t now);
    bool takeImage(BufferQueue &queue, std::int64_t now);
    void copyImage(BufferQueue &queue, const TakenImage &image);
    FilledImage fill(const BufferQueue::Buffer &buffer, std::uint64_t frameId, std::int64_t now);
    FilledImage describe(std::uint64_t frameId, std::int64_t now) const;
    void finishAcquisition();

    RegisterFile &m_registers;
    const bool m_isBigEndianLink;
    const bool m_isController; // Only the controller may change registers.
    std::thread m_thread;
    std::atomic<bool> m_isStopping{false};
    std::atomic<bool> m_isLost{false};
    std::atomic<std::uint64_t> m_started{0};

    // Used only by the thread.
    AcquisitionSequence m_sequence;
    PictureSource m_pictures;
    std::optional<std::uint32_t> m_changes; // RegisterFile::changes() when m_bank was read.
    std::uint64_t m_followed = 0; // Number of the image that a watcher has copied last.
    RegisterBank m_bank;
};
