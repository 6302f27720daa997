#pragma once

#include "tools/pixelrepair/DefectResult.h"

#include <QPoint>
#include <QVector>
#include <QWidget>

class BigNumber;
class DefectList;
class QCheckBox;
class QLabel;
class QTableView;
class ThresholdControl;

/// What was found: counts, threshold, list, and what is shown on the picture.
class ResultBox : public QWidget
{
    Q_OBJECT

public:
    explicit ResultBox(QWidget *parent = nullptr);

    void show(const DefectResult &result);
    void clear();

    bool hasMarks() const;
    bool isRepaired() const;

    /// Says why the live picture cannot be repaired; empty if it can.
    void setRepairProblem(const QString &text);

signals:
    void thresholdChanged(double threshold);
    void marksToggled(bool isVisible);
    void repairToggled(bool isRepaired);
    void selected(const QPoint &sensorPixel);

private:
    QWidget *createCounts();
    void selectRow(int row);

    BigNumber *m_total;
    ThresholdControl *m_threshold;
    QVector<QLabel *> m_counts; // Kinds, then clusters, columns and lines.
    QCheckBox *m_marks;
    QCheckBox *m_repaired;
    QLabel *m_problem;
    DefectList *m_list;
    QTableView *m_table;
};
