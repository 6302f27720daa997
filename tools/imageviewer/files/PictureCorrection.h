#pragma once

#include "sdk/imagefile/CorrectionFiles.h"
#include "tools/imageviewer/files/CameraRecordReader.h"
#include "tools/kit/start/ToolSettings.h"

#include <QObject>
#include <QString>
#include <QThreadPool>

/// The correction that a person has chosen for the pictures of the camera: its files, and why they cannot be
/// applied. The choice is remembered for each camera. All functions are called on the GUI thread and return
/// immediately; files are read in the background.
class PictureCorrection : public QObject
{
    Q_OBJECT

public:
    struct Choice
    {
        QString defectMap; ///< File; empty if there is none.
        QString flatField; ///< The same.
        bool isOn = true;
    };

    PictureCorrection(CameraRecordReader &records, ToolSettings &settings, QObject *parent = nullptr);

    /// Waits until the files have been read.
    ~PictureCorrection() override;

    const Choice &choice() const { return m_choice; }
    void setChoice(const Choice &choice);

    /// Reads the files again, because they may have been replaced.
    void read();

    /// Returns the correction; one without effect if none is chosen, if it is off, or if there is a problem.
    CorrectionSource active() const;

    /// Returns why the chosen files are not applied: a part of a sentence, or empty.
    QString problem() const;

    /// Checks whether the correction fits pictures like this one.
    void checkPicture(const CvxCPP::ImageInfo &picture);

    /// Checks whether the correction fits the camera and its settings.
    void checkCamera();

signals:
    /// The choice, the active correction or the problem has changed.
    void changed();

private:
    void followCamera();
    void take(int reading, const CorrectionSource &source);
    QString settingsKey(const char *name) const;

    CameraRecordReader &m_records;
    ToolSettings &m_settings;
    QString m_camera; // ID.
    Choice m_choice;
    CorrectionSource m_source;
    std::string m_pictureProblem;
    std::string m_cameraProblem;
    int m_reading = 0; // Number of the last reading; the results of earlier ones are outdated.
    QThreadPool m_pool; // Ends before the other members.
};
