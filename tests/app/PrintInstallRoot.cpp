// Prints where the installation is that this program is part of; copied around by TestInstallRoot.

#include "config/InstallRootResolver.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    std::puts(qUtf8Printable(InstallRootResolver::resolve()));
    return 0;
}
