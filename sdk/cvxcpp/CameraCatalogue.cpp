#include "sdk/cvxcpp/CameraCatalogue.h"

#include "sdk/cvxcpp/CameraIndex.h"
#include "sdk/cvxcpp/DuplicateFilter.h"
#include "sdk/text/Utf8.h"

#include <algorithm>
#include <utility>

void CameraCatalogue::addProducer(const std::weak_ptr<InterfaceSource> &source, const std::string &path)
{
    Producer producer;
    producer.source = source;
    producer.name = std::make_shared<const std::string>(
        toValidUtf8(std::string_view(path).substr(path.rfind('/') + 1)));
    m_producers.push_back(std::move(producer));
}

bool CameraCatalogue::replaceInterfaces(
    std::size_t producer, std::vector<InterfaceRecord> interfaces, SearchKind kind, TimePoint now)
{
    const bool isChanged = m_producers.at(producer).known.replaceAll(std::move(interfaces), kind, now);
    return update(producer, isChanged, now);
}

bool CameraCatalogue::replaceInterface(
    std::size_t producer, InterfaceRecord interface, SearchKind kind, TimePoint now)
{
    const bool isChanged = m_producers.at(producer).known.replace(std::move(interface), kind, now);
    return update(producer, isChanged, now);
}

bool CameraCatalogue::removeInterfaces(std::size_t producer, TimePoint now)
{
    return replaceInterfaces(producer, {}, SearchKind::SelfUpdating, now);
}

bool CameraCatalogue::update(std::size_t producer, bool isChanged, TimePoint now)
{
    isChanged = removeUnownedMissing(producer) || isChanged;
    if (isChanged)
        createList(producer);
    const bool isAnyHoldOver = endHolds(now);
    if (!isChanged && !isAnyHoldOver)
        return false; // The program keeps getting the same objects.
    chooseVisibleCameras();
    return true;
}

void CameraCatalogue::createList(std::size_t producer)
{
    Producer &changed = m_producers.at(producer);
    changed.reported = CameraList::create(
        changed.source, producer, changed.name, changed.known.records(), *changed.reported);
    changed.identities.clear();
    for (const auto &camera : changed.reported->cameras)
        changed.identities.push_back(identityOf(camera->device()));
}

CameraCatalogue::OwnedCameras CameraCatalogue::ownedCameras(const Producer &producer)
{
    OwnedCameras owned;
    if (!producer.announced)
        return owned; // The search order still decides.
    for (const auto &camera : producer.visible->cameras)
        owned.emplace(camera->id(), camera->interfaceId());
    return owned;
}

/// Removes the missing devices of the producer, except those of visible cameras, which may be held. Returns
/// true if this changes an interface.
bool CameraCatalogue::removeUnownedMissing(std::size_t producer)
{
    KnownInterfaces &known = m_producers.at(producer).known;
    if (!known.hasMissing())
        return false;
    const OwnedCameras owned = ownedCameras(m_producers.at(producer));
    return known.removeMissing([&](const InterfaceRecord &interface, const DeviceRecord &device, TimePoint) {
        const auto camera = owned.find(device.id);
        return camera != owned.end() && camera->second == interface.id;
    });
}

/// Removes the missing devices that no other producer reports or whose time is over. Returns true if this
/// changes an interface. This function needs no timer: every reply of a producer calls it, and each producer
/// replies about every two seconds.
bool CameraCatalogue::endHolds(TimePoint now)
{
    if (std::none_of(m_producers.begin(), m_producers.end(),
            [](const Producer &producer) { return producer.known.hasMissing(); }))
        return false;
    // Missing devices do not hold each other: they all belong to visible cameras, which are different.
    CameraIndex reported;
    for (std::size_t i = 0; i < m_producers.size(); ++i) {
        for (const CameraIdentity &camera : m_producers[i].identities)
            reported.add(camera, i);
    }
    bool isAnyOver = false;
    for (std::size_t i = 0; i < m_producers.size(); ++i) {
        const auto isHeld = [&](const InterfaceRecord &, const DeviceRecord &device, TimePoint lastReport) {
            return now - lastReport < holdTime && reported.hasSame(identityOf(device), i);
        };
        if (!m_producers[i].known.removeMissing(isHeld))
            continue;
        createList(i);
        isAnyOver = true;
    }
    return isAnyOver;
}

void CameraCatalogue::chooseVisibleCameras()
{
    std::vector<std::vector<DuplicateCandidate>> candidates(m_producers.size());
    for (std::size_t i = 0; i < m_producers.size(); ++i) {
        const Producer &producer = m_producers[i];
        const OwnedCameras owned = ownedCameras(producer);
        for (std::size_t camera = 0; camera < producer.identities.size(); ++camera) {
            const bool isOwned = owned.count(producer.reported->cameras[camera]->id()) > 0;
            candidates[i].push_back({&producer.identities[camera], isOwned});
        }
    }
    const std::vector<std::vector<bool>> isVisible = withoutDuplicates(candidates);
    for (std::size_t i = 0; i < m_producers.size(); ++i)
        m_producers[i].visible = CameraList::selected(m_producers[i].reported, isVisible[i]);
}

std::shared_ptr<const InterfaceRecord> CameraCatalogue::findInterface(
    std::size_t producer, const std::string &interfaceId) const
{
    return m_producers.at(producer).known.find(interfaceId);
}

std::size_t CameraCatalogue::reportedCameras(std::size_t producer) const
{
    return m_producers.at(producer).reported->reportedCameras;
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
