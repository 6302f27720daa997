#include "tools/camerasetup/settings/LoadDialog.h"

#include "tools/camerasetup/settings/LoadText.h"
#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/Messages.h"
#include "tools/kit/widgets/Role.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <QVBoxLayout>

using State = SettingsLoad::State;

LoadDialog::LoadDialog(
    const QString &title, const FeatureFile &file, CameraJobs &jobs, ChangeHistory &history, QWidget *parent)
    : QDialog(parent),
      m_jobs(jobs),
      m_load(title, file, jobs, history),
      m_summary(createMessage(this)),
      m_progress(new QProgressBar(this)),
      m_onlyChanges(new QCheckBox(tr("Show only what &changes"), this)),
      m_table(new QTreeView(this)),
      m_current(createMessage(this)),
      m_modes(new QWidget(this)),
      m_whatFits(new QRadioButton(tr("Load what &fits. If you cancel, what was loaded stays."), m_modes)),
      m_allOrNothing(new QRadioButton(
          tr("&All or nothing. If a setting fails or you cancel, everything is put back."), m_modes)),
      m_loadButton(new QPushButton(tr("&Load"), this)),
      m_undo(new QPushButton(tr("&Undo the load"), this)),
      m_copy(new QPushButton(tr("Co&py report"), this)),
      m_close(new QPushButton(this))
{
    setObjectName(QStringLiteral("loadDialog"));
    setWindowTitle(tr("Load %1").arg(title));
    setWindowModality(Qt::WindowModal);
    resize(1040, 580);
    m_summary->setObjectName(QStringLiteral("summary"));
    m_progress->setObjectName(QStringLiteral("progress"));
    m_onlyChanges->setObjectName(QStringLiteral("onlyChanges"));
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_progress);
    layout->addWidget(m_onlyChanges, 0, Qt::AlignLeft);
    layout->addWidget(createTable(), 1);
    layout->addWidget(m_current);
    layout->addWidget(createModes());
    layout->addWidget(createButtons());
    connect(m_onlyChanges, &QCheckBox::toggled, &m_model, &LoadTable::setOnlyChanges);
    connect(&m_load, &SettingsLoad::changed, this, &LoadDialog::showLoad);
    connect(&jobs, &CameraJobs::changed, this, &LoadDialog::showProgress);
    m_table->setFocus();
    showLoad();
}

QWidget *LoadDialog::createTable()
{
    m_table->setObjectName(QStringLiteral("table"));
    m_table->setAccessibleName(tr("Settings"));
    m_table->setModel(&m_model);
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAlternatingRowColors(true);
    m_table->setAllColumnsShowFocus(true);
    constexpr int widths[] = {52, 250, 105, 105, 105};
    for (int column = 0; column < LoadTable::OutcomeColumn; ++column)
        m_table->setColumnWidth(column, widths[column]);
    m_current->setObjectName(QStringLiteral("current"));
    connect(
        m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, &LoadDialog::showCurrentRow);
    connect(&m_model, &LoadTable::modelReset, this, &LoadDialog::showCurrentRow);
    return m_table;
}

QWidget *LoadDialog::createModes()
{
    m_whatFits->setObjectName(QStringLiteral("whatFits"));
    m_allOrNothing->setObjectName(QStringLiteral("allOrNothing"));
    m_allOrNothing->setToolTip(
        tr("Nothing is written at all if a line of the file cannot be read, or if a setting cannot fit the "
           "camera."));
    m_whatFits->setChecked(true);
    auto *const layout = new QVBoxLayout(m_modes);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_whatFits);
    layout->addWidget(m_allOrNothing);
    return m_modes;
}

