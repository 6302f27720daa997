#pragma once

#include "tests/config/EmbeddedFiles.h"
#include "tests/support/CameraBuilder.h"
#include "ui/MainWindow.h"

#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

class ApplicationLauncher;

/// The window in an installation directory of the test's own, with documents and pictures of the test's own.
/// The standard documents: seven tools in five groups, of which "other" has no name, and the row "Kx200".
class ConfiguredWindow
{
public:
    static QMap<QString, QByteArray> standardFiles();

    /// A picture of one colour as a PNG file.
    static QByteArray picture(const QSize &size, const QColor &color);

    /// Gives the application the shipped style sheet.
    static void useShippedStyle();

    explicit ConfiguredWindow(const QMap<QString, QByteArray> &files = standardFiles());

    QString root() const { return m_root.path(); }
    QString path(const char *relative) const { return m_root.filePath(QString::fromLatin1(relative)); }

    /// Makes an empty file in the installation directory.
    void touch(const QString &relative);

    void loadConfig() { window.loadConfig(root()); }

    /// Loads once more. The window lays out its tiles once, so it has to find their grid gone.
    void loadConfigAgain();

    void show();

    /// Shows the cameras as after a completed scan: none of them selected.
    void list(const QVector<CameraInfo> &cameras);

    QTableWidget *table() const { return window.findChild<QTableWidget *>(); }
    QString toolTip(int row) const { return table()->item(row, 1)->toolTip(); }
    QList<ApplicationLauncher *> tiles() const;

    /// The name of the transport-layer file in the row's tooltip.
    QString ctiFile(int row) const;

    QList<int> selectedRows() const;

    /// The middle of a cell in coordinates of the window; the window has to be shown.
    QPoint cellCenter(int row, int column) const;
    void click(const QPoint &position, Qt::MouseButton button = Qt::LeftButton);

private:
    EmbeddedFiles m_files;
    QTemporaryDir m_root;

public:
    MainWindow window{nullptr}; // After the files, which it reads.
};
