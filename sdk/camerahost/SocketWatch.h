#pragma once

#include "sdk/camerahost/CallWatch.h"

#include <functional>

/// Ends the process soon after the library has closed its end of the socket or its process has ended, even if
/// a call of the producer hangs: a camera must not stay locked for the next program. Also ends the process if
/// the main thread hangs in a call for which the library does not wait. The thread of a watch runs until the
/// process ends.
class SocketWatch
{
public:
    /// Starts to watch. If the process does not call noteShutdown() soon after the socket was closed, because
    /// its main thread hangs, `abandon` is called on another thread.
    SocketWatch(int socket, std::function<void()> abandon);

    /// Grants more time while the main thread has to put values back before it closes the camera.
    void setPutBack(bool isNeeded);

    /// Notes that the main thread itself closes the camera.
    void noteShutdown();

    /// Returns where the main thread notes calls for which the library does not wait.
    CallWatch &calls();

private:
    struct State;
    State *m_state; // Never deleted, because the thread does not end before the process.
};
