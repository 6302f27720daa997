#include "sdk/camerahost/NodeMap.h"
#include "sdk/camerahost/RegisterDescription.h"

std::variant<std::unique_ptr<NodeMap>, NodeMap::Failure> NodeMap::create(RegisterPort &, const std::string &)
{
    return Failure{DeviceFailure::Device, "Register descriptions cannot be evaluated yet."};
}

std::variant<std::string, RequestFailedReply> fetchRegisterDescription(
    const DeviceLibrary &, GenTL::PORT_HANDLE, const std::string &)
{
    return RequestFailedReply{DeviceFailure::Device, "Register descriptions cannot be read yet."};
}
