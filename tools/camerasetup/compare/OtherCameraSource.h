#pragma once

#include "tools/camerasetup/compare/SettingsSource.h"
#include "tools/kit/camera/CameraConnection.h"

#include <QTimer>

#include <atomic>
#include <memory>

/// Another camera, which is only open while it is read or written. If another program controls the camera, it
/// is read by watching it; selectors then keep their present values.
class OtherCameraSource : public QObject, public SettingsSource
{
    Q_OBJECT

public:
    /// @param connection Opens the camera; only used during a read or a write. Must outlive the source.
    OtherCameraSource(const CameraEntry &camera, CameraConnection &connection);
    ~OtherCameraSource() override;

    QString title() const override;
    void read(const std::vector<FeatureSetting> &others, const ReadDone &done) override;
    QString writeQuestion(int count) const override;
    void write(const std::vector<FeatureSetting> &settings, const WriteDone &done) override;
    void cancel() override;

private:
    /// What happens when the camera is open, and when that or the work has failed.
    struct Task
    {
        std::function<CvxCPP::CvxResult(CvxCPP::Device &, const FeatureProgress &)> work;
        std::function<void(const QString &problem)> done;
        bool isRead = false; ///< A read can also watch the camera.
        bool isLate = false;
        std::atomic<bool> isCancelled{false};
    };

    void start(const std::shared_ptr<Task> &task);
    void followConnection();
    void runTask();
    void takeResult(const std::shared_ptr<Task> &task, const CvxCPP::CvxResult &result);
    void giveUp();
    static QString lateText();
    void finish(const QString &problem);

    const CameraEntry m_camera;
    CameraConnection &m_connection;
    std::shared_ptr<Task> m_task; // Null unless a read or a write is running.
    bool m_isWorking = false; // The camera is open and the task's work has started.
    QTimer m_limit;
};
