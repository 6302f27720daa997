#include "sdk/producerhost/Leave.h"

#include <cstdio>
#include <unistd.h>

#if defined(CORVIX_COVERAGE)
extern "C" void __gcov_dump(void);
#endif

void leave(int status)
{
    std::fflush(stdout); // What the driver has printed.
#if defined(CORVIX_COVERAGE)
    __gcov_dump();
#endif
    _exit(status);
}
