#include "sdk/cvxcpp/CameraIndex.h"

#include <algorithm>

void CameraIndex::add(const CameraIdentity &camera, std::size_t producer)
{
    if (camera.model.empty())
        return;
    Model &model = m_models[camera.model];
    if (!camera.serial.empty())
        model.serials[camera.serial].add(producer);
    (camera.serial.empty() ? model.withoutSerial : model.withSerial).add(camera, producer);
}

bool CameraIndex::hasSame(const CameraIdentity &camera, std::size_t producer) const
{
    const auto found = m_models.find(camera.model);
    if (found == m_models.end())
        return false;
    const Model &model = found->second;
    if (model.withoutSerial.hasMatch(camera, producer))
        return true;
    if (camera.serial.empty())
        return model.withSerial.hasMatch(camera, producer);
    const auto producers = model.serials.find(camera.serial);
    return producers != model.serials.end() && producers->second.hasOtherThan(producer);
}

void CameraIndex::Producers::add(std::size_t producer)
{
    if (m_first == 0)
        m_first = producer + 1;
    else if (m_first != producer + 1)
        m_second = producer + 1;
}

bool CameraIndex::Producers::hasOtherThan(std::size_t producer) const
{
    return (m_first != 0 && m_first != producer + 1) || (m_second != 0 && m_second != producer + 1);
}

void CameraIndex::Addresses::add(const CameraIdentity &camera, std::size_t producer)
{
    for (const MacAddress address : camera.addresses)
        addresses[address].add(producer);
    for (const MacAddress sequence : camera.digits)
        digits[sequence].add(producer);
}

bool CameraIndex::Addresses::hasMatch(const CameraIdentity &camera, std::size_t producer) const
{
    const auto isAnyIn = [producer](const std::vector<MacAddress> &values, const ByAddress &known) {
        return std::any_of(values.begin(), values.end(), [&](MacAddress value) {
            const auto found = known.find(value);
            return found != known.end() && found->second.hasOtherThan(producer);
        });
    };
    return isAnyIn(camera.addresses, digits) || isAnyIn(camera.digits, addresses);
}
