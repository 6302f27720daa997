#pragma once

#include "tools/imageviewer/numbers/StreamMonitor.h"

#include <QWidget>

class QLabel;

/// The numbers of the stream in one line for a status bar: rate, buffers, and losses in the colour of a
/// warning.
class StatusNumbers : public QWidget
{
    Q_OBJECT

public:
    explicit StatusNumbers(StreamMonitor &monitor, QWidget *parent = nullptr);

private:
    void showNumbers();

    StreamMonitor &m_monitor;
    QLabel *m_rate;
    QLabel *m_buffers;
    QLabel *m_losses;
};
