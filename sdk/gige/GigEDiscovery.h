#pragma once

#include "sdk/gige/CameraPlacement.h"
#include "sdk/gige/CameraRegistry.h"
#include "sdk/gige/FairMutex.h"
#include "sdk/gige/InterfaceMonitor.h"
#include "sdk/gige/ReportedLists.h"
#include "sdk/gige/SearchSchedule.h"
#include "sdk/gvcp/Descriptor.h"
#include "sdk/gvcp/DiscoverySocket.h"
#include "sdk/gvcp/InterfaceAddresses.h"

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

/// Finds GigE Vision cameras on all network interfaces. A thread searches every two seconds and follows
/// changes of the network interfaces. Any thread may call the public functions.
class GigEDiscovery
{
public:
    /// Starts the thread, which starts its first search at once. Throws std::system_error if the system has
    /// no descriptor or thread left.
    GigEDiscovery();

    /// Blocks until the thread has ended, which takes a few milliseconds.
    ~GigEDiscovery();
    GigEDiscovery(const GigEDiscovery &) = delete;
    GigEDiscovery &operator=(const GigEDiscovery &) = delete;

    /// Returns the GenTL interfaces with the cameras that are known now. Throws std::system_error if the
    /// system does not report its network interfaces.
    std::vector<InterfaceList> interfaces();

    /// Searches, and returns the cameras of one GenTL interface when the answers have settled or the timeout
    /// has passed. Returns no cameras if the interface does not exist. Callers share a search that is running
    /// or has just ended. With a timeout of 0, returns what is known without a search.
    std::vector<ListedCamera> cameras(const std::string &interfaceId, std::chrono::milliseconds timeout);

    /// Returns a descriptor that becomes readable when interfaces() or cameras() would return something that
    /// the caller does not know yet. The caller reads 8 bytes from it.
    int listChangedDescriptor() const { return m_listChangedEvent.number(); }

private:
    using Time = SearchSchedule::Time;

    void run();
    void waitForEvent(std::unique_lock<FairMutex> &lock);
    void work(Time now);
    void readInterfaces(Time now);
    void openSockets();
    void startSearch(Time now);
    void broadcastLimited(std::set<unsigned> interfaces) const;
    void askAgain(const std::vector<CameraRegistry::Camera> &cameras) const;
    void receive(Time now);
    bool isRecentRequest(std::uint16_t requestId) const;
    const std::vector<InterfaceList> &currentLists();
    void reportChange();
    void waitForSearch(std::unique_lock<FairMutex> &lock, std::chrono::milliseconds timeout);

    const Descriptor m_listChangedEvent;
    const Descriptor m_wakeEvent; // Ends the thread's poll() when a caller needs something.
    const InterfaceMonitor m_monitor;

    FairMutex m_mutex; // Guards the members below. The thread releases it only while it waits for an event.
    std::vector<InterfaceAddress> m_addresses;
    std::optional<std::system_error> m_interfaceFailure; // Set if the addresses could not be read.
    std::map<unsigned, std::unique_ptr<DiscoverySocket>> m_sockets; // By the index of the network interface.
    SearchSchedule m_schedule;
    std::uint16_t m_requestId = 0; // The ID of the last search's command.
    std::array<std::uint16_t, 8> m_recentRequests{}; // IDs whose answers are accepted; 0 is not an ID.
    CameraRegistry m_registry;
    CameraPlacement m_placement;
    std::vector<InterfaceList> m_lists;
    bool m_areListsOutdated = true;
    ReportedLists m_reported;
    int m_waitingCallers = 0; // Callers that collect the cameras when the running search ends.
    bool m_isSearchRequested = false;
    bool m_isStopping = false;

    std::mutex m_endMutex; // Changing m_endedSearches needs both mutexes; reading it needs one of them.
    std::uint64_t m_endedSearches = 0;
    std::condition_variable m_searchEnded;

    std::thread m_thread; // Declared last, because the thread uses all members above.
};
