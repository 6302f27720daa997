#include "sdk/hosting/ProcessExit.h"

#include <cstdio>
#include <unistd.h>

#if defined(CORVIX_COVERAGE)
extern "C" void __gcov_dump(void);
#endif

void exitWithoutDestructors(int status)
{
    std::fflush(stdout); // The producer may have printed text.
#if defined(CORVIX_COVERAGE)
    __gcov_dump();
#endif
    _exit(status);
}
