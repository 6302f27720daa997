#include "tests/toolundertest/ToolUnderTest.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QCoreApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QProcess>
#include <QSet>
#include <QTimer>

namespace {

/// Returns the controls that can be seen and reached with the keyboard.
QSet<QWidget *> visibleControls(const QMainWindow &window)
{
    QSet<QWidget *> controls;
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy()
            && !qobject_cast<QAbstractScrollArea *>(widget))
            controls.insert(widget);
    }
    return controls;
}

} // namespace

void processEvents(int milliseconds)
{
    // QCoreApplication::processEvents() with a time limit does not wait, but keeps a processor busy.
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void await(const std::function<bool()> &condition)
{
    constexpr qint64 hangLimit = 60000; // Milliseconds.
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.hasExpired(hangLimit))
            qFatal("Nothing has happened for a minute.");
        processEvents(20);
    }
}

void signalCameraHost(const QString &signal)
{
    const int status = QProcess::execute(QStringLiteral("pkill"),
        {QStringLiteral("--signal"), signal, QStringLiteral("--parent"),
            QString::number(QCoreApplication::applicationPid()), QStringLiteral("CvxCameraHost")});
    if (status != 0)
        qFatal("There is no camera host.");
}

QStringList unnamedControls(QMainWindow &window, int &count)
{
    QSet<QWidget *> controls = visibleControls(window);
    const QList<QDockWidget *> docks = window.findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks) {
        dock->show();
        dock->raise();
        await([dock] { return !dock->visibleRegion().isEmpty(); });
        QCoreApplication::processEvents(); // The content gets its place.
        controls += visibleControls(window);
    }
    count = controls.size();
    QStringList unnamed;
    for (QWidget *control : controls) {
        if (QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
            unnamed.append(QLatin1String(control->metaObject()->className()) + QStringLiteral(": ")
                + control->toolTip());
    }
    return unnamed;
}

void chooseResultFile(QWidget &window, const QString &path)
{
    QFileDialog *dialog = nullptr;
    await([&] {
        dialog = window.findChild<QFileDialog *>(QStringLiteral("resultFiles"));
        return dialog && dialog->isVisible();
    });
    dialog->setDirectory(QFileInfo(path).path());
    // QFileDialog::selectFile() does not replace the name once its field has the focus.
    dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(QFileInfo(path).fileName());
    QMetaObject::invokeMethod(dialog, "accept");
}

QAction &actionOf(QWidget &window, const QString &text)
{
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->text().remove(QLatin1Char('&')) == text)
            return *action;
    }
    qFatal("There is no action \"%s\".", qUtf8Printable(text));
}
