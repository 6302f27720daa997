// The functions that find cameras: one interface "net0" with the cameras of the script.

#include "tests/camerahost/producer/QuirkCall.h"
#include "tests/camerahost/producer/QuirkInfos.h"
#include "tests/camerahost/producer/QuirkScript.h"

#include <algorithm>

namespace {

using namespace GenTL;
using Lock = std::unique_lock<std::mutex>;

int systemHandle = 0;
int interfaceHandle = 0;

std::vector<std::string> cameraIds()
{
    std::vector<std::string> ids = QuirkScript::words("cameras");
    if (ids.empty())
        ids.emplace_back("A1");
    ids.erase(std::remove_if(ids.begin(), ids.end(), isGone), ids.end());
    return ids;
}

} // namespace

namespace GenTL {
extern "C" {

GENTL_FUNCTION GCInitLib()
{
    return loggedCall("GCInitLib", "", [](const Lock &) { return GC_ERR_SUCCESS; });
}

GENTL_FUNCTION GCCloseLib()
{
    return loggedCall("GCCloseLib", "", [](const Lock &) { return GC_ERR_SUCCESS; });
}

GENTL_FUNCTION GCGetLastError(GC_ERROR *piErrorCode, char *sErrText, std::size_t *piSize)
{
    *piErrorCode = lastError();
    return storeText("the producer's own text", sErrText, piSize);
}

GENTL_FUNCTION TLOpen(TL_HANDLE *phTL)
{
    return loggedCall("TLOpen", "", [&](const Lock &) {
        *phTL = &systemHandle;
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION TLClose(TL_HANDLE)
{
    return loggedCall("TLClose", "", [](const Lock &) { return GC_ERR_SUCCESS; });
}

GENTL_FUNCTION TLUpdateInterfaceList(TL_HANDLE, bool8_t *, std::uint64_t)
{
    return call("TLUpdateInterfaceList", "", [](const Lock &) { return GC_ERR_SUCCESS; });
}

GENTL_FUNCTION TLGetNumInterfaces(TL_HANDLE, std::uint32_t *piNumIfaces)
{
    *piNumIfaces = 1;
    return GC_ERR_SUCCESS;
}

GENTL_FUNCTION TLGetInterfaceID(TL_HANDLE, std::uint32_t iIndex, char *sID, std::size_t *piSize)
{
    return iIndex == 0 ? storeText("net0", sID, piSize) : GC_ERR_INVALID_INDEX;
}

GENTL_FUNCTION TLGetInterfaceInfo(TL_HANDLE, const char *, INTERFACE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType,
    void *pBuffer, std::size_t *piSize)
{
    return infoCall(
        "TLGetInterfaceInfo", "", {piType, pBuffer, piSize}, [&] { return interfaceInfo(iInfoCmd); });
}

GENTL_FUNCTION TLOpenInterface(TL_HANDLE, const char *sIfaceID, IF_HANDLE *phIface)
{
    return loggedCall("TLOpenInterface", sIfaceID, [&](const Lock &) {
        *phIface = &interfaceHandle;
        return std::string("net0") == sIfaceID ? GC_ERR_SUCCESS : GC_ERR_INVALID_ID;
    });
}

GENTL_FUNCTION IFClose(IF_HANDLE)
{
    return loggedCall("IFClose", "", [](const Lock &) { return GC_ERR_SUCCESS; });
}

GENTL_FUNCTION IFGetInfo(
    IF_HANDLE, INTERFACE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return infoCall("IFGetInfo", "", {piType, pBuffer, piSize}, [&] { return interfaceInfo(iInfoCmd); });
}

GENTL_FUNCTION IFUpdateDeviceList(IF_HANDLE, bool8_t *, std::uint64_t)
{
    return call("IFUpdateDeviceList", "", [](const Lock &) { return GC_ERR_SUCCESS; });
}

GENTL_FUNCTION IFGetNumDevices(IF_HANDLE, std::uint32_t *piNumDevices)
{
    *piNumDevices = static_cast<std::uint32_t>(cameraIds().size());
    return GC_ERR_SUCCESS;
}

GENTL_FUNCTION IFGetDeviceID(IF_HANDLE, std::uint32_t iIndex, char *sIDeviceID, std::size_t *piSize)
{
    const auto ids = cameraIds();
    return iIndex < ids.size() ? storeText(ids[iIndex], sIDeviceID, piSize) : GC_ERR_INVALID_INDEX;
}

GENTL_FUNCTION IFGetDeviceInfo(IF_HANDLE, const char *sDeviceID, DEVICE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return infoCall(
        "IFGetDeviceInfo", "", {piType, pBuffer, piSize}, [&] { return deviceInfo(sDeviceID, iInfoCmd); });
}

GENTL_FUNCTION IFOpenDevice(
    IF_HANDLE, const char *sDeviceID, DEVICE_ACCESS_FLAGS iOpenFlag, DEV_HANDLE *phDevice)
{
    static const char *const names[] = {"UNKNOWN", "NONE", "READONLY", "CONTROL", "EXCLUSIVE"};
    return loggedCall("IFOpenDevice", names[iOpenFlag], [&](const Lock &) {
        const auto ids = cameraIds();
        if (std::find(ids.begin(), ids.end(), sDeviceID) == ids.end())
            return GC_ERR_INVALID_ID;
        Camera *camera = nullptr;
        const GC_ERROR result = openCamera(sDeviceID, iOpenFlag, camera);
        *phDevice = camera;
        return result;
    });
}

} // extern "C"
} // namespace GenTL
