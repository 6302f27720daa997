#include "sdk/cvxcpp/DiscoverySession.h"

#include "sdk/cvxcpp/DoubleListing.h"
#include "sdk/cvxcpp/ProducerSearch.h"
#include "sdk/cvxcpp/Utf8.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <exception>
#include <poll.h>
#include <utility>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

constexpr std::size_t MostStarts = 4; // At a time; between them, the hosts that run get their turn.
constexpr auto EndInterval = 5ms; // Between two looks at hosts that are ending.
constexpr auto KillWait = 300ms; // For killed hosts to be gone.
constexpr auto FailedPollWait = 100ms; // In its place; then every host is read.

/// Reports are written on this thread: a closed standard error must not end the program.
void blockBrokenPipeSignal()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

/// For poll(): milliseconds from now, rounded up, so that it does not return too early.
int pollTimeout(HostedProducer::Time until, HostedProducer::Time now)
{
    constexpr auto Longest = std::chrono::milliseconds(60000);
    const auto left = std::clamp<HostedProducer::Clock::duration>(until - now, 0ms, Longest);
    return static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(left).count());
}

} // namespace

DiscoverySession::DiscoverySession(const SystemOptions &options, std::vector<std::string> ctiDirectories)
    : m_options(options),
      m_ctiDirectories(std::move(ctiDirectories)),
      m_announcer([this] { return takeChanges(); })
{ }

DiscoverySession::~DiscoverySession()
{
    stop();
}

void DiscoverySession::start()
{
    m_announcer.start();
    m_thread = std::thread(&DiscoverySession::run, this);
}

void DiscoverySession::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        *m_isRunning = false;
    }
    m_changed.notify_all();
    m_wakeEvent.signal();
    m_announcer.stop();
    if (m_thread.joinable())
        m_thread.join();
}

// ---- Callers -----------------------------------------------------------------------------------------

bool DiscoverySession::searchCameras(std::shared_ptr<const Cameras> &cameras)
{
    const Time deadline = Clock::now() + m_options.answerWait;
    std::unique_lock lock(m_mutex);
    m_changed.wait_until(lock, deadline, [this] { return m_isReady || !*m_isRunning; });

    std::vector<std::pair<std::size_t, Time>> awaited; // Producer, and when it had its last list.
    for (std::size_t i = 0; i < m_views.size(); ++i) {
        ProducerView &view = m_views[i];
        if (view.isFresh(Clock::now(), m_options.reuseTime))
            continue;
        view.isListWanted = true;
        if (view.isAwaited)
            awaited.emplace_back(i, view.listedAt);
    }
    m_wakeEvent.signal();
    const auto isDone = [this](const std::pair<std::size_t, Time> &entry) {
        const ProducerView &view = m_views[entry.first];
        return !view.isAwaited || view.listedAt != entry.second;
    };
    m_changed.wait_until(
        lock, deadline, [&] { return !*m_isRunning || std::all_of(awaited.begin(), awaited.end(), isDone); });
    if (!*m_isRunning)
        return false;
    for (const auto &entry : awaited) {
        if (!isDone(entry))
            m_views[entry.first].isAwaited = false; // Its answer will be announced.
    }
    if (!awaited.empty()) {
        for (ProducerView &view : m_views)
            view.searchEnded(Clock::now()); // The quick producers' lists as well as the one waited for.
    }
    cameras = collectCameras();
    m_announcer.holdUntil(Clock::now() + m_options.announceDelay); // Before the next change can be there.
    return true;
}

std::shared_ptr<const DiscoverySession::Cameras> DiscoverySession::collectCameras()
{
    auto cameras = std::make_shared<Cameras>();
    for (ProducerView &view : m_views) {
        const auto &shown = view.handOut().cameras;
        cameras->insert(cameras->end(), shown.begin(), shown.end());
    }
    return cameras;
}

CvxError DiscoverySession::searchInterface(
    std::size_t producer, const std::string &interfaceId, std::shared_ptr<const ListedInterface> &record)
{
    const Time deadline = Clock::now() + m_options.answerWait;
    std::unique_lock lock(m_mutex);
    if (!*m_isRunning)
        return CvxErrorNotStarted;
    ProducerView &view = m_views.at(producer);
    const auto isFresh
        = [&] { return view.isInterfaceFresh(interfaceId, Clock::now(), m_options.reuseTime); };
    if (!isFresh() && view.isAwaited) {
        view.wantedInterfaces.insert(interfaceId);
        m_wakeEvent.signal();
        const bool isAnswered = m_changed.wait_until(lock, deadline, [&] {
            return !*m_isRunning || !view.isAwaited || isFresh()
                || view.wantedInterfaces.count(interfaceId) == 0;
        });
        if (!*m_isRunning)
            return CvxErrorNotStarted;
        if (!isAnswered)
            view.isAwaited = false;
    }
    record = view.findRecord(interfaceId); // Of a late producer as old as its cameras in the list.
    if (record)
        return CvxErrorSuccess;
    return view.isAwaited ? CvxErrorNotAvailable : CvxErrorTimeout;
}

