#pragma once

#include <QWidget>

class MeasureJob;
class QLabel;
class QProgressBar;

/// Shows the running measurement with its progress and a button that cancels it. Takes no room while nothing
/// is measured.
class MeasureBar : public QWidget
{
    Q_OBJECT

public:
    explicit MeasureBar(MeasureJob &job, QWidget *parent = nullptr);

private:
    void update();

    MeasureJob &m_job;
    QLabel *m_title;
    QProgressBar *m_progress;
};
