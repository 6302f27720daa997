#pragma once

#include <QWidget>

class ChangeHistory;
class HistoryModel;
class QAction;
class QLabel;
class QModelIndex;
class QPushButton;
class QTableView;

/// The history as a table: time, feature, old value, new value. Buttons for undo, redo and the export as a
/// script for cvxctl; rows can be copied.
class HistoryPanel : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryPanel(ChangeHistory &history, QWidget *parent = nullptr);

    /// For the menus and the shortcuts of the window. Enabled while there is something to undo or redo; the
    /// texts name it.
    QAction *undoAction() const { return m_undo; }
    QAction *redoAction() const { return m_redo; }

    /// Writes the script under a temporary name and then renames it, so that an existing file is replaced as
    /// a whole or not at all. Everybody who may read the file may execute it. Returns a sentence for people,
    /// or an empty text on success.
    QString writeScript(const QString &path) const;

signals:
    void featureRequested(const QString &name);

private:
    void follow();
    void exportScript();
    void copyRows();
    void requestFeature(const QModelIndex &index);
    void showNewRows();

    ChangeHistory &m_history;
    HistoryModel *m_model;
    QTableView *m_table;
    QAction *m_undo;
    QAction *m_redo;
    QPushButton *m_export;
    QLabel *m_problem;
};
