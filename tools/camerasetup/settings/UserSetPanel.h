#pragma once

#include "tools/camerasetup/settings/UserSetControl.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QTreeWidget;

/// The settings that the camera keeps in itself: a list of the user sets (UserSetSelector) with buttons to
/// load and save one, and to make one the default at power-on (UserSetDefault, or UserSetDefaultSelector of
/// older cameras). Asks before anything is overwritten. Loading is recorded in the history with every feature
/// that it has changed, so it can be undone.
class UserSetPanel : public QWidget
{
    Q_OBJECT

public:
    using Parts = UserSetControl::Parts;

    explicit UserSetPanel(const Parts &parts, QWidget *parent = nullptr);

signals:
    /// A person wants to compare the camera with this set.
    void compareRequested(const QString &userSet);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void createList();
    QWidget *createButtons();
    void readWhenVisible();
    void showSets();
    void showButtons();
    const UserSet *current() const;
    void askToLoad();
    void askToSave();
    void makeDefault();
    void requestComparison();
    void showSuccess(const QString &text);
    void showError(const QString &text);

    UserSetControl m_control;
    QLabel *m_text; // Why there is no list.
    QWidget *m_content;
    QTreeWidget *m_list;
    QPushButton *m_load;
    QPushButton *m_save;
    QPushButton *m_default;
    QPushButton *m_compare;
    QLabel *m_reason; // Why buttons are disabled.
    QLabel *m_message; // What the last button has done.
};
