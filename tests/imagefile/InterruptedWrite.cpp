#include "InterruptedWrite.h"

#include <csignal>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

unsigned deadlyWrite = 0;
unsigned writeCount = 0;

} // namespace

void dieBeforeWrite(unsigned number)
{
    deadlyWrite = number;
    writeCount = 0;
}

/// Replaces the function of the C library in this program.
extern "C" ssize_t pwrite(int descriptor, const void *data, size_t size, off_t position)
{
    if (++writeCount == deadlyWrite)
        raise(SIGKILL);
    return syscall(SYS_pwrite64, descriptor, data, size, position);
}
