#include "tools/imageviewer/files/SnapshotSaver.h"

SnapshotSaver::SnapshotSaver(CameraRecordReader &records, QObject *parent)
    : QObject(parent), m_records(records)
{ }
SnapshotSaver::~SnapshotSaver() = default;
void SnapshotSaver::save(const std::shared_ptr<const CvxCPP::Image> &image, const SnapshotOptions &options)
{
    Q_UNUSED(image)
    Q_UNUSED(options)
}
