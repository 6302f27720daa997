#pragma once

#include "tools/kit/camera/CameraConnection.h"

/// Makes a call for which the camera must not stream. The window of a tool implements this with the stream
/// that it shows, so the editors need not know streams.
class StreamPauser
{
public:
    virtual ~StreamPauser() = default;

    /// Stops the stream if it runs, makes the call, and starts the stream again if it ran, whatever the call
    /// returned. `done` receives the result of the call; it is not called if `context` was destroyed.
    virtual void pauseFor(CameraConnection::Call call, QObject *context, CameraConnection::Done done) = 0;
};