CameraListChange DiscoverySession::takeChanges()
{
    std::vector<std::pair<CameraList::Pointer, CameraList::Pointer>> lists;
    {
        const std::lock_guard lock(m_mutex);
        for (ProducerView &view : m_views) {
            if (view.isSettled && view.announced != view.shown)
                lists.emplace_back(std::exchange(view.announced, view.shown), view.shown);
        }
    }
    CameraListChange change; // All in one: a camera that changes hands goes before it comes.
    for (const auto &[before, after] : lists)
        change.add(CameraListChange::between(*before, *after));
    return change;
}

void DiscoverySession::hideRepeats()
{
    std::vector<ProducerReport> reports;
    reports.reserve(m_views.size());
    for (const ProducerView &view : m_views)
        reports.push_back({view.directory, view.list});
    const std::vector<CameraList::Pointer> shown = withoutRepeats(reports);
    for (std::size_t i = 0; i < m_views.size(); ++i)
        m_views[i].shown = shown[i];
}

// ---- The session's thread ----------------------------------------------------------------------------

void DiscoverySession::run()
{
    blockBrokenPipeSignal();
    attempt(&DiscoverySession::startProducers);
    attempt(&DiscoverySession::serveUntilStopped);
    attempt(&DiscoverySession::endProducers);
    m_producers.clear(); // Kills what still runs.
}

void DiscoverySession::attempt(void (DiscoverySession::*step)())
{
    try {
        (this->*step)();
    } catch (const std::exception &exception) { // Out of memory, in practice.
        fail(exception.what());
    }
}

void DiscoverySession::startProducers()
{
    const auto report = [this](const std::string &fault) {
        if (m_options.report)
            m_options.report(toLine(fault));
    };
    const std::vector<ProducerFile> files = findProducers(m_ctiDirectories, report);
    for (std::size_t i = 0; i < files.size(); ++i)
        m_producers.push_back(
            std::make_unique<HostedProducer>(m_options, files[i].path, i, weak_from_this()));
    {
        const std::lock_guard lock(m_mutex);
        m_views.resize(files.size());
        for (std::size_t i = 0; i < files.size(); ++i)
            m_views[i].directory = files[i].directory;
        m_isReady = true;
    }
    m_changed.notify_all();
}

void DiscoverySession::serveUntilStopped()
{
    std::vector<bool> isReadable(m_producers.size(), false);
    Time nextLook = Clock::now() + m_options.lookInterval; // The hosts make the first one when they start.
    while (*m_isRunning) {
        stepProducers(isReadable);
        const Time now = Clock::now();
        const bool isLookDue = now >= nextLook;
        if (isLookDue) {
            nextLook
                = std::max(nextLook + m_options.lookInterval, now); // Not all at once after a standstill.
            settleAll();
        }
        markLate(now);
        sendWishes(now, isLookDue);
        waitForEvents(nextLook, isReadable);
    }
}

void DiscoverySession::sendWishes(Time now, bool isLookDue)
{
    bool isAnyAnswered = false;
    {
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = 0; i < m_producers.size(); ++i) {
            ProducerView &view = m_views[i];
            HostedProducer &producer = *m_producers[i];
            view.isListWanted = view.isListWanted || isLookDue;
            if (!producer.isIdle())
                continue;
            if (std::exchange(view.isListWanted, false)) {
                producer.askForList(now);
                continue;
            }
            while (!view.wantedInterfaces.empty()
                && !producer.askForInterface(*view.wantedInterfaces.begin(), now)) {
                view.wantedInterfaces.erase(view.wantedInterfaces.begin()); // There is none of that name.
                isAnyAnswered = true;
            }
        }
    }
    if (isAnyAnswered)
        m_changed.notify_all();
}

