#include "tests/ui/ConfiguredWindow.h"

#include "tests/config/ConfigDocuments.h"
#include "tests/support/ScriptFile.h"
#include "ui/ApplicationLauncher.h"

#include <QApplication>
#include <QBuffer>
#include <QGridLayout>
#include <QRegularExpression>

#include <algorithm>

using namespace ConfigDocuments;

namespace {

QJsonObject nameless(QJsonObject group)
{
    group.insert(latin1("name"), QString());
    return group;
}

QJsonObject standardGroups()
{
    const QJsonObject viewer = tool("viewer", "bin/Viewer");
    return groups({group("areascan", {viewer, tool("setup", "bin/Setup", {}, {latin1("GigE")})}),
        group("linescan", {viewer, tool("tuner", "bin/Tuner")}),
        group("highres", {viewer, tool("repair", "bin/Repair"), tool("flat", "bin/Flat")}),
        nameless(group("other", {viewer, tool("extra", "bin/Extra")})),
        group("simulator", {viewer, tool("scene", "bin/Scene")})});
}

} // namespace

QByteArray ConfiguredWindow::picture(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        qFatal("Cannot write a picture");
    return png;
}

QMap<QString, QByteArray> ConfiguredWindow::standardFiles()
{
    return {{latin1("config/launcher_config.json"), json(standardGroups())},
        {latin1("config/cameras_reference.json"),
            json(references({{"Kx200", "areascan", "assets/cameras/kx200.png"},
                {"Lost", "areascan", "assets/cameras/lost.png"}}))},
        {latin1("config/halvex_tool_compatibility.json"),
            json(compatibility({{"HX-1", {latin1("viewer"), latin1("repair")}}}))},
        {latin1("images/cameras/kx200.png"), picture({156, 100}, Qt::red)},
        {latin1("images/cameras/camera-placeholder.png"), picture({100, 100}, Qt::green)},
        {latin1("images/orvelle-logo.png"), picture({39, 78}, Qt::blue)}};
}

void ConfiguredWindow::useShippedStyle()
{
    const QByteArray rules = ScriptFile::read(QStringLiteral(CORVIX_STYLE_SHEET));
    QVERIFY(!rules.isEmpty());
    QApplication::setStyle(QStringLiteral("fusion"));
    qApp->setStyleSheet(QString::fromUtf8(rules));
}

ConfiguredWindow::ConfiguredWindow(const QMap<QString, QByteArray> &files) : m_files(files) { }

void ConfiguredWindow::touch(const QString &relative)
{
    ScriptFile::write(m_root.filePath(relative), {});
}

void ConfiguredWindow::loadConfigAgain()
{
    delete window.findChild<QGridLayout *>();
    loadConfig();
}

void ConfiguredWindow::show()
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

void ConfiguredWindow::list(const QVector<CameraInfo> &cameras)
{
    window.setCameras(cameras);
    window.setSelectedCamera({});
}

QList<ApplicationLauncher *> ConfiguredWindow::tiles() const
{
    QList<ApplicationLauncher *> result;
    const auto *container = window.findChild<QWidget *>(QStringLiteral("toolsContainer"));
    const auto *grid = container ? qobject_cast<QGridLayout *>(container->layout()) : nullptr;
    for (int index = 0; grid && index < grid->count(); ++index)
        result.append(qobject_cast<ApplicationLauncher *>(grid->itemAt(index)->widget()));
    return result;
}

QString ConfiguredWindow::ctiFile(int row) const
{
    static const QRegularExpression cell(
        QStringLiteral(">CTI file</td><td style='color:#e8edf2;'>([^<]*)</td>"));
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
