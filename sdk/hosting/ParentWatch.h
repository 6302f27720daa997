#pragma once

/// Makes the kernel kill this process when the process at the other end of the socket ends, even while a
/// producer hangs. Returns false if the other process has already ended or a system call fails.
bool dieWithParent(int socket);
