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

OutOfDescriptors::OutOfDescriptors(rlim_t limit)
{
    showUbsanWhatIsThrown();
    getrlimit(RLIMIT_NOFILE, &m_before);
    const rlimit low{limit, m_before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &low);
}

OutOfDescriptors::~OutOfDescriptors()
{
    setrlimit(RLIMIT_NOFILE, &m_before);
}
