#include "sdk/producer/TechnologyNames.h"

#include "sdk/gentl/GenTL.h"

#include <algorithm>
#include <iterator>

using namespace GenTL;

namespace {

struct Technology
{
    const char *tlType;
    const char *name;
};

constexpr Technology technologies[] = {
    {TLTypeCustomName, "Custom"}, // The first one stands for every unknown type.
    {TLTypeMixedName, "Mixed"},
    {TLTypeGEVName, "GigEVision"},
    {TLTypeU3VName, "USB3Vision"},
    {TLTypeCLName, "CameraLink"},
    {TLTypeCLHSName, "CameraLinkHS"},
    {TLTypeCXPName, "CoaXPress"},
    {TLTypeIIDCName, "IIDC"},
    {TLTypeUVCName, "UVC"},
    {TLTypeETHERNETName, "Ethernet"},
    {TLTypePCIName, "PCI"},
};

} // namespace

std::vector<std::string> technologyNames()
{
    std::vector<std::string> names;
    for (const Technology &technology : technologies)
        names.emplace_back(technology.name);
    return names;
}

std::uint64_t technologyIndex(const std::string &tlType)
{
    const auto *const found = std::find_if(std::begin(technologies), std::end(technologies),
        [&](const Technology &technology) { return technology.tlType == tlType; });
    return found != std::end(technologies) ? static_cast<std::uint64_t>(found - technologies) : 0;
}
