#pragma once

#include "sdk/protocol/DiscoveryMessages.h"
#include "tests/protocol/HostConnection.h"
#include "tests/sdk/support/TemporaryDirectory.h"

#include <string>
#include <vector>

/// A host whose producer follows a script; tests/sdk/producer/TestProducer.cpp describes the scripts.
class ScriptedHost
{
public:
    explicit ScriptedHost(const std::string &script);

    void setScript(const std::string &script);
    HostConnection &connection() { return m_connection; }

    /// Requests the list. Fails the test if the next message is not the reply.
    CameraListReply list(const ListCamerasRequest &request);
    CameraListReply list(std::uint32_t timeout) { return list(ListCamerasRequest{false, timeout}); }

    /// Returns what follows `call` in the log of the producer's calls, for example the timeouts of an update.
    std::vector<std::string> argumentsOf(const std::string &call) const;

private:
    std::string path(const std::string &file) const { return m_directory.path() / file; }

    /// Copies the producer to the directory, and returns its path.
    std::string install(const std::string &script);

    TemporaryDirectory m_directory;
    HostConnection m_connection;
};

/// Returns the IDs of all devices, in the order of the list.
std::vector<std::string> idsOf(const CameraListReply &list);
