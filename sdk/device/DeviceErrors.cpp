#include "sdk/device/DeviceErrors.h"

#include <cstddef>
#include <iterator>

using namespace CvxCPP;

CvxError errorOf(DeviceFailure failure)
{
    // One code for each failure, in the order of the enumeration.
    static constexpr CvxError codes[] = {CvxErrorDevice, CvxErrorInUse, CvxErrorNotFound,
        CvxErrorNotAvailable, CvxErrorNotWritable, CvxErrorWrongType, CvxErrorOutOfRange,
        CvxErrorInvalidParameter, CvxErrorDeviceLost, CvxErrorFailed};
    static_assert(std::size(codes) == static_cast<std::size_t>(DeviceFailure::NoMemory) + 1);
    return codes[static_cast<std::size_t>(failure)];
}

CvxResult ResultMaker::result(CvxError code, const std::string &text) const
{
    return {code, this->text(text)};
}

CvxResult ResultMaker::result(const RequestFailedReply &failure) const
{
    return result(errorOf(failure.failure), failure.text);
}
