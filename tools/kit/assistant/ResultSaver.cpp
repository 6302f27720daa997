#include "tools/kit/assistant/ResultSaver.h"

#include "tools/kit/widgets/Messages.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

namespace {

QString directoryKey()
{
    return QStringLiteral("results/directory");
}

/// Returns the path without the ending of the main file.
QString basePath(const QString &mainPath, const QVector<ResultSaver::File> &files)
{
    const QString ending = files.first().ending;
    return mainPath.endsWith(ending, Qt::CaseInsensitive) ? mainPath.left(mainPath.size() - ending.size())
                                                          : mainPath;
}

/// Returns the names of the files that would be overwritten without the file dialog having asked.
QStringList existingNames(const QString &chosenPath, const QVector<ResultSaver::File> &files)
{
    QStringList names;
    if (QFileInfo::exists(chosenPath))
        return names; // The person has agreed to replace the result.
    const QString base = basePath(chosenPath, files);
    for (const ResultSaver::File &file : files) {
        const QFileInfo info(base + file.ending);
        if (info.exists())
            names.append(info.fileName());
    }
    return names;
}

} // namespace

ResultSaver::ResultSaver(ToolSettings &settings, QWidget *window)
    : QObject(window), m_settings(settings), m_window(window)
{ }

void ResultSaver::save(const QString &name, const QVector<File> &files)
{
    const QString byDefault = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString directory = m_settings.value(directoryKey(), byDefault);
    auto *const dialog = new QFileDialog(
        m_window, tr("Save the result"), QDir(directory).exists() ? directory : QDir::homePath());
    const QString ending = files.first().ending;
    dialog->setObjectName(QStringLiteral("resultFiles"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilters({tr("Results (%1)").arg(QLatin1Char('*') + ending)});
    dialog->setDefaultSuffix(ending.mid(1));
    dialog->selectFile(name + ending);
    connect(dialog, &QFileDialog::fileSelected, this,
        [this, files](const QString &path) { saveAs(path, files); });
    dialog->open();
}

void ResultSaver::saveAs(const QString &path, const QVector<File> &files)
{
    const QStringList existing = existingNames(path, files);
    if (existing.isEmpty())
        return writeAndReport(path, files);
    const QString question = tr("These files exist already: %1. Do you want to replace them?")
                                 .arg(existing.join(QStringLiteral(", ")));
    askToOverwrite(m_window, tr("Save the result"), question, tr("Replace"), this,
        [this, path, files] { writeAndReport(path, files); });
}

void ResultSaver::writeAndReport(const QString &path, const QVector<File> &files)
{
    m_settings.setValue(directoryKey(), QFileInfo(path).absolutePath());
    const QString problem = write(path, files);
    if (!problem.isEmpty())
        return showFailure(m_window, tr("Save the result"), problem);
    emit saved(basePath(path, files) + files.first().ending);
}

QString ResultSaver::write(const QString &mainPath, const QVector<File> &files)
{
    const QString base = basePath(mainPath, files);
    for (const File &file : files) {
        const QString path = base + file.ending;
        const std::string problem = file.write(QFile::encodeName(path).toStdString());
        if (!problem.empty())
            return tr("\"%1\" was not saved. %2")
                .arg(QFileInfo(path).fileName(), QString::fromStdString(problem));
    }
    return {};
}
