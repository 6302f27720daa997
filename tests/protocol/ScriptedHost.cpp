#include "tests/protocol/ScriptedHost.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

ScriptedHost::ScriptedHost(const std::string &script) : m_connection({install(script)}) { }

std::string ScriptedHost::install(const std::string &script)
{
    setScript(script);
    std::filesystem::copy_file(TEST_PRODUCER, path("p.cti"));
    return path("p.cti");
}

void ScriptedHost::setScript(const std::string &script)
{
    writeFile(path("p.script"), script);
}

CameraListReply ScriptedHost::list(const ListCamerasRequest &request)
{
    const auto reply = m_connection.ask<CameraListReply>(request);
    EXPECT_TRUE(reply);
    return reply.value_or(CameraListReply());
}

std::vector<std::string> ScriptedHost::argumentsOf(const std::string &call) const
{
    std::vector<std::string> arguments;
    std::istringstream log(readFile(path("p.log")));
    for (std::string line; std::getline(log, line);) {
        const auto start = line.find(' ') + 1; // The process ID precedes the call.
        if (line.compare(start, call.size() + 1, call + ' ') == 0)
            arguments.push_back(line.substr(start + call.size() + 1));
    }
    return arguments;
}

std::vector<std::string> idsOf(const CameraListReply &list)
{
    std::vector<std::string> ids;
    for (const InterfaceRecord &interface : list.interfaces) {
        for (const DeviceRecord &device : interface.devices)
            ids.push_back(device.id);
    }
    return ids;
}
