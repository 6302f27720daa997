#include "tools/camerasetup/compare/FileSource.h"

#include "sdk/features/FeatureFileStorage.h"
#include "tools/camerasetup/compare/FileMerge.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <utility>

FileSource::FileSource(const QString &path, Directory otherSide)
    : m_path(path), m_otherSide(std::move(otherSide))
{ }

QString FileSource::title() const
{
    return tr("File %1").arg(QFileInfo(m_path).fileName());
}

void FileSource::read(const std::vector<FeatureSetting> &, const ReadDone &done)
{
    SourceReading reading;
    const auto content = readFeatureFile(QDir::toNativeSeparators(m_path).toStdString());
    if (const auto *const problem = std::get_if<std::string>(&content)) {
        reading.problem = QString::fromStdString(*problem);
    } else {
        const FeatureFile &file = std::get<FeatureFile>(content);
        reading.snapshot.time = QFileInfo(m_path).lastModified();
        reading.snapshot.side.settings = file.settings;
        for (const FeatureFileProblem &line : file.problems) {
            const QString place = tr("Line %1").arg(QLocale().toString(line.line));
            reading.snapshot.notes.push_back({place.toStdString(), line.text});
        }
    }
    reading.snapshot.title = title();
    done(reading);
}

QString FileSource::readOnlyReason() const
{
    return QFileInfo(m_path).isWritable() ? QString() : tr("The file cannot be written.");
}

QString FileSource::writeQuestion(int count) const
{
    return tr("Write %n setting(s) into the file %1? The other settings stay, but comments and lines that "
              "cannot be read are lost.",
        nullptr, count)
        .arg(QDir::toNativeSeparators(m_path));
}

void FileSource::write(const std::vector<FeatureSetting> &settings, const WriteDone &done)
{
    SourceWriting writing;
    const std::string path = m_path.toStdString();
    const auto content = readFeatureFile(path);
    if (const auto *const problem = std::get_if<std::string>(&content)) {
        writing.problem = QString::fromStdString(*problem);
    } else {
        const auto merged = mergedSettings(
            std::get<FeatureFile>(content).settings, settings, m_otherSide(), writing.report);
        const std::string comment = tr("changed by a copy of differences").toStdString();
        writing.problem = QString::fromStdString(writeFeatureFile(path, formatFeatureFile(merged, comment)));
    }
    done(writing);
}
