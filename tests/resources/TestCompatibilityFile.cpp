#include "tests/resources/JsonResource.h"

#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

QJsonObject cameras()
{
    return jsonObject(QStringLiteral(":/config/halvex_tool_compatibility.json"))
        .value(QStringLiteral("cameras"))
        .toObject();
}

QStringList toolsFor(const QJsonValue &entry)
{
    return strings(entry[QStringLiteral("tools")]);
}

bool hasLetter(const QString &code, bool (QChar::*kind)() const)
{
    return std::any_of(code.begin(), code.end(), [kind](QChar c) { return (c.*kind)(); });
}

} // namespace

/// The table of which assistant tool fits which high-resolution model.
class TestCompatibilityFile : public QObject
{
    Q_OBJECT

private slots:
    void listsEveryModelOnce();
    void codesAreFourTo23CharactersInMixedCase();
    void entriesListOneToFiveTools_data();
    void entriesListOneToFiveTools();
    void everyEntryListsTheViewer();
    void noEntryListsAToolTwice();
    void toolsAreThoseOfTheHighResolutionGroup();
    void tenEntriesCarryNotes();
    void exampleModelIsLimited();
};

void TestCompatibilityFile::listsEveryModelOnce()
{
    // Counted in the text too: parsing would silently merge a code that is written twice.
    QFile file(QStringLiteral(":/config/halvex_tool_compatibility.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count("\"tools\":"), 412);

    QSet<QString> codes;
    for (const QString &code : cameras().keys())
        codes << code.toLower(); // Models are looked up without regard to case.
    QCOMPARE(codes.size(), 412);
}

void TestCompatibilityFile::codesAreFourTo23CharactersInMixedCase()
{
    const QStringList codes = cameras().keys();
    const auto shorter = [](const QString &left, const QString &right) { return left.size() < right.size(); };
    QCOMPARE(std::min_element(codes.begin(), codes.end(), shorter)->size(), 4);
    QCOMPARE(std::max_element(codes.begin(), codes.end(), shorter)->size(), 23);
    QVERIFY(std::any_of(codes.begin(), codes.end(), [](const QString &code) {
        return hasLetter(code, &QChar::isLower) && hasLetter(code, &QChar::isUpper);
    }));
    for (const QString &code : codes)
        QCOMPARE(code, code.simplified());
}

void TestCompatibilityFile::entriesListOneToFiveTools_data()
{
    QTest::addColumn<int>("tools");
    QTest::addColumn<int>("entries");
    QTest::newRow("one") << 1 << 15;
    QTest::newRow("two") << 2 << 14;
    QTest::newRow("three") << 3 << 95;
    QTest::newRow("four") << 4 << 202;
    QTest::newRow("five") << 5 << 86;
}

void TestCompatibilityFile::entriesListOneToFiveTools()
{
    QFETCH(int, tools);
    int entries = 0;
    for (const QJsonValue &entry : cameras())
        entries += toolsFor(entry).size() == tools ? 1 : 0;
    QTEST(entries, "entries");
}

void TestCompatibilityFile::everyEntryListsTheViewer()
{
    const QJsonObject all = cameras();
    for (const QString &code : all.keys())
        QVERIFY2(toolsFor(all.value(code)).contains(QStringLiteral("image-viewer")), qPrintable(code));
}

void TestCompatibilityFile::noEntryListsAToolTwice()
{
    const QJsonObject all = cameras();
    for (const QString &code : all.keys()) {
        QStringList tools = toolsFor(all.value(code));
        QVERIFY2(tools.removeDuplicates() == 0, qPrintable(code));
    }
}

void TestCompatibilityFile::toolsAreThoseOfTheHighResolutionGroup()
{
    QSet<QString> used, offered;
    for (const QJsonValue &entry : cameras()) {
        for (const QString &id : toolsFor(entry))
            used << id;
    }
    const QJsonObject launcher = jsonObject(QStringLiteral(":/config/launcher_config.json"));
    const QJsonValue highres = launcher.value(QStringLiteral("hardwareGroups")).toArray().at(2);
    for (const QJsonValue &tool : highres[QStringLiteral("tools")].toArray())
        offered << tool[QStringLiteral("id")].toString();

    QCOMPARE(used.size(), 6);
    QCOMPARE(used, offered);
}

void TestCompatibilityFile::tenEntriesCarryNotes()
{
    int notes = 0;
    for (const QJsonValue &entry : cameras())
        notes += entry[QStringLiteral("notes")].toString().isEmpty() ? 0 : 1;
    QCOMPARE(notes, 10);
}

void TestCompatibilityFile::exampleModelIsLimited()
{
    const QStringList expected{
        QStringLiteral("image-viewer"), QStringLiteral("pixel-repair"), QStringLiteral("flat-field")};
    QCOMPARE(toolsFor(cameras().value(QStringLiteral("HX-2040M"))), expected);
}

QTEST_APPLESS_MAIN(TestCompatibilityFile)
#include "TestCompatibilityFile.moc"
