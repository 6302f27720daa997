#include "tests/sdk/support/OutOfDescriptors.h"

#include <system_error>

namespace {

/// UBSan takes descriptors to learn about a type that it meets the first time.
void showUbsanWhatIsThrown()
{
    try {
        throw std::system_error(0, std::generic_category(), "No descriptors");
    } catch (const std::system_error &error) {
        static_cast<void>(error.what());
    }
}

} // namespace

OutOfDescriptors::OutOfDescriptors()
{
    showUbsanWhatIsThrown();
    getrlimit(RLIMIT_NOFILE, &m_before);
    const rlimit none{0, m_before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
}

OutOfDescriptors::~OutOfDescriptors()
{
    setrlimit(RLIMIT_NOFILE, &m_before);
}
