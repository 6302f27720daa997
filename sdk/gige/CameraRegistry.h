#pragma once

#include "sdk/gige/CameraData.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

/// Keeps the cameras that answer on each network interface. Decides when a silent camera is asked again, and
/// when it is removed: answers get lost, and a camera may take a second to answer, so a camera is removed
/// only after two searches without an answer. Not thread-safe.
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
        /// contains its address: "00:11:1c:f0:12:34@169.254.3.1".
        std::string id;
        CameraData data;
    };

    /// Starts to count missing answers for a new search.
    void startSearch(Time now);

    /// Records an answer. Returns true if the answer adds a camera or changes its data.
    bool addAnswer(unsigned interfaceIndex, const CameraData &data);

    /// Returns the silent cameras that have to be asked again now. Every camera is asked at most three times
    /// in a search.
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
    struct Entry
    {
        Camera camera;
        std::string identity; // The ID without an address.
        bool hasAnswered = true; // In the current search.
        int missedSearches = 0; // Consecutive searches without an answer before the current search.
        int requests = 0; // Requests to this camera in the current search.
        Time deadline
            = Time::max(); // The time of the next request or, after the last request, of the removal.
    };

    Entry *find(unsigned interfaceIndex, const std::string &identity, const CameraData &data);
    std::string newId(const std::string &identity, std::uint32_t address) const;
    template <typename Predicate>
    bool removeIf(Predicate &&predicate);

    std::vector<Entry> m_entries;
};
