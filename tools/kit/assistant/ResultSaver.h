#pragma once

#include "tools/kit/start/ToolSettings.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <functional>
#include <string>

class QWidget;

/// Saves the files of a result: asks once for the name of the main file, and gives the others the same name
/// with their own endings. Remembers the folder.
class ResultSaver : public QObject
{
    Q_OBJECT

public:
    struct File
    {
        QString ending; ///< For example ".json"; the first file is the main one.
        /// Writes the file on the GUI thread; returns why it cannot be written, empty if it was.
        std::function<std::string(const std::string &path)> write;
    };

    /// @param window Parent of the dialogs.
    ResultSaver(ToolSettings &settings, QWidget *window);

    /// Asks for the name, proposing `name` without ending in the last folder, and writes all files.
    /// Says what cannot be written, and asks before it replaces files.
    void save(const QString &name, const QVector<File> &files);

    /// Writes all files without asking, up to the first one that fails. Returns why that failed; empty if it
    /// succeeded.
    static QString write(const QString &mainPath, const QVector<File> &files);

signals:
    void saved(const QString &mainPath);

private:
    void saveAs(const QString &path, const QVector<File> &files);
    void writeAndReport(const QString &path, const QVector<File> &files);

    ToolSettings &m_settings;
    QWidget *m_window;
};
