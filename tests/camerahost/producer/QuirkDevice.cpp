// The functions of opened cameras and their ports.

#include "tests/camerahost/producer/QuirkCall.h"
#include "tests/camerahost/producer/QuirkInfos.h"
#include "tests/camerahost/producer/QuirkScript.h"

#include <cstdio>
#include <filesystem>

namespace {

using namespace GenTL;
using Lock = std::unique_lock<std::mutex>;

std::string hexadecimal(std::uint64_t number)
{
    char text[17];
    std::snprintf(text, sizeof text, "%llx", static_cast<unsigned long long>(number));
    return text;
}

/// Returns the URLs of the description: those of the script, or the memory of the camera.
std::vector<std::string> urls()
{
    if (QuirkScript::has("no-urls"))
        return {};
    const auto listed = QuirkScript::words("url");
    if (!listed.empty())
        return listed;
    const auto size = std::filesystem::file_size(QuirkScript::pathWith(".xml"));
    return {"Local:camera.xml;" + hexadecimal(descriptionAddress) + ';' + hexadecimal(size)};
}

Info urlInfo(std::uint32_t index, URL_INFO_CMD command)
{
    const auto all = urls();
    if (index >= all.size())
        return noInfo(GC_ERR_INVALID_INDEX);
    return command == URL_INFO_URL ? Info{INFO_DATATYPE_STRING, 0, all[index], GC_ERR_SUCCESS}
                                   : noInfo(GC_ERR_NOT_IMPLEMENTED);
}

/// Notes the attempt to stop the camera, which counts even if the script makes it fail.
void noteStop(void *port, std::uint64_t address)
{
    const Lock lock(mutex);
    if (Camera *const camera = address == AcquisitionStopRegister ? cameraOfPort(port) : nullptr)
        camera->isAcquiring = false;
}

} // namespace

namespace GenTL {
extern "C" {

GENTL_FUNCTION DevGetPort(DEV_HANDLE hDevice, PORT_HANDLE *phRemoteDevice)
{
    return loggedCall("DevGetPort", "", [&](const Lock &) {
        Camera *const camera = cameraOf(hDevice);
        if (!camera)
            return GC_ERR_INVALID_HANDLE;
        *phRemoteDevice = &camera->registers;
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION DevGetNumDataStreams(DEV_HANDLE hDevice, std::uint32_t *piNumDataStreams)
{
    return loggedCall("DevGetNumDataStreams", "", [&](const Lock &) {
        if (!cameraOf(hDevice))
            return GC_ERR_INVALID_HANDLE;
        *piNumDataStreams = static_cast<std::uint32_t>(QuirkScript::number("streams", 1));
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION DevGetDataStreamID(DEV_HANDLE, std::uint32_t iIndex, char *sDataStreamID, std::size_t *piSize)
{
    return loggedCall("DevGetDataStreamID", "", [&](const Lock &) {
        return iIndex == 0 ? storeText("Stream0", sDataStreamID, piSize) : GC_ERR_INVALID_INDEX;
    });
}

GENTL_FUNCTION DevOpenDataStream(DEV_HANDLE hDevice, const char *sDataStreamID, DS_HANDLE *phDataStream)
{
    return loggedCall("DevOpenDataStream", "", [&](const Lock &) {
        Camera *const camera = cameraOf(hDevice);
        if (!camera)
            return GC_ERR_INVALID_HANDLE;
        if (std::string("Stream0") != sDataStreamID)
            return GC_ERR_INVALID_ID;
        if (camera->stream.isOpen)
            return GC_ERR_RESOURCE_IN_USE;
        camera->stream.isOpen = true;
        camera->stream.images = 0;
        *phDataStream = &camera->stream;
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION DevGetInfo(
    DEV_HANDLE hDevice, DEVICE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return infoCall("DevGetInfo", std::to_string(iInfoCmd), {piType, pBuffer, piSize}, [&] {
        const Camera *const camera = cameraOf(hDevice);
        return camera ? deviceInfo(camera->id, iInfoCmd) : noInfo(GC_ERR_INVALID_HANDLE);
    });
}

GENTL_FUNCTION DevClose(DEV_HANDLE hDevice)
{
    return loggedCall("DevClose", "", [&](Lock &lock) {
        Camera *const camera = cameraOf(hDevice);
        if (!camera)
            return GC_ERR_INVALID_HANDLE;
        closeCamera(*camera, lock);
        QuirkScript::log("closed " + camera->id);
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION GCReadPort(PORT_HANDLE hPort, std::uint64_t iAddress, void *pBuffer, std::size_t *piSize)
{
    return call("GCReadPort", hexadecimal(iAddress), [&](const Lock &) {
        Camera *const camera = cameraOfPort(hPort);
        return camera ? readPort(*camera, iAddress, pBuffer, *piSize) : GC_ERR_INVALID_HANDLE;
    });
}

GENTL_FUNCTION GCWritePort(
    PORT_HANDLE hPort, std::uint64_t iAddress, const void *pBuffer, std::size_t *piSize)
{
    noteStop(hPort, iAddress);
    return loggedCall("GCWritePort", hexadecimal(iAddress), [&](const Lock &) {
        Camera *const camera = cameraOfPort(hPort);
        return camera ? writePort(*camera, iAddress, pBuffer, *piSize) : GC_ERR_INVALID_HANDLE;
    });
}

GENTL_FUNCTION GCGetPortURL(PORT_HANDLE, char *sURL, std::size_t *piSize)
{
    return call("GCGetPortURL", "", [&](const Lock &) {
        std::string list;
        for (const std::string &url : urls())
            list += url + '\0';
        return list.empty() ? GC_ERR_NO_DATA : storeText(list, sURL, piSize);
    });
}

GENTL_FUNCTION GCGetPortInfo(
    PORT_HANDLE, PORT_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return infoCall("GCGetPortInfo", std::to_string(iInfoCmd), {piType, pBuffer, piSize},
        [&] { return portInfo(iInfoCmd); });
}

GENTL_FUNCTION GCGetNumPortURLs(PORT_HANDLE, std::uint32_t *piNumURLs)
{
    return call("GCGetNumPortURLs", "", [&](const Lock &) {
        *piNumURLs = static_cast<std::uint32_t>(urls().size());
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION GCGetPortURLInfo(PORT_HANDLE, std::uint32_t iURLIndex, URL_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return infoCall("GCGetPortURLInfo", std::to_string(iURLIndex), {piType, pBuffer, piSize},
        [&] { return urlInfo(iURLIndex, iInfoCmd); });
}

} // extern "C"
} // namespace GenTL
