#include "tests/road/windowreader/WindowReader.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QSocketNotifier>
#include <QTableWidget>
#include <QWidget>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

QJsonArray rowsOf(const QTableWidget &table)
{
    QJsonArray rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QJsonArray texts, toolTips;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QTableWidgetItem *item = table.item(row, column);
            texts.append(item ? item->text() : QString());
            toolTips.append(item ? item->toolTip() : QString());
        }
        // The box of the first cell, in the table's coordinates: a place to click.
        const QRect cell
            = table.visualItemRect(table.item(row, 0)).translated(table.viewport()->mapTo(&table, QPoint()));
        rows.append(QJsonObject{{QStringLiteral("texts"), texts}, {QStringLiteral("toolTips"), toolTips},
            {QStringLiteral("box"), QJsonArray{cell.x(), cell.y(), cell.width(), cell.height()}}});
    }
    return rows;
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
    QJsonObject object{
        {QStringLiteral("class"), QString::fromLatin1(widget.metaObject()->className())},
        {QStringLiteral("name"), widget.objectName()},
        {QStringLiteral("text"), textOf(widget)},
        {QStringLiteral("enabled"), widget.isEnabled()},
        {QStringLiteral("box"), QJsonArray{place.x(), place.y(), widget.width(), widget.height()}},
    };
    if (const auto *table = qobject_cast<const QTableWidget *>(&widget))
        object.insert(QStringLiteral("rows"), rowsOf(*table));
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

/// -1 when the path is taken: tools that the program starts inherit its environment, and load us as well.
int listenAt(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0
        && ::listen(socket, 8) == 0)
        return socket;
    ::close(socket);
    return -1;
}

} // namespace

WindowReader::WindowReader(const QString &socketPath) : m_socket(listenAt(QFile::encodeName(socketPath)))
{
    if (m_socket < 0)
        return;
    auto *notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &WindowReader::answer);
}

WindowReader::~WindowReader()
{
    ::close(m_socket);
}

void WindowReader::answer() const
{
    const int peer = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
    const QByteArray windows = visibleWindows();
    for (qint64 sent = 0; sent < windows.size();) {
        const ssize_t count
            = ::send(peer, windows.constData() + sent, size_t(windows.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            break; // The test has gone.
        sent += count;
    }
    ::close(peer);
}
