#pragma once

#include <arv.h>

#include "sdk/camerahost/RegisterPort.h"

#include <memory>
#include <optional>

/// The registers of a camera in the form of a device of libaravis.
struct ArvRegisterDevice
{
    ArvDevice parent;
    RegisterPort *port;
    std::optional<Problem> *lastProblem;
};

/// Releases a GObject.
struct GObjectDeleter
{
    void operator()(void *object) const { g_object_unref(object); }
};

/// Returns a device for the port. A failing access sets `lastProblem`. Both must exist as long as the device.
std::unique_ptr<ArvRegisterDevice, GObjectDeleter> makeRegisterDevice(
    RegisterPort &port, std::optional<Problem> &lastProblem);
