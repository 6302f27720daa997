#include "tools/imageviewer/numbers/StatusNumbers.h"

#include "tools/kit/widgets/Role.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

StatusNumbers::StatusNumbers(StreamMonitor &monitor, QWidget *parent)
    : QWidget(parent),
      m_monitor(monitor),
      m_rate(new QLabel(this)),
      m_buffers(new QLabel(this)),
      m_losses(new QLabel(this))
{
    m_losses->setObjectName(QStringLiteral("losses"));
    m_rate->setToolTip(tr("Images per second and image data per second that arrive from the camera."));
    m_buffers->setToolTip(tr(
        "Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images "
        "are lost."));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2 * fontMetrics().averageCharWidth());
    for (QLabel *const label : {m_losses, m_rate, m_buffers}) {
        label->setTextFormat(Qt::PlainText);
        layout->addWidget(label);
    }
    connect(&m_monitor, &StreamMonitor::updated, this, &StatusNumbers::update);
    update();
}

void StatusNumbers::update()
{
    showFigures(m_monitor.figures(), m_monitor.advice());
}

void StatusNumbers::showFigures(const StreamFigures &figures, const LossAdvice &advice)
{
    const StreamNumbers numbers(figures, locale());
    m_rate->setText(numbers.rateText());
    m_buffers->setText(tr("Buffers: %1").arg(numbers.bufferText()));
    m_buffers->setVisible(figures.buffers > 0);
    const QString losses = numbers.lossText();
    m_losses->setText(losses.isEmpty() ? tr("No losses") : losses);
    m_losses->setToolTip(
        advice.text.isEmpty() ? tr("What was lost since the camera was opened.") : advice.text);
    changeRole(m_losses, losses.isEmpty() ? "secondary" : "warning");
}

void StatusNumbers::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit clicked();
}
