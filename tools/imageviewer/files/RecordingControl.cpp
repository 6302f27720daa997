#include "tools/imageviewer/files/RecordingControl.h"

RecordingControl::RecordingControl(LiveStream &stream, CameraRecordReader &records, QObject *parent)
    : QObject(parent), m_stream(stream), m_records(records)
{ }

RecordingControl::~RecordingControl() = default;
bool RecordingControl::isCameraLost() const
{
    return false;
}
void RecordingControl::start(const RecordingOptions &options)
{
    m_options = options;
}
void RecordingControl::stop() { }
