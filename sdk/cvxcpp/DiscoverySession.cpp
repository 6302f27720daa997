#include "sdk/cvxcpp/DiscoverySession.h"

#include "sdk/cvxcpp/PollSchedule.h"
#include "sdk/cvxcpp/ProducerSearch.h"
#include "sdk/cvxcpp/StandstillRule.h"
#include "sdk/device/CameraLabel.h"
#include "sdk/device/DeviceCore.h"
#include "sdk/text/Utf8.h"

#include <algorithm>
#include <csignal>
#include <exception>

using namespace CvxCPP;

namespace {

/// Blocks SIGPIPE on this thread. Otherwise the program would end when a failure is reported and nobody
/// reads standard error.
void blockBrokenPipeSignal()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

} // namespace

DiscoverySession::DiscoverySession(const SystemOptions &options, std::vector<std::string> ctiDirectories)
    : m_options(options),
      m_ctiDirectories(std::move(ctiDirectories)),
      m_notifier([this] {
          const std::lock_guard lock(m_mutex);
          return m_catalogue.takeChange();
      }),
      m_devices(m_options.device)
{ }

DiscoverySession::~DiscoverySession()
{
    stop();
}

void DiscoverySession::start()
{
    m_notifier.start();
    m_thread = std::thread(&DiscoverySession::run, this);
}

void DiscoverySession::stop()
{
    markEnded();
    m_wakeEvent.signal();
    m_devices.beginClose(); // The cameras and the producers are closed at the same time.
    m_notifier.stop();
    if (m_thread.joinable())
        m_thread.join();
    m_devices.close();
}

void DiscoverySession::markEnded()
{
    {
        const std::lock_guard lock(m_mutex);
        *m_isRunning = false;
    }
    m_changed.notify_all();
}

// ---- Callers -----------------------------------------------------------------------------------------

std::shared_ptr<const DiscoverySession::Cameras> DiscoverySession::searchCameras()
{
    const TimePoint now = SteadyClock::now(), deadline = now + m_options.searchTimeout;
    std::unique_lock lock(m_mutex);
    await(lock, deadline, [this] { return m_areProducersKnown; });

    const AwaitedLists awaited = requestLists();
    m_wakeEvent.signal();
    await(lock, std::min(deadline, now + m_options.refreshTimeout),
        [&] { return haveArrived(awaited.current); });
    await(lock, deadline, [&] { return haveArrived(awaited.missing); });
    if (!*m_isRunning)
        return nullptr;
    endSearch(awaited.missing);
    // The hold starts while the lock is held, so that observers are not notified of a later change before
    // the hold starts.
    m_notifier.holdUntil(SteadyClock::now() + m_options.notificationHold);
    return std::make_shared<const Cameras>(m_catalogue.takeCameras());
}

template <typename Condition>
bool DiscoverySession::await(std::unique_lock<std::mutex> &lock, TimePoint deadline, Condition isMet)
{
    const auto isOver = [&] { return !*m_isRunning || isMet(); };
    if (m_changed.wait_until(lock, deadline, isOver))
        return true;
    // After a standstill of this process, replies may have arrived that the session's thread has not read
    // yet.
    const TimePoint now = SteadyClock::now();
    if (now - deadline < StandstillRule::tolerance)
        return false;
    for (int step = 0; step < 2 && !isOver();
         ++step) { // The first step may have begun before the standstill.
        m_wakeEvent.signal();
        m_changed.wait_until(
            lock, now + m_options.searchTimeout, [&, count = m_stepCount] { return m_stepCount != count; });
    }
    return isOver();
}

DiscoverySession::AwaitedLists DiscoverySession::requestLists()
{
    const TimePoint now = SteadyClock::now();
    AwaitedLists awaited;
    for (std::size_t i = 0; i < m_searches.size(); ++i) {
        SearchState &search = m_searches[i];
        const bool isCurrent = search.isCurrent(now);
        // The result of a search that is running will be reported to the observers.
        if (search.isFresh(now) || (isCurrent && search.isSearching()))
            continue;
        search.requestShortSearch();
        if (search.isResponsive())
            (isCurrent ? awaited.current : awaited.missing).push_back({i, search.listCount()});
    }
    return awaited;
}

