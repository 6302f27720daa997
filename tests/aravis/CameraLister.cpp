#include "tests/aravis/CameraLister.h"

#include "tests/sdk/support/Waiting.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <thread>
#include <tuple>

using namespace GenTL;

bool operator==(const ListedCamera &left, const ListedCamera &right)
{
    return std::tie(left.interface, left.serial) == std::tie(right.interface, right.serial);
}

std::ostream &operator<<(std::ostream &stream, const ListedCamera &camera)
{
    return stream << camera.serial << " at " << camera.interface;
}

std::vector<std::string> CameraLister::interfaces()
{
    m_session.updateInterfaces();
    std::vector<std::string> ids = m_session.interfaceIds();
    for (const std::string &id : ids) {
        const auto [entry, isNew] = m_handles.try_emplace(id);
        if (isNew)
            entry->second = m_session.open(id);
    }
    return ids;
}

ListedCameras CameraLister::cameras()
{
    interfaces();
    std::vector<std::thread> updates;
    for (const auto &entry : m_handles)
        updates.emplace_back([this, handle = entry.second] { m_session.updateDevices(handle); });
    for (std::thread &update : updates)
        update.join();

    ListedCameras cameras;
    for (const auto &[interface, handle] : m_handles) {
        std::vector<std::string> serials;
        for (const std::string &id : m_session.deviceIds(handle))
            serials.push_back(m_session.deviceText(handle, id, DEVICE_INFO_SERIAL_NUMBER));
        std::sort(serials.begin(), serials.end());
        for (const std::string &serial : serials)
            cameras.push_back({interface, serial});
    }
    return cameras;
}

ListedCameras CameraLister::searchedCameras()
{
    interfaces();
    const IF_HANDLE any = m_handles.begin()->second;
    waitUntil([&] { return timeOf([&] { m_session.updateDevices(any); }) > std::chrono::milliseconds(800); });
    return cameras(); // All of them share that search.
}

ListedCameras CameraLister::awaitCameras(const ListedCameras &expected)
{
    ListedCameras found;
    waitUntil([&] { return (found = cameras()) == expected; });
    return found;
}
