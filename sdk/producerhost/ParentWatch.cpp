#include "sdk/producerhost/ParentWatch.h"

#include <csignal>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

bool dieWithParent(int socket)
{
    // The order matters: a parent that ended before prctl() sends no signal. The socket still knows its
    // process ID, which then differs from getppid().
    ucred parent{};
    socklen_t size = sizeof(parent);
    if (prctl(PR_SET_PDEATHSIG, SIGKILL) != 0
        || getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &parent, &size) != 0)
        return false;
    return parent.pid == 0 || parent.pid == getppid(); // 0: the parent is in another PID namespace.
}
