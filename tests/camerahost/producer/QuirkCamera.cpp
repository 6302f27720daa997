#include "tests/camerahost/producer/QuirkCamera.h"

#include "tests/camerahost/producer/QuirkCall.h"
#include "tests/camerahost/producer/QuirkScript.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/file.h>
#include <unistd.h>

using namespace GenTL;

std::mutex mutex;
std::condition_variable changed;

namespace {

/// Locks the file of this name. Returns its descriptor, or -1 if another process has a lock that excludes
/// this one.
int lockFile(const std::string &name, int operation)
{
    const int file = open(QuirkScript::pathWith(name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (flock(file, operation | LOCK_NB) == 0)
        return file;
    close(file);
    return -1;
}

/// Acquires the locks of the access: those who only read share the lock "open", one process has "control".
bool acquireLocks(Camera &camera, DEVICE_ACCESS_FLAGS access)
{
    const bool isExclusive = access == DEVICE_ACCESS_EXCLUSIVE;
    camera.locks.push_back(lockFile('.' + camera.id + ".open", isExclusive ? LOCK_EX : LOCK_SH));
    if (access != DEVICE_ACCESS_READONLY)
        camera.locks.push_back(lockFile('.' + camera.id + ".control", LOCK_EX));
    return std::find(camera.locks.begin(), camera.locks.end(), -1) == camera.locks.end();
}

void releaseLocks(Camera &camera)
{
    for (const int lock : camera.locks)
        close(lock);
    camera.locks.clear();
}

void resetRegisters(Camera &camera)
{
    camera.registers.fill(0);
    camera.set(WidthRegister, QuirkScript::number("width", 64));
    camera.set(HeightRegister, QuirkScript::number("height", 48));
    camera.set(PixelFormatRegister, QuirkScript::number("format", 0x01080001));
    camera.set(ExposureTimeRegister, 0x408F400000000000); // 1000.0
    camera.set(GainRegister, 1);
}

std::string description()
{
    std::ifstream file(QuirkScript::pathWith(".xml"), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Updates the registers that the camera computes.
void compute(Camera &camera)
{
    const bool isStale = QuirkScript::has("stale-payload") && camera.get(TLParamsLockedRegister) == 0;
    camera.set(PayloadSizeRegister, isStale ? 16 : camera.layout().totalSize());
}

/// Performs what a written register starts or stops.
GC_ERROR execute(Camera &camera, std::uint64_t address)
{
    if (address != AcquisitionStartRegister)
        return GC_ERR_SUCCESS;
    if (!camera.stream.isGrabbing)
        logViolation("the camera was started before the stream");
    if (QuirkScript::has("start-needs-lock") && camera.get(TLParamsLockedRegister) == 0)
        return GC_ERR_NOT_AVAILABLE;
    camera.isAcquiring = true;
    return GC_ERR_SUCCESS;
}

} // namespace

std::deque<Camera> &cameras()
{
    static auto &opened = *new std::deque<Camera>; // Its threads may still run when the process ends.
    return opened;
}

Camera *cameraOf(void *device)
{
    for (Camera &camera : cameras()) {
        if (&camera == device && camera.access != DEVICE_ACCESS_NONE)
            return &camera;
    }
    logViolation("a device's handle is not valid");
    return nullptr;
}

Camera *cameraOfPort(void *port)
{
    for (Camera &camera : cameras()) {
        if (&camera.registers == port && camera.access != DEVICE_ACCESS_NONE)
            return &camera;
    }
    logViolation("a port's handle is not valid");
    return nullptr;
}

std::uint64_t Camera::get(Register address) const
{
    std::uint64_t value = 0;
    std::memcpy(&value, registers.data() + address, sizeof value);
    return value;
}

void Camera::set(Register address, std::uint64_t value)
{
    std::memcpy(registers.data() + address, &value, sizeof value);
}

Layout Camera::layout() const
{
    Layout layout;
    layout.width = get(WidthRegister);
    layout.height = get(HeightRegister);
    layout.pixelFormat = get(PixelFormatRegister);
    layout.parts = QuirkScript::number("parts", 0);
    layout.imageOffset = QuirkScript::number("image-offset", 0);
    layout.linePadding = QuirkScript::number("line-padding", 0);
    layout.hasChunks = get(ChunkModeActiveRegister) != 0;
    return layout;
}

bool isGone(const std::string &cameraId)
{
    return QuirkScript::text("gone", "") == cameraId;
}

GC_ERROR openCamera(const std::string &id, DEVICE_ACCESS_FLAGS access, Camera *&camera)
{
    auto found = std::find_if(
        cameras().begin(), cameras().end(), [&](const Camera &known) { return known.id == id; });
    if (found == cameras().end()) {
        found = cameras().emplace(cameras().end());
        found->id = id;
        found->stream.camera = &*found;
    }
    if (found->access != DEVICE_ACCESS_NONE)
        return GC_ERR_RESOURCE_IN_USE;
    if (!acquireLocks(*found, access)) {
        releaseLocks(*found);
        return GC_ERR_ACCESS_DENIED;
    }
    resetRegisters(*found);
    found->access = access;
    camera = &*found;
    return GC_ERR_SUCCESS;
}

void closeCamera(Camera &camera, std::unique_lock<std::mutex> &lock)
{
    if (camera.stream.waiters > 0)
        logViolation("the device is closed during a wait for an event");
    stopThread(camera.stream, lock);
    camera.stream.isOpen = false;
    camera.isAcquiring = false;
    camera.access = DEVICE_ACCESS_NONE;
    releaseLocks(camera);
}

GC_ERROR readPort(Camera &camera, std::uint64_t address, void *data, std::size_t &size)
{
    if (isGone(camera.id) || size > QuirkScript::number("max-read", size))
        return GC_ERR_IO;
    compute(camera);
    const std::string document = address < registerBytes
        ? std::string(camera.registers.begin(), camera.registers.end())
        : description() + std::string(QuirkScript::number("behind-description", 0), '\0');
    const std::uint64_t start = address < registerBytes ? 0 : descriptionAddress;
    if (address < start || address - start >= document.size() || document.size() - (address - start) < size)
        return GC_ERR_INVALID_ADDRESS;
    std::memcpy(data, document.data() + (address - start), size);
    size -= std::min<std::size_t>(size, QuirkScript::number("short-read", 0));
    return GC_ERR_SUCCESS;
}

GC_ERROR writePort(Camera &camera, std::uint64_t address, const void *data, std::size_t &size)
{
    if (camera.access == DEVICE_ACCESS_READONLY)
        logViolation("a camera is written that was opened for reading");
    if (isGone(camera.id))
        return GC_ERR_IO;
    if (address >= registerBytes || size > registerBytes - address)
        return GC_ERR_INVALID_ADDRESS;
    if (address < TLParamsLockedRegister && camera.get(TLParamsLockedRegister) != 0)
        return GC_ERR_ACCESS_DENIED;
    const GC_ERROR result = execute(camera, address);
    if (result == GC_ERR_SUCCESS)
        std::memcpy(camera.registers.data() + address, data, size);
    changed.notify_all();
    return result;
}
