#include "sdk/aravis/AravisSearch.h"

#include <algorithm>
#include <dlfcn.h>
#include <memory>

namespace {

/// A consumer updates the interfaces of a producer in one go. Far less than the time between two looks.
constexpr std::chrono::milliseconds sharedFor{500};

/// Devices send what they like, and not all of them UTF-8.
std::string toText(const char *text)
{
    const std::unique_ptr<char, void (*)(void *)> valid(g_utf8_make_valid(text ? text : "", -1), g_free);
    return valid.get();
}

/// Devices that are made of software may have no hardware address, and so no physical ID of their own.
bool identifiesDevice(const std::string &physicalId)
{
    return physicalId.find_first_not_of("0:") != std::string::npos;
}

/// GLib has pointers into libaravis, and libusb below it a thread, for as long as the process lives: they
/// must not be unloaded together with the producer.
void keepAravisLoaded()
{
    Dl_info library{};
    if (dladdr(reinterpret_cast<const void *>(&arv_interface_get_type), &library) != 0)
        dlopen(library.dli_fname, RTLD_NOW); // A reference that nobody gives back.
}

FoundDevice readDevice(ArvInterface *interface, unsigned index)
{
    FoundDevice device;
    device.id = toText(arv_interface_get_device_physical_id(interface, index));
    if (!identifiesDevice(device.id))
        device.id = toText(arv_interface_get_device_id(interface, index)); // Vendor, model and serial number.
    device.vendor = toText(arv_interface_get_device_vendor(interface, index));
    device.model = toText(arv_interface_get_device_model(interface, index));
    device.serial = toText(arv_interface_get_device_serial_nbr(interface, index));
    device.address = toText(arv_interface_get_device_address(interface, index));
    return device;
}

std::string displayName(const FoundDevice &device)
{
    std::string name;
    for (const std::string *part : {&device.vendor, &device.model, &device.serial}) {
        if (!name.empty() && !part->empty())
            name += ' ';
        name += *part;
    }
    return name.empty() ? device.id : name;
}

} // namespace

DeviceRecord toRecord(const FoundDevice &device, const std::string &tlType)
{
    DeviceRecord record; // The access status stays unknown: Aravis would have to open the device for it.
    record.id = device.id;
    record.vendor = device.vendor;
    record.model = device.model;
    record.tlType = tlType;
    record.displayName = displayName(device);
    record.serial = device.serial;
    return record;
}

AravisSearch::AravisSearch(InterfaceGetter interface, Placer placer, Answers answers)
    : m_interface(interface), m_placer(placer), m_answers(answers)
{
    keepAravisLoaded();
}

std::vector<FoundDevice> AravisSearch::devices()
{
    const std::lock_guard lock(m_mutex);
    if (m_hasSearched && Clock::now() - m_endedAt < sharedFor)
        return m_devices;

    // The interface object by itself rather than Aravis's list of all devices: that one belongs to the whole
    // process, in which a producer for another protocol may be loaded too.
    static std::mutex
        interfaceMutex; // The object is the process's, and may outlive a search that was given up.
    const std::lock_guard interfaceLock(interfaceMutex);
    ArvInterface *const interface = m_interface();
    arv_interface_update_device_list(interface);
    std::vector<FoundDevice> found;
    const unsigned count = arv_interface_get_n_devices(interface);
    for (unsigned index = 0; index < count; ++index) {
        found.push_back(readDevice(interface, index));
        found.back().interfaceId = m_placer(found.back());
    }
    if (m_answers == Answers::MayGetLost)
        addMissed(found);
    m_devices = std::move(found);
    m_endedAt = Clock::now();
    m_hasSearched = true;
    return m_devices;
}

void AravisSearch::addMissed(std::vector<FoundDevice> &found) const
{
    for (const FoundDevice &device : m_devices) {
        const bool isFound = std::any_of(
            found.begin(), found.end(), [&](const FoundDevice &other) { return other.id == device.id; });
        if (isFound || device.isMissed)
            continue;
        found.push_back(device);
        found.back().isMissed = true;
    }
}
