#pragma once

#include <unistd.h>

/// Owns a file descriptor.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) { }
    ~Descriptor() { close(m_number); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return m_number; }

private:
    const int m_number;
};
