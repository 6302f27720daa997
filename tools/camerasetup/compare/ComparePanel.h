#pragma once

#include "tools/camerasetup/compare/CompareSession.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <array>
#include <functional>

class CameraFinder;
class CopyActions;
class DifferenceView;
class ExportActions;
class FeatureClient;
class QLabel;
class QMessageBox;
class QProgressBar;
class QPushButton;
class QToolButton;
class SideBox;
class ToolSettings;

/// Compares any two of: this camera now, this camera at opening, another camera, a file, a user set. Shows
/// the differences by category; equal settings and those that belong to one camera or one moment can be shown
/// too. One, some or all differences can be copied from left to right: to this camera, to another camera, to
/// a file or to a user set. The differences can be saved as text or HTML. A file that is dropped becomes the
/// left side, or the right one if it is dropped there.
class ComparePanel : public QWidget
{
    Q_OBJECT

public:
    /// What the panel works with; everything outlives it.
    struct Parts
    {
        FeatureClient &client;
        CameraFinder &finder;
        CameraJobs &jobs;
        ChangeHistory &history;
        OpeningSnapshot &opening;
        ToolSettings &settings; ///< Remembers the directory of the files.
    };

    explicit ComparePanel(const Parts &parts, QWidget *parent = nullptr);
    ~ComparePanel() override;

    CompareSession &session() { return m_session; }

public slots:
    /// Compares the opening (left) with now (right).
    void compareWithOpening();

    /// Compares a file (left) with this camera now (right).
    void compareWithFile(const QString &file);

    /// Compares a user set (left) with this camera now (right).
    void compareWithUserSet(const QString &userSet);

signals:
    void featureRequested(const QString &name);

protected:
    void showEvent(QShowEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *createSides();
    QWidget *createButtons();
    void connectParts();
    void chooseFile(CompareSession::Side side);
    void takeFile(CompareSession::Side side, const QString &path);
    void chooseSide(CompareSession::Side side, const SideChoice &choice);
    void choose(const SideChoice &left, const SideChoice &right);
    void refresh();
    void askAndRun(const QString &question, const std::function<void()> &action);
    void readNewSides();
    void followUserSets(const QString &feature);
    void showSession();
    void showSide(CompareSession::Side side);
    void showComparison();
    void showProgress();
    void report(const QString &text, const QString &role);

    const Parts m_parts;
    CompareSession m_session;
    std::array<SideBox *, 2> m_boxes{};
    QToolButton *m_swap = nullptr;
    DifferenceView *m_view = nullptr;
    CopyActions *m_copy = nullptr;
    ExportActions *m_export = nullptr;
    QPushButton *m_copyButton = nullptr;
    QPushButton *m_refresh = nullptr;
    QPushButton *m_cancel = nullptr;
    QProgressBar *m_progress = nullptr;
    QLabel *m_message = nullptr;
    QPointer<QMessageBox> m_question;
};
