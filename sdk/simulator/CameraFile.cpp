#include "sdk/simulator/CameraFile.h"

#include "sdk/producer/OpenCamera.h"

#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

// The byte of the file that a lock covers. The locks do not keep anybody from reading or writing the bytes.
constexpr off_t userByte = 0; // Shared by all users; held alone while the file is created or removed.
constexpr off_t controlByte = 1; // Held by the user who may write.
constexpr off_t watchByte = 2; // Shared by the users who only read; held alone for exclusive access.
constexpr off_t closingByte = 3; // Held while a user finds out whether it is the last one.

// Where the file contains the ID of the process that has opened the camera last for this access.
constexpr off_t controllerOffset = 0;
constexpr off_t watcherOffset = 4;

constexpr std::chrono::seconds maxWait{2};

bool tryLock(int descriptor, off_t byte, int type, off_t length = 1)
{
    struct flock lock
    { };
    lock.l_type = static_cast<short>(type);
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = length;
    return fcntl(descriptor, F_OFD_SETLK, &lock) == 0;
}

/// Releases all locks at once. Closing the descriptor is not enough while the file is mapped.
void unlock(int descriptor)
{
    constexpr off_t toTheEnd = 0;
    tryLock(descriptor, 0, F_UNLCK, toTheEnd);
}

/// Calls attempt() every millisecond until it returns true, at most for maxWait.
template <typename Attempt>
bool succeedsInTime(Attempt attempt)
{
    const auto end = std::chrono::steady_clock::now() + maxWait;
    while (!attempt()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

[[noreturn]] void failToOpen(const std::string &path, const std::string &reason)
{
    throw GenTlError(GenTL::GC_ERR_IO, "The registers of the simulated camera in " + path + " " + reason);
}

/// Returns an ID as part of a file name: all bytes but letters, digits, "-" and "_" become "%" and two
/// digits.
std::string asFileName(const std::string &id)
{
    std::string name;
    for (const char character : id) {
        const auto byte = static_cast<unsigned char>(character);
        char code[4] = {character};
        if (!std::isalnum(byte) && character != '-' && character != '_')
            std::snprintf(code, sizeof code, "%%%02X", byte);
        name += code;
    }
    return name;
}

} // namespace

CameraFile::CameraFile(const std::string &path, GenTL::DEVICE_ACCESS_FLAGS access) : m_path(path)
{
    if (!succeedsInTime([this, &path] { return tryOpen(path); }))
        failToOpen(path, "are being created or removed by another process for too long");
    try {
        lockAccess(access);
    } catch (...) {
        close(false);
        throw;
    }
}

CameraFile::~CameraFile()
{
    close(false);
}

bool CameraFile::tryOpen(const std::string &path)
{
    m_descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (m_descriptor < 0)
        failToOpen(path, std::string("cannot be opened: ") + std::strerror(errno));
    struct stat status
    { };
    fstat(m_descriptor, &status);
    const bool isOurs = S_ISREG(status.st_mode) && status.st_uid == geteuid()
        && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    if (!isOurs) {
        ::close(std::exchange(m_descriptor, -1));
        failToOpen(path, "belong to somebody else");
    }
    m_isFirstUser = tryLock(m_descriptor, userByte, F_WRLCK);
    if ((m_isFirstUser || tryLock(m_descriptor, userByte, F_RDLCK)) && isStillAt(path))
        return true;
    ::close(std::exchange(m_descriptor, -1));
    return false;
}

/// The last user may have removed the file between our open() and our lock.
bool CameraFile::isStillAt(const std::string &path) const
{
    struct stat opened
    { };
    struct stat named
    { };
    return fstat(m_descriptor, &opened) == 0 && stat(path.c_str(), &named) == 0
        && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

void CameraFile::lockAccess(GenTL::DEVICE_ACCESS_FLAGS access) const
{
    const bool isControl = access != GenTL::DEVICE_ACCESS_READONLY;
    if (isControl && !tryLock(m_descriptor, controlByte, F_WRLCK))
        denyAccess(controllerOffset, "controls the camera");
    if (access == GenTL::DEVICE_ACCESS_EXCLUSIVE && !tryLock(m_descriptor, watchByte, F_WRLCK))
        denyAccess(watcherOffset, "watches the camera");
    if (!isControl && !tryLock(m_descriptor, watchByte, F_RDLCK))
        denyAccess(controllerOffset, "uses the camera exclusively");
    const pid_t process = getpid();
    const off_t offset = isControl ? controllerOffset : watcherOffset;
    if (pwrite(m_descriptor, &process, sizeof process, offset) != sizeof process)
        failToOpen(m_path, std::string("cannot be written: ") + std::strerror(errno));
}

void CameraFile::denyAccess(off_t processOffset, const char *reason) const
{
    pid_t process = 0;
    const bool isKnown = pread(m_descriptor, &process, sizeof process, processOffset) == sizeof process;
    throw GenTlError(GenTL::GC_ERR_ACCESS_DENIED,
        (isKnown ? "Process " + std::to_string(process) : "Another process") + ' ' + reason);
}

void CameraFile::share()
{
    tryLock(m_descriptor, userByte, F_RDLCK); // Cannot fail, because we hold the lock alone.
}

void CameraFile::close(bool isKept)
{
    if (m_descriptor < 0)
        return;
    // One user at a time, or the last two users would both see each other and leave the file behind.
    const bool isAlone = succeedsInTime([this] { return tryLock(m_descriptor, closingByte, F_WRLCK); })
        && tryLock(m_descriptor, userByte, F_WRLCK);
    if (isAlone && !isKept)
        unlink(m_path.c_str());
    unlock(m_descriptor);
    ::close(std::exchange(m_descriptor, -1));
}

std::string cameraFilePath(const std::string &interfaceId, const std::string &deviceId)
{
    const char *const runtime = std::getenv("XDG_RUNTIME_DIR");
    const std::string folder = runtime && access(runtime, W_OK | X_OK) == 0
        ? std::string(runtime) + "/corvix-camera-"
        : "/tmp/corvix-camera-" + std::to_string(geteuid()) + '-';
    // A file name has at most 255 bytes.
    return folder + asFileName(deviceId).substr(0, 120) + '.' + asFileName(interfaceId).substr(0, 80);
}
