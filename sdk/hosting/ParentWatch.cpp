#include "sdk/hosting/ParentWatch.h"

#include <csignal>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

bool dieWithParent(int socket)
{
    // The order of the calls matters. If the parent ended before prctl(), the kernel sends no signal. In
    // this case, the process ID that the socket has stored differs from getppid().
    ucred parent{};
    socklen_t size = sizeof(parent);
    if (prctl(PR_SET_PDEATHSIG, SIGKILL) != 0
        || getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &parent, &size) != 0)
        return false;
    // The ID is 0 if the parent is in another PID namespace.
    return parent.pid == 0 || parent.pid == getppid();
}
