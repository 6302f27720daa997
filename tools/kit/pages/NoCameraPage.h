#pragma once

#include "sdk/doctor/Finding.h"

#include <QFutureWatcher>
#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

/// Says that there is no camera, and checks in the background what keeps cameras from working.
class NoCameraPage : public QWidget
{
    Q_OBJECT

public:
    using Check = std::function<Findings()>;

    /// Checks with runDoctor().
    explicit NoCameraPage(QWidget *parent = nullptr);

    /// @param check Called on a worker thread. The program does not end before it has returned.
    explicit NoCameraPage(Check check, QWidget *parent = nullptr);

    /// Replaces the text below the title, for example by the reason why the camera system does not start.
    /// An empty text restores the usual one.
    void setProblem(const QString &problem);

    bool isChecking() const { return m_watcher.isRunning(); }

public slots:
    /// Starts the checks, unless they are running. The first showing of the page starts them, too.
    void check();

signals:
    void checked(); ///< The findings are visible.

protected:
    void showEvent(QShowEvent *event) override;

private:
    void createWidgets();
    QWidget *createTop();
    void showFindings(Findings findings);
    void removeFindings();
    void showSummary(const Findings &findings);
    void showFine(bool isVisible);

    const Check m_check;
    QFutureWatcher<Findings> m_watcher;
    bool m_hasFindings = false;
    QLabel *m_text;
    QLabel *m_summary;
    QProgressBar *m_progress;
    QPushButton *m_again;
    QCheckBox *m_showFine;
    QVBoxLayout *m_cards;
};
