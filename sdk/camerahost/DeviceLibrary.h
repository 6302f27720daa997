#pragma once

#include "sdk/gentl/GenTLDevice.h"
#include "sdk/hosting/ProducerLibrary.h"

/// The functions of a producer that opened devices need, in addition to those that find devices. load() and
/// call() are inherited.
class DeviceLibrary : public ProducerLibrary
{
public:
    /// Looks up the functions; load() must have succeeded. Returns a problem that names the functions without
    /// which a device cannot be opened.
    std::optional<Problem> resolveDeviceFunctions();

    /// Returns a problem that names the functions without which no stream is possible, or nothing if the
    /// producer has all of them.
    std::optional<Problem> checkStreamFunctions() const;

    // Without these functions, a device cannot be opened.
    decltype(&GenTL::IFOpenDevice) IFOpenDevice = nullptr;
    decltype(&GenTL::DevGetPort) DevGetPort = nullptr;
    decltype(&GenTL::DevClose) DevClose = nullptr;
    decltype(&GenTL::GCReadPort) GCReadPort = nullptr;
    decltype(&GenTL::GCWritePort) GCWritePort = nullptr;

    // A stream needs these functions.
    decltype(&GenTL::DevGetNumDataStreams) DevGetNumDataStreams = nullptr;
    decltype(&GenTL::DevGetDataStreamID) DevGetDataStreamID = nullptr;
    decltype(&GenTL::DevOpenDataStream) DevOpenDataStream = nullptr;
    decltype(&GenTL::DSClose) DSClose = nullptr;
    decltype(&GenTL::DSQueueBuffer) DSQueueBuffer = nullptr;
    decltype(&GenTL::DSStartAcquisition) DSStartAcquisition = nullptr;
    decltype(&GenTL::DSStopAcquisition) DSStopAcquisition = nullptr;
    decltype(&GenTL::DSRevokeBuffer) DSRevokeBuffer = nullptr;
    decltype(&GenTL::GCRegisterEvent) GCRegisterEvent = nullptr;
    decltype(&GenTL::EventGetData) EventGetData = nullptr;

    // These functions are optional. A stream needs one of the two that announce a buffer.
    decltype(&GenTL::DSAnnounceBuffer) DSAnnounceBuffer = nullptr;
    decltype(&GenTL::DSAllocAndAnnounceBuffer) DSAllocAndAnnounceBuffer = nullptr;
    decltype(&GenTL::DSFlushQueue) DSFlushQueue = nullptr;
    decltype(&GenTL::GCUnregisterEvent) GCUnregisterEvent = nullptr;
    decltype(&GenTL::EventKill) EventKill = nullptr;
    decltype(&GenTL::DevGetInfo) DevGetInfo = nullptr;
    decltype(&GenTL::DSGetInfo) DSGetInfo = nullptr;
    decltype(&GenTL::DSGetBufferInfo) DSGetBufferInfo = nullptr;
    decltype(&GenTL::DSGetBufferChunkData) DSGetBufferChunkData = nullptr;
    decltype(&GenTL::DSGetNumBufferParts) DSGetNumBufferParts = nullptr;
    decltype(&GenTL::DSGetBufferPartInfo) DSGetBufferPartInfo = nullptr;
    decltype(&GenTL::GCGetPortInfo) GCGetPortInfo = nullptr;
    decltype(&GenTL::GCGetNumPortURLs) GCGetNumPortURLs = nullptr;
    decltype(&GenTL::GCGetPortURLInfo) GCGetPortURLInfo = nullptr;
    decltype(&GenTL::GCGetPortURL) GCGetPortURL = nullptr;
};
