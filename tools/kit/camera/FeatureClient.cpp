#include "tools/kit/camera/FeatureClient.h"

#include <QTimer>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace CvxCPP;
using std::chrono::milliseconds;

namespace {

constexpr milliseconds maxLoadTime{500}; // A window waits no longer for the states of a slow camera.
constexpr milliseconds retryInterval{1000}; // After a read that has failed.

bool areEqual(const NodeState &left, const NodeState &right)
{
    const auto parts = [](const NodeState &state) {
        return std::tie(state.access, state.lockReason, state.lockingNode, state.value, state.minimum,
            state.maximum, state.increment, state.maxLength, state.availableEntries, state.isCommandDone,
            state.problem);
    };
    return parts(left) == parts(right);
}

} // namespace

FeatureClient::FeatureClient(CameraConnection &connection, QObject *parent)
    : QObject(parent),
      m_connection(connection),
      m_readTimer(new QTimer(this)),
      m_loadTimer(new QTimer(this)),
      m_pollTimer(new QTimer(this))
{
    m_readTimer->setSingleShot(true);
    m_readTimer->setInterval(0);
    m_loadTimer->setSingleShot(true);
    m_loadTimer->setInterval(maxLoadTime);
    m_pollTimer->setSingleShot(true);
    connect(m_readTimer, &QTimer::timeout, this, &FeatureClient::readWaiting);
    connect(m_loadTimer, &QTimer::timeout, this, &FeatureClient::finishLoading);
    connect(m_pollTimer, &QTimer::timeout, this, &FeatureClient::poll);
    connect(&connection, &CameraConnection::stateChanged, this, &FeatureClient::followConnection);
    connect(&connection, &CameraConnection::nodesChanged, this, &FeatureClient::readLater);
    followConnection();
}

// ---- The list of features ---------------------------------------------------------------------------------

void FeatureClient::followConnection()
{
    const CameraConnection::State state = m_connection.state();
    if (state == CameraConnection::State::Opening) { // The results of the previous camera will not arrive.
        m_isReading = false;
        m_batch = {};
        m_running.reset();
        m_operations.clear();
    }
    if (state != CameraConnection::State::Open)
        forget();
    else if (m_stage == Stage::Gone)
        load();
}

void FeatureClient::forget()
{
    const Stage previous = std::exchange(m_stage, Stage::Gone);
    m_nodes.clear();
    m_indexes.clear();
    m_states.clear();
    m_outdated.clear();
    m_waiting.clear();
    m_pollTimes.clear();
    m_loadTimer->stop();
    if (previous == Stage::Loaded)
        emit nodesGone();
}

void FeatureClient::load()
{
    m_stage = Stage::Listing;
    const auto nodes = std::make_shared<std::vector<NodeInfo>>();
    m_connection.run([nodes](Device &device) { return device.GetNodes(*nodes); }, this,
        [this, nodes](const CvxResult &result) { takeNodes(result, *nodes); });
}

void FeatureClient::takeNodes(const CvxResult &result, const std::vector<NodeInfo> &nodes)
{
    if (m_stage != Stage::Listing || !result)
        return; // The camera was lost meanwhile; the connection reports that.
    m_stage = Stage::Loading;
    m_nodes.clear();
    m_indexes.clear();
    for (const NodeInfo &node : nodes) {
        m_indexes.insert(QString::fromStdString(node.name), m_nodes.size());
        m_nodes.append(node);
    }
    m_loadTimer->start();
    m_waiting.append(watchedOf(m_watchCounts.keys()));
    readWaiting();
}

void FeatureClient::finishLoading()
{
    m_loadTimer->stop();
    m_stage = Stage::Loaded;
    emit nodesLoaded();
}

const NodeInfo *FeatureClient::info(const QString &name) const
{
    const auto index = m_indexes.constFind(name);
    return index == m_indexes.constEnd() ? nullptr : &m_nodes[*index];
}

const NodeState *FeatureClient::state(const QString &name) const
{
    const auto found = m_states.constFind(name);
    return found == m_states.constEnd() ? nullptr : &*found;
}

