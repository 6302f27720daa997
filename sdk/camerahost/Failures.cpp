#include "sdk/camerahost/Failures.h"

#include "sdk/gentl/GenTL.h"

#include <algorithm>

namespace {

struct Rule
{
    std::int32_t code;
    DeviceFailure failure;
};
constexpr Rule rules[] = {
    {GenTL::GC_ERR_ACCESS_DENIED, DeviceFailure::InUse},
    {GenTL::GC_ERR_RESOURCE_IN_USE, DeviceFailure::InUse},
    {GenTL::GC_ERR_BUSY, DeviceFailure::InUse},
    {GenTL::GC_ERR_INVALID_ID, DeviceFailure::NotFound},
    {GenTL::GC_ERR_NOT_AVAILABLE, DeviceFailure::NotAvailable},
    {GenTL::GC_ERR_NOT_IMPLEMENTED, DeviceFailure::NotAvailable},
    {GenTL::GC_ERR_OUT_OF_MEMORY, DeviceFailure::NoMemory},
};

} // namespace

std::string describe(const Problem &problem)
{
    std::string text = problem.call;
    text += problem.code == 0 ? " failed" : " failed with error " + std::to_string(problem.code);
    return problem.text.empty() ? text + "." : text + ": " + problem.text;
}

RequestFailedReply toFailure(const Problem &problem)
{
    const auto *const rule = std::find_if(std::begin(rules), std::end(rules),
        [&](const Rule &candidate) { return candidate.code == problem.code; });
    return {rule == std::end(rules) ? DeviceFailure::Device : rule->failure, describe(problem)};
}
