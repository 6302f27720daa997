#pragma once

#include "sdk/simulator/CameraFile.h"
#include "sdk/simulator/CameraModel.h"
#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/RegisterBank.h"
#include "sdk/simulator/WakeCounter.h"

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

/// An image that the process which controls the camera has taken.
struct TakenImage
{
    std::uint64_t number = 0; ///< Grows by 1 with each image, also over the end of an acquisition.
    std::uint64_t frameId = 0;
    std::int64_t time = 0; ///< Nanoseconds of the monotonic clock.
};

/// The registers, the user sets and the trigger inputs of one simulated camera, in memory that all processes
/// share. The memory has its power-on contents when the first user opens the camera. All functions may be
/// called at any time on any thread; one process at a time may change registers.
class RegisterFile
{
public:
    /// Opens the camera. Throws GenTlError: see CameraFile; GC_ERR_IO while the camera restarts.
    RegisterFile(const std::string &path, GenTL::DEVICE_ACCESS_FLAGS access, const CameraModel &model);
    ~RegisterFile();
    RegisterFile(const RegisterFile &) = delete;
    RegisterFile &operator=(const RegisterFile &) = delete;

    /// Returns all registers. If another process changes registers meanwhile, the result may contain a part
    /// of the changes; see changes().
    RegisterBank load() const;

    /// Calls change(registers) and stores the result, if it does not throw. One thread of the process at a
    /// time. `change` must not call load().
    template <typename Change>
    void update(Change change)
    {
        const std::lock_guard lock(m_mutex);
        RegisterBank bank = loadFrom(m_memory->registers);
        change(bank);
        store(bank);
    }

    /// Returns a number that changes with every update(), and is odd while registers are stored.
    std::uint32_t changes() const { return m_memory->changes; }

    /// Returns a stored user set; nothing if it was never saved.
    std::optional<RegisterBank> userSet(std::size_t set) const;
    void saveUserSet(std::size_t set, const RegisterBank &bank);

    /// Counts a pulse at one of the trigger inputs.
    void addPulse(std::size_t input);
    std::uint32_t pulses(std::size_t input) const;

    /// Reports that the camera takes an image. Only the process that controls the camera calls this function.
    void announceImage(std::uint64_t frameId, std::int64_t time);

    /// Returns the number of images that were announced.
    std::uint64_t takenImages() const { return m_memory->images; }

    /// Returns the image that was announced last, with the number 0 if there is none; nothing while the next
    /// one is being stored.
    std::optional<TakenImage> latestImage() const;

    /// Signalled after every change of this file.
    WakeCounter &wakeCounter() { return m_memory->wakeCounter; }

    /// Restarts the camera: for a second it can neither be used nor opened.
    void restart(const RegisterBank &powerOn);

    /// Returns true if the camera has restarted since this user has opened it.
    bool hasRestarted() const { return m_memory->restarts != m_restarts; }

    /// Releases the locks, and removes the file if this was the last user. The memory stays readable.
    void close();

private:
    using Words = std::array<std::atomic<std::uint64_t>, RegisterBank::wordCount>;

    struct ImageSlot
    {
        std::atomic<std::uint64_t> frameId;
        std::atomic<std::int64_t> time;
    };

    struct Memory
    {
        std::array<std::uint8_t, CameraFile::reservedSize> reserved; // The locks' part of the file.
        std::atomic<std::uint64_t> fingerprint;
        std::atomic<std::int64_t> restartEnd; // Monotonic time at which the camera answers again; 0: it does.
        std::atomic<std::uint32_t> restarts;
        std::atomic<std::uint32_t> changes;
        WakeCounter wakeCounter;
        std::array<std::atomic<std::uint32_t>, triggerInputCount> pulses;
        Words registers;
        std::array<std::atomic<std::uint32_t>, userSetCount> isUserSetSaved;
        std::array<Words, userSetCount> userSets;
        std::atomic<std::uint64_t> images; // Number of images that were announced.
        std::array<ImageSlot, 2> imageSlots; // Image n is in slot n % 2.
    };

    void store(const RegisterBank &bank);
    void powerOn(const CameraModel &model);
    bool isRestarting() const;
    static RegisterBank loadFrom(const Words &words);
    static void storeTo(Words &words, const RegisterBank &bank);

    struct Unmap
    {
        void operator()(Memory *memory) const;
    };

    CameraFile m_file;
    const std::unique_ptr<Memory, Unmap> m_memory;
    mutable std::mutex m_mutex; // One thread at a time changes registers, or loads them.
    std::uint32_t m_restarts = 0;
};
