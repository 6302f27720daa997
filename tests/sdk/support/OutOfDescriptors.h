#pragma once

#include <sys/resource.h>

/// Keeps this process from opening any descriptor while it lives.
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
