#include "tests/endtoend/windowreader/WindowReaderPlugin.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMenu>
#include <QTableWidget>

namespace {

QJsonArray boxOf(const QRect &rectangle)
{
    return {rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height()};
}

/// Returns for each row its strings and tooltips, the boxes of its cells in the table's coordinates, and the
/// widths that the strings need.
QJsonArray rowsOf(const QTableWidget &table)
{
    const QPoint toTable = table.viewport()->mapTo(&table, QPoint());
    QJsonArray rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QJsonArray texts, toolTips, cells, needs;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QTableWidgetItem *item = table.item(row, column);
            texts.append(item ? item->text() : QString());
            toolTips.append(item ? item->toolTip() : QString());
            cells.append(boxOf(table.visualItemRect(item).translated(toTable)));
            needs.append(table.sizeHintForIndex(table.model()->index(row, column)).width());
        }
        rows.append(QJsonObject{{QStringLiteral("texts"), texts}, {QStringLiteral("toolTips"), toolTips},
            {QStringLiteral("cells"), cells}, {QStringLiteral("needs"), needs}});
    }
    return rows;
}

QJsonArray columnsOf(const QTableWidget &table)
{
    const QHeaderView *header = table.horizontalHeader();
    QJsonArray columns;
    for (int column = 0; column < table.columnCount(); ++column) {
        columns.append(QJsonObject{{QStringLiteral("text"), table.horizontalHeaderItem(column)->text()},
            {QStringLiteral("width"), header->sectionSize(column)},
            {QStringLiteral("needs"), header->sectionSizeHint(column)}});
    }
    return columns;
}

/// Returns the entries of a menu with their boxes in the menu's coordinates. The text of a separator is
/// empty.
QJsonArray actionsOf(const QMenu &menu)
{
    QJsonArray actions;
    for (QAction *action : menu.actions())
        actions.append(QJsonObject{{QStringLiteral("text"), action->text()},
            {QStringLiteral("box"), boxOf(menu.actionGeometry(action))},
            {QStringLiteral("active"), action == menu.activeAction()}});
    return actions;
}

/// Returns the size that the widget's text needs, or the widget's size if the widget has no text.
QJsonArray neededSize(const QWidget &widget)
{
    QSize needed = widget.size();
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label && label->wordWrap())
        needed.setHeight(label->heightForWidth(label->width()));
    else if ((label && !label->hasScaledContents()) || qobject_cast<const QAbstractButton *>(&widget))
        needed = widget.minimumSizeHint();
    return {needed.width(), needed.height()};
}

QString textOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    return widget.isWindow() ? widget.windowTitle() : QString();
}

QJsonObject describe(const QWidget &widget)
{
    QJsonObject object{
        {QStringLiteral("class"), QString::fromLatin1(widget.metaObject()->className())},
        {QStringLiteral("name"), widget.objectName()},
        {QStringLiteral("text"), textOf(widget)},
        {QStringLiteral("toolTip"), widget.toolTip()},
        {QStringLiteral("accessibleName"), widget.accessibleName()},
        {QStringLiteral("enabled"), widget.isEnabled()},
        {QStringLiteral("active"), widget.isActiveWindow()},
        {QStringLiteral("box"), boxOf(QRect(widget.mapTo(widget.window(), QPoint()), widget.size()))},
        {QStringLiteral("onScreen"), boxOf(QRect(widget.mapToGlobal(QPoint()), widget.size()))},
        {QStringLiteral("needs"), neededSize(widget)},
        {QStringLiteral("xWindow"), QString::number(widget.internalWinId())},
    };
    if (const auto *menu = qobject_cast<const QMenu *>(&widget))
        object.insert(QStringLiteral("actions"), actionsOf(*menu));
    // Tables of tools may have cells without items.
    const auto *table = qobject_cast<const QTableWidget *>(&widget);
    if (table && table->objectName() == QStringLiteral("cameraTable")) {
        object.insert(QStringLiteral("columns"), columnsOf(*table));
        object.insert(QStringLiteral("rows"), rowsOf(*table));
    }
    QJsonArray children;
    for (const QObject *child : widget.children()) {
        const auto *childWidget = qobject_cast<const QWidget *>(child);
        if (childWidget && childWidget->isVisible() && !childWidget->isWindow())
            children.append(describe(*childWidget));
    }
    object.insert(QStringLiteral("children"), children);
    return object;
}

void sendVisibleWindows(QLocalSocket &reader)
{
    QJsonArray windows;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            windows.append(describe(*window));
    }
    QObject::connect(&reader, &QLocalSocket::disconnected, &reader, &QObject::deleteLater);
    reader.write(QJsonDocument(windows).toJson(QJsonDocument::Compact));
    reader.disconnectFromServer(); // The connection closes after all data has been sent.
}

} // namespace

QObject *WindowReaderPlugin::create(const QString &, const QString &socketPath)
{
    auto *server = new QLocalServer;
    QObject::connect(server, &QLocalServer::newConnection, server,
        [server] { sendVisibleWindows(*server->nextPendingConnection()); });
    // A tool inherits the launcher's environment, so the launcher uses this path already.
    if (!server->listen(socketPath))
        server->listen(QStringLiteral("%1.%2").arg(socketPath).arg(QCoreApplication::applicationPid()));
    return server;
}
