#pragma once

/// Makes operator new refuse requests of 1 GiB and more while one lives, so that running out of memory can be
/// tested without using any.
class AllocationLimit
{
public:
    AllocationLimit();
    ~AllocationLimit();

    /// How many requests were refused.
    int refused() const;
};
