#include "tools/kit/start/ToolSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString toolName = QStringLiteral("TestTool");

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestToolSettings : public QObject
{
    Q_OBJECT

private slots:
    void valuesSurvive();
    void fileIsInTheUsersConfiguration();
    void damagedFileIsSetAside_data();
    void damagedFileIsSetAside();
    void valueOfAnotherTypeIsTheDefault();
    void unwritablePlaceIsNoError();
};

void TestToolSettings::valuesSurvive()
{
    const QTemporaryDir directory;
    const QByteArray geometry("\x00\x01\xff binary", 10);
    {
        ToolSettings settings(toolName, directory.path());
        settings.setValue(QStringLiteral("window/geometry"), geometry);
        settings.setValue(QStringLiteral("files/pattern"), QStringLiteral("Größe %1; \"x\""));
        settings.setValue(QStringLiteral("view/scale"), 0.25);
        settings.setValue(QStringLiteral("view/grid"), true);
        settings.setValue(QStringLiteral("view/gone"), 1);
        settings.remove(QStringLiteral("view/gone"));
        QVERIFY(settings.save());
    }
    const ToolSettings settings(toolName, directory.path());
    QCOMPARE(settings.value(QStringLiteral("window/geometry"), QByteArray()), geometry);
    QCOMPARE(settings.value(QStringLiteral("files/pattern"), QString()), QStringLiteral("Größe %1; \"x\""));
    QCOMPARE(settings.value(QStringLiteral("view/scale"), 1.0), 0.25);
    QCOMPARE(settings.value(QStringLiteral("view/grid"), false), true);
    QCOMPARE(settings.value(QStringLiteral("view/gone"), 7), 7);
    QCOMPARE(settings.damagedFile(), QString());
}

void TestToolSettings::fileIsInTheUsersConfiguration()
{
    const QTemporaryDir directory;
    const QByteArray previous = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", directory.path().toUtf8());
    ToolSettings settings(toolName);
    qputenv("XDG_CONFIG_HOME", previous);
    settings.setValue(QStringLiteral("key"), 1);
    QVERIFY(settings.save());
    QVERIFY(QFile::exists(directory.filePath(QStringLiteral("corvix-x/TestTool.ini"))));
}

void TestToolSettings::damagedFileIsSetAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no keys") << QByteArray("[view]\nscale=2\nthis is no line of settings\n");
    QTest::newRow("zeros") << QByteArray("[view]\nscale=2\n\0\0\0\0", 20);
    QTest::newRow("no UTF-8") << QByteArray("[view]\nscale=2\nname=\xff\xfe\xc3\n");
    QTest::newRow("cut off") << QByteArray("[view]\nscale=2\n[wind");
}

void TestToolSettings::damagedFileIsSetAside()
{
    QFETCH(const QByteArray, content);
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("TestTool.ini"));
    QVERIFY(writeFile(path, content));
    QVERIFY(writeFile(path + QStringLiteral(".damaged"), "an older one"));
    ToolSettings settings(toolName, directory.path());
    QCOMPARE(settings.value(QStringLiteral("view/scale"), 1.0), 1.0);
    QCOMPARE(settings.damagedFile(), path + QStringLiteral(".damaged"));
    QCOMPARE(readFile(settings.damagedFile()), content);
    settings.setValue(QStringLiteral("view/scale"), 3.0);
    QVERIFY(settings.save());
    QCOMPARE(ToolSettings(toolName, directory.path()).value(QStringLiteral("view/scale"), 1.0), 3.0);
}

void TestToolSettings::valueOfAnotherTypeIsTheDefault()
{
    const QTemporaryDir directory;
    QVERIFY(writeFile(directory.filePath(QStringLiteral("TestTool.ini")), "[view]\nscale=wide\ncount=3\n"));
    const ToolSettings settings(toolName, directory.path());
    QCOMPARE(settings.value(QStringLiteral("view/scale"), 1.5), 1.5);
    QCOMPARE(settings.value(QStringLiteral("view/count"), 1), 3);
}

void TestToolSettings::unwritablePlaceIsNoError()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("file"));
    QVERIFY(writeFile(file, "no directory"));
    ToolSettings settings(toolName, file);
    settings.setValue(QStringLiteral("key"), 1);
    QVERIFY(!settings.save());
    QCOMPARE(settings.value(QStringLiteral("key"), 0), 1);
    QCOMPARE(settings.damagedFile(), QString());
}

QTEST_GUILESS_MAIN(TestToolSettings)
#include "TestToolSettings.moc"
