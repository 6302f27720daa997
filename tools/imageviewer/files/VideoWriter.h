#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/imageviewer/files/FfmpegCommand.h"
#include "tools/imageviewer/files/ImageKeeper.h"
#include "tools/imageviewer/files/RecordingTarget.h"

#include <QCoreApplication>
#include <QThread>

#include <condition_variable>
#include <deque>
#include <mutex>

/// Encodes 8-bit video with the ffmpeg program, on a thread of its own. A slow encoder holds up nobody:
/// images that it cannot take in time are counted as skipped. All images have the format of the first one;
/// another one ends the video.
class VideoWriter final : public RecordingTarget
{
    Q_DECLARE_TR_FUNCTIONS(VideoWriter)

public:
    /// What to write.
    struct Options
    {
        QString path;
        RecordingFormat codec = RecordingFormat::VideoH264;
        double rate = 25; ///< Images per second when the video is played.
        CameraRecord camera;
    };

    VideoWriter(Options options, ImageKeeper keeper);

    /// Encodes the waiting images and ends the encoder.
    ~VideoWriter() override;

    QString open() override;
    void add(const std::shared_ptr<const CvxCPP::Image> &image) override;
    TargetCounters counters() const override;
    QString problem() const override;
    QString finish(const CvxCPP::StreamStatistics &losses) override;

private:
    void encodeImages();
    std::shared_ptr<const CvxCPP::Image> nextImage();
    void countWritten(const CvxCPP::Image &image);
    void failWith(const QString &problem);
    void end();
    QString updateSidecar() const;

    const Options m_options;
    ImageKeeper m_keeper;
    nlohmann::ordered_json m_sidecar;
    std::unique_ptr<QThread> m_thread; // A QThread, because QProcess needs one.
    std::condition_variable m_changed;
    mutable std::mutex m_mutex; // Protects the following members.
    std::deque<std::shared_ptr<const CvxCPP::Image>> m_images;
    TargetCounters m_counters;
    QString m_problem;
    bool m_isEnding = false;
};
