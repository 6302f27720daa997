#include "tools/camerasetup/values/OpeningSnapshot.h"

#include "sdk/features/FeatureText.h"

#include <algorithm>
#include <utility>

using namespace CvxCPP;
using std::chrono::milliseconds;

namespace {

constexpr int maxFailures = 3; // Failed calls in a row, for a camera that is not lost.

} // namespace

OpeningSnapshot::OpeningSnapshot(FeatureClient &client, const PresentSelectors &selectors, QObject *parent)
    : QObject(parent), m_client(client), m_selectors(selectors)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &OpeningSnapshot::readNext);
    connect(&client, &FeatureClient::nodesLoaded, this, &OpeningSnapshot::begin);
    connect(&client, &FeatureClient::stateChanged, this, &OpeningSnapshot::takeState);
    connect(&client, &FeatureClient::written, this, &OpeningSnapshot::takeWritten);
    connect(&client, &FeatureClient::executed, this, &OpeningSnapshot::takeExecuted);
    connect(&client.connection(), &CameraConnection::stateChanged, this, &OpeningSnapshot::followConnection);
    connect(&client.connection(), &CameraConnection::nodesChanged, this, &OpeningSnapshot::addStale);
    if (!client.nodes().isEmpty())
        begin();
}

std::optional<std::string> OpeningSnapshot::value(
    const std::string &name, const std::vector<SelectorSetting> &selectors) const
{
    return m_values.opening(name, selectors);
}

// ---- The connection ---------------------------------------------------------------------------------------

void OpeningSnapshot::followConnection()
{
    const CameraConnection::State state = m_client.connection().state();
    if (state == CameraConnection::State::Open)
        return; // The features follow.
    m_isOpen = false;
    m_timer.stop();
    if (state != CameraConnection::State::Lost)
        forget();
}

void OpeningSnapshot::forget()
{
    ++m_openCount;
    m_snapshot = {};
    m_values.clear();
    m_earlyEdits.clear();
    m_directory.reset();
    m_plan.clear();
    m_stale.clear();
    m_written.clear();
    m_batch = {};
    m_isReading = false;
    m_isUntouched = true;
    m_failureCount = 0;
    if (std::exchange(m_state, State::None) != State::None)
        emit stateChanged();
}

/// The camera was opened for the first time, or again after a loss: then everything is compared.
void OpeningSnapshot::begin()
{
    const QVector<NodeInfo> &nodes = m_client.nodes();
    m_directory = std::make_shared<FeatureDirectory>(std::vector<NodeInfo>(nodes.begin(), nodes.end()));
    m_isOpen = true;
    m_failureCount = 0;
    m_plan.clear();
    for (const std::string &name : settingNames(*m_directory))
        m_plan.add(*m_directory, name);
    if (m_state == State::None) {
        m_snapshot.title = tr("This camera at opening");
        m_snapshot.time = QDateTime::currentDateTime();
        m_snapshot.side.directory = *m_directory;
        m_state = State::Reading;
        emit stateChanged();
    }
    for (const NodeInfo &node : nodes)
        takeState(QString::fromStdString(node.name));
    readSoon();
}

// ---- Reading ----------------------------------------------------------------------------------------------

void OpeningSnapshot::readSoon()
{
    if (m_isOpen && !m_isReading && !m_timer.isActive())
        m_timer.start(0);
}

void OpeningSnapshot::readNext()
{
    if (!m_isOpen || m_isReading)
        return;
    if (!m_plan.isEmpty())
        readPart();
    else if (!m_stale.isEmpty())
        readPresent();
    else
        finish();
}

void OpeningSnapshot::finish()
{
    if (m_state != State::Reading)
        return;
    for (const FeatureEdit &edit : std::exchange(m_earlyEdits, {})) {
        const auto opening = m_values.opening(edit.name, edit.selectors);
        if (opening && m_values.markListed(edit.name, edit.selectors) && fitsFeatureFile(*opening))
            m_snapshot.side.settings.push_back({edit.selectors, edit.name, *opening, 0});
    }
    m_state = State::Complete;
    emit stateChanged();
}

void OpeningSnapshot::readPart()
{
    m_isReading = true;
    const auto reading = std::make_shared<SnapshotReading>();
    reading->part = m_plan.take(m_batch.size());
    m_client.connection().run([directory = m_directory, reading](
                                  Device &device) { return ::readPart(device, *directory, *reading); },
        this,
        [this, reading, openCount = m_openCount](const CvxResult &result) {
            if (openCount == m_openCount)
                takePart(result, *reading);
        });
}

