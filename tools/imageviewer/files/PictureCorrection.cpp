#include "tools/imageviewer/files/PictureCorrection.h"

#include <QUrl>

#include <utility>

PictureCorrection::PictureCorrection(CameraRecordReader &records, ToolSettings &settings, QObject *parent)
    : QObject(parent), m_records(records), m_settings(settings)
{
    m_pool.setMaxThreadCount(1);
    connect(&m_records.connection(), &CameraConnection::stateChanged, this, &PictureCorrection::followCamera);
}

PictureCorrection::~PictureCorrection()
{
    m_pool.waitForDone();
}

QString PictureCorrection::settingsKey(const char *name) const
{
    // IDs contain slashes, which would become groups.
    return QStringLiteral("corrections/%1/%2")
        .arg(QString::fromLatin1(QUrl::toPercentEncoding(m_camera)), QLatin1String(name));
}

void PictureCorrection::followCamera()
{
    const QString camera = m_records.connection().camera().id;
    if (camera == m_camera)
        return;
    m_camera = camera;
    m_choice.defectMap = m_settings.value(settingsKey("defectMap"), QString());
    m_choice.flatField = m_settings.value(settingsKey("flatField"), QString());
    m_choice.isOn = m_settings.value(settingsKey("isOn"), true);
    read();
}

void PictureCorrection::setChoice(const Choice &choice)
{
    const bool isSwitchedOn = choice.isOn && !m_choice.isOn;
    const bool hasNewFiles
        = isSwitchedOn || choice.defectMap != m_choice.defectMap || choice.flatField != m_choice.flatField;
    m_choice = choice;
    m_settings.setValue(settingsKey("defectMap"), choice.defectMap);
    m_settings.setValue(settingsKey("flatField"), choice.flatField);
    m_settings.setValue(settingsKey("isOn"), choice.isOn);
    if (hasNewFiles)
        read();
    else
        emit changed();
}

/// Reads the files in the background. Until then, nothing is corrected.
void PictureCorrection::read()
{
    ++m_reading;
    m_source = {};
    m_pictureProblem.clear();
    m_cameraProblem.clear();
    std::vector<std::string> paths;
    for (const QString &path : {m_choice.defectMap, m_choice.flatField})
        if (!path.isEmpty())
            paths.push_back(path.toStdString());
    emit changed();
    if (paths.empty())
        return;
    m_pool.start([this, paths, reading = m_reading] {
        const CorrectionSource source = readCorrection(paths);
        QMetaObject::invokeMethod(
            this, [this, reading, source] { take(reading, source); }, Qt::QueuedConnection);
    });
}

void PictureCorrection::take(int reading, const CorrectionSource &source)
{
    if (reading != m_reading)
        return;
    m_source = source;
    emit changed();
    checkCamera();
}

void PictureCorrection::checkCamera()
{
    if (!m_source.correction)
        return;
    m_records.read(this, [this](const CameraRecord &record) {
        std::string problem = cameraProblem(m_source, record);
        if (problem != std::exchange(m_cameraProblem, problem))
            emit changed();
    });
}

void PictureCorrection::checkPicture(const CvxCPP::ImageInfo &picture)
{
    std::string problem = correctionProblem(m_source, picture);
    if (problem != std::exchange(m_pictureProblem, problem))
        emit changed();
}

CorrectionSource PictureCorrection::active() const
{
    return m_choice.isOn && problem().isEmpty() ? m_source : CorrectionSource();
}

QString PictureCorrection::problem() const
{
    for (const std::string *const problem : {&m_source.problem, &m_cameraProblem, &m_pictureProblem})
        if (!problem->empty())
            return QString::fromStdString(*problem);
    return {};
}
