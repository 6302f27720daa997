#include "tools/kit/camera/FeatureClient.h"

#include <QTimer>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace CvxCPP;
using std::chrono::milliseconds;

namespace {

// A write waits until the running read has ended, so one read must not take long.
constexpr int maxNamesPerRead = 32;

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
    : QObject(parent), m_connection(connection), m_readTimer(new QTimer(this)), m_pollTimer(new QTimer(this))
{
    m_readTimer->setSingleShot(true);
    m_readTimer->setInterval(0);
    m_pollTimer->setSingleShot(true);
    connect(m_readTimer, &QTimer::timeout, this, &FeatureClient::readDirty);
    connect(m_pollTimer, &QTimer::timeout, this, &FeatureClient::poll);
    connect(&connection, &CameraConnection::stateChanged, this, &FeatureClient::followConnection);
    connect(&connection, &CameraConnection::nodesChanged, this, &FeatureClient::addDirty);
    followConnection();
}

// ---- The list of features ---------------------------------------------------------------------------------

void FeatureClient::followConnection()
{
    const CameraConnection::State state = m_connection.state();
    if (state == CameraConnection::State::Opening) { // The results of the previous camera will not arrive.
        m_isReading = false;
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
    m_dirty.clear();
    m_pollTimes.clear();
    if (previous == Stage::Loaded)
        emit nodesGone();
}

void FeatureClient::load()
{
    m_stage = Stage::Loading;
    const auto nodes = std::make_shared<std::vector<NodeInfo>>();
    m_connection.run([nodes](Device &device) { return device.GetNodes(*nodes); }, this,
        [this, nodes](const CvxResult &result) { takeNodes(result, *nodes); });
}

void FeatureClient::takeNodes(const CvxResult &result, const std::vector<NodeInfo> &nodes)
{
    if (m_stage != Stage::Loading || !result)
        return; // The camera was lost meanwhile; the connection reports that.
    m_nodes.clear();
    m_indexes.clear();
    for (const NodeInfo &node : nodes) {
        m_indexes.insert(QString::fromStdString(node.name), m_nodes.size());
        m_nodes.append(node);
    }
    addDirty(m_watchCounts.keys());
    readDirty();
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
    addDirty(added);
}

void FeatureClient::unwatch(const QStringList &names)
{
    for (const QString &name : names) {
        if (--m_watchCounts[name] > 0)
            continue;
        m_watchCounts.remove(name);
        m_pollTimes.remove(name);
    }
}

/// Reads those of the features that are watched and that the camera has.
void FeatureClient::addDirty(const QStringList &names)
{
    for (const QString &name : names) {
        if (m_watchCounts.contains(name) && m_indexes.contains(name))
            m_dirty.insert(name);
    }
    if (!m_dirty.isEmpty())
        m_readTimer->start();
}

/// Reads some of the features that have to be read, unless a read is running.
void FeatureClient::readDirty()
{
    if (m_isReading || m_stage == Stage::Gone)
        return;
    if (m_dirty.isEmpty()) {
        startPollTimer();
        if (m_stage == Stage::Loading && !m_nodes.isEmpty()) {
            m_stage = Stage::Loaded;
            emit nodesLoaded();
        }
        return;
    }
    Names names;
    for (auto name = m_dirty.begin(); name != m_dirty.end() && names.size() < maxNamesPerRead;) {
        names.push_back(name->toStdString());
        name = m_dirty.erase(name);
    }
    read(names);
}

void FeatureClient::read(const Names &names)
{
    m_isReading = true;
    const auto states = std::make_shared<States>();
    m_connection.run([names, states](Device &device) { return device.ReadStates(names, *states); }, this,
        [this, names, states](const CvxResult &result) { takeStates(result, names, *states); });
}

void FeatureClient::takeStates(const CvxResult &result, const Names &names, const States &states)
{
    m_isReading = false;
    if (m_stage == Stage::Gone)
        return;
    for (const NodeState &state : states) // None after a failure.
        takeState(state);
    if (!result) {
        for (const std::string &name : names)
            m_pollTimes.wasRead(QString::fromStdString(name), retryInterval, PollTimes::Clock::now());
    }
    readDirty();
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
    const auto known = m_states.constFind(name);
    if (known != m_states.constEnd() && areEqual(*known, state))
        return;
    m_states.insert(name, state);
    if (m_stage == Stage::Loaded)
        emit stateChanged(name);
}

void FeatureClient::poll()
{
    addDirty(m_pollTimes.takeDue(PollTimes::Clock::now()));
    startPollTimer();
}

void FeatureClient::startPollTimer()
{
    if (const auto time = m_pollTimes.untilNext(PollTimes::Clock::now()))
        m_pollTimer->start(*time);
    else
        m_pollTimer->stop();
}

// ---- Writing ----------------------------------------------------------------------------------------------

void FeatureClient::write(const QString &name, const NodeValue &value)
{
    m_operations.addWrite(name, value);
    runNextOperation();
}

void FeatureClient::execute(const QString &name)
{
    m_operations.addCommand(name);
    runNextOperation();
}

bool FeatureClient::isWriting(const QString &name) const
{
    return m_operations.hasWrite(name) || (m_running && m_running->value && m_running->name == name);
}

void FeatureClient::runNextOperation()
{
    if (m_running)
        return;
    m_running = m_operations.takeNext();
    if (!m_running)
        return;
    const auto call = [operation = *m_running](Device &device) {
        const std::string name = operation.name.toStdString();
        return operation.value ? device.Write(name, *operation.value) : device.Execute(name);
    };
    m_connection.run(call, this, [this](const CvxResult &result) { takeOperation(result); });
}

void FeatureClient::takeOperation(const CvxResult &result)
{
    const FeatureOperation done = *std::exchange(m_running, std::nullopt);
    runNextOperation();
    if (m_indexes.contains(done.name)) {
        m_dirty.insert(done.name);
        m_readTimer->start();
    }
    if (!result)
        emit failed(done.name, QString::fromStdString(result.text));
    else if (done.value)
        takeWritten(done.name, *done.value);
}

/// Stores the value that the camera has accepted, so the next write knows what it replaces.
void FeatureClient::takeWritten(const QString &name, const NodeValue &value)
{
    const auto known = m_states.find(name);
    const NodeValue before = known == m_states.end() ? NodeValue() : known->value;
    if (known != m_states.end() && known->value != value) {
        known->value = value;
        emit stateChanged(name);
    }
    emit written(name, before, value);
}
