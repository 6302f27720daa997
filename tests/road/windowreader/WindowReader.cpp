#include "tests/road/windowreader/WindowReader.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMenu>
#include <QTableWidget>
#include <QWidget>

namespace {

QJsonArray boxOf(const QRect &rectangle)
{
    return {rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height()};
}

/// Texts, tool tips, the cells' boxes in the table's coordinates, and the widths that the texts need.
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

/// The columns' texts, their widths, and the widths that the texts need.
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

/// The entries of a menu with their boxes, in the menu's coordinates; a separator has no text.
QJsonArray actionsOf(const QMenu &menu)
{
    QJsonArray actions;
    const QList<QAction *> entries = menu.actions();
    for (QAction *entry : entries)
        actions.append(QJsonObject{{QStringLiteral("text"), entry->text()},
            {QStringLiteral("box"), boxOf(menu.actionGeometry(entry))},
            {QStringLiteral("active"), entry == menu.activeAction()}});
    return actions;
}

/// The size that the widget's text takes up; the widget's own where there is none.
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
    const QPoint place = widget.mapTo(widget.window(), QPoint());
    const QPoint onScreen = widget.mapToGlobal(QPoint());
    QJsonObject object{
        {QStringLiteral("class"), QString::fromLatin1(widget.metaObject()->className())},
        {QStringLiteral("name"), widget.objectName()},
        {QStringLiteral("text"), textOf(widget)},
        {QStringLiteral("toolTip"), widget.toolTip()},
        {QStringLiteral("accessibleName"), widget.accessibleName()},
        {QStringLiteral("enabled"), widget.isEnabled()},
        {QStringLiteral("active"), widget.isActiveWindow()},
        {QStringLiteral("box"), boxOf(QRect(place, widget.size()))},
        {QStringLiteral("onScreen"), boxOf(QRect(onScreen, widget.size()))},
        {QStringLiteral("needs"), neededSize(widget)},
        {QStringLiteral("xWindow"), QString::number(widget.internalWinId())},
    };
    if (const auto *menu = qobject_cast<const QMenu *>(&widget))
        object.insert(QStringLiteral("actions"), actionsOf(*menu));
    if (const auto *table = qobject_cast<const QTableWidget *>(&widget)) {
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

QByteArray visibleWindows()
{
    QJsonArray windows;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (const QWidget *window : topLevels) {
        if (window->isVisible())
            windows.append(describe(*window));
    }
    return QJsonDocument(windows).toJson(QJsonDocument::Compact);
}

} // namespace

WindowReader::WindowReader(const QString &socketPath) : m_socket(socketPath, visibleWindows) { }
