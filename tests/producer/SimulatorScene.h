#pragma once

#include "tests/producer/ProducerSession.h"
#include "tests/producer/SimulatorFolder.h"

#include <gtest/gtest.h>

using Ids = std::vector<std::string>;

constexpr const char *oneCamera = R"({"interfaces": [{"id": "net", "devices": [{"id": "one"}]}]})";
constexpr const char *anotherCamera = R"({"interfaces": [{"id": "net", "devices": [{"id": "two"}]}]})";

/// A scene of one device on the interface "net", given as its JSON text.
inline std::string sceneOf(const std::string &device)
{
    return R"({"interfaces": [{"id": "net", "tlType": "GEV", "devices": [)" + device + "]}]}";
}

/// A simulator of its own for each test, without a scene file at first.
class SimulatorScene : public testing::Test
{
protected:
    /// The devices of the only interface after an update of both lists.
    Ids devicesNow()
    {
        session.updateInterfaces();
        const Ids interfaces = session.interfaceIds();
        EXPECT_EQ(interfaces.size(), 1U);
        if (interfaces.size() != 1)
            return {};
        openInterface(interfaces.front());
        session.updateDevices(handle);
        return session.deviceIds(handle);
    }

    void openInterface(const std::string &id)
    {
        if (handle && session.producer().IFClose(handle) != GenTL::GC_ERR_SUCCESS)
            ADD_FAILURE() << "cannot close the interface";
        handle = session.open(id);
    }

    /// A text of the first device of the scene.
    std::string deviceText(GenTL::DEVICE_INFO_CMD command)
    {
        const Ids ids = devicesNow();
        EXPECT_FALSE(ids.empty());
        return ids.empty() ? std::string() : session.deviceText(handle, ids.front(), command);
    }

    SimulatorFolder folder;
    const ProducerSession session{folder.producerFile()};
    GenTL::IF_HANDLE handle = nullptr;
};
