#include "app/ApplicationController.h"
#include "app/NoOpenGl.h"
#include "app/Translations.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QStyleFactory>
#include <QtDebug>

#include <memory>

int main(int argc, char *argv[])
{
    // By this a desktop finds the entry that belongs to our windows, be it X11 (the class) or Wayland.
    const QString applicationId = QStringLiteral("example.orvelle.CorvixLauncher");
    QApplication::setApplicationName(applicationId);
    QApplication::setDesktopFileName(applicationId);

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    auto noOpenGl = std::make_unique<NoOpenGl>();
    QApplication application(argc, argv);
    noOpenGl.reset();

    QFile styleSheet(QStringLiteral(":/styles/style.qss"));
    if (styleSheet.open(QIODevice::ReadOnly)) {
        // The constData() on purpose: the text ends at its first NUL.
        application.setStyleSheet(QString::fromUtf8(styleSheet.readAll().constData()));
        styleSheet.close();
    } else {
        qWarning("Failed to load stylesheet");
    }

    const Translations translations; // Before the window asks for its first text.
    ApplicationController controller;
    if (controller.init())
        return controller.run();
    QMessageBox::critical(nullptr, QObject::tr("Corvix X initialization failed"),
        QObject::tr("Failed to initialize the Corvix X system. The launcher will be closed."),
        QMessageBox::Ok);
    return -1;
}
