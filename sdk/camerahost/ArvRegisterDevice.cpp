#include "sdk/camerahost/ArvRegisterDevice.h"

#include <exception>

namespace {

struct ArvRegisterDeviceClass
{
    ArvDeviceClass parent;
};

/// Performs an access and converts its problem to an error of the engine.
template <typename Access>
gboolean perform(ArvDevice *device, const Access &access, GError **error)
{
    auto *const self = reinterpret_cast<ArvRegisterDevice *>(device);
    std::optional<Problem> problem;
    try {
        problem = access(*self->port);
    } catch (const std::exception &exception) { // Must not pass through the engine.
        problem = Problem{"register access", 0, exception.what()};
    }
    if (!problem)
        return TRUE;
    g_set_error_literal(
        error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TRANSFER_ERROR, "the register cannot be accessed");
    if (!*self->lastProblem)
        *self->lastProblem = std::move(problem);
    return FALSE;
}

gboolean readMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    return perform(
        device, [&](RegisterPort &port) { return port.read(address, buffer, size); }, error);
}

gboolean writeMemory(ArvDevice *device, guint64 address, guint32 size, void *buffer, GError **error)
{
    return perform(
        device, [&](RegisterPort &port) { return port.write(address, buffer, size); }, error);
}

void initClass(void *instance, void *)
{
    ARV_DEVICE_CLASS(instance)->read_memory = readMemory;
    ARV_DEVICE_CLASS(instance)->write_memory = writeMemory;
}

GType registerDeviceType()
{
    static const GType type = [] {
        GTypeInfo info{};
        info.class_size = sizeof(ArvRegisterDeviceClass);
        info.class_init = initClass;
        info.instance_size = sizeof(ArvRegisterDevice);
        return g_type_register_static(ARV_TYPE_DEVICE, "CvxRegisterDevice", &info, GTypeFlags());
    }();
    return type;
}

} // namespace

std::unique_ptr<ArvRegisterDevice, GObjectDeleter> makeRegisterDevice(
    RegisterPort &port, std::optional<Problem> &lastProblem)
{
    std::unique_ptr<ArvRegisterDevice, GObjectDeleter> device(
        reinterpret_cast<ArvRegisterDevice *>(g_object_new(registerDeviceType(), nullptr)));
    device->port = &port;
    device->lastProblem = &lastProblem;
    return device;
}
