#include <QProcess>
#include <QtTest>

/// Tests which language the program uses, depending on its environment variables.
class TestLanguageChoice : public QObject
{
    Q_OBJECT

private slots:
    void environmentSelectsTheLanguage_data();
    void environmentSelectsTheLanguage();
};

void TestLanguageChoice::environmentSelectsTheLanguage_data()
{
    const auto german = QStringLiteral("Schließen, Über Qt");
    const auto french = QStringLiteral("Fermer, À propos de Qt");
    const auto japanese = QStringLiteral("閉じる, Qt について");
    const auto korean = QStringLiteral("닫기, Qt 정보");
    const auto chinese = QStringLiteral("关闭, 关于 Qt");
    const auto english = QStringLiteral("Close, About Qt");

    QTest::addColumn<QString>("environment");
    QTest::addColumn<QString>("output");
    const auto add = [](const char *name, const char *environment, const QString &output) {
        QTest::newRow(name) << QString::fromLatin1(environment) << output;
    };
    add("German", "LANG=de_DE.UTF-8", german);
    add("French", "LANG=fr_FR.UTF-8", french);
    add("Japanese", "LANG=ja_JP.UTF-8", japanese);
    add("Korean", "LANG=ko_KR.UTF-8", korean);
    add("Chinese", "LANG=zh_CN.UTF-8", chinese);
    add("language of another country", "LANG=de_AT.UTF-8", german);
    add("another encoding", "LANG=fr_BE@euro", french);
    add("simplified Chinese of another country", "LANG=zh_SG.UTF-8", chinese);
    add("traditional Chinese is not translated", "LANG=zh_TW.UTF-8", english);
    add("LC_MESSAGES before LANG", "LANG=en_US.UTF-8 LC_MESSAGES=de_DE.UTF-8", german);
    add("English messages", "LANG=de_DE.UTF-8 LC_MESSAGES=en_US.UTF-8", english);
    add("LC_ALL before everything else", "LANG=de_DE.UTF-8 LC_MESSAGES=ja_JP.UTF-8 LC_ALL=fr_FR.UTF-8",
        french);
    add("LANGUAGE is a list", "LANG=de_DE.UTF-8 LANGUAGE=ko:de", korean);
    add("first language with a translation", "LANG=es_ES.UTF-8 LANGUAGE=es:pt:ja:de", japanese);
    add("English first in the list", "LANG=en_US.UTF-8 LANGUAGE=en_US:de", english);
    add("English last in the list", "LANG=de_DE.UTF-8 LANGUAGE=de:en", german);
    add("C locale", "LC_ALL=C LANGUAGE=de", english);
    add("C locale in UTF-8", "LC_ALL=C.UTF-8", english);
    add("language without a translation", "LANG=es_ES.UTF-8", english);
    add("English of another country", "LANG=en_GB.UTF-8", english);
    add("empty environment", "", english);
}

void TestLanguageChoice::environmentSelectsTheLanguage()
{
    QFETCH(QString, environment);
    QProcess program;
    program.setProcessEnvironment(QProcessEnvironment());
    program.setProgram(QStringLiteral("env"));
    program.setArguments(QStringList(QStringLiteral("-i"))
        + environment.split(QLatin1Char(' '), Qt::SkipEmptyParts)
        + QStringList(QStringLiteral(LANGUAGE_PROGRAM)));
    program.start();
    QVERIFY2(program.waitForFinished(), qPrintable(program.errorString()));
    QTEST(QString::fromUtf8(program.readAllStandardOutput()).trimmed(), "output");
}

QTEST_GUILESS_MAIN(TestLanguageChoice)
#include "TestLanguageChoice.moc"
