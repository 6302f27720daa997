#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <cstddef>
#include <string>
#include <sys/types.h>

/// The file by which all processes share one simulated camera, with locks that say who uses the camera. The
/// locks belong to the open file, so they end with the process at the latest. The last user removes the file.
class CameraFile
{
public:
    /// Number of bytes at the start of the file that the user of the file must not change.
    static constexpr std::size_t reservedSize = 8;

    /// Opens the file of the camera, or creates it. Blocks for at most 2 s while another process creates or
    /// removes the file. Throws GenTlError: GC_ERR_ACCESS_DENIED if another user excludes this access, or
    /// GC_ERR_IO. The first user is alone until share() is called.
    CameraFile(const std::string &path, GenTL::DEVICE_ACCESS_FLAGS access);
    ~CameraFile();
    CameraFile(const CameraFile &) = delete;
    CameraFile &operator=(const CameraFile &) = delete;

    int descriptor() const { return m_descriptor; }

    /// Returns true if nobody else uses the file, which may still have the contents of its last user.
    bool isFirstUser() const { return m_isFirstUser; }

    /// Lets other users in.
    void share();

    /// Releases the locks. Removes the file if this was the last user, unless `isKept`.
    void close(bool isKept);

private:
    bool tryOpen(const std::string &path);
    void lockAccess(GenTL::DEVICE_ACCESS_FLAGS access) const;
    [[noreturn]] void denyAccess(off_t processOffset, const char *reason) const;
    bool isStillAt(const std::string &path) const;

    const std::string m_path;
    int m_descriptor = -1;
    bool m_isFirstUser = false;
};

/// Returns the path of the file for a camera. The file is in $XDG_RUNTIME_DIR or else in /tmp.
std::string cameraFilePath(const std::string &interfaceId, const std::string &deviceId);
