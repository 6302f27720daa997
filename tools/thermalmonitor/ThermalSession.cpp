#include "tools/thermalmonitor/ThermalSession.h"

#include "sdk/imagefile/Sidecar.h"
#include "tools/kit/assistant/MeasureJob.h"
#include "tools/kit/assistant/SentenceText.h"

#include <utility>

using namespace CvxCPP;

namespace {

constexpr double darkRate = 2; ///< Per second.
constexpr int millisecondsPerSecond = 1000;

/// Settings that change the dark level without any change of the temperature.
QStringList darkSettings()
{
    return {QStringLiteral("ExposureTime"), QStringLiteral("ExposureTimeAbs"), QStringLiteral("Gain"),
        QStringLiteral("GainRaw"), QStringLiteral("BlackLevel"), QStringLiteral("BlackLevelRaw"),
        QStringLiteral("PixelFormat"), QStringLiteral("Gamma"), QStringLiteral("BinningHorizontal"),
        QStringLiteral("BinningVertical")};
}

} // namespace

struct ThermalSession::DarkResult
{
    Sentence problem;
    DarkLevel level;
};

ThermalSession::ThermalSession(FeatureClient &client, LiveStream &stream, QObject *parent)
    : QObject(parent),
      m_client(client),
      m_connection(client.connection()),
      m_stream(stream),
      m_darkAnalysis(
          [this, meter = std::make_shared<DarkMeter>()](
              const std::shared_ptr<const Image> &image) -> LiveAnalysis::Deliver {
              if (!image->GetInfo().isComplete)
                  return {};
              DarkResult result;
              result.problem = meter->measure(rawImage(*image), result.level);
              return [this, result] { takeDark(result); };
          },
          darkRate)
{
    m_clock.start();
    setInterval(1);
    m_client.watch(darkSettings());
    connect(&m_timer, &QTimer::timeout, this, &ThermalSession::poll);
    connect(&m_connection, &CameraConnection::stateChanged, this, &ThermalSession::followConnection);
    connect(&m_client, &FeatureClient::stateChanged, this, &ThermalSession::followFeature);
    connect(&m_client, &FeatureClient::nodesLoaded, this, [this] {
        for (const QString &name : darkSettings())
            followFeature(name);
    });
    followConnection();
}

ThermalSession::~ThermalSession()
{
    setMeasuringDark(false);
    m_client.unwatch(darkSettings());
}

void ThermalSession::setInterval(double seconds)
{
    m_timer.start(int(seconds * millisecondsPerSecond));
}

void ThermalSession::setThresholds(const Thresholds &thresholds)
{
    m_thresholds = thresholds;
    if (m_monitor)
        m_monitor->setThresholds(thresholds);
}

// ---- The camera -------------------------------------------------------------------------------------------

void ThermalSession::followConnection()
{
    const QString id = m_connection.camera().id;
    const bool isOther = id != m_cameraId || m_connection.access() != m_access;
    if (isOther) {
        m_cameraId = id;
        m_access = m_connection.access();
        m_source.reset();
        m_monitor.reset();
        m_problem.clear();
        m_darkMessage.clear();
        setMeasuringDark(false);
    }
    const CameraConnection::State state = m_connection.state();
    if (state == CameraConnection::State::Opening)
        m_isReading = false; // The connection has dropped the call of the earlier device.
    if (state == CameraConnection::State::Open && !m_source)
        find();
    emit changed();
}

void ThermalSession::find()
{
    struct Found
    {
        TemperatureSource source;
        Sentence problem;
    };
    const auto found = std::make_shared<Found>();
    m_connection.run(
        [found](Device &device) {
            found->problem = findTemperatures(device, found->source);
            return CvxResult{};
        },
        this, [this, found](const CvxResult &result) { takeSource(result, found->source, found->problem); });
}

void ThermalSession::takeSource(
    const CvxResult &result, const TemperatureSource &source, const Sentence &problem)
{
    m_problem = translatedSentence(problem);
    if (result && problem.isEmpty()) {
        m_source = source;
        begin();
        poll();
    }
    emit changed();
}

