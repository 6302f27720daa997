#pragma once

#include "tools/camerasetup/compare/CompareSession.h"
#include "tools/camerasetup/compare/DifferenceView.h"

#include <QObject>

class QAction;
class QMenu;

/// Copies selected, checked or all differences from the left side to the right one. Asks before something is
/// overwritten, and shows what has failed and why.
class CopyActions : public QObject
{
    Q_OBJECT

public:
    /// @param window Parent of the dialogs.
    CopyActions(CompareSession &session, const DifferenceView &view, QWidget *window);

    void addToMenu(QMenu *menu);

    QAction *const selected;
    QAction *const checked;
    QAction *const all;

    /// Returns why nothing can be copied to the right side; empty if it is possible.
    QString readOnlyReason() const;

    void update(); ///< Enables the actions that are possible now.

signals:
    /// What has become of the copy, as a sentence. The role is that of the style sheet: "good" or "warning".
    void finished(const QString &text, const QString &role);

private:
    void ask(const std::vector<const DifferenceRow *> &rows);
    void copy(const std::vector<FeatureSetting> &settings);
    void takeResult(const SourceWriting &writing);

    CompareSession &m_session;
    const DifferenceView &m_view;
    QWidget *const m_window;
};
