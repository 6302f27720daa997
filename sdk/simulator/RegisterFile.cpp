#include "sdk/simulator/RegisterFile.h"

#include "sdk/producer/OpenCamera.h"

#include <cerrno>
#include <cstring>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::int64_t restartDuration = 1'000'000'000; // Nanoseconds.

void *mapFile(int descriptor, std::size_t size)
{
    struct stat status
    { };
    fstat(descriptor, &status);
    const bool isLongEnough = static_cast<std::size_t>(status.st_size) >= size
        || ftruncate(descriptor, static_cast<off_t>(size)) == 0;
    void *const memory
        = isLongEnough ? mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0) : MAP_FAILED;
    if (memory == MAP_FAILED)
        throw GenTlError(GenTL::GC_ERR_IO,
            std::string("The registers of the simulated camera cannot be mapped: ") + std::strerror(errno));
    return memory;
}

} // namespace

RegisterFile::RegisterFile(
    const std::string &path, GenTL::DEVICE_ACCESS_FLAGS access, const CameraModel &model)
    : m_file(path, access), m_memory(static_cast<Memory *>(mapFile(m_file.descriptor(), sizeof(Memory))))
{
    const bool isSameModel = m_memory->fingerprint == fingerprint(model);
    if (isSameModel && isRestarting()) {
        m_file.close(true);
        throw GenTlError(GenTL::GC_ERR_IO, "The camera is restarting");
    }
    if (!isSameModel && !m_file.isFirstUser())
        throw GenTlError(GenTL::GC_ERR_ACCESS_DENIED,
            "Another process uses a simulated camera of a different model with the same ID");
    if (m_file.isFirstUser() && !(isSameModel && m_memory->restartEnd != 0))
        powerOn(model);
    m_memory->restartEnd = 0;
    m_restarts = m_memory->restarts;
    m_file.share();
}

RegisterFile::~RegisterFile()
{
    close();
}

void RegisterFile::Unmap::operator()(Memory *memory) const
{
    munmap(memory, sizeof(Memory));
}

/// What a killed last user has left behind is overwritten.
void RegisterFile::powerOn(const CameraModel &model)
{
    auto *const start = reinterpret_cast<std::uint8_t *>(m_memory.get());
    std::memset(start + CameraFile::reservedSize, 0, sizeof(Memory) - CameraFile::reservedSize);
    storeTo(m_memory->registers, powerOnRegisters(model));
    m_memory->fingerprint = fingerprint(model);
}

RegisterBank RegisterFile::loadFrom(const Words &words)
{
    RegisterBank bank;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::uint64_t word = words[i].load(std::memory_order_acquire);
        std::memcpy(bank.bytes() + i * sizeof word, &word, sizeof word);
    }
    return bank;
}

void RegisterFile::storeTo(Words &words, const RegisterBank &bank)
{
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::uint64_t word = 0;
        std::memcpy(&word, bank.bytes() + i * sizeof word, sizeof word);
        if (words[i].load(std::memory_order_relaxed) != word)
            words[i].store(word, std::memory_order_release);
    }
}

RegisterBank RegisterFile::load() const
{
    const std::lock_guard lock(m_mutex);
    return loadFrom(m_memory->registers);
}

void RegisterFile::store(const RegisterBank &bank)
{
    m_memory->changes.fetch_or(1); // A killed process may have left an odd number behind.
    storeTo(m_memory->registers, bank);
    ++m_memory->changes;
    m_memory->wakeCounter.wake();
}

std::optional<RegisterBank> RegisterFile::userSet(std::size_t set) const
{
    if (m_memory->isUserSetSaved[set] == 0)
        return std::nullopt;
    return loadFrom(m_memory->userSets[set]);
}

void RegisterFile::saveUserSet(std::size_t set, const RegisterBank &bank)
{
    storeTo(m_memory->userSets[set], bank);
    m_memory->isUserSetSaved[set] = 1;
}

void RegisterFile::addPulse(std::size_t input)
{
    ++m_memory->pulses[input];
    m_memory->wakeCounter.wake();
}

std::uint32_t RegisterFile::pulses(std::size_t input) const
{
    return m_memory->pulses[input];
}

void RegisterFile::announceImage(std::uint64_t frameId, std::int64_t time)
{
    const std::uint64_t number = m_memory->images + 1;
    ImageSlot &slot = m_memory->imageSlots[number % m_memory->imageSlots.size()];
    slot.frameId = frameId;
    slot.time = time;
    m_memory->images = number;
    m_memory->wakeCounter.wake();
}

std::optional<TakenImage> RegisterFile::latestImage() const
{
    const std::uint64_t number = m_memory->images;
    const ImageSlot &slot = m_memory->imageSlots[number % m_memory->imageSlots.size()];
    const TakenImage image{number, slot.frameId, slot.time};
    // Its slot is only written again after the number has changed.
    return m_memory->images == number ? std::optional(image) : std::nullopt;
}

bool RegisterFile::isRestarting() const
{
    const std::int64_t remaining = m_memory->restartEnd - monotonicNow();
    return remaining > 0 && remaining <= restartDuration; // The machine may have been started since then.
}

void RegisterFile::restart(const RegisterBank &powerOn)
{
    const std::lock_guard lock(m_mutex);
    m_memory->restartEnd = monotonicNow() + restartDuration;
    ++m_memory->restarts;
    store(powerOn);
}

void RegisterFile::close()
{
    m_file.close(isRestarting());
}
