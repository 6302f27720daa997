// This program prints its install root. TestInstallRoot runs copies of the program in several directories.

#include "config/InstallRootResolver.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    std::puts(qUtf8Printable(InstallRootResolver::resolve()));
    return 0;
}
