#include "sdk/producerhost/ParentWatch.h"

#include <csignal>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

bool dieWithParent(int socket)
{
    ucred parent{};
    socklen_t size = sizeof(parent);
    // In this order: gone before the first call, the parent sends no signal any more; the socket remembers
    // who it was.
    if (prctl(PR_SET_PDEATHSIG, SIGKILL) != 0
        || getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &parent, &size) != 0)
        return false;
    return parent.pid == 0 || parent.pid == getppid(); // 0: a process that our PID namespace does not show.
}