void OpeningSnapshot::takePart(const CvxResult &result, SnapshotReading &reading)
{
    m_isReading = false;
    m_failureCount = result ? 0 : m_failureCount + 1;
    for (const FeatureNote &note : reading.notes)
        addNote(m_snapshot.notes, note.name, note.text);
    const std::size_t count = reading.readings.size();
    for (FeatureReading &read : reading.readings)
        takeSetting(std::move(read));
    if (result)
        m_batch.wasRead(std::max<std::size_t>(1, count), reading.duration);
    else
        m_batch = {};
    const bool isGivenUp = !result && m_isOpen && m_failureCount >= maxFailures;
    if (isGivenUp) {
        addPartNotes(reading.part, result.text);
        m_failureCount = 0;
    } else if ((!result || !reading.isComplete) && !m_plan.putBack(reading.part)) {
        addPartNotes(reading.part, tr("There are too many values, so only some were read.").toStdString());
    }
    pauseFor(reading.duration);
}

void OpeningSnapshot::addPartNotes(const SnapshotPart &part, const std::string &text)
{
    for (const std::string &name : part.names)
        addNote(m_snapshot.notes, name, text);
}

/// Leaves the camera to the person for as long as the call has taken.
void OpeningSnapshot::pauseFor(std::chrono::steady_clock::duration callTime)
{
    constexpr milliseconds maxPause{500};
    constexpr milliseconds retryInterval{1000};
    const auto pause = std::min(maxPause, std::chrono::duration_cast<milliseconds>(callTime));
    if (m_isOpen)
        m_timer.start(m_failureCount > 0 ? retryInterval : pause);
}

void OpeningSnapshot::takeSetting(FeatureReading reading)
{
    const NodeState &state = reading.state;
    const NodeInfo *const node = m_directory->find(state.name);
    const bool isReadable = state.access == NodeAccess::ReadWrite || state.access == NodeAccess::ReadOnly;
    if (!node || !isReadable)
        return;
    if (state.value.index() == 0) {
        addNote(m_snapshot.notes, state.name,
            tr("%1 cannot be read: %2")
                .arg(QString::fromStdString(state.name), QString::fromStdString(state.problem))
                .toStdString());
        return;
    }
    const std::string value = settingText(state.value);
    if (m_state == State::Reading) {
        m_values.setOpening(state.name, reading.selectors, value);
        const auto opening = m_values.opening(state.name, reading.selectors);
        if (m_values.markListed(state.name, reading.selectors) && opening && fitsFeatureFile(*opening))
            m_snapshot.side.settings.push_back({reading.selectors, state.name, *opening, 0});
    }
    setPresent(*node, reading.selectors, value);
}

void OpeningSnapshot::readPresent()
{
    m_isReading = true;
    std::vector<std::string> names;
    for (const QString &name : m_stale.take(m_batch.size()))
        names.push_back(name.toStdString());
    const auto readings = std::make_shared<std::vector<FeatureReading>>();
    m_client.connection().run(
        [directory = m_directory, names, readings](
            Device &device) { return readWithPresentSelectors(device, *directory, names, *readings); },
        this,
        [this, readings, openCount = m_openCount](const CvxResult &result) {
            if (openCount == m_openCount)
                takePresent(result, *readings);
        });
}

void OpeningSnapshot::takePresent(const CvxResult &result, const std::vector<FeatureReading> &readings)
{
    m_isReading = false;
    if (!m_isOpen || !result)
        return readSoon(); // After a loss, everything is compared.
    for (const FeatureReading &reading : readings) {
        const NodeInfo *const node = m_directory->find(reading.state.name);
        if (!node || reading.state.value.index() == 0)
            continue;
        const std::string value = settingText(reading.state.value);
        const auto known = m_values.present(node->name, reading.selectors);
        const bool isWritten = m_written.remove(QString::fromStdString(node->name));
        setPresent(*node, reading.selectors, value);
        // What has changed here may have changed for the other values of its selectors.
        if (!reading.selectors.empty() && !isWritten && known && *known != value)
            m_plan.add(*m_directory, node->name);
    }
    pauseFor(milliseconds(0));
}