bool DiscoverySession::hasArrived(const AwaitedList &list) const
{
    const SearchState &search = m_searches[list.producer];
    return !search.isResponsive() || search.listCount() != list.listCount;
}

bool DiscoverySession::haveArrived(const std::vector<AwaitedList> &lists) const
{
    return std::all_of(lists.begin(), lists.end(), [this](const auto &list) { return hasArrived(list); });
}

void DiscoverySession::endSearch(const std::vector<AwaitedList> &missing)
{
    for (const AwaitedList &list : missing) {
        if (!hasArrived(list))
            m_searches[list.producer].deadlineMissed();
    }
    for (SearchState &search : m_searches)
        search.listReturned(SteadyClock::now());
}

DiscoverySession::SearchResult DiscoverySession::searchInterface(
    std::size_t producer, const std::string &interfaceId)
{
    const TimePoint now = SteadyClock::now();
    std::unique_lock lock(m_mutex);
    if (!*m_isRunning)
        return {CvxErrorNotStarted, nullptr};
    SearchState &search = m_searches.at(producer);
    const bool isCurrent = search.isCurrent(now);
    const bool isSearched = search.isInterfaceFresh(interfaceId, now) || (isCurrent && search.isSearching());
    if (!isSearched && search.isResponsive()) {
        search.requestInterface(interfaceId);
        m_wakeEvent.signal();
        const bool isAnswered
            = await(lock, now + (isCurrent ? m_options.refreshTimeout : m_options.searchTimeout),
                [&] { return !search.isResponsive() || !search.isInterfacePending(interfaceId); });
        if (!*m_isRunning)
            return {CvxErrorNotStarted, nullptr};
        if (!isAnswered && !isCurrent)
            search.deadlineMissed();
    }
    auto record = m_catalogue.findInterface(producer, interfaceId);
    if (record)
        return {CvxErrorSuccess, std::move(record)};
    return {search.isResponsive() ? CvxErrorNotAvailable : CvxErrorTimeout, nullptr};
}

CvxResult DiscoverySession::openDevice(std::size_t producer, const std::string &interfaceId,
    const DeviceRecord &device, CvxAccess access, std::shared_ptr<Device> &opened)
{
    DeviceTarget target{{}, interfaceId, device.id, access, cameraLabel(device)};
    {
        const std::lock_guard lock(m_mutex);
        target.producerPath = m_producerPaths.at(producer);
    }
    return m_devices.open(target, opened);
}

// ---- The session's thread ----------------------------------------------------------------------------

void DiscoverySession::run()
{
    try {
        discover();
    } catch (const std::exception &exception) { // No memory or no thread is left.
        markEnded();
        if (m_options.report)
            m_options.report(std::string("discovery ended: ") + exception.what());
    }
}

void DiscoverySession::discover()
{
    blockBrokenPipeSignal();
    HostPool pool(m_options, findProducerPaths());
    PollSchedule schedule(m_options.pollInterval, SteadyClock::now());
    while (*m_isRunning) {
        pool.step([&](std::size_t producer, ProducerSupervisor::Event &event) {
            publish(pool.host(producer), producer, event);
        });
        if (schedule.takeDuePoll(SteadyClock::now()))
            beginPoll();
        noticeLateReplies(pool);
        const TimePoint nextSearch = sendRequests(pool);
        pool.wait(m_wakeEvent.descriptor(), std::min(schedule.nextPoll(), nextSearch));
        m_wakeEvent.clear();
    }
    pool.close();
}

std::vector<std::string> DiscoverySession::findProducerPaths()
{
    auto paths = findProducers(m_ctiDirectories, [this](const std::string &fault) {
        if (m_options.report)
            m_options.report(toLine(fault));
    });
    {
        const std::lock_guard lock(m_mutex);
        for (const std::string &path : paths)
            m_catalogue.addProducer(weak_from_this(), path);
        const SearchState::Intervals intervals{m_options.pollInterval, m_options.listReuse,
            m_options.interfaceReuse, m_options.shortSearch < m_options.backgroundSearch};
        m_producerPaths = paths;
        m_searches.resize(paths.size(), SearchState(intervals));
        m_areProducersKnown = true;
    }
    m_changed.notify_all();
    return paths;
}

