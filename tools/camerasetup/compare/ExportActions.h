#pragma once

#include "tools/camerasetup/compare/CompareSession.h"
#include "tools/camerasetup/compare/ComparisonExport.h"
#include "tools/camerasetup/compare/DifferenceView.h"

#include <QObject>

class QAction;
class ToolSettings;

/// Saves what a comparison shows as text or as a page, or puts the text on the clipboard.
class ExportActions : public QObject
{
    Q_OBJECT

public:
    /// @param window Parent of the dialogs.
    ExportActions(
        const CompareSession &session, const DifferenceView &view, ToolSettings &settings, QWidget *window);

    QAction *const save;
    QAction *const copy;

    void update(); ///< Enables the actions if there is a comparison.

    /// Writes a page if the name of the file ends in ".html" or ".htm"; else text. Reports the result.
    void saveTo(const QString &path);

signals:
    void finished(const QString &text, const QString &role);

private:
    ComparisonReport report() const;
    void chooseFile();
    void copyText();

    const CompareSession &m_session;
    const DifferenceView &m_view;
    ToolSettings &m_settings;
    QWidget *const m_window;
};
