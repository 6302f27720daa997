#pragma once

#include "tools/imageviewer/numbers/RateGraph.h"
#include "tools/imageviewer/numbers/StreamMonitor.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTableWidget;

/// All numbers of the stream: a table, the last minute as a graph, and advice when images are lost.
class DetailsPage : public QWidget
{
    Q_OBJECT

public:
    explicit DetailsPage(StreamMonitor &monitor, QWidget *parent = nullptr);

    /// Shows the figures; the page does this by itself as long as it is visible.
    void showFigures(const StreamFigures &figures, const RateHistory &history, const LossAdvice &advice);

public slots:
    void copyAsText();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void update();
    void showRows(const QVector<NumberRow> &rows);
    void copyCommand();
    QWidget *createAdvice();

    StreamMonitor &m_monitor;
    QTableWidget *m_table;
    RateGraph *m_graph;
    QLabel *m_adviceText = nullptr;
    QWidget *m_commandBox = nullptr;
    QLineEdit *m_command = nullptr;
    QWidget *m_advice; // Contains the three above, so it is created last.
    StreamFigures m_figures;
};