void DiscoverySession::waitForEvents(Time nextLook, std::vector<bool> &isReadable)
{
    const Time now = Clock::now();
    Time wakeAt = nextLook;
    std::vector<pollfd> descriptors{{m_wakeEvent.descriptor(), POLLIN, 0}};
    std::vector<std::size_t> indices; // Of the producers whose descriptors come after that.
    for (std::size_t i = 0; i < m_producers.size(); ++i) {
        const HostedProducer &producer = *m_producers[i];
        wakeAt = std::min(wakeAt, producer.nextStep(now));
        if (producer.descriptor() < 0)
            continue; // poll() would pass over it, but refuses more than the program may open.
        descriptors.push_back({producer.descriptor(), POLLIN, 0});
        indices.push_back(i);
    }
    // Interrupted by a signal of the program's, it gives no events.
    const bool hasFailed
        = poll(descriptors.data(), descriptors.size(), pollTimeout(wakeAt, now)) < 0 && errno != EINTR;
    if (hasFailed) // The limit was lowered since, or there is no memory.
        std::this_thread::sleep_for(FailedPollWait);
    if (descriptors.front().revents != 0)
        m_wakeEvent.clear();
    isReadable.assign(m_producers.size(), false);
    for (std::size_t i = 0; i < indices.size(); ++i)
        isReadable[indices[i]] = hasFailed || descriptors[i + 1].revents != 0;
}

void DiscoverySession::stepProducers(const std::vector<bool> &isReadable)
{
    const std::vector<bool> mayStart = chooseStarts(Clock::now());
    for (std::size_t i = 0; i < m_producers.size(); ++i) {
        const Time now = Clock::now();
        if (m_producers[i]->isStartDue(now) && !mayStart[i])
            continue;
        const HostedProducer::Event event = m_producers[i]->step(now, isReadable[i]);
        if (event != HostedProducer::Event::Nothing)
            publish(i, event, now);
    }
}

/// Those that have been waiting longest, so that failing producers do not keep others from their first start.
std::vector<bool> DiscoverySession::chooseStarts(Time now) const
{
    std::vector<std::size_t> due;
    for (std::size_t i = 0; i < m_producers.size(); ++i) {
        if (m_producers[i]->isStartDue(now))
            due.push_back(i);
    }
    std::stable_sort(due.begin(), due.end(), [this](std::size_t a, std::size_t b) {
        return m_producers[a]->startDueAt() < m_producers[b]->startDueAt();
    });
    due.resize(std::min(due.size(), MostStarts));
    std::vector<bool> chosen(m_producers.size(), false);
    for (const std::size_t i : due)
        chosen[i] = true;
    return chosen;
}

void DiscoverySession::publish(std::size_t index, HostedProducer::Event event, Time now)
{
    const HostedProducer &producer = *m_producers[index];
    bool isChanged = false;
    {
        const std::lock_guard lock(m_mutex);
        ProducerView &view = m_views[index];
        isChanged = view.list != producer.list();
        if (isChanged) {
            view.list = producer.list();
            view.records = producer.records();
            hideRepeats();
        }
        if (event == HostedProducer::Event::Listed)
            view.listed(now);
        else if (event == HostedProducer::Event::InterfaceListed)
            view.interfaceListed(producer.searchedInterface(), now);
        else
            view.lost();
        if (!producer.hasAnsweredInTime(now))
            view.isAwaited = false; // The next list does not wait for it, until it is quick for once.
    }
    m_changed.notify_all();
    if (isChanged)
        m_announcer.notify();
}

void DiscoverySession::markLate(Time now)
{
    bool isAnyLate = false;
    {
        const std::lock_guard lock(m_mutex);
        for (std::size_t i = 0; i < m_producers.size(); ++i) {
            if (!m_producers[i]->isLate(now) || !m_views[i].isAwaited)
                continue;
            m_views[i].late();
            isAnyLate = true;
        }
    }
    if (isAnyLate)
        m_changed.notify_all();
}

void DiscoverySession::settleAll()
{
    bool isAnyNew = false;
    {
        const std::lock_guard lock(m_mutex);
        for (ProducerView &view : m_views)
            isAnyNew = !std::exchange(view.isSettled, true) || isAnyNew;
    }
    if (isAnyNew)
        m_announcer.notify();
}

void DiscoverySession::fail(const char *reason)
{
    {
        const std::lock_guard lock(m_mutex);
        *m_isRunning = false;
    }
    m_changed.notify_all();
    try {
        if (m_options.report)
            m_options.report(std::string("the search for cameras ended: ") + reason);
    } catch (const std::exception &) { // No memory for these words either.
    }
}

void DiscoverySession::endProducers()
{
    for (const auto &producer : m_producers)
        producer->askToEnd();
    const Time killAt = Clock::now() + m_options.endWait;
    const Time giveUpAt = killAt + KillWait;
    const auto isGone = [](const auto &producer) { return producer->hasGone(); };
    bool isKilled = false;
    while (!std::all_of(m_producers.begin(), m_producers.end(), isGone) && Clock::now() < giveUpAt) {
        std::this_thread::sleep_for(EndInterval);
        for (const auto &producer : m_producers)
            producer->stepEnd();
        if (Clock::now() < killAt || std::exchange(isKilled, true))
            continue;
        for (const auto &producer : m_producers)
            producer->killAtEnd(Clock::now());
    }
}
