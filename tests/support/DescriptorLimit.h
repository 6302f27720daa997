#pragma once

#include <sys/resource.h>
#include <unistd.h>

/// Limits how many more files the process can open. The destructor restores the previous limit.
class DescriptorLimit
{
public:
    explicit DescriptorLimit(rlim_t spare)
    {
        const int lowest = dup(STDOUT_FILENO);
        close(lowest);
        getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit limit{static_cast<rlim_t>(lowest) + spare, m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &limit);
    }
    ~DescriptorLimit() { setrlimit(RLIMIT_NOFILE, &m_before); }
    DescriptorLimit(const DescriptorLimit &) = delete;
    DescriptorLimit &operator=(const DescriptorLimit &) = delete;

private:
    rlimit m_before{};
};
