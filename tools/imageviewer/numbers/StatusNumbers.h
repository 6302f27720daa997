#pragma once

#include "tools/imageviewer/numbers/StreamMonitor.h"

#include <QWidget>

class QLabel;

/// The numbers of the stream in one line for a status bar. Losses have the colour of a warning, and their
/// tool tip says what to do.
class StatusNumbers : public QWidget
{
    Q_OBJECT

public:
    explicit StatusNumbers(StreamMonitor &monitor, QWidget *parent = nullptr);

    /// Shows the figures; the widget does this by itself.
    void showFigures(const StreamFigures &figures, const LossAdvice &advice);

signals:
    /// A person has clicked the numbers, to see all of them.
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void update();

    StreamMonitor &m_monitor;
    QLabel *m_rate;
    QLabel *m_buffers;
    QLabel *m_losses;
};
