#include "sdk/cvxcpp/CameraCatalogue.h"

#include "sdk/cvxcpp/DuplicateFilter.h"
#include "sdk/cvxcpp/Utf8.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

namespace {

using Record = std::shared_ptr<const InterfaceRecord>;

/// Sorts the interfaces and their devices. The host has sorted them by raw bytes, but replacing malformed
/// bytes by U+FFFD may have changed the order.
void sortRecords(std::vector<InterfaceRecord> &interfaces)
{
    for (InterfaceRecord &interface : interfaces)
        std::stable_sort(interface.devices.begin(), interface.devices.end(), std::less<>());
    std::stable_sort(
        interfaces.begin(), interfaces.end(), [](const auto &a, const auto &b) { return a.id < b.id; });
}

bool isSameInterface(const Record &known, const InterfaceRecord &interface)
{
    return *known == interface;
}

} // namespace

void CameraCatalogue::addProducer(const std::weak_ptr<InterfaceSource> &source, const std::string &path)
{
    const std::string name = toValidUtf8(std::string_view(path).substr(path.rfind('/') + 1));
    m_producers.push_back({source, std::make_shared<const std::string>(name), {}, CameraList::empty(),
        CameraList::empty(), nullptr});
}

bool CameraCatalogue::replaceInterfaces(
    std::size_t producer, std::vector<InterfaceRecord> interfaces, SearchKind, TimePoint)
{
    sortRecords(interfaces);
    Records &records = m_producers.at(producer).records;
    if (std::equal(records.begin(), records.end(), interfaces.begin(), interfaces.end(), isSameInterface))
        return false; // The program keeps getting the same objects.
    records.clear();
    for (InterfaceRecord &interface : interfaces)
        records.push_back(std::make_shared<const InterfaceRecord>(std::move(interface)));
    rebuild(producer);
    return true;
}

bool CameraCatalogue::replaceInterface(std::size_t producer, InterfaceRecord interface, SearchKind, TimePoint)
{
    std::stable_sort(interface.devices.begin(), interface.devices.end(), std::less<>());
    Records &records = m_producers.at(producer).records;
    const auto known = std::find_if(records.begin(), records.end(),
        [&](const Record &candidate) { return candidate->number == interface.number; });
    if (known == records.end() || **known == interface)
        return false;
    *known = std::make_shared<const InterfaceRecord>(std::move(interface));
    rebuild(producer);
    return true;
}

bool CameraCatalogue::removeInterfaces(std::size_t producer, TimePoint now)
{
    return replaceInterfaces(producer, {}, SearchKind::SelfUpdating, now);
}

void CameraCatalogue::rebuild(std::size_t producer)
{
    Producer &changed = m_producers.at(producer);
    changed.reported = CameraList::create(changed.source, producer, changed.name, changed.records);
    std::vector<CameraList::Pointer> reported;
    for (const Producer &one : m_producers)
        reported.push_back(one.reported);
    const auto visible = withoutDuplicates(reported);
    for (std::size_t i = 0; i < m_producers.size(); ++i)
        m_producers[i].visible = visible[i];
}

std::shared_ptr<const InterfaceRecord> CameraCatalogue::findInterface(
    std::size_t producer, const std::string &interfaceId) const
{
    const Records &records = m_producers.at(producer).records;
    const auto found = std::find_if(
        records.begin(), records.end(), [&](const Record &record) { return record->id == interfaceId; });
    return found != records.end() ? *found : nullptr;
}

std::size_t CameraCatalogue::reportedCameras(std::size_t producer) const
{
    std::size_t count = 0;
    for (const Record &record : m_producers.at(producer).records)
        count += record->devices.size();
    return count;
}

CameraCatalogue::Cameras CameraCatalogue::takeCameras()
{
    Cameras cameras;
    for (Producer &producer : m_producers) {
        if (!producer.announced)
            producer.announced = producer.visible;
        const auto &visible = producer.visible->cameras;
        cameras.insert(cameras.end(), visible.begin(), visible.end());
    }
    return cameras;
}

bool CameraCatalogue::reportChangesFromNowOn(std::size_t producer)
{
    CameraList::Pointer &announced = m_producers.at(producer).announced;
    if (announced)
        return false;
    announced = CameraList::empty();
    return true;
}

CameraListChange CameraCatalogue::takeChange()
{
    // All producers share one change, so that observers are notified of all removed cameras before the
    // added cameras.
    CameraListChange change;
    for (Producer &producer : m_producers) {
        if (producer.announced && producer.announced != producer.visible)
            change.addDifference(*std::exchange(producer.announced, producer.visible), *producer.visible);
    }
    return change;
}
