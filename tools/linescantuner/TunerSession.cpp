#include "tools/linescantuner/TunerSession.h"

#include "tools/kit/assistant/SentenceText.h"
#include "tools/kit/measure/linescan/PlanBuilder.h"
#include "tools/kit/measure/linescan/PlanWriter.h"

#include <memory>
#include <utility>

namespace {

constexpr int readDelay = 200; // Milliseconds.

/// The plan depends on these features, which have no selector: reading the camera sets selectors, and must
/// not be the reason for reading it again.
const QStringList &planFeatures()
{
    static const QStringList names{QStringLiteral("ExposureTime"), QStringLiteral("ExposureTimeAbs"),
        QStringLiteral("AcquisitionLineRate"), QStringLiteral("AcquisitionLineRateAbs"),
        QStringLiteral("AcquisitionLineRateEnable"), QStringLiteral("Width"), QStringLiteral("PixelFormat"),
        QStringLiteral("BinningHorizontal"), QStringLiteral("DeviceLinkThroughputLimit"),
        QStringLiteral("DeviceLinkThroughputLimitMode")};
    return names;
}

/// Returns what the height of a round object in the picture depends on.
std::pair<bool, double> lineSettings(const LineScanCamera &camera)
{
    if (camera.usesEncoder())
        return {true, camera.presentRatio().linesPerPulse()};
    const LineFeatureState *const rate = camera.find(LineFeature::LineRate);
    return {false, rate ? rate->number() : 0};
}

} // namespace

TunerSession::TunerSession(
    CameraConnection &connection, FeatureClient &features, StreamPauser &pauser, QObject *parent)
    : QObject(parent), m_connection(connection), m_features(features), m_pauser(pauser)
{
    m_readTimer.setSingleShot(true);
    m_readTimer.setInterval(readDelay);
    connect(&m_readTimer, &QTimer::timeout, this, &TunerSession::read);
    m_features.watch(planFeatures());
    connect(&m_features, &FeatureClient::nodesLoaded, this, &TunerSession::readLater);
    connect(&m_features, &FeatureClient::stateChanged, this, [this](const QString &name) {
        if (planFeatures().contains(name))
            readLater();
    });
}

TunerSession::~TunerSession()
{
    m_features.unwatch(planFeatures());
}

void TunerSession::reset()
{
    m_readTimer.stop();
    m_camera = {};
    m_result = {};
    m_undo.clear();
    m_isRead = m_isBusy = false;
    emit changed();
}

void TunerSession::setInputs(const LineScanInputs &inputs)
{
    m_result.inputs = inputs;
    m_result.plan = m_isRead ? PlanBuilder(inputs, m_camera).build() : LineRatePlan();
    emit changed();
}

void TunerSession::readLater()
{
    m_readTimer.start();
}

void TunerSession::read()
{
    if (!m_connection.isControlled() || m_isBusy)
        return;
    const auto camera = std::make_shared<LineScanCamera>();
    m_connection.run([camera](CvxCPP::Device &device) { return readLineScanCamera(device, *camera); }, this,
        [this, camera](const CvxCPP::CvxResult &result) { takeCamera(result, *camera); });
}

void TunerSession::takeCamera(const CvxCPP::CvxResult &result, const LineScanCamera &camera)
{
    if (!result)
        return; // The connection shows why; the features are read again when the camera is back.
    m_camera = camera;
    m_isRead = true;
    m_result.plan = PlanBuilder(m_result.inputs, m_camera).build();
    emit changed();
}

void TunerSession::apply()
{
    write(m_result.plan.settings, false);
}

void TunerSession::undo()
{
    if (canUndo())
        write(undoOf(m_undo.back()), true);
}

void TunerSession::write(const std::vector<PlannedSetting> &settings, bool isUndo)
{
    if (m_isBusy || settings.empty())
        return;
    m_isBusy = true;
    const auto problem = std::make_shared<Sentence>();
    const auto call = [problem, settings](CvxCPP::Device &device) {
        *problem = writeSettingsSafely(device, settings);
        return CvxCPP::CvxResult();
    };
    const auto done = [this, problem, settings, isUndo](const CvxCPP::CvxResult &result) {
        takeWritten(result ? *problem : untranslated(result.text), settings, isUndo);
    };
    LineRatePlan locks;
    locks.settings = settings;
    if (locks.needsPause())
        m_pauser.pauseFor(call, this, done);
    else
        m_connection.run(call, this, done);
    emit changed();
}

void TunerSession::takeWritten(
    const Sentence &problem, const std::vector<PlannedSetting> &settings, bool isUndo)
{
    m_isBusy = false;
    if (problem.isEmpty() && isUndo)
        m_undo.pop_back();
    else if (problem.isEmpty())
        m_undo.push_back(settings);
    m_result.written.clear();
    for (const std::vector<PlannedSetting> &written : m_undo)
        m_result.written.insert(m_result.written.end(), written.begin(), written.end());
    read();
    emit changed();
    emit applied(translatedSentence(problem));
}

void TunerSession::addMeasurement(const Roundness &roundness, const LineScanCamera &camera)
{
    m_camera = m_measuredCamera = camera;
    m_sentence = roundnessSentence(roundness, camera);
    m_result.plan = PlanBuilder(m_result.inputs, m_camera).build();
    (m_result.before ? m_result.after : m_result.before) = roundness;
    emit changed();
}

void TunerSession::forgetMeasurements()
{
    m_result.before.reset();
    m_result.after.reset();
    emit changed();
}

const Roundness *TunerSession::lastMeasurement() const
{
    if (lineSettings(m_camera) != lineSettings(m_measuredCamera))
        return nullptr;
    if (m_result.after)
        return &*m_result.after;
    return m_result.before ? &*m_result.before : nullptr;
}
