#include "sdk/cvxcpp/ProducerView.h"

#include <algorithm>
#include <utility>

namespace {

bool isNew(ProducerView::Time searchedAt, ProducerView::Time now, ProducerView::Duration reuseTime)
{
    return searchedAt != ProducerView::Time::min() && now - searchedAt < reuseTime;
}

} // namespace

bool ProducerView::isFresh(Time now, Duration reuseTime) const
{
    return isNew(std::max(listedAt, searchEndedAt), now, reuseTime);
}

bool ProducerView::isInterfaceFresh(const std::string &interfaceId, Time now, Duration reuseTime) const
{
    const auto single = interfaceListedAt.find(interfaceId);
    return isFresh(now, reuseTime)
        || (single != interfaceListedAt.end() && isNew(single->second, now, reuseTime));
}

void ProducerView::listed(Time now)
{
    listedAt = now;
    interfaceListedAt.clear();
    isListWanted = false;
    wantedInterfaces.clear();
    isAwaited = true;
}

void ProducerView::interfaceListed(const std::string &interfaceId, Time now)
{
    interfaceListedAt[interfaceId] = now;
    wantedInterfaces.erase(interfaceId);
    isAwaited = true;
}

void ProducerView::lost()
{
    listedAt = Time::min();
    searchEndedAt = Time::min();
    interfaceListedAt.clear();
    wantedInterfaces.clear();
    late();
}

void ProducerView::late()
{
    isAwaited = false;
    isSettled = true;
}

void ProducerView::searchEnded(Time now)
{
    if (isAwaited && listedAt != Time::min())
        searchEndedAt = now;
}

const CameraList &ProducerView::handOut()
{
    if (!std::exchange(isSettled, true))
        announced = shown;
    return *shown;
}

std::shared_ptr<const ListedInterface> ProducerView::findRecord(const std::string &interfaceId) const
{
    const auto found = std::find_if(
        records.begin(), records.end(), [&](const auto &candidate) { return candidate->id == interfaceId; });
    return found != records.end() ? *found : nullptr;
}
