#include "tools/focusassistant/FocusSession.h"

#include "tools/kit/measure/focus/FocusCamera.h"

namespace {

const QString blackLevelName = QStringLiteral("BlackLevel");
const QString scanTypeName = QStringLiteral("DeviceScanType");

QStringList motorFeatureNames()
{
    QStringList names;
    for (const std::string &name : focusFeatureNames())
        names.append(QString::fromStdString(name));
    return names;
}

std::optional<double> numberOf(const CvxCPP::NodeState *state)
{
    if (!state)
        return {};
    if (const auto *const integer = std::get_if<std::int64_t>(&state->value))
        return double(*integer);
    if (const auto *const real = std::get_if<double>(&state->value))
        return *real;
    return {};
}

} // namespace

FocusSession::FocusSession(FeatureClient &features, LiveStream &stream)
    : m_features(features),
      m_stream(stream),
      m_motorNames(motorFeatureNames()),
      m_analysis(analysis(), maxRate)
{
    m_features.watch(m_motorNames + QStringList{blackLevelName, scanTypeName});
    m_stream.addSink(&m_analysis);
    connect(&m_features, &FeatureClient::nodesLoaded, this, &FocusSession::readOptions);
    connect(&m_features, &FeatureClient::stateChanged, this, &FocusSession::takeFeature);
    readOptions();
}

FocusSession::~FocusSession()
{
    m_stream.removeSink(&m_analysis);
}

LiveAnalysis::Analyse FocusSession::analysis()
{
    return [this, options = m_options, meter = std::make_shared<FocusMeter>()](
               const std::shared_ptr<const CvxCPP::Image> &image) -> LiveAnalysis::Deliver {
        if (!image->GetInfo().isComplete)
            return {};
        std::unique_lock lock(options->mutex);
        const FocusOptions present = options->options;
        lock.unlock();
        FocusMeasurement measurement;
        const Sentence problem = meter->measure(rawImage(*image), present, measurement);
        const std::uint64_t time = image->GetInfo().receivedAt;
        return [this, time, problem, measurement] { take(time, problem, measurement); };
    };
}

void FocusSession::take(
    std::uint64_t receivedAt, const Sentence &problem, const FocusMeasurement &measurement)
{
    constexpr double nanosecondsPerSecond = 1e9;
    m_problem = problem.isEmpty() ? measurement.problem : problem;
    m_measurement = problem.isEmpty() ? std::make_optional(measurement) : std::nullopt;
    if (problem.isEmpty() && measurement.grid == options().grid) {
        if (m_firstTime == 0 || receivedAt < m_firstTime)
            m_firstTime = receivedAt;
        m_history.add(double(receivedAt - m_firstTime) / nanosecondsPerSecond, measurement);
    }
    emit changed();
}

void FocusSession::setGridSize(int size)
{
    m_gridSize = size;
    readOptions();
    clear();
}

void FocusSession::clear()
{
    m_history.clear();
    m_firstTime = 0;
    m_measurement.reset();
    m_analysis.repeat();
    emit changed();
}

void FocusSession::reset()
{
    m_analysis.clear();
    m_history.clear();
    m_firstTime = 0;
    m_measurement.reset();
    m_problem = {};
    emit changed();
}

FocusOptions FocusSession::options() const
{
    const std::lock_guard lock(m_options->mutex);
    return m_options->options;
}

bool FocusSession::hasMotor() const
{
    return !motorName().isEmpty();
}

std::optional<double> FocusSession::position() const
{
    return numberOf(m_features.state(motorName()));
}

QString FocusSession::motorName() const
{
    return m_features.firstKnown(m_motorNames);
}

void FocusSession::takeFeature(const QString &name)
{
    if (name == blackLevelName || name == scanTypeName)
        readOptions();
    if (m_motorNames.contains(name))
        emit changed();
}

void FocusSession::readOptions()
{
    FocusOptions options;
    const CvxCPP::NodeState *const scanType = m_features.state(scanTypeName);
    const auto *const type = scanType ? std::get_if<std::string>(&scanType->value) : nullptr;
    options.isLineScan = type && type->compare(0, 8, "Linescan") == 0;
    options.grid = {m_gridSize, options.isLineScan ? 1 : m_gridSize};
    const CvxCPP::NodeInfo *const blackLevel = m_features.info(blackLevelName);
    if (const auto value = numberOf(m_features.state(blackLevelName)); value && blackLevel)
        options.blackLevel = blackLevelShare(*value, blackLevel->unit);
    const std::lock_guard lock(m_options->mutex);
    m_options->options = options;
}
