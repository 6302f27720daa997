#pragma once

/// Makes the kernel kill this process when the process at the other end of the socket ends, even while a
/// producer hangs. Returns false if that process has ended already.
bool dieWithParent(int socket);