QWidget *LoadDialog::createButtons()
{
    m_loadButton->setObjectName(QStringLiteral("load"));
    m_undo->setObjectName(QStringLiteral("undo"));
    m_undo->setToolTip(tr("Puts back all settings from before the load."));
    m_copy->setObjectName(QStringLiteral("copy"));
    m_close->setObjectName(QStringLiteral("close"));
    auto *const buttons = new QWidget(this);
    auto *const layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_copy);
    layout->addStretch();
    for (QPushButton *const button : {m_undo, m_loadButton, m_close}) {
        button->setAutoDefault(false);
        layout->addWidget(button);
    }
    m_copy->setAutoDefault(false);
    connect(m_copy, &QPushButton::clicked, this, &LoadDialog::copyReport);
    connect(m_loadButton, &QPushButton::clicked, this, &LoadDialog::startLoad);
    connect(m_undo, &QPushButton::clicked, &m_load, &SettingsLoad::undo);
    connect(m_close, &QPushButton::clicked, this, &LoadDialog::reject);
    return buttons;
}

void LoadDialog::startLoad()
{
    m_load.load(
        m_allOrNothing->isChecked() ? SettingsLoad::Mode::AllOrNothing : SettingsLoad::Mode::WhatFits);
}

void LoadDialog::reject()
{
    const State state = m_load.state();
    m_load.cancel();
    if (state == State::Failed && m_load.canUndo())
        askToClose();
    else if (state != State::Loading && state != State::Undoing)
        QDialog::reject();
}

/// The history does not know what a load has changed before it failed.
void LoadDialog::askToClose()
{
    askToOverwrite(this, windowTitle(),
        tr("The load was not undone. Without this dialog, it cannot be undone any more."),
        tr("Close &anyway"), this, [this] { QDialog::reject(); });
}

QString LoadDialog::report() const
{
    return m_load.title() + QLatin1Char('\n') + summaryText(m_load) + QStringLiteral("\n\n") + m_model.text();
}

void LoadDialog::copyReport()
{
    QGuiApplication::clipboard()->setText(report());
}

void LoadDialog::showLoad()
{
    const State state = m_load.state();
    const LoadReport &report = m_load.report();
    const bool hasFailed = !report.notes.empty() || report.count(FeatureOutcome::Failed) > 0
        || !m_load.file().problems.empty();
    const char *const role = state == State::Failed ? "error"
        : m_load.isWorking()                        ? "secondary"
        : hasFailed && state != State::Undone       ? "warning"
                                                    : "heading";
    showMessage(m_summary, summaryText(m_load), role);
    if (!m_load.isWorking())
        m_model.show(m_load);
    if (state == State::Planned)
        m_onlyChanges->setChecked(report.count(FeatureOutcome::Changed) > 0);
    const bool hasLines = !m_load.file().problems.empty()
        || (!report.changes.empty() && report.changes.front().setting.line > 0);
    m_table->setColumnHidden(LoadTable::LineColumn, !hasLines);
    m_table->setColumnHidden(LoadTable::NowColumn, !report.isApplied || report.isRestored);
    showProgress();
    showButtons();
}

/// Part of the work reports no numbers; the bar only moves then.
void LoadDialog::showProgress()
{
    m_progress->setVisible(m_load.isWorking());
    m_progress->setRange(0, m_jobs.done() > 0 ? int(m_jobs.total()) : 0);
    m_progress->setValue(int(m_jobs.done()));
}

void LoadDialog::showButtons()
{
    const State state = m_load.state();
    const LoadReport &report = m_load.report();
    const bool hasWork = report.count(FeatureOutcome::Changed) + report.count(FeatureOutcome::Failed) > 0;
    const bool isBefore = state == State::Planning || state == State::Planned;
    m_modes->setVisible(isBefore);
    m_loadButton->setVisible(isBefore);
    m_loadButton->setEnabled(state == State::Planned && hasWork);
    m_loadButton->setDefault(isBefore);
    m_undo->setVisible(!isBefore);
    m_undo->setEnabled(m_load.canUndo());
    m_copy->setEnabled(!m_load.isWorking());
    m_close->setText(isBefore || state == State::Loading ? tr("Cancel") : tr("Close"));
    m_close->setEnabled(state != State::Undoing);
}

/// The reason may be too long for the table.
void LoadDialog::showCurrentRow()
{
    const QModelIndex current = m_table->currentIndex();
    const QModelIndex outcome = current.sibling(current.row(), LoadTable::OutcomeColumn);
    showMessage(m_current, outcome.isValid() ? outcome.data().toString() : QString(), "secondary");
}
