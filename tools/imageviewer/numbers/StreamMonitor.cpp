#include "tools/imageviewer/numbers/StreamMonitor.h"

#include <algorithm>

using CvxCPP::NodeInfo;
using CvxCPP::NodeState;

namespace {

constexpr int updateInterval = 500; // Milliseconds.

/// A feature that tells the same as others, in another unit.
struct NumberFeature
{
    const char *name;
    std::int64_t factor;
};

constexpr std::int64_t bytesPerMegabit = 125000;
constexpr NumberFeature linkSpeedFeatures[] = {{"DeviceLinkSpeed", 1}, {"GevLinkSpeed", bytesPerMegabit}};
constexpr NumberFeature packetSizeFeatures[]
    = {{"GevSCPSPacketSize", 1}, {"DeviceStreamChannelPacketSize", 1}};

template <std::size_t count>
QStringList namesOf(const NumberFeature (&features)[count])
{
    QStringList names;
    for (const NumberFeature &feature : features)
        names << QString::fromLatin1(feature.name);
    return names;
}

/// Returns the value of the first feature that the camera tells.
template <std::size_t count>
std::optional<std::int64_t> firstNumber(const FeatureClient &client, const NumberFeature (&features)[count])
{
    for (const NumberFeature &feature : features) {
        const NodeState *const state = client.state(QString::fromLatin1(feature.name));
        if (!state)
            continue;
        if (const auto *const integer = std::get_if<std::int64_t>(&state->value))
            return *integer * feature.factor;
        if (const auto *const number = std::get_if<double>(&state->value))
            return static_cast<std::int64_t>(*number * static_cast<double>(feature.factor));
    }
    return std::nullopt;
}

CvxCPP::CvxTransportLayerType technologyOf(const CameraEntry &entry)
{
    CvxCPP::CvxTransportLayerType type = CvxCPP::CvxTransportLayerUnknown;
    if (!entry.camera || entry.camera->GetInterfaceType(type) != CvxCPP::CvxErrorSuccess)
        return CvxCPP::CvxTransportLayerUnknown;
    return type;
}

} // namespace

StreamMonitor::StreamMonitor(LiveStream &stream, PictureFeed &feed, FeatureClient &features, QObject *parent)
    : QObject(parent), m_stream(stream), m_feed(feed), m_features(features)
{
    m_features.watch(namesOf(linkSpeedFeatures));
    m_features.watch(namesOf(packetSizeFeatures));
    m_stream.addSink(&m_bufferWatch);
    connect(&m_stream, &LiveStream::stateChanged, this, &StreamMonitor::update);
    connect(&m_features, &FeatureClient::nodesLoaded, this, &StreamMonitor::followFeatures);
    connect(&m_features.connection(), &CameraConnection::stateChanged, this, &StreamMonitor::followCamera);
    connect(&m_adviser, &LossAdviser::adviceChanged, this, &StreamMonitor::updated);
    connect(&m_timer, &QTimer::timeout, this, &StreamMonitor::update);
    m_clock.start();
    m_timer.start(updateInterval);
    followFeatures();
}

StreamMonitor::~StreamMonitor()
{
    m_stream.removeSink(&m_bufferWatch);
    m_features.unwatch(namesOf(linkSpeedFeatures));
    m_features.unwatch(namesOf(packetSizeFeatures));
}

void StreamMonitor::followCamera()
{
    if (m_features.connection().state() == CameraConnection::State::Opening)
        beginAnew();
    update();
}

void StreamMonitor::followFeatures()
{
    const QVector<NodeInfo> &nodes = m_features.nodes();
    const auto counter = std::find_if(nodes.begin(), nodes.end(), isResendCounter);
    m_resendCounter = counter == nodes.end() ? std::string() : counter->name;
    m_figures.resends.reset();
}

void StreamMonitor::beginAnew()
{
    m_figures = StreamFigures();
    m_isReadingResends = false; // The connection does not report the calls of another camera.
    m_history.clear();
    m_lossWindow.clear();
    m_adviser.clear();
}

void StreamMonitor::update()
{
    const bool isRunning = m_stream.state() == LiveStream::State::Running;
    m_figures.totals = m_stream.totals();
    if (!isRunning || m_features.connection().state() != CameraConnection::State::Open) {
        m_figures.totals.imagesPerSecond = 0;
        m_figures.totals.bytesPerSecond = 0;
    }
    m_figures.shown = m_feed.shownCount();
    m_figures.skippedForDisplay = m_feed.skippedCount();
    m_figures.buffers = isRunning ? m_buffers : 0;
    m_figures.usedBuffers = m_bufferWatch.usedBuffers();
    readFeatures();
    const CvxCPP::StreamStatistics &totals = m_figures.totals;
    m_history.add(m_clock.elapsed(), totals.delivered, totals.lost + totals.incomplete + totals.underruns);
    m_lossWindow.add(m_clock.elapsed(), totals);
    adviseOnLosses();
    emit updated();
}

void StreamMonitor::readFeatures()
{
    m_figures.linkSpeed = firstNumber(m_features, linkSpeedFeatures);
    m_figures.packetSize = firstNumber(m_features, packetSizeFeatures);
    const bool isOpen = m_features.connection().state() == CameraConnection::State::Open;
    if (isOpen && !m_resendCounter.empty() && !m_isReadingResends)
        readResends();
}

void StreamMonitor::readResends()
{
    m_isReadingResends = true;
    const auto value = std::make_shared<std::int64_t>(0);
    m_features.connection().run(
        [value, name = m_resendCounter](CvxCPP::Device &device) { return device.ReadInteger(name, *value); },
        this, [this, value](const CvxCPP::CvxResult &result) { takeResends(result, *value); });
}

void StreamMonitor::takeResends(const CvxCPP::CvxResult &result, std::int64_t value)
{
    m_isReadingResends = false;
    if (result)
        m_figures.resends = value;
}

void StreamMonitor::adviseOnLosses()
{
    const CameraEntry &camera = m_features.connection().camera();
    LossQuestion question;
    question.camera = camera.deviceId.toStdString();
    question.technology = technologyOf(camera);
    question.report.counters = m_figures.totals;
    question.report.packetSize = m_figures.packetSize;
    question.report.resends = m_figures.resends;
    m_adviser.update(m_lossWindow.losses(), question);
}
