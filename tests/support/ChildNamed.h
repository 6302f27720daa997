#pragma once

#include <QtTest>

/// The child of that object name and class; fails the test (and gives null) when there is none.
template <typename Child>
Child *childNamed(const QObject &parent, const char *objectName)
{
    auto *child = parent.findChild<Child *>(QString::fromLatin1(objectName));
    if (!child)
        QTest::qFail(objectName, "no such child", 0);
    return child;
}
