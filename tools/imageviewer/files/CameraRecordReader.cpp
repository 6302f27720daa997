#include "tools/imageviewer/files/CameraRecordReader.h"

CameraRecordReader::CameraRecordReader(CameraConnection &connection, QObject *parent)
    : QObject(parent), m_connection(connection)
{
    connect(&m_connection, &CameraConnection::stateChanged, this, &CameraRecordReader::answerWhenReplaced);
}

void CameraRecordReader::read(QObject *context, Done done)
{
    const CameraEntry &entry = m_connection.camera();
    if (m_connection.state() != CameraConnection::State::Open || !entry.camera) {
        answer({entry, context, std::move(done)});
        return;
    }
    const auto request = m_requests.insert(m_requests.end(), {entry, context, std::move(done)});
    const auto record = std::make_shared<CameraRecord>();
    m_connection.run(
        [record, camera = entry.camera](CvxCPP::Device &device) {
            *record = readCameraRecord(*camera, device);
            // A camera that was lost meanwhile has told nothing.
            return record->settings.empty() ? CvxCPP::CvxResult{CvxCPP::CvxErrorDeviceLost, {}}
                                            : CvxCPP::CvxResult{};
        },
        this,
        [this, request, record](const CvxCPP::CvxResult &result) {
            take(request, result ? *record : knownRecord(request->camera));
        });
}

void CameraRecordReader::take(Requests::iterator request, const CameraRecord &record)
{
    m_recordedCamera = request->camera.id;
    m_record = record;
    const Request answered = std::move(*request);
    m_requests.erase(request);
    answer(answered);
}

void CameraRecordReader::answerWhenReplaced()
{
    if (m_connection.state() != CameraConnection::State::Opening)
        return;
    const Requests orphans = std::exchange(m_requests, {}); // The connection does not report their calls.
    for (const Request &request : orphans)
        answer(request);
}

void CameraRecordReader::answer(const Request &request) const
{
    if (request.context)
        request.done(knownRecord(request.camera));
}

CameraRecord CameraRecordReader::knownRecord(const CameraEntry &camera) const
{
    if (camera.id == m_recordedCamera)
        return m_record;
    CameraRecord record;
    record.id = camera.id.toStdString();
    record.model = camera.model.toStdString();
    record.serialNumber = camera.serialNumber.toStdString();
    record.userName = camera.userName.toStdString();
    record.settings = nlohmann::ordered_json::object();
    return record;
}
