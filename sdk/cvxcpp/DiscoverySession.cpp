#include "sdk/cvxcpp/DiscoverySession.h"

#include "sdk/cvxcpp/PollSchedule.h"
#include "sdk/cvxcpp/ProducerSearch.h"
#include "sdk/cvxcpp/Utf8.h"

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
    : m_options(options), m_ctiDirectories(std::move(ctiDirectories)), m_notifier([this] {
          const std::lock_guard lock(m_mutex);
          return m_catalogue.takeChange();
      })
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
    m_notifier.stop();
    if (m_thread.joinable())
        m_thread.join();
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
    const TimePoint deadline = SteadyClock::now() + m_options.searchTimeout;
    std::unique_lock lock(m_mutex);
    m_changed.wait_until(lock, deadline, [this] { return m_areProducersKnown || !*m_isRunning; });

    const std::vector<AwaitedList> awaited = requestLists();
    m_wakeEvent.signal();
    m_changed.wait_until(lock, deadline, [&] {
        return !*m_isRunning || std::all_of(awaited.begin(), awaited.end(), [this](const auto &list) {
            return hasArrived(list);
        });
    });
    if (!*m_isRunning)
        return nullptr;
    endSearch(awaited);
    // The hold starts while the lock is held, so that observers are not notified of a later change before
    // the hold starts.
    m_notifier.holdUntil(SteadyClock::now() + m_options.notificationHold);
    return std::make_shared<const Cameras>(m_catalogue.takeCameras());
}

std::vector<DiscoverySession::AwaitedList> DiscoverySession::requestLists()
{
    std::vector<AwaitedList> awaited;
    for (std::size_t i = 0; i < m_searches.size(); ++i) {
        if (m_searches[i].isFresh(SteadyClock::now()))
            continue;
        m_searches[i].requestList();
        if (m_searches[i].isResponsive())
            awaited.emplace_back(i, m_searches[i].listCount());
    }
    return awaited;
}

bool DiscoverySession::hasArrived(const AwaitedList &list) const
{
    const auto &[producer, listCount] = list;
    return !m_searches[producer].isResponsive() || m_searches[producer].listCount() != listCount;
}

void DiscoverySession::endSearch(const std::vector<AwaitedList> &awaited)
{
    for (const AwaitedList &list : awaited) {
        if (!hasArrived(list))
            m_searches[list.first].deadlineMissed();
    }
    if (awaited.empty())
        return;
    for (SearchState &search : m_searches)
        search.searchEnded(SteadyClock::now());
}

DiscoverySession::SearchResult DiscoverySession::searchInterface(
    std::size_t producer, const std::string &interfaceId)
{
    const TimePoint deadline = SteadyClock::now() + m_options.searchTimeout;
    std::unique_lock lock(m_mutex);
    if (!*m_isRunning)
        return {CvxErrorNotStarted, nullptr};
    SearchState &search = m_searches.at(producer);
    if (!search.isInterfaceFresh(interfaceId, SteadyClock::now()) && search.isResponsive()) {
        search.requestInterface(interfaceId);
        m_wakeEvent.signal();
        const bool isAnswered = m_changed.wait_until(lock, deadline, [&] {
            return !*m_isRunning || !search.isResponsive() || !search.isInterfacePending(interfaceId);
        });
        if (!*m_isRunning)
            return {CvxErrorNotStarted, nullptr};
        if (!isAnswered)
            search.deadlineMissed();
    }
    auto record = m_catalogue.findInterface(producer, interfaceId);
    if (record)
        return {CvxErrorSuccess, std::move(record)};
    return {search.isResponsive() ? CvxErrorNotAvailable : CvxErrorTimeout, nullptr};
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
        const bool isPollDue = schedule.takeDuePoll(SteadyClock::now());
        if (isPollDue)
            announceAll();
        noticeLateReplies(pool);
        sendRequests(pool, isPollDue);
        pool.wait(m_wakeEvent.descriptor(), schedule.nextPoll());
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
        m_searches.resize(paths.size(), SearchState(m_options.reuseTime));
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
        search.listReceived(now, event.isInTime);
        return m_catalogue.replaceInterfaces(
            producer, std::move(event.interfaces), SearchKind::SelfUpdating, now);
    case ProducerSupervisor::Event::Kind::InterfaceSearched:
        search.interfaceReceived(event.searchedInterface, now, event.isInTime);
        // If the interface no longer exists, the reply is empty, and the next camera list removes the
        // interface.
        return !event.interfaces.empty()
            && m_catalogue.replaceInterface(
                producer, std::move(event.interfaces.front()), SearchKind::SelfUpdating, now);
    case ProducerSupervisor::Event::Kind::HostLost:
        break;
    }
    search.producerLost();
    m_catalogue.reportChangesFromNowOn(producer);
    return m_catalogue.removeInterfaces(producer, now);
}

void DiscoverySession::announceAll()
{
    bool isAnyNew = false;
    {
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = 0; i < m_searches.size(); ++i)
            isAnyNew = m_catalogue.reportChangesFromNowOn(i) || isAnyNew;
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

void DiscoverySession::sendRequests(HostPool &pool, bool isPollDue)
{
    const TimePoint now = SteadyClock::now();
    bool isAnyRefused = false;
    {
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = 0; i < pool.size(); ++i) {
            if (isPollDue)
                m_searches[i].requestList();
            if (pool.host(i).isIdle())
                isAnyRefused = !sendPendingRequest(pool.host(i), i, now) || isAnyRefused;
        }
    }
    if (isAnyRefused)
        m_changed.notify_all();
}

/// Sends the next pending request, if there is one. Returns false if a request was dropped because the
/// producer has no such interface.
bool DiscoverySession::sendPendingRequest(ProducerSupervisor &host, std::size_t producer, TimePoint now)
{
    SearchState &search = m_searches[producer];
    if (search.takeListRequest()) {
        host.requestCameras(now);
        return true;
    }
    bool isNoneDropped = true;
    while (const auto interfaceId = search.nextInterfaceRequest()) {
        if (const auto interface = m_catalogue.findInterface(producer, *interfaceId)) {
            host.requestInterface(*interface, now);
            break;
        }
        search.dropInterfaceRequest(*interfaceId);
        isNoneDropped = false;
    }
    return isNoneDropped;
}