QString FeatureClient::firstKnown(const QStringList &names) const
{
    for (const QString &name : names) {
        const NodeState *const known = state(name);
        if (info(name) && (!known || known->access != NodeAccess::NotImplemented))
            return name;
    }
    return {};
}

// ---- Reading ----------------------------------------------------------------------------------------------

void FeatureClient::watch(const QStringList &names)
{
    QStringList added;
    for (const QString &name : names) {
        if (++m_watchCounts[name] == 1)
            added.append(name);
    }
    readSoon(watchedOf(added));
}

void FeatureClient::unwatch(const QStringList &names)
{
    for (const QString &name : names) {
        if (--m_watchCounts[name] > 0)
            continue;
        m_watchCounts.remove(name);
        m_pollTimes.remove(name);
        m_waiting.remove(name);
    }
}

/// Returns those of the features that are watched and that the camera has.
QStringList FeatureClient::watchedOf(const QStringList &names) const
{
    QStringList watched;
    for (const QString &name : names) {
        if (m_watchCounts.contains(name) && m_indexes.contains(name))
            watched.append(name);
    }
    return watched;
}

/// Reads those of the features that are watched, after the ones that wait already.
void FeatureClient::readLater(const QStringList &names)
{
    m_waiting.append(watchedOf(names));
    if (!m_waiting.isEmpty())
        m_readTimer->start();
}

/// Reads the features before those that wait.
void FeatureClient::readSoon(const QStringList &names)
{
    if (names.isEmpty())
        return;
    m_waiting.prepend(names);
    m_readTimer->start();
}

/// Reads some of the features that have to be read, unless a read is running.
void FeatureClient::readWaiting()
{
    m_waiting.endGroup();
    if (m_isReading || m_stage == Stage::Gone || m_stage == Stage::Listing)
        return;
    if (!m_waiting.isEmpty())
        return read(m_waiting.take(m_batch.size()));
    startPollTimer();
    if (m_stage == Stage::Loading)
        finishLoading();
}

void FeatureClient::read(const QStringList &names)
{
    m_isReading = true;
    const auto read = std::make_shared<Read>();
    read->names = names;
    const auto call = [read](Device &device) {
        std::vector<std::string> asked;
        for (const QString &name : read->names)
            asked.push_back(name.toStdString());
        const auto start = std::chrono::steady_clock::now();
        const CvxResult result = device.ReadStates(asked, read->states);
        read->duration = std::chrono::steady_clock::now() - start;
        return result;
    };
    m_connection.run(call, this, [this, read](const CvxResult &result) { takeRead(result, *read); });
}

void FeatureClient::takeRead(const CvxResult &result, const Read &read)
{
    m_isReading = false;
    // Other failures are fast and say nothing about the camera's speed.
    if (result || result.code == CvxErrorTimeout)
        m_batch.wasRead(static_cast<std::size_t>(read.names.size()), read.duration);
    if (m_stage == Stage::Gone)
        return;
    for (const NodeState &state : read.states) // None after a failure.
        takeState(state);
    if (!result) {
        for (const QString &name : read.names)
            m_pollTimes.wasRead(name, retryInterval, PollTimes::Clock::now());
    }
    readWaiting();
}

void FeatureClient::takeState(const NodeState &state)
{
    const QString name = QString::fromStdString(state.name);
    const NodeInfo *const node = info(name);
    if (!node)
        return;
    if (m_watchCounts.contains(name))
        m_pollTimes.wasRead(name,
            state.isCommandDone ? milliseconds(node->pollingTime) : PollTimes::minInterval,
            PollTimes::Clock::now());
    m_outdated.remove(name);
    const auto known = m_states.constFind(name);
    if (known != m_states.constEnd() && areEqual(*known, state))
        return;
    m_states.insert(name, state);
    if (m_stage == Stage::Loaded)
        emit stateChanged(name);
}

void FeatureClient::poll()
{
    readLater(m_pollTimes.takeDue(PollTimes::Clock::now()));
    startPollTimer();
}

void FeatureClient::startPollTimer()
{
    if (const auto time = m_pollTimes.untilNext(PollTimes::Clock::now()))
        m_pollTimer->start(*time);
    else
        m_pollTimer->stop();
}
