// This file defines the exported C functions of devices. GenTLDevice.h names the standard that defines what
// each function returns.

#include "sdk/producer/DeviceModule.h"
#include "sdk/producer/Guarded.h"

#include <algorithm>

using namespace GenTL;

namespace {

constexpr char remotePortName[] = "The port of the camera"; // Name of the port in the table of handles.

bool isOffered(DEVICE_ACCESS_FLAGS access)
{
    return access == DEVICE_ACCESS_READONLY || access == DEVICE_ACCESS_CONTROL
        || access == DEVICE_ACCESS_EXCLUSIVE;
}

GC_ERROR failNoStreams()
{
    return fail(GC_ERR_NOT_IMPLEMENTED, "The camera has no data stream.");
}

/// Opens the port of the camera below its device. The port is closed with the device.
GC_ERROR openRemotePort(DEV_HANDLE handle)
{
    HandleTable &handles = Producer::instance().handles();
    return with<DeviceModule>(handle, [&](DeviceModule &device) {
        PORT_HANDLE port = nullptr;
        return handles.open(handle, remotePortName, &port, [&] { return device.createRemotePort(); });
    });
}

} // namespace

extern "C" {

GENTL_FUNCTION IFOpenDevice(
    IF_HANDLE hIface, const char *sDeviceID, DEVICE_ACCESS_FLAGS iOpenFlag, DEV_HANDLE *phDevice)
{
    return with<InterfaceModule>(hIface, [&](InterfaceModule &interface) {
        if (!sDeviceID)
            return failMissingArgument();
        if (!isOffered(iOpenFlag))
            return fail(
                GC_ERR_INVALID_PARAMETER, "There is no access flag " + std::to_string(iOpenFlag) + ".");
        const GC_ERROR error = Producer::instance().handles().open(hIface, sDeviceID, phDevice, [&] {
            return std::make_shared<DeviceModule>(
                interface, listedRecord(interface.devices, sDeviceID), iOpenFlag);
        });
        return error ? error : openRemotePort(*phDevice);
    });
}

GENTL_FUNCTION DevGetPort(DEV_HANDLE hDevice, PORT_HANDLE *phRemoteDevice)
{
    return with<DeviceModule>(hDevice, [&](DeviceModule &) {
        return writeHandle(Producer::instance().handles().child(hDevice, remotePortName), phRemoteDevice);
    });
}

GENTL_FUNCTION DevGetNumDataStreams(DEV_HANDLE hDevice, std::uint32_t *piNumDataStreams)
{
    return with<DeviceModule>(hDevice, [&](DeviceModule &device) {
        if (!piNumDataStreams)
            return failMissingArgument();
        *piNumDataStreams = static_cast<std::uint32_t>(device.streamIds().size());
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION DevGetDataStreamID(
    DEV_HANDLE hDevice, std::uint32_t iIndex, char *sDataStreamID, std::size_t *piSize)
{
    return with<DeviceModule>(hDevice, [&](DeviceModule &device) {
        const InfoOutput output(sDataStreamID, piSize);
        if (!output.isComplete())
            return failMissingArgument();
        const std::vector<std::string> ids = device.streamIds();
        if (ids.empty())
            return failNoStreams();
        return iIndex < ids.size() ? output.writeString(ids[iIndex])
                                   : failIndex(iIndex, static_cast<std::uint32_t>(ids.size()));
    });
}

GENTL_FUNCTION DevOpenDataStream(DEV_HANDLE hDevice, const char *sDataStreamID, DS_HANDLE *phDataStream)
{
    return with<DeviceModule>(hDevice, [&](DeviceModule &device) {
        if (!sDataStreamID)
            return failMissingArgument();
        const std::vector<std::string> ids = device.streamIds();
        if (ids.empty())
            return failNoStreams();
        if (std::find(ids.begin(), ids.end(), sDataStreamID) == ids.end())
            return failUnknownId(sDataStreamID);
        return Producer::instance().handles().open(
            hDevice, sDataStreamID, phDataStream, [&] { return device.createStream(); });
    });
}

GENTL_FUNCTION DevGetInfo(
    DEV_HANDLE hDevice, DEVICE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return with<DeviceModule>(hDevice, [&](DeviceModule &device) {
        const InfoOutput output(piType, pBuffer, piSize);
        return output.isComplete() ? device.info(iInfoCmd, output) : failMissingArgument();
    });
}

GENTL_FUNCTION DevClose(DEV_HANDLE hDevice)
{
    return closeHandle<DeviceModule>(hDevice);
}

GENTL_FUNCTION DevGetParentIF(DEV_HANDLE hDevice, IF_HANDLE *phIface)
{
    return with<DeviceModule>(hDevice,
        [&](DeviceModule &) { return writeHandle(Producer::instance().handles().parent(hDevice), phIface); });
}

} // extern "C"
