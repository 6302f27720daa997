#include "tools/imageviewer/numbers/StatusNumbers.h"

#include <QLabel>

StatusNumbers::StatusNumbers(StreamMonitor &monitor, QWidget *parent)
    : QWidget(parent),
      m_monitor(monitor),
      m_rate(new QLabel(this)),
      m_buffers(new QLabel(this)),
      m_losses(new QLabel(this))
{ }

void StatusNumbers::showNumbers() { }
