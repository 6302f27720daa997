#pragma once

#include "sdk/imagefile/Recorder.h"
#include "tools/imageviewer/files/ImageKeeper.h"
#include "tools/imageviewer/files/RecordingTarget.h"

/// Records every image at its full depth to a BigTIFF file, with the correction if there is one, or to a raw
/// file.
class FileRecording final : public RecordingTarget
{
public:
    FileRecording(
        const QString &path, CameraRecord camera, const CorrectionSource &correction, ImageKeeper keeper);

    QString open() override;
    void add(const std::shared_ptr<const CvxCPP::Image> &image) override;
    TargetCounters counters() const override;
    QString problem() const override;
    QString finish(const CvxCPP::StreamStatistics &losses) override;

private:
    const std::string m_path;
    const CameraRecord m_camera;
    ImageKeeper m_keeper;
    Recorder m_recorder;
};
