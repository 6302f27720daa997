#pragma once

#include "tools/camerasetup/compare/SideChoice.h"
#include "tools/camerasetup/values/SettingsSnapshot.h"

#include <QFrame>
#include <QVector>

class QComboBox;
class QLabel;
class QPushButton;

/// Lets a person choose one side of a comparison, and shows when it was read and what could not be read.
class SideBox : public QFrame
{
    Q_OBJECT

public:
    struct Entry
    {
        QString title;
        SideChoice choice;
    };

    /// @param label For example "Left".
    SideBox(const QString &label, QWidget *parent = nullptr);

    /// Shows what can be chosen, and which of it is chosen. An entry for choosing a file follows.
    void setEntries(const QVector<Entry> &entries, const SideChoice &current);

    void setContent(const SettingsSnapshot &snapshot); ///< Shows the time and the notes.
    void setProblem(const QString &problem); ///< The side could not be read, or not yet.

signals:
    void chosen(const SideChoice &choice);
    void fileRequested();

private:
    void choose(int index);
    void showNotes();

    const QString m_label;
    QComboBox *m_choice;
    QLabel *m_detail;
    QPushButton *m_notesButton;
    SideChoice m_current;
    SettingsSnapshot m_shown; // Only its title and its notes.
};
