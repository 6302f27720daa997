#include "sdk/producer/SystemModule.h"

#include "sdk/producer/InfoCommands.h"
#include "sdk/producer/SelectedEntry.h"
#include "sdk/producer/TechnologyNames.h"

#include <utility>

using namespace GenTL;

SystemModule::SystemModule(
    std::shared_ptr<DeviceSource> deviceSource, const std::filesystem::path &producerFile)
    : source(std::move(deviceSource)),
      identity(source->identity()),
      m_port({identity.id, identity.vendor, identity.model, identity.tlType, systemModuleName,
                 identity.version, "TLPort"},
          features(producerFile))
{ }

GC_ERROR SystemModule::updateInterfaces(bool8_t *changed)
{
    return interfaces.update([this] { return source->updateInterfaces(); }, changed);
}

std::vector<ModuleFeature> SystemModule::features(const std::filesystem::path &producerFile)
{
    using F = ModuleFeature;
    const std::string about = "SystemInformation";
    const std::string list = "InterfaceEnumeration";
    const std::string path = producerFile.string();
    return {
        F::text(about, "TLID", "ID of the producer.", [this] { return identity.id; }),
        F::text(about, "TLVendorName", "Vendor of the producer.", [this] { return identity.vendor; }),
        F::text(about, "TLModelName", "Product name of the producer.", [this] { return identity.model; }),
        F::text(about, "TLVersion", "Version of the producer.", [this] { return identity.version; }),
        F::text(about, "TLPath", "Full path of the producer file.", [path] { return path; }),
        F::choice(about, "TLType", "Transport layer technology of the producer.", technologyNames(),
            [this] { return technologyIndex(identity.tlType); }),
        F::number(about, "GenTLVersionMajor", "Major version of GenTL.", [] { return genTlMajor; }),
        F::number(about, "GenTLVersionMinor", "Minor version of GenTL.", [] { return genTlMinor; }),
        F::command(list, "InterfaceUpdateList", "Searches for interfaces.",
            [this](std::uint64_t) { updateInterfaces(nullptr); }),
        F::selector(
            list, "InterfaceSelector", "Selects an interface.",
            [this] { return selectedIndex(interfaces, m_selected); },
            [this](std::uint64_t index) { select(interfaces, m_selected, index); }, "InterfaceCount"),
        F::text(
            list, "InterfaceID", "ID of the selected interface.",
            [this] { return selectedEntry(interfaces, m_selected).id; }, "InterfaceSelector"),
        F::number("", "InterfaceCount", "Number of interfaces.", [this] { return interfaces.size(); }),
    };
}
