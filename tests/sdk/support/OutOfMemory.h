#pragma once

/// While one lives, operator new fails on the thread that made it.
class OutOfMemory
{
public:
    OutOfMemory();
    ~OutOfMemory();
    OutOfMemory(const OutOfMemory &) = delete;
    OutOfMemory &operator=(const OutOfMemory &) = delete;
};
