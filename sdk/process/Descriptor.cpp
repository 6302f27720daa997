#include "sdk/process/Descriptor.h"

#include <fcntl.h>
#include <unistd.h>

int aboveStandard(int descriptor)
{
    if (descriptor < 0 || descriptor > STDERR_FILENO)
        return descriptor;
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (moved < 0)
        return descriptor;
    close(descriptor);
    return moved;
}
