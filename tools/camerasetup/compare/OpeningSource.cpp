#include "tools/camerasetup/compare/OpeningSource.h"

#include "tools/camerasetup/values/OpeningSnapshot.h"

QString OpeningSource::title() const
{
    return tr("This camera at opening");
}

void OpeningSource::read(const std::vector<FeatureSetting> &, const ReadDone &done)
{
    SourceReading reading;
    if (m_opening.state() == OpeningSnapshot::State::None)
        reading.problem = tr("No camera is open.");
    else if (m_opening.state() == OpeningSnapshot::State::Reading)
        reading.problem = tr("The settings at opening are still being read.");
    else
        reading.snapshot = m_opening.snapshot();
    reading.snapshot.title = title();
    done(reading);
}

QString OpeningSource::readOnlyReason() const
{
    return tr("The settings at opening cannot be changed. Choose another right side.");
}

void OpeningSource::write(const std::vector<FeatureSetting> &, const WriteDone &done)
{
    SourceWriting writing;
    writing.problem = readOnlyReason();
    done(writing);
}
