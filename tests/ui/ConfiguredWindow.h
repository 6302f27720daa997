#pragma once

#include "tests/config/ConfigDocuments.h"
#include "tests/config/EmbeddedFiles.h"
#include "tests/support/CameraBuilder.h"
#include "tests/support/ChildNamed.h"
#include "ui/MainWindow.h"

#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

class ApplicationLauncher;

constexpr int hangTimeout = 30'000; // Milliseconds. Only a hang takes longer.

Q_DECLARE_METATYPE(CameraInfo)

/// Creates a window in an empty installation directory, with its own configuration documents and pictures.
/// The standard documents contain seven tools in five groups; the group "other" has no name. They also
/// contain the reference rows "Kx200" and "Lost"; the picture of "Lost" is missing.
class ConfiguredWindow
{
public:
    static QMap<QString, QByteArray> standardFiles();

    /// Returns the standard files with another launcher configuration.
    static QMap<QString, QByteArray> filesWith(const QJsonObject &launcherConfig);

    /// Applies the shipped style sheet to the application.
    static void useShippedStyle();

    explicit ConfiguredWindow(const QMap<QString, QByteArray> &files = standardFiles());

    /// Returns a path below the installation directory.
    QString path(const QString &relative) const { return m_root.filePath(relative); }

    /// Creates an empty file below the installation directory.
    void createFile(const QString &relative);

    /// Writes the installation's bin/CvxC.xml.
    void writeXml(const QByteArray &content);

    /// Writes a bin/CvxC.xml that contains these search directories.
    void writeCtiPaths(const QStringList &directories);

    void loadConfig() { window.loadConfig(m_root.path()); }

    /// Shows the cameras and clears the selection, as the controller does after a scan.
    void setCameras(const QVector<CameraInfo> &cameras);

    /// Loads the configuration, sets the cameras and shows the window.
    void open(const QVector<CameraInfo> &cameras = {});

    QTableWidget *table() const { return window.findChild<QTableWidget *>(); }
    QString toolTip(int row) const { return table()->item(row, 1)->toolTip(); }
    QList<ApplicationLauncher *> tiles() const;

    /// Returns the name of the producer file in the row's tooltip.
    QString ctiFile(int row) const;

    QList<int> selectedRows() const;

    /// Returns the centre of a cell in the window's coordinates. The window has to be visible.
    QPoint cellCenter(int row, int column) const;
    void click(const QPoint &position, Qt::MouseButton button = Qt::LeftButton);

private:
    EmbeddedFiles m_files;
    QTemporaryDir m_root;

public:
    MainWindow window{nullptr}; // Declared after m_files, because the window reads these files.
};
