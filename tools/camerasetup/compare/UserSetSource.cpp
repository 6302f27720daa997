#include "tools/camerasetup/compare/UserSetSource.h"

#include "tools/camerasetup/values/ChangeHistory.h"

using namespace CvxCPP;

QString UserSetSource::title() const
{
    return tr("User set %1").arg(m_userSet);
}

QString UserSetSource::readQuestion() const
{
    if (!readOnlyReason().isEmpty())
        return {};
    return tr("The camera has to load the user set %1 to show it. The stream is stopped for this, and your "
              "present settings are put back afterwards.")
        .arg(m_userSet);
}

SettingsSnapshot UserSetSource::takeSnapshot(const UserSetVisit &visit) const
{
    SettingsSnapshot snapshot = visit.content;
    snapshot.title = title();
    snapshot.notes.insert(snapshot.notes.begin(), visit.notes.begin(), visit.notes.end());
    return snapshot;
}

void UserSetSource::noteRemaining(const UserSetVisit &visit)
{
    if (!visit.remaining.empty())
        m_history.addEdits(tr("Not put back after the user set %1").arg(m_userSet), visit.remaining);
}

/// Returns the problem with what has happened to the camera's own settings, if those were not put back.
QString UserSetSource::completeProblem(const QString &problem, const UserSetVisit &visit) const
{
    constexpr std::size_t maxNotes = 5; // The others are in the history.
    QStringList sentences{problem};
    for (std::size_t index = 0; index < visit.notes.size() && index < maxNotes; ++index)
        sentences.append(QString::fromStdString(visit.notes[index].text));
    if (visit.notes.size() > maxNotes)
        sentences.append(tr("%n more setting(s) were not put back; the history lists them.", nullptr,
            int(visit.notes.size() - maxNotes)));
    if (visit.isStillLoaded)
        sentences.append(
            tr("The camera may still have the settings of the user set. Restore those from the opening."));
    return sentences.join(QLatin1Char(' '));
}

void UserSetSource::read(const std::vector<FeatureSetting> &others, const ReadDone &done)
{
    if (const QString reason = readOnlyReason(); !reason.isEmpty()) {
        done({{}, reason});
        return;
    }
    const auto visit = std::make_shared<UserSetVisit>();
    const auto work
        = [visit, others, name = m_userSet.toStdString()](Device &device, const FeatureProgress &progress) {
              return readUserSet(device, name, others, *visit, progress);
          };
    m_job.start(tr("Reading the user set %1").arg(m_userSet), CameraJobs::StreamUse::Pause, work,
        [this, visit, done](const CvxResult &result) {
            noteRemaining(*visit);
            const QString problem = readProblem(result, visit->content.isCancelled);
            done({takeSnapshot(*visit), problem.isEmpty() ? problem : completeProblem(problem, *visit)});
        });
}

QString UserSetSource::readOnlyReason() const
{
    return m_connection.isControlled() ? QString() : tr("This camera is not open for control.");
}

QString UserSetSource::writeQuestion(int count) const
{
    return tr("Write %n setting(s) into the user set %1? The camera loads the set, changes it and saves it, "
              "and then your present settings are put back. The stream is stopped for this.",
        nullptr, count)
        .arg(m_userSet);
}

void UserSetSource::write(const std::vector<FeatureSetting> &settings, const WriteDone &done)
{
    const auto visit = std::make_shared<UserSetVisit>();
    const auto work
        = [visit, settings, name = m_userSet.toStdString()](Device &device, const FeatureProgress &progress) {
              return writeUserSet(device, name, settings, *visit, progress);
          };
    m_job.start(tr("Copying to the user set %1").arg(m_userSet), CameraJobs::StreamUse::Pause, work,
        [this, visit, done](const CvxResult &result) {
            noteRemaining(*visit);
            done(takeWriting(*visit, result));
        });
}

SourceWriting UserSetSource::takeWriting(const UserSetVisit &visit, const CvxResult &result) const
{
    SourceWriting writing;
    writing.report.isApplied = visit.isSaved;
    const bool isCancelled = visit.content.isCancelled || visit.report.isCancelled;
    if (!result || isCancelled) {
        const QString problem = result ? tr("The copy was cancelled, so the user set was not changed.")
                                       : QString::fromStdString(result.text);
        writing.problem = completeProblem(problem, visit);
        return writing;
    }
    writing.report = visit.report;
    writing.report.notes.insert(writing.report.notes.end(), visit.notes.begin(), visit.notes.end());
    writing.after = takeSnapshot(visit);
    return writing;
}
