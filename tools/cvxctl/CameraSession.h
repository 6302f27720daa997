#pragma once

#include "CvxCPP/Device.h"
#include "sdk/names/CameraNames.h"
#include "tools/cvxctl/ExitStatus.h"

#include <memory>
#include <string>
#include <vector>

/// A camera with its names.
struct ListedCamera
{
    CameraNames names;
    std::string type; ///< Technology, for example "GigE".
    std::shared_ptr<CvxCPP::Camera> camera;
};

/// The camera system during one command. The destructor closes everything.
class CameraSession
{
public:
    CameraSession() = default;
    ~CameraSession();
    CameraSession(const CameraSession &) = delete;
    CameraSession &operator=(const CameraSession &) = delete;

    /// Starts the system and lists the cameras. Prints an error on failure. Blocks for at most 3 s.
    ExitStatus list(std::vector<ListedCamera> &cameras);

    /// Lists the cameras after one second, because a GigE Vision camera may wait that long before it answers.
    ExitStatus listLate(std::vector<ListedCamera> &cameras);

    /// Finds the one camera that the text means. If there is none or more than one, prints an error with the
    /// candidates.
    ExitStatus find(const std::string &text, ListedCamera &camera);

    /// Finds and opens a camera. Prints an error on failure.
    ExitStatus open(const std::string &text, CvxCPP::CvxAccess access);

    /// Finds a camera and opens it for a command that only writes selectors: with control if possible,
    /// otherwise for watching, after a message. Prints an error on failure.
    ExitStatus openToRead(const std::string &text);

    const ListedCamera &camera() const { return m_camera; }
    CvxCPP::Device &device() { return *m_device; }

private:
    ExitStatus start();

    bool m_isStarted = false;
    ListedCamera m_camera;
    std::shared_ptr<CvxCPP::Device> m_device; // Null until open() succeeds.
};

/// Prints the text of a failed call and returns the exit status.
ExitStatus reportFailure(const CvxCPP::CvxResult &result);