void DiscoverySession::publish(
    ProducerSupervisor &host, std::size_t producer, ProducerSupervisor::Event &event)
{
    bool isChanged = false;
    std::size_t cameraCount = 0;
    {
        const std::lock_guard lock(m_mutex);
        isChanged = updateCatalogue(producer, event);
        cameraCount = m_catalogue.reportedCameras(producer);
    }
    m_changed.notify_all();
    if (isChanged)
        m_notifier.notify();
    if (cameraCount > CameraList::maxCameras)
        host.reportUnusedCameras(cameraCount, CameraList::maxCameras);
}

bool DiscoverySession::updateCatalogue(std::size_t producer, ProducerSupervisor::Event &event)
{
    const TimePoint now = SteadyClock::now();
    SearchState &search = m_searches[producer];
    switch (event.kind) {
    case ProducerSupervisor::Event::Kind::CamerasListed:
        search.listReceived(
            now, {event.isInTime, event.search == SearchKind::SelfUpdating, event.processorTime});
        return m_catalogue.replaceInterfaces(producer, std::move(event.interfaces), event.search, now);
    case ProducerSupervisor::Event::Kind::InterfaceSearched:
        search.interfaceReceived(event.searchedInterface, now, event.isInTime);
        // If the interface no longer exists, the reply is empty, and the next camera list removes the
        // interface.
        return !event.interfaces.empty()
            && m_catalogue.replaceInterface(producer, std::move(event.interfaces.front()), event.search, now);
    case ProducerSupervisor::Event::Kind::HostLost:
        break;
    }
    search.producerLost();
    m_catalogue.reportChangesFromNowOn(producer);
    return m_catalogue.removeInterfaces(producer, now);
}

void DiscoverySession::beginPoll()
{
    bool isAnyNew = false;
    {
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = 0; i < m_searches.size(); ++i) {
            m_searches[i].requestPoll();
            isAnyNew = m_catalogue.reportChangesFromNowOn(i) || isAnyNew;
        }
    }
    if (isAnyNew)
        m_notifier.notify();
}

void DiscoverySession::noticeLateReplies(const HostPool &pool)
{
    const TimePoint now = SteadyClock::now();
    bool isAnyLate = false;
    {
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = 0; i < pool.size(); ++i) {
            if (!pool.host(i).isReplyLate(now))
                continue;
            m_searches[i].deadlineMissed();
            m_catalogue.reportChangesFromNowOn(i);
            isAnyLate = true;
        }
    }
    if (isAnyLate)
        m_changed.notify_all();
}

TimePoint DiscoverySession::sendRequests(HostPool &pool)
{
    const TimePoint now = SteadyClock::now();
    TimePoint nextSearch = TimePoint::max();
    {
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = 0; i < pool.size(); ++i) {
            if (pool.host(i).takeListChange())
                m_searches[i].requestCollection();
            if (!pool.host(i).isIdle())
                continue;
            sendPendingRequest(pool.host(i), i, now);
            if (pool.host(i).isIdle())
                nextSearch = std::min(nextSearch, m_searches[i].nextListRequest());
        }
        ++m_stepCount;
    }
    m_changed.notify_all();
    return nextSearch;
}

/// Sends the next pending request, if there is one. Drops a request if the producer has no such interface.
void DiscoverySession::sendPendingRequest(ProducerSupervisor &host, std::size_t producer, TimePoint now)
{
    SearchState &search = m_searches[producer];
    if (const auto request = search.takeListRequest(now)) {
        host.requestCameras(*request, now);
        search.listRequestSent(*request, now);
        return;
    }
    while (const auto interfaceId = search.nextInterfaceRequest()) {
        if (const auto interface = m_catalogue.findInterface(producer, *interfaceId)) {
            host.requestInterface(*interface, now);
            return;
        }
        search.dropInterfaceRequest(*interfaceId);
    }
}
