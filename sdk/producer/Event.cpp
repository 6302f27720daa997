#include "sdk/producer/Event.h"

#include "sdk/producer/LastError.h"

using namespace GenTL;

GC_ERROR Event::info(EVENT_INFO_CMD command, const InfoOutput &output) const
{
    const Counts current = counts();
    switch (command) {
    case EVENT_EVENT_TYPE:
        return output.writeInt32(current.type);
    case EVENT_NUM_IN_QUEUE:
        return output.writeSize(current.waiting);
    case EVENT_NUM_FIRED:
        return output.writeUint64(current.fired);
    case EVENT_SIZE_MAX:
        return output.writeSize(current.dataSize);
    case EVENT_INFO_DATA_SIZE_MAX:
        return output.writeSize(current.maxInfoSize);
    default:
        return failUnknownCommand(command);
    }
}
