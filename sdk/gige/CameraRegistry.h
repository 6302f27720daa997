#pragma once

#include "sdk/gvcp/CameraData.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Keeps the cameras that answer on each network interface. Decides when a silent camera is asked again, and
/// when it is removed: answers get lost, and a camera may take a second to answer, so a camera is removed
/// only after two searches without an answer. A camera that answers at another address or network interface
/// keeps its ID. Not thread-safe.
class CameraRegistry
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Limit for each network interface. Answers of further cameras are ignored.
    static constexpr std::size_t maxCameras = 1000;

    /// A camera on one network interface.
    struct Camera
    {
        unsigned interfaceIndex = 0; ///< The system's index of the network interface.
        /// The identity of the camera. If two cameras have the same identity, the ID of the second one also
        /// contains the address that it had first: "00:11:1c:f0:12:34@169.254.3.1".
        std::string id;
        CameraData data;
    };

    /// Starts to count missing answers for a new search.
    void startSearch(Time now);

    /// Records an answer. Returns true if the answer adds a camera or changes its data. Two cameras with the
    /// same identity are recognised by their answers to the same request.
    bool addAnswer(unsigned interfaceIndex, std::uint16_t requestId, const CameraData &data);

    /// Returns the silent cameras that have to be asked again now. Every camera is asked at most three times
    /// in a search that counts missing answers.
    std::vector<Camera> takeDueRequests(Time now);

    /// Removes the cameras that have missed two searches. Returns true if there was one.
    bool removeSilent(Time now);

    /// Removes the cameras of a network interface. Returns true if there was one.
    bool removeInterface(unsigned interfaceIndex);

    /// Returns the time of the next request or removal if no camera answers, or Time::max() if there is none.
    Time nextDeadline() const;

    /// Returns the cameras in the order of their first answers.
    std::vector<Camera> cameras() const;

private:
    struct Answer
    {
        unsigned interfaceIndex;
        std::uint16_t requestId;
        std::string identity;
        const CameraData &data;
    };

    struct Entry
    {
        Camera camera;
        std::string identity; // The ID without an address.
        std::uint16_t requestId = 0; // The newest request that the camera has answered.
        bool hasAnswered = true; // The camera has answered in the current search.
        bool hasMissedSearch = false; // Since its last answer.
        int requests = 0; // Requests to this camera in the current search.
        Time deadline
            = Time::max(); // The time of the next request or, after the last request, of the removal.
        std::uint16_t moveRequest = 0; // The request that the camera answered from a new place, or 0.
        unsigned formerInterface = 0; // The place before that request.
        std::uint32_t formerAddress = 0;

        bool isCameraOf(const Answer &answer) const;
    };

    Entry *find(const Answer &answer);
    Entry *findFormerPlace(const Answer &answer);
    Entry *findMoved(const Answer &answer);
    Entry *findElsewhere(const Answer &answer);
    bool isFull(unsigned interfaceIndex) const;
    bool addCamera(const Answer &answer);
    std::string newId(const std::string &identity, std::uint32_t address) const;
    template <typename Predicate>
    Entry *findIf(Predicate &&predicate);
    template <typename Predicate>
    bool removeIf(Predicate &&predicate);

    std::vector<Entry> m_entries;
};
