#include "tools/camerasetup/compare/CopyActions.h"

#include "tools/camerasetup/compare/SettingTexts.h"
#include "tools/kit/widgets/Messages.h"
#include "tools/kit/widgets/NoteListDialog.h"

#include <QAction>
#include <QMenu>

namespace {

using Rows = std::vector<const DifferenceRow *>;

std::vector<FeatureSetting> settingsOf(const Rows &rows)
{
    std::vector<FeatureSetting> settings;
    for (const DifferenceRow *const row : rows)
        settings.push_back({row->feature.selectors, row->feature.name, row->feature.left, 0});
    return settings;
}

/// Returns what has failed, and why.
QVector<NoteListDialog::Row> failuresOf(const LoadReport &report)
{
    QVector<NoteListDialog::Row> rows;
    for (const FeatureChange &change : report.changes) {
        if (change.outcome == FeatureOutcome::Failed || change.outcome == FeatureOutcome::Overruled)
            rows.append({SettingTexts::rawTitle(change.setting.name, change.setting.selectors),
                QString::fromStdString(change.reason)});
    }
    for (const FeatureNote &note : report.notes)
        rows.append({QString::fromStdString(note.name), QString::fromStdString(note.text)});
    return rows;
}

} // namespace

CopyActions::CopyActions(CompareSession &session, const DifferenceView &view, QWidget *window)
    : QObject(window),
      selected(new QAction(tr("&Selected differences"), this)),
      checked(new QAction(tr("&Checked differences"), this)),
      all(new QAction(tr("&All differences"), this)),
      m_session(session),
      m_view(view),
      m_window(window)
{
    connect(selected, &QAction::triggered, this, [this] { ask(m_view.selectedRows()); });
    connect(checked, &QAction::triggered, this, [this] { ask(m_view.model().checkedRows()); });
    connect(all, &QAction::triggered, this, [this] { ask(m_view.model().differentRows()); });
    connect(&session, &CompareSession::copied, this, &CopyActions::takeResult);
}

void CopyActions::addToMenu(QMenu *menu)
{
    menu->setToolTipsVisible(true);
    menu->addActions({selected, checked, all});
}

void CopyActions::update()
{
    const QString reason = readOnlyReason();
    const bool isPossible = !m_session.isBusy() && reason.isEmpty();
    const std::pair<QAction *, bool> actions[] = {{selected, !m_view.selectedRows().empty()},
        {checked, !m_view.model().checkedRows().empty()}, {all, !m_view.model().differentRows().empty()}};
    for (const auto &[action, hasRows] : actions) {
        action->setEnabled(isPossible && hasRows);
        action->setToolTip(reason);
    }
}

QString CopyActions::readOnlyReason() const
{
    return m_session.source(CompareSession::Right).readOnlyReason();
}

void CopyActions::ask(const Rows &rows)
{
    const std::vector<FeatureSetting> settings = settingsOf(rows);
    const QString question = m_session.source(CompareSession::Right).writeQuestion(int(settings.size()));
    if (question.isEmpty()) {
        m_session.copy(settings);
        return;
    }
    askToOverwrite(m_window, tr("Copy differences"), question, tr("&Write"), this,
        [this, settings] { m_session.copy(settings); });
}

void CopyActions::takeResult(const SourceWriting &writing)
{
    if (!writing.problem.isEmpty()) {
        const QString text
            = writing.report.isApplied ? tr("The copy failed partway: %1") : tr("Nothing was copied: %1");
        emit finished(text.arg(writing.problem), QStringLiteral("error"));
        return;
    }
    const LoadReport &report = writing.report;
    const QVector<NoteListDialog::Row> failures = failuresOf(report);
    const int copied = int(report.count(FeatureOutcome::Changed) + report.count(FeatureOutcome::Unchanged));
    QString text = tr("%n setting(s) were copied.", nullptr, copied);
    if (report.isCancelled)
        text += QLatin1Char(' ') + tr("The copy was cancelled.");
    if (!failures.isEmpty())
        text += QLatin1Char(' ') + tr("%n problem(s) were reported.", nullptr, failures.size());
    emit finished(
        text, failures.isEmpty() && !report.isCancelled ? QStringLiteral("good") : QStringLiteral("warning"));
    if (failures.isEmpty())
        return;
    auto *const dialog = new NoteListDialog(
        tr("Copy differences"), tr("What could not be copied or put back:"), failures, m_window);
    dialog->open();
}
