#pragma once

#include <functional>

/// Ends the process soon after the library has closed its end of the socket, even if a call of the producer
/// hangs: a camera must not stay locked for the next program. The thread of a watch runs until the process
/// ends.
class SocketWatch
{
public:
    /// Starts to watch. If the process does not call noteShutdown() soon after the socket was closed, because
    /// its main thread hangs, `abandon` is called on another thread.
    SocketWatch(int socket, std::function<void()> abandon);

    /// Notes that the main thread itself closes the camera.
    void noteShutdown();

private:
    struct State;
    State *m_state; // Never deleted, because the thread does not end before the process.
};
