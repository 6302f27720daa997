#pragma once

/// Ties the life of this process to the one at the other end of the socket: the kernel ends us with it,
/// even while we hang in a driver. False when that process is gone already.
bool dieWithParent(int socket);
