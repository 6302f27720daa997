#include "tools/kit/assistant/MeasureBar.h"

#include "tools/kit/assistant/MeasureJob.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

constexpr int progressWidth = 220;

} // namespace

MeasureBar::MeasureBar(MeasureJob &job, QWidget *parent)
    : QWidget(parent), m_job(job), m_title(new QLabel(this)), m_progress(new QProgressBar(this))
{
    m_progress->setTextVisible(false);
    m_progress->setFixedWidth(progressWidth);
    auto *const cancel = new QPushButton(tr("Cancel"), this);
    cancel->setShortcut(Qt::Key_Escape);
    cancel->setToolTip(tr("End the measurement. The settings of the camera are put back. (Esc)"));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 2, 0, 2);
    layout->addWidget(m_title);
    layout->addWidget(m_progress);
    layout->addWidget(cancel);
    connect(cancel, &QPushButton::clicked, &job, &MeasureJob::cancel);
    connect(&job, &MeasureJob::changed, this, &MeasureBar::update);
    update();
}

void MeasureBar::update()
{
    m_title->setText(m_job.title());
    m_progress->setAccessibleName(m_job.title());
    m_progress->setMaximum(int(m_job.total())); // 0 shows that the end is unknown.
    m_progress->setValue(int(m_job.done()));
    setVisible(m_job.isRunning());
}
