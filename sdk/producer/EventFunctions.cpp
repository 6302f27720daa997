// This file defines the exported C functions of events. GenTLDevice.h names the standard that defines what
// each function returns.

#include "sdk/producer/Event.h"
#include "sdk/producer/Guarded.h"

using namespace GenTL;

namespace {

/// Returns the name of an event below its module in the table of handles.
std::string eventName(EVENT_TYPE type)
{
    return "Event " + std::to_string(type);
}

} // namespace

extern "C" {

GENTL_FUNCTION GCRegisterEvent(EVENTSRC_HANDLE hEventSrc, EVENT_TYPE iEventID, EVENT_HANDLE *phEvent)
{
    return with<Module>(hEventSrc, [&](Module &module) {
        return Producer::instance().handles().open(hEventSrc, eventName(iEventID), phEvent, [&] {
            const std::shared_ptr<Event> event = module.createEvent(iEventID);
            return event ? event
                         : throw GenTlError(GC_ERR_NOT_IMPLEMENTED, "The module never fires such an event.");
        });
    });
}

GENTL_FUNCTION GCUnregisterEvent(EVENTSRC_HANDLE hEventSrc, EVENT_TYPE iEventID)
{
    return with<Module>(hEventSrc, [&](Module &) {
        HandleTable &handles = Producer::instance().handles();
        return handles.close(handles.child(hEventSrc, eventName(iEventID)))
            ? GC_ERR_SUCCESS
            : fail(GC_ERR_NOT_INITIALIZED, "No such event is registered.");
    });
}

GENTL_FUNCTION EventGetData(EVENT_HANDLE hEvent, void *pBuffer, std::size_t *piSize, std::uint64_t iTimeout)
{
    return with<Event>(hEvent,
        [&](Event &event) { return piSize ? event.take(pBuffer, piSize, iTimeout) : failMissingArgument(); });
}

GENTL_FUNCTION EventGetDataInfo(EVENT_HANDLE hEvent, const void *pInBuffer, std::size_t iInSize,
    EVENT_DATA_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pOutBuffer, std::size_t *piOutSize)
{
    return with<Event>(hEvent, [&](Event &event) {
        const InfoOutput output(piType, pOutBuffer, piOutSize);
        if (!pInBuffer || !output.isComplete())
            return failMissingArgument();
        if (iInSize < event.counts().dataSize)
            return fail(GC_ERR_INVALID_PARAMETER, "This is not the data of such an event.");
        return event.dataInfo(pInBuffer, iInfoCmd, output);
    });
}

GENTL_FUNCTION EventGetInfo(
    EVENT_HANDLE hEvent, EVENT_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return with<Event>(hEvent, [&](Event &event) {
        const InfoOutput output(piType, pBuffer, piSize);
        return output.isComplete() ? event.info(iInfoCmd, output) : failMissingArgument();
    });
}

GENTL_FUNCTION EventFlush(EVENT_HANDLE hEvent)
{
    return with<Event>(hEvent, [](Event &event) {
        event.discard();
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION EventKill(EVENT_HANDLE hEvent)
{
    return with<Event>(hEvent, [](Event &event) {
        event.kill();
        return GC_ERR_SUCCESS;
    });
}

} // extern "C"
