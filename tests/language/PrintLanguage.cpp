// Prints a string of the launcher and a string of Qt in the language that the environment selects.

#include "desktop/Translations.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const Translations translations(QStringLiteral("corvix"));
    std::printf("%s, %s\n", qUtf8Printable(QCoreApplication::translate("MainWindow", "Close")),
        qUtf8Printable(QCoreApplication::translate("QMessageBox", "About Qt")));
    return 0;
}
