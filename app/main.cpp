#include "app/ApplicationController.h"
#include "desktop/NoOpenGl.h"
#include "desktop/Translations.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QStyleFactory>
#include <QtDebug>

#include <memory>

int main(int argc, char *argv[])
{
    // A Wayland desktop finds the launcher's desktop entry by this name. An X11 desktop finds the entry by
    // the window class, which is the file name of the program.
    QApplication::setDesktopFileName(QStringLiteral("example.orvelle.CorvixLauncher"));

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    auto noOpenGl = std::make_unique<NoOpenGl>();
    QApplication application(argc, argv);
    noOpenGl.reset();

    QFile styleSheet(QStringLiteral(":/styles/style.qss"));
    if (styleSheet.open(QIODevice::ReadOnly)) {
        // Intended: the conversion from constData() stops at the first NUL byte of the style sheet.
        application.setStyleSheet(QString::fromUtf8(styleSheet.readAll().constData()));
        styleSheet.close();
    } else {
        qWarning("Failed to load stylesheet");
    }

    const Translations translations(
        QStringLiteral("corvix")); // The translators have to be installed before the window exists.
    ApplicationController controller;
    if (controller.init())
        return controller.run();
    QMessageBox::critical(nullptr, QObject::tr("Corvix X initialization failed"),
        QObject::tr("Failed to initialize the Corvix X system. The launcher will be closed."),
        QMessageBox::Ok);
    return -1;
}
