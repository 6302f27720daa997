#define _POSIX_C_SOURCE 200809L
#include "bench/programs/directListing.h"

#include <dlfcn.h>
#include <stddef.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>

enum
{
    searchTimeout = 500, /* In milliseconds. */
    maxTextSize = 1024, /* In bytes. */
    interfaceDisplayName = 1, /* This value and the next one are INTERFACE_INFO_CMDs. */
    interfaceType = 2,
    deviceFieldCount = 5
};

/* The DEVICE_INFO_CMD values for vendor, model, type, display name and serial number. */
static const int32_t deviceFields[deviceFieldCount] = {1, 2, 3, 4, 7};

struct Producer
{
    int32_t (*initLib)(void);
    int32_t (*openSystem)(void **);
    int32_t (*updateInterfaces)(void *, uint8_t *, uint64_t);
    int32_t (*countInterfaces)(void *, uint32_t *);
    int32_t (*interfaceId)(void *, uint32_t, char *, size_t *);
    int32_t (*interfaceInfo)(void *, const char *, int32_t, int32_t *, void *, size_t *);
    int32_t (*openInterface)(void *, const char *, void **);
    int32_t (*updateDevices)(void *, uint8_t *, uint64_t);
    int32_t (*countDevices)(void *, uint32_t *);
    int32_t (*deviceId)(void *, uint32_t, char *, size_t *);
    int32_t (*deviceInfo)(void *, const char *, int32_t, int32_t *, void *, size_t *);
};

struct Camera
{
    char *id;
    char *fields[deviceFieldCount];
};

static struct Camera *cameras; /* Never freed, because a running program keeps its list. */
static size_t cameraCount;

static int resolve(void *library, const char *name, void *function)
{
    void *symbol = dlsym(library, name);
    memcpy(function, &symbol, sizeof symbol);
    return symbol != NULL;
}

static int load(const char *path, struct Producer *producer)
{
    void *library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    return library && resolve(library, "GCInitLib", &producer->initLib)
        && resolve(library, "TLOpen", &producer->openSystem)
        && resolve(library, "TLUpdateInterfaceList", &producer->updateInterfaces)
        && resolve(library, "TLGetNumInterfaces", &producer->countInterfaces)
        && resolve(library, "TLGetInterfaceID", &producer->interfaceId)
        && resolve(library, "TLGetInterfaceInfo", &producer->interfaceInfo)
        && resolve(library, "TLOpenInterface", &producer->openInterface)
        && resolve(library, "IFUpdateDeviceList", &producer->updateDevices)
        && resolve(library, "IFGetNumDevices", &producer->countDevices)
        && resolve(library, "IFGetDeviceID", &producer->deviceId)
        && resolve(library, "IFGetDeviceInfo", &producer->deviceInfo);
}

static int readDevice(const struct Producer *producer, void *interface, uint32_t index, struct Camera *camera)
{
    char text[maxTextSize];
    size_t size = sizeof text;
    if (producer->deviceId(interface, index, text, &size) != 0)
        return 0;
    camera->id = strdup(text);
    for (int field = 0; field < deviceFieldCount; ++field) {
        int32_t type = 0;
        size = sizeof text;
        if (producer->deviceInfo(interface, camera->id, deviceFields[field], &type, text, &size) != 0)
            return 0;
        camera->fields[field] = strdup(text);
    }
    return 1;
}

static int readInterface(const struct Producer *producer, void *system, uint32_t index)
{
    char id[maxTextSize], text[maxTextSize];
    size_t size = sizeof id;
    int32_t type = 0;
    void *interface = NULL;
    uint8_t changed = 0;
    uint32_t count = 0;
    if (producer->interfaceId(system, index, id, &size) != 0
        || producer->openInterface(system, id, &interface) != 0
        || producer->updateDevices(interface, &changed, searchTimeout) != 0
        || producer->countDevices(interface, &count) != 0)
        return 0;
    for (int32_t field = interfaceDisplayName; field <= interfaceType; ++field) {
        size = sizeof text;
        producer->interfaceInfo(
            system, id, field, &type, text, &size); /* May fail, because the string is optional. */
    }
    cameras = realloc(cameras, (cameraCount + count) * sizeof *cameras);
    for (uint32_t device = 0; device < count; ++device) {
        if (!readDevice(producer, interface, device, &cameras[cameraCount]))
            return 0;
        ++cameraCount;
    }
    return 1;
}

int listDirectly(const char *path)
{
    struct Producer producer;
    void *system = NULL;
    uint8_t changed = 0;
    uint32_t interfaces = 0;
    if (!load(path, &producer) || producer.initLib() != 0 || producer.openSystem(&system) != 0
        || producer.updateInterfaces(system, &changed, searchTimeout) != 0
        || producer.countInterfaces(system, &interfaces) != 0)
        return -1;
    for (uint32_t index = 0; index < interfaces; ++index) {
        if (!readInterface(&producer, system, index))
            return -1;
    }
    return (int)cameraCount;
}
