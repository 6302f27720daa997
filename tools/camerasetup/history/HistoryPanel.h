#pragma once

#include <QWidget>

class ChangeHistory;

/// The history as a table: time, feature, old value, new value. Buttons for undo, redo and the export as a
/// script for cvxctl; rows can be copied.
class HistoryPanel : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryPanel(ChangeHistory &history, QWidget *parent = nullptr);

signals:
    void featureRequested(const QString &name);
};
