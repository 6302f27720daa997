#include "sdk/producer/InterfaceModule.h"

#include "sdk/producer/SelectedEntry.h"
#include "sdk/producer/TechnologyNames.h"

#include <utility>

using namespace GenTL;

namespace {

/// The timeout of a search that the feature "DeviceUpdateList" starts, which has none of its own.
constexpr std::chrono::seconds featureTimeout{1};

/// Returns the names of GenTL::DEVICE_ACCESS_STATUS in the order of their values.
std::vector<std::string> accessStatusNames()
{
    return {"Unknown", "ReadWrite", "ReadOnly", "NoAccess", "Busy", "OpenReadWrite", "OpenReadOnly"};
}

} // namespace

InterfaceModule::InterfaceModule(std::shared_ptr<SystemModule> parent, InterfaceRecord record)
    : system(std::move(parent)),
      m_openedAs(std::move(record)),
      m_port({m_openedAs.id, system->identity.vendor, m_openedAs.displayName, m_openedAs.tlType,
                 interfaceModuleName, system->identity.version, "InterfacePort"},
          features())
{ }

GC_ERROR InterfaceModule::updateDevices(bool8_t *changed, std::chrono::milliseconds timeout)
{
    return devices.update([&] { return system->source->updateDevices(m_openedAs.id, timeout); }, changed);
}

InterfaceRecord InterfaceModule::record() const
{
    return system->interfaces.find(m_openedAs.id).value_or(m_openedAs);
}

std::vector<ModuleFeature> InterfaceModule::features()
{
    using F = ModuleFeature;
    const std::string about = "InterfaceInformation";
    const std::string list = "DeviceEnumeration";
    const std::string selector = "DeviceSelector";
    const auto selectedText = [this](std::string DeviceRecord::*field) {
        return [this, field] { return selectedEntry(devices, m_selected).*field; };
    };
    return {
        F::text(about, "InterfaceID", "ID of the interface.", [this] { return m_openedAs.id; }),
        F::text(about, "InterfaceDisplayName", "Name of the interface for people.",
            [this] { return record().displayName; }),
        F::choice(about, "InterfaceType", "Transport layer technology of the interface.", technologyNames(),
            [this] { return technologyIndex(m_openedAs.tlType); }),
        F::command(list, "DeviceUpdateList", "Searches for devices.",
            [this](std::uint64_t) { updateDevices(nullptr, featureTimeout); }),
        F::selector(
            list, selector, "Selects a device.", [this] { return selectedIndex(devices, m_selected); },
            [this](std::uint64_t index) { select(devices, m_selected, index); }, "DeviceCount"),
        F::text(list, "DeviceID", "ID of the selected device.", selectedText(&DeviceRecord::id), selector),
        F::text(list, "DeviceVendorName", "Vendor of the selected device.",
            selectedText(&DeviceRecord::vendor), selector),
        F::text(list, "DeviceModelName", "Model of the selected device.", selectedText(&DeviceRecord::model),
            selector),
        F::choice(
            list, "DeviceAccessStatus", "Access that the last search found for the selected device.",
            accessStatusNames(),
            [this] { return static_cast<std::uint64_t>(selectedEntry(devices, m_selected).accessStatus); },
            selector),
        F::text(list, "DeviceSerialNumber", "Serial number of the selected device.",
            selectedText(&DeviceRecord::serial), selector),
        F::text(list, "DeviceUserID", "Name that the user gave to the selected device.",
            selectedText(&DeviceRecord::userName), selector),
        F::number("", "DeviceCount", "Number of devices.", [this] { return devices.size(); }),
    };
}
