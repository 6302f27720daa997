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

/// What was found: threshold, list, what is shown on the picture, and the counts, which have a place of their
/// own.
class ResultBox : public QWidget
{
    Q_OBJECT

public:
    explicit ResultBox(QWidget *parent = nullptr);

    /// The counts. The caller adds them to a layout.
    QWidget *counts() { return m_countBox; }

    void show(const DefectResult &result);
    void clear(); ///< Also hides the box.

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
    void createCounts();
    void selectRow(int row);

    QWidget *m_countBox;
    BigNumber *m_total;
    ThresholdControl *m_threshold;
    QVector<QLabel *> m_counts; // Kinds, then clusters, columns and lines.
    QCheckBox *m_marks;
    QCheckBox *m_repaired;
    QLabel *m_problem;
    DefectList *m_list;
    QTableView *m_table;
};