void ThermalSession::begin()
{
    m_clock.restart();
    m_monitor = std::make_unique<ThermalMonitor>(m_source->places, utcNow());
    m_monitor->setThresholds(m_thresholds);
}

void ThermalSession::restart()
{
    if (!m_source)
        return;
    const QString log = logPath();
    begin();
    if (!log.isEmpty())
        startLog(log);
    emit changed();
}

// ---- Readings ---------------------------------------------------------------------------------------------

void ThermalSession::poll()
{
    if (!m_source || m_isReading)
        return;
    if (m_connection.state() != CameraConnection::State::Open)
        return addMissing();
    m_isReading = true;
    const auto reading = std::make_shared<TemperatureReading>();
    m_connection.run(
        [reading, source = *m_source](Device &device) {
            *reading = readTemperatures(device, source);
            return CvxResult{};
        },
        this, [this, reading](const CvxResult &) { takeReading(*reading); });
}

void ThermalSession::takeReading(const TemperatureReading &reading)
{
    m_isReading = false;
    if (!m_monitor)
        return;
    // Without a device, the call was not made.
    if (reading.celsius.size() != m_monitor->places().size())
        return addMissing();
    m_problem = QString::fromStdString(reading.problem.text);
    add(reading.celsius);
}

void ThermalSession::addMissing()
{
    if (m_monitor)
        add(std::vector<std::optional<double>>(m_monitor->places().size()));
}

void ThermalSession::add(const std::vector<std::optional<double>> &celsius)
{
    if (const std::optional<DarkLevel> level = std::exchange(m_darkLevel, std::nullopt))
        m_monitor->setDark(*level);
    const auto changes = m_monitor->add(now(), utcNow(), celsius);
    for (const ThermalMonitor::AlertChange &change : changes)
        emit alerted(change);
    emit changed();
}

// ---- The log ----------------------------------------------------------------------------------------------

QString ThermalSession::startLog(const QString &path)
{
    if (!m_monitor)
        return tr("The camera has not been read yet.");
    const std::string problem = m_monitor->log().open(path.toStdString(), m_monitor->placeNames());
    emit changed();
    return QString::fromStdString(problem);
}

void ThermalSession::stopLog()
{
    if (m_monitor)
        m_monitor->log().close();
    emit changed();
}

QString ThermalSession::logPath() const
{
    return isLogging() ? QString::fromStdString(m_monitor->log().path()) : QString();
}

QString ThermalSession::logProblem() const
{
    return m_monitor ? QString::fromStdString(m_monitor->log().problem()) : QString();
}

// ---- The dark level ---------------------------------------------------------------------------------------

void ThermalSession::setMeasuringDark(bool isMeasuring)
{
    if (std::exchange(m_isMeasuringDark, isMeasuring) == isMeasuring)
        return;
    m_darkMessage.clear();
    m_darkLevel.reset();
    if (isMeasuring) {
        m_stream.addSink(&m_darkAnalysis);
        m_stream.start(MeasureJob::streamBuffers);
    } else {
        m_stream.removeSink(&m_darkAnalysis);
        m_darkAnalysis.clear();
    }
    emit changed();
}

void ThermalSession::clearDark()
{
    m_darkLevel.reset();
    if (m_monitor)
        m_monitor->clearDark();
    emit changed();
}

void ThermalSession::takeDark(const DarkResult &result)
{
    if (!m_isMeasuringDark)
        return;
    const bool isUsable = result.problem.isEmpty();
    m_darkMessage = translatedSentence(isUsable ? DarkMeter::hint(result.level) : result.problem);
    m_darkLevel = isUsable ? std::optional(result.level) : std::nullopt;
}

void ThermalSession::followFeature(const QString &name)
{
    const NodeState *const state = m_client.state(name);
    if (!state || !darkSettings().contains(name))
        return;
    const NodeValue before = m_darkSettings.value(name, state->value);
    m_darkSettings.insert(name, state->value);
    if (before == state->value || !m_monitor || m_monitor->dark().levels().isEmpty())
        return;
    clearDark(); // The earlier levels cannot be compared with the next ones.
}
