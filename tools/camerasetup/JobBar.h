#pragma once

#include <QWidget>

class CameraJobs;
class QLabel;
class QProgressBar;

/// Shows the running job with its progress and a button that cancels it. Takes no room while there is none.
class JobBar : public QWidget
{
    Q_OBJECT

public:
    explicit JobBar(CameraJobs &jobs, QWidget *parent = nullptr);

private:
    void update();

    CameraJobs &m_jobs;
    QLabel *m_title;
    QProgressBar *m_progress;
};
