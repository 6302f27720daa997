// This file defines the functions that GenTL 1.6 added. They are exported because some consumers refuse a
// producer that lacks any function. All of them return GC_ERR_NOT_IMPLEMENTED. On our platforms, a C function
// may be called with arguments that it does not declare, so these functions declare no arguments.

#include "sdk/producer/LastError.h"

using namespace GenTL;

#define REFUSE(name)                                                                                         \
    GENTL_FUNCTION name()                                                                                    \
    {                                                                                                        \
        return fail(GC_ERR_NOT_IMPLEMENTED, "This producer has no " #name ".");                              \
    }

extern "C" {

REFUSE(DSAnnounceCompositeBuffer)
REFUSE(DSGetBufferInfoStacked)
REFUSE(DSGetBufferPartInfoStacked)
REFUSE(DSGetNumFlows)
REFUSE(DSGetFlowInfo)
REFUSE(DSGetNumBufferSegments)
REFUSE(DSGetBufferSegmentInfo)

} // extern "C"
