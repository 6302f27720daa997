#include "tools/imageviewer/numbers/DetailsPage.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

DetailsPage::DetailsPage(StreamMonitor &monitor, QWidget *parent)
    : QWidget(parent),
      m_monitor(monitor),
      m_table(new QTableWidget(this)),
      m_graph(new RateGraph(this)),
      m_adviceBox(new QWidget(this)),
      m_adviceText(new QLabel(m_adviceBox)),
      m_command(new QLabel(m_adviceBox)),
      m_copyCommand(new QPushButton(m_adviceBox))
{ }

void DetailsPage::copyAsText() { }
void DetailsPage::showNumbers() { }
void DetailsPage::showAdvice() { }
void DetailsPage::copyCommand() { }
