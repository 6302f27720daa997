#pragma once

#include "tools/imageviewer/numbers/RateGraph.h"
#include "tools/imageviewer/numbers/StreamMonitor.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;

/// All numbers of the stream: a table, the last minute as a graph, and advice when images are lost.
class DetailsPage : public QWidget
{
    Q_OBJECT

public:
    explicit DetailsPage(StreamMonitor &monitor, QWidget *parent = nullptr);

public slots:
    void copyAsText();

private:
    void showNumbers();
    void showAdvice();
    void copyCommand();

    StreamMonitor &m_monitor;
    QTableWidget *m_table;
    RateGraph *m_graph;
    QWidget *m_adviceBox;
    QLabel *m_adviceText;
    QLabel *m_command;
    QPushButton *m_copyCommand;
};
