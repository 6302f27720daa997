// Prints the install root of the installation that contains this program. TestInstallRoot copies it around.

#include "config/InstallRootResolver.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    std::puts(qUtf8Printable(InstallRootResolver::resolve()));
    return 0;
}
