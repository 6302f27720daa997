#include "tools/thermalmonitor/ThermalWindow.h"

#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/Sidecar.h"
#include "tools/kit/measure/thermal/ThermalResult.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/thermalmonitor/TemperaturePlot.h"
#include "tools/thermalmonitor/ThermalPanel.h"
#include "tools/thermalmonitor/ThermalReport.h"
#include "tools/thermalmonitor/ThermalTexts.h"

#include <QAction>
#include <QDateTime>
#include <QMenu>

namespace {

constexpr QSize reportPlot{1200, 500};

std::string writeText(const std::string &path, const std::string &text)
{
    OutputFile file;
    const bool isWritten = file.createHidden(path) && file.append(text.data(), text.size()) && file.publish();
    return isWritten ? std::string() : file.problem();
}

} // namespace

ThermalWindow::ThermalWindow(const QString &camera, ToolSettings &settings)
    : AssistantWindow(plan(camera), settings),
      m_session(features(), stream()),
      m_notifier(this),
      m_panel(new ThermalPanel(m_session, settings)),
      m_save(new QAction(ToolIcons::icon(ToolIcons::Kind::Save), tr("&Save the result…"), this))
{
    setPanel(m_panel);
    m_save->setShortcut(QKeySequence::Save);
    resultMenu()->addAction(m_save);
    connect(m_save, &QAction::triggered, this, &ThermalWindow::save);
    connect(m_panel, &ThermalPanel::saveRequested, this, &ThermalWindow::save);
    connect(&m_session, &ThermalSession::alerted, this, &ThermalWindow::takeAlert);
    connect(&m_session, &ThermalSession::changed, this,
        [this] { m_save->setEnabled(m_session.monitor() != nullptr); });
    m_save->setEnabled(false);
    finish();
}

ThermalWindow::~ThermalWindow()
{
    deleteWidgets(); // They use the session.
}

AssistantWindow::Plan ThermalWindow::plan(const QString &camera)
{
    Plan plan;
    plan.setup = {tr("Thermal Monitor"), camera, QStringLiteral("thermal-monitor")};
    plan.needs = {{{QStringLiteral("DeviceTemperature"), QStringLiteral("TemperatureAbs"),
                       QStringLiteral("DeviceTemperatureRaw"), QStringLiteral("SensorTemperature")},
        tr("The camera has no feature DeviceTemperature, so it does not report its temperature. The data "
           "sheet "
           "says whether a newer firmware does.")}};
    plan.settings = QStringList{QStringLiteral("ExposureTime"), QStringLiteral("Gain"),
        QStringLiteral("BlackLevel"), QStringLiteral("PixelFormat"), QStringLiteral("AcquisitionFrameRate"),
        QStringLiteral("SceneTarget")};
    return plan;
}

void ThermalWindow::takeAlert(const ThermalMonitor::AlertChange &change)
{
    const QString text = ThermalTexts::alert(change);
    const AlertLevel level = m_session.monitor()->alert();
    const bool isAlarm = level == AlertLevel::Alarm;
    m_panel->showAlert(text, isAlarm ? "error" : level == AlertLevel::Warning ? "warning" : "good");
    m_notifier.notify(tr("Thermal Monitor"), text,
        isAlarm ? AlertNotifier::Urgency::Critical : AlertNotifier::Urgency::Normal);
}

QVector<ResultSaver::File> ThermalWindow::resultFiles(const CameraRecord &camera) const
{
    const auto document
        = std::make_shared<nlohmann::ordered_json>(thermalDocument(camera, *m_session.monitor()));
    const std::string csv = thermalCsv(*m_session.monitor());
    const TemperaturePlot &plot = m_panel->plot();
    const QByteArray html = ThermalReport::html(
        camera, *m_session.monitor(), {plot.temperaturePaper(reportPlot), plot.darkPaper(reportPlot)});
    return {{QStringLiteral(".json"),
                [document](const std::string &path) { return writeSidecar(path, *document); }},
        {QStringLiteral(".csv"), [csv](const std::string &path) { return writeText(path, csv); }},
        {QStringLiteral(".html"),
            [html](const std::string &path) { return writeText(path, html.toStdString()); }}};
}

/// The camera is read once more for its settings; one that is lost is described by what is known.
void ThermalWindow::save()
{
    if (!m_session.monitor())
        return;
    const auto record = std::make_shared<CameraRecord>();
    const auto camera = connection().camera().camera;
    const auto write = [this, record](const CvxCPP::CvxResult &) {
        if (!m_session.monitor())
            return;
        const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
        saver().save(QStringLiteral("temperatures-%1").arg(time), resultFiles(*record));
    };
    connection().run(
        [record, camera](CvxCPP::Device &device) {
            *record = readCameraRecord(*camera, device);
            return CvxCPP::CvxResult{};
        },
        this, write);
}
