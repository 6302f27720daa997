#include "tools/imageviewer/numbers/RateGraph.h"

#include <QPainter>

RateGraph::RateGraph(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Images per second and losses of the last minute"));
}

void RateGraph::setHistory(const RateHistory &history)
{
    m_history = history;
    update();
}

QSize RateGraph::sizeHint() const
{
    return {320, 140};
}

void RateGraph::paintEvent(QPaintEvent * /*event*/) { }
