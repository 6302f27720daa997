#include "tests/sdk/support/OutOfDescriptors.h"

OutOfDescriptors::OutOfDescriptors()
{
    getrlimit(RLIMIT_NOFILE, &m_before);
    const rlimit none{0, m_before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
}

OutOfDescriptors::~OutOfDescriptors()
{
    setrlimit(RLIMIT_NOFILE, &m_before);
}
