#pragma once

#include <sys/resource.h>

/// While one lives, this process can open nothing.
class OutOfDescriptors
{
public:
    OutOfDescriptors();
    ~OutOfDescriptors();
    OutOfDescriptors(const OutOfDescriptors &) = delete;
    OutOfDescriptors &operator=(const OutOfDescriptors &) = delete;

private:
    rlimit m_before{};
};
