#include "tests/ui/ConfiguredWindow.h"

#include "tests/support/ScriptFile.h"
#include "ui/ApplicationLauncher.h"

#include <QApplication>
#include <QBuffer>
#include <QGridLayout>
#include <QRegularExpression>

#include <algorithm>

using namespace ConfigDocuments;

namespace {

QJsonObject standardGroups()
{
    const QJsonObject viewer = tool("viewer", "bin/Viewer");
    QJsonObject other = group("other", {viewer, tool("extra", "bin/Extra")});
    other.remove("name"_s);
    return groups({group("areascan", {viewer, tool("setup", "bin/Setup", {}, {"GigE"_s})}),
        group("linescan", {viewer, tool("tuner", "bin/Tuner")}),
        group("highres", {viewer, tool("repair", "bin/Repair"), tool("flat", "bin/Flat")}), other,
        group("simulator", {viewer, tool("configurator", "bin/Configurator")})});
}

/// Returns the content of a PNG file with one colour.
QByteArray picture(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        qFatal("Cannot write a picture");
    return png;
}

} // namespace

QMap<QString, QByteArray> ConfiguredWindow::standardFiles()
{
    const QJsonObject rows = references(
        {{"Kx200", "areascan", "assets/cameras/kx200.png"}, {"Lost", "areascan", "assets/cameras/lost.png"}});
    return {{"config/launcher_config.json"_s, json(standardGroups())},
        {"config/cameras_reference.json"_s, json(rows)},
        {"config/halvex_tool_compatibility.json"_s, json(compatibility("HX-1", {"viewer"_s, "repair"_s}))},
        {"images/cameras/kx200.png"_s, picture({156, 100}, Qt::red)},
        {"images/cameras/camera-placeholder.png"_s, picture({100, 100}, Qt::green)},
        {"images/orvelle-logo.png"_s, picture({39, 78}, Qt::blue)}};
}

QMap<QString, QByteArray> ConfiguredWindow::filesWith(const QJsonObject &launcherConfig)
{
    QMap<QString, QByteArray> files = standardFiles();
    files.insert("config/launcher_config.json"_s, json(launcherConfig));
    return files;
}

void ConfiguredWindow::useShippedStyle()
{
    const QByteArray rules = ScriptFile::read(QStringLiteral(CORVIX_STYLE_SHEET));
    QVERIFY(!rules.isEmpty());
    QApplication::setStyle("fusion"_s);
    qApp->setStyleSheet(QString::fromUtf8(rules));
}

ConfiguredWindow::ConfiguredWindow(const QMap<QString, QByteArray> &files) : m_files(files) { }

void ConfiguredWindow::createFile(const QString &relative)
{
    ScriptFile::write(path(relative), {});
}

void ConfiguredWindow::writeXml(const QByteArray &content)
{
    ScriptFile::write(path("bin/CvxC.xml"_s), content);
}

void ConfiguredWindow::writeCtiPaths(const QStringList &directories)
{
    writeXml("<CtiPaths><Path>" + directories.join("</Path><Path>"_s).toUtf8() + "</Path></CtiPaths>");
}

void ConfiguredWindow::setCameras(const QVector<CameraInfo> &cameras)
{
    window.setCameras(cameras);
    window.setSelectedCamera({});
}

void ConfiguredWindow::open(const QVector<CameraInfo> &cameras)
{
    loadConfig();
    setCameras(cameras);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, hangTimeout));
}

QList<ApplicationLauncher *> ConfiguredWindow::tiles() const
{
    QList<ApplicationLauncher *> result;
    const QLayout *grid = childNamed<QWidget>(window, "toolsContainer")->layout();
    for (int index = 0; index < grid->count(); ++index)
        result.append(qobject_cast<ApplicationLauncher *>(grid->itemAt(index)->widget()));
    return result;
}

QString ConfiguredWindow::ctiFile(int row) const
{
    static const QRegularExpression cell(">CTI file</td><td style='color:#e8edf2;'>([^<]*)</td>"_s);
    return cell.match(toolTip(row)).captured(1);
}

QList<int> ConfiguredWindow::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex &index : table()->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

QPoint ConfiguredWindow::cellCenter(int row, int column) const
{
    const QRect cell = table()->visualRect(table()->model()->index(row, column));
    return table()->viewport()->mapTo(&window, cell.center());
}

void ConfiguredWindow::click(const QPoint &position, Qt::MouseButton button)
{
    QTest::mouseClick(window.windowHandle(), button, Qt::NoModifier, position);
}
