#pragma once

#include "tools/camerasetup/values/CameraJobs.h"

#include <QObject>
#include <QStringList>

/// Saves the settings of the camera to a file in the background.
class SettingsSave : public QObject
{
    Q_OBJECT

public:
    explicit SettingsSave(CameraJobs &jobs, QObject *parent = nullptr) : QObject(parent), m_jobs(jobs) { }

    /// Returns a file name from model, serial number and date, without directory.
    static QString suggestedName(const CameraEntry &camera, const QDate &date);

    /// Reads the settings and replaces the file as a whole or not at all. Nothing is written if a person
    /// cancels the job.
    void start(const QString &path, const CameraEntry &camera);

signals:
    /// @param notes What could not be saved, and why.
    void saved(const QString &path, int count, const std::vector<FeatureNote> &notes);
    void failed(const QString &text);

private:
    struct Result;

    void finish(const QString &path, const Result &saved, const CvxCPP::CvxResult &result);

    CameraJobs &m_jobs;
};
