#pragma once

#include "tests/producer/ProducerSession.h"

#include <map>
#include <ostream>
#include <string>
#include <vector>

/// A camera as a producer lists it.
struct ListedCamera
{
    std::string interface;
    std::string serial;
};

bool operator==(const ListedCamera &left, const ListedCamera &right);
std::ostream &operator<<(std::ostream &stream, const ListedCamera &camera);

using ListedCameras = std::vector<ListedCamera>;

/// A consumer that keeps a producer's interfaces open and lists their cameras again and again.
class CameraLister
{
public:
    explicit CameraLister(const char *producerFile) : m_session(producerFile) { }

    const ProducerSession &session() const { return m_session; }

    /// Updates the list of interfaces and gives their IDs.
    std::vector<std::string> interfaces();

    /// The cameras of all interfaces, which are updated side by side, sorted by interface and serial number.
    ListedCameras cameras();

    /// The cameras of a search that has begun after the call. A producer may answer at once from one that has
    /// just ended, and a search takes a second.
    ListedCameras searchedCameras();

    /// Lists until they are these or it takes too long; gives the last list.
    ListedCameras awaitCameras(const ListedCameras &expected);

    /// The handle of an interface that was listed.
    GenTL::IF_HANDLE handle(const std::string &interface) const { return m_handles.at(interface); }

private:
    ProducerSession m_session;
    std::map<std::string, GenTL::IF_HANDLE> m_handles;
};
