// This file defines the functions of GenTL 1.6 that discovery does not need. They are exported because some
// consumers refuse a producer that lacks any function. All of them return GC_ERR_NOT_IMPLEMENTED. On our
// platforms, a C function may be called with arguments that it does not declare, so these functions declare
// no arguments.

#include "sdk/producer/LastError.h"

using namespace GenTL;

#define REFUSE(name)                                                                                         \
    GENTL_FUNCTION name()                                                                                    \
    {                                                                                                        \
        return fail(GC_ERR_NOT_IMPLEMENTED, "This producer only enumerates devices; it has no " #name ".");  \
    }

extern "C" {

// Ports
REFUSE(GCReadPort)
REFUSE(GCWritePort)
REFUSE(GCGetPortURL)
REFUSE(GCGetPortInfo)
REFUSE(GCGetNumPortURLs)
REFUSE(GCGetPortURLInfo)
REFUSE(GCReadPortStacked)
REFUSE(GCWritePortStacked)

// Events
REFUSE(GCRegisterEvent)
REFUSE(GCUnregisterEvent)
REFUSE(EventGetData)
REFUSE(EventGetDataInfo)
REFUSE(EventGetInfo)
REFUSE(EventFlush)
REFUSE(EventKill)

// Devices
REFUSE(IFOpenDevice)
REFUSE(DevGetPort)
REFUSE(DevGetNumDataStreams)
REFUSE(DevGetDataStreamID)
REFUSE(DevOpenDataStream)
REFUSE(DevGetInfo)
REFUSE(DevClose)
REFUSE(DevGetParentIF)

// Data streams
REFUSE(DSAnnounceBuffer)
REFUSE(DSAllocAndAnnounceBuffer)
REFUSE(DSFlushQueue)
REFUSE(DSStartAcquisition)
REFUSE(DSStopAcquisition)
REFUSE(DSGetInfo)
REFUSE(DSGetBufferID)
REFUSE(DSClose)
REFUSE(DSRevokeBuffer)
REFUSE(DSQueueBuffer)
REFUSE(DSGetBufferInfo)
REFUSE(DSGetBufferChunkData)
REFUSE(DSGetParentDev)
REFUSE(DSGetNumBufferParts)
REFUSE(DSGetBufferPartInfo)

// Functions that GenTL 1.6 added
REFUSE(DSAnnounceCompositeBuffer)
REFUSE(DSGetBufferInfoStacked)
REFUSE(DSGetBufferPartInfoStacked)
REFUSE(DSGetNumFlows)
REFUSE(DSGetFlowInfo)
REFUSE(DSGetNumBufferSegments)
REFUSE(DSGetBufferSegmentInfo)

} // extern "C"
