#pragma once

#include <sys/resource.h>

/// While one lives, this process can open nothing but the descriptors below a number.
class OutOfDescriptors
{
public:
    explicit OutOfDescriptors(rlim_t limit = 0);
    ~OutOfDescriptors();
    OutOfDescriptors(const OutOfDescriptors &) = delete;
    OutOfDescriptors &operator=(const OutOfDescriptors &) = delete;

private:
    rlimit m_before{};
};
