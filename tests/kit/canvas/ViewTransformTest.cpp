#include <QtTest>
QTEST_APPLESS_MAIN(QObject)
