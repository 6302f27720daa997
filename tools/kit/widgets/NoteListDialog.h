#pragma once

#include <QDialog>
#include <QVector>

class QTreeWidget;

/// Lists what could not be done with some features, and why.
class NoteListDialog : public QDialog
{
    Q_OBJECT

public:
    struct Row
    {
        QString feature;
        QString text; ///< A sentence.
    };

    /// @param sentence Says what the list contains.
    NoteListDialog(
        const QString &title, const QString &sentence, const QVector<Row> &rows, QWidget *parent = nullptr);

private:
    void copyRows();

    QTreeWidget *m_list;
};
