#include "tools/camerasetup/JobBar.h"

#include "tools/camerasetup/values/CameraJobs.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

JobBar::JobBar(CameraJobs &jobs, QWidget *parent)
    : QWidget(parent), m_jobs(jobs), m_title(new QLabel(this)), m_progress(new QProgressBar(this))
{
    m_progress->setTextVisible(false);
    m_progress->setFixedSize(160, 10);
    auto *cancel = new QPushButton(tr("Cancel"), this);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_title);
    layout->addWidget(m_progress);
    layout->addWidget(cancel);
    connect(cancel, &QPushButton::clicked, &jobs, &CameraJobs::cancel);
    connect(&jobs, &CameraJobs::changed, this, &JobBar::update);
    update();
}

void JobBar::update()
{
    m_title->setText(m_jobs.title());
    m_progress->setAccessibleName(m_jobs.title());
    m_progress->setMaximum(int(m_jobs.total())); // 0 shows that the end is unknown.
    m_progress->setValue(int(m_jobs.done()));
    setVisible(m_jobs.isBusy());
}
