#include "sdk/camerahost/DeviceLibrary.h"

#include <string>

std::optional<Problem> DeviceLibrary::resolveDeviceFunctions()
{
    std::string missing;
    const auto resolve = [this](const char *name, auto &function) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(find(name));
        return function != nullptr;
    };
    const auto require = [&](const char *name, auto &function) {
        if (!resolve(name, function))
            missing += missing.empty() ? name : std::string(", ") + name;
    };
    require("IFOpenDevice", IFOpenDevice);
    require("DevGetPort", DevGetPort);
    require("DevClose", DevClose);
    require("GCReadPort", GCReadPort);
    require("GCWritePort", GCWritePort);

    resolve("DevGetNumDataStreams", DevGetNumDataStreams);
    resolve("DevGetDataStreamID", DevGetDataStreamID);
    resolve("DevOpenDataStream", DevOpenDataStream);
    resolve("DSClose", DSClose);
    resolve("DSQueueBuffer", DSQueueBuffer);
    resolve("DSStartAcquisition", DSStartAcquisition);
    resolve("DSStopAcquisition", DSStopAcquisition);
    resolve("DSRevokeBuffer", DSRevokeBuffer);
    resolve("GCRegisterEvent", GCRegisterEvent);
    resolve("EventGetData", EventGetData);
    resolve("DSAnnounceBuffer", DSAnnounceBuffer);
    resolve("DSAllocAndAnnounceBuffer", DSAllocAndAnnounceBuffer);
    resolve("DSFlushQueue", DSFlushQueue);
    resolve("GCUnregisterEvent", GCUnregisterEvent);
    resolve("EventKill", EventKill);
    resolve("DevGetInfo", DevGetInfo);
    resolve("DSGetInfo", DSGetInfo);
    resolve("DSGetBufferInfo", DSGetBufferInfo);
    resolve("DSGetBufferChunkData", DSGetBufferChunkData);
    resolve("DSGetNumBufferParts", DSGetNumBufferParts);
    resolve("DSGetBufferPartInfo", DSGetBufferPartInfo);
    resolve("GCGetPortInfo", GCGetPortInfo);
    resolve("GCGetNumPortURLs", GCGetNumPortURLs);
    resolve("GCGetPortURLInfo", GCGetPortURLInfo);
    resolve("GCGetPortURL", GCGetPortURL);
    if (missing.empty())
        return std::nullopt;
    return Problem{"dlsym", 0, "the library lacks " + missing + ", so it cannot open cameras"};
}

std::optional<Problem> DeviceLibrary::checkStreamFunctions() const
{
    std::string missing;
    const auto require = [&](const char *name, bool exists) {
        if (!exists)
            missing += missing.empty() ? name : std::string(", ") + name;
    };
    require("DevGetNumDataStreams", DevGetNumDataStreams);
    require("DevGetDataStreamID", DevGetDataStreamID);
    require("DevOpenDataStream", DevOpenDataStream);
    require("DSClose", DSClose);
    require("DSQueueBuffer", DSQueueBuffer);
    require("DSStartAcquisition", DSStartAcquisition);
    require("DSStopAcquisition", DSStopAcquisition);
    require("DSRevokeBuffer", DSRevokeBuffer);
    require("GCRegisterEvent", GCRegisterEvent);
    require("EventGetData", EventGetData);
    require("DSAnnounceBuffer", DSAnnounceBuffer || DSAllocAndAnnounceBuffer);
    if (missing.empty())
        return std::nullopt;
    return Problem{"dlsym", GenTL::GC_ERR_NOT_IMPLEMENTED,
        "the library lacks " + missing + ", so it cannot stream images"};
}
