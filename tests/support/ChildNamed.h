#pragma once

#include <QtTest>

/// Returns the child with this class and object name. Fails the test and returns null if there is no such
/// child.
template <typename Child>
Child *childNamed(const QObject &parent, const char *objectName)
{
    auto *child = parent.findChild<Child *>(QString::fromLatin1(objectName));
    if (!child)
        QTest::qFail(objectName, "no such child", 0);
    return child;
}
