#include "tools/camerasetup/values/ChangeHistory.h"

ChangeHistory::ChangeHistory(FeatureClient &client, CameraJobs &jobs, const PresentSelectors &selectors,
    OpeningSnapshot &opening, QObject *parent)
    : QObject(parent), m_client(client), m_jobs(jobs), m_selectors(selectors), m_opening(opening)
{ }

void ChangeHistory::addLoad(const QString &, const LoadReport &) { }
void ChangeHistory::addEdits(const QString &, const std::vector<FeatureEdit> &) { }
bool ChangeHistory::canUndo() const
{
    return false;
}
bool ChangeHistory::canRedo() const
{
    return false;
}
QString ChangeHistory::undoTitle() const
{
    return {};
}
QString ChangeHistory::redoTitle() const
{
    return {};
}
QString ChangeHistory::script() const
{
    return {};
}
void ChangeHistory::undo() { }
void ChangeHistory::redo() { }
