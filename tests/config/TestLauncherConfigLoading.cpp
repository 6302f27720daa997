#include "config/LauncherConfig.h"
#include "tests/config/ConfigDocuments.h"
#include "tests/config/EmbeddedFiles.h"
#include "tests/support/CameraBuilder.h"
#include "tests/support/MessageLog.h"

#include <QTranslator>
#include <QtTest>

using namespace ConfigDocuments;

class TestLauncherConfigLoading : public QObject
{
    Q_OBJECT

private slots:
    void threeDocumentsAreRead();
    void differentVersionsLeaveEverythingEmptyAndLogOnce();
    void versionsAreComparedExactly_data();
    void versionsAreComparedExactly();
    void mismatchTextIsTranslated();
    void compatibilityVersionTakesNoPart();
    void unusableDocumentIsReplaced_data();
    void unusableDocumentIsReplaced();
    void replacementHasVersionOne_data();
    void replacementHasVersionOne();
    void nothingEmbeddedIsAnEmptyConfigurationWithoutAMessage();
    void fieldOfAnotherTypeReadsEmpty_data();
    void fieldOfAnotherTypeReadsEmpty();
    void groupFieldOfAnotherTypeReadsEmpty_data();
    void groupFieldOfAnotherTypeReadsEmpty();
    void groupWhoseTypeIsNoTextHasTheEmptyKey_data();
    void groupWhoseTypeIsNoTextHasTheEmptyKey();
    void listOfAnotherTypeReadsEmpty_data();
    void listOfAnotherTypeReadsEmpty();
    void toolIsReadWhole();
    void missingListsAreEmpty();
    void listElementsThatAreNoTextBecomeEmptyTexts();
    void groupsThatDifferInLetterCaseLeaveTheLater();
    void nothingIsValidated();
    void parsingAddsToWhatIsThere();
    void textsAreReadAsUtf8();
};

namespace {

const QString groupsPath = QStringLiteral("config/launcher_config.json");
const QString referencePath = QStringLiteral("config/cameras_reference.json");
const QString compatibilityPath = QStringLiteral("config/halvex_tool_compatibility.json");
const QString mismatch = QStringLiteral("Configuration files version mismatch!");

/// A whole, usable configuration; `knows()` tells which of its documents arrived.
QMap<QString, QByteArray> usableDocuments()
{
    return {{groupsPath, json(groups({group("areascan", {tool("viewer", "bin/Viewer")}), group("other")}))},
        {referencePath, json(references({{"Kx200", "areascan"}}))},
        {compatibilityPath, json(compatibility({{"HX-1", {latin1("viewer")}}}))}};
}

QMap<QString, QByteArray> usableDocumentsWith(const QString &path, const QByteArray &content)
{
    QMap<QString, QByteArray> files = usableDocuments();
    files.insert(path, content);
    return files;
}

QByteArray withVersion(const QByteArray &document, const QJsonValue &version)
{
    QJsonObject object = QJsonDocument::fromJson(document).object();
    object.insert(latin1("version"), version);
    return json(object);
}

LauncherConfig loaded()
{
    LauncherConfig config;
    config.load();
    return config;
}

/// Which documents the configuration has read, as texts that a failed comparison shows.
QStringList knows(const LauncherConfig &config)
{
    QStringList known;
    if (!config.allTools(latin1("linux")).isEmpty())
        known.append(latin1("groups"));
    if (config.findGroupForCamera(camera({}, latin1("Kx200"))).type == latin1("areascan"))
        known.append(latin1("references"));
    if (!config.isHalvexToolCompatibleWithCamera(latin1("HX-1"), latin1("another tool")))
        known.append(latin1("compatibility"));
    return known;
}

const QStringList everything{latin1("groups"), latin1("references"), latin1("compatibility")};

/// The one tool of a document with one group and one tool.
ToolConfig onlyTool(const QJsonObject &toolObject)
{
    LauncherConfig config;
    config.parseConfig(groups({group("other", {toolObject})}), {}, {});
    return config.findGroupForCamera({}).tools.value(0);
}

/// A name for a row of test data.
const char *typeName(const QJsonValue &value)
{
    static const char *const names[] = {"null", "truth value", "number", "text", "array", "object"};
    return value.isUndefined() ? "missing" : names[value.type()];
}

/// What may stand in the place of a text.
QVector<QJsonValue> noTexts()
{
    return {QJsonValue::Undefined, QJsonValue::Null, true, 12, QJsonArray{latin1("x")},
        QJsonObject{{latin1("x"), latin1("x")}}};
}

/// What may stand in the place of a list; the object is one that the list could hold.
QVector<QJsonValue> noLists(const QJsonObject &element)
{
    return {QJsonValue::Undefined, QJsonValue::Null, true, 12, latin1("x"), element};
}

} // namespace

void TestLauncherConfigLoading::threeDocumentsAreRead()
{
    const EmbeddedFiles files(usableDocuments());
    MessageLog log;
    QCOMPARE(knows(loaded()), everything);
    QCOMPARE(log.entries().size(), 0);
}

void TestLauncherConfigLoading::differentVersionsLeaveEverythingEmptyAndLogOnce()
{
    const EmbeddedFiles files(
        usableDocumentsWith(groupsPath, withVersion(usableDocuments().value(groupsPath), latin1("1.1"))));
    MessageLog log;
    const LauncherConfig config = loaded();
    QCOMPARE(knows(config), QStringList());
    QCOMPARE(config.findGroupForCamera(camera(latin1("Orvelle"), {})).type, QString());
    QCOMPARE(log.texts(QtCriticalMsg), QStringList{mismatch});
    QCOMPARE(log.entries().size(), 1);
}

void TestLauncherConfigLoading::versionsAreComparedExactly_data()
{
    QTest::addColumn<QJsonValue>("groupsVersion");
    QTest::addColumn<QJsonValue>("referenceVersion");
    QTest::addColumn<bool>("agree");
    const auto add = [](const char *name, const QJsonValue &left, const QJsonValue &right, bool agree) {
        QTest::newRow(name) << left << right << agree;
    };
    add("equal", latin1("2.7b"), latin1("2.7b"), true);
    add("letter case", latin1("2.7b"), latin1("2.7B"), false);
    add("blank", latin1("1.0"), latin1("1.0 "), false);
    add("same number in other words", latin1("1.0"), latin1("1"), false);
    add("both missing", QJsonValue::Undefined, QJsonValue::Undefined, true);
    add("one missing", latin1("1.0"), QJsonValue::Undefined, false);
    add("a number reads as nothing", 1.0, QJsonValue::Undefined, true);
    add("a number is no text", 1.0, latin1("1.0"), false);
}

void TestLauncherConfigLoading::versionsAreComparedExactly()
{
    QFETCH(QJsonValue, groupsVersion);
    QFETCH(QJsonValue, referenceVersion);
    QFETCH(bool, agree);
    QMap<QString, QByteArray> documents = usableDocuments();
    documents[groupsPath] = withVersion(documents.value(groupsPath), groupsVersion);
    documents[referencePath] = withVersion(documents.value(referencePath), referenceVersion);
    const EmbeddedFiles files(documents);
    MessageLog log;
    QCOMPARE(knows(loaded()), agree ? everything : QStringList());
    QCOMPARE(log.texts(QtCriticalMsg), agree ? QStringList() : QStringList{mismatch});
}

void TestLauncherConfigLoading::mismatchTextIsTranslated()
{
    class Dutch : public QTranslator
    {
    public:
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            const bool ours = qstrcmp(context, "LauncherConfig") == 0
                && qstrcmp(text, "Configuration files version mismatch!") == 0;
            return ours ? latin1("Versies verschillen!") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Dutch dutch;
    QVERIFY(QCoreApplication::installTranslator(&dutch));
    const EmbeddedFiles files({{groupsPath, "{\"version\": \"2\"}"}});
    MessageLog log;
    loaded();
    QCOMPARE(log.texts(QtCriticalMsg), QStringList{latin1("Versies verschillen!")});
}

// Intended: only the two documents that belong together are compared.
void TestLauncherConfigLoading::compatibilityVersionTakesNoPart()
{
    const EmbeddedFiles files(usableDocumentsWith(
        compatibilityPath, withVersion(usableDocuments().value(compatibilityPath), latin1("7.3"))));
    MessageLog log;
    QCOMPARE(knows(loaded()), everything);
    QCOMPARE(log.entries().size(), 0);
}

void TestLauncherConfigLoading::unusableDocumentIsReplaced_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("known");
    const QByteArray missing = "MISSING";
    const QMap<QString, QStringList> left{
        {groupsPath, {latin1("compatibility")}}, // Rows are read, but their groups are missing.
        {referencePath, {latin1("groups"), latin1("compatibility")}},
        {compatibilityPath, {latin1("groups"), latin1("references")}}};
    const QVector<QPair<const char *, QByteArray>> contents{{"missing", missing}, {"empty", ""},
        {"broken", "{\"version\": \"9\", \"cameras\": ["}, {"trailing rubbish", "{} x"},
        {"array", "[{\"version\": \"9\"}]"}, {"empty object", "{}"}, {"null", "null"},
        {"text", "\"version\""}, {"not JSON", "<xml/>"}};
    for (const QString &path : {groupsPath, referencePath, compatibilityPath}) {
        for (const auto &[name, content] : contents)
            QTest::addRow("%s %s", qPrintable(path.section(QLatin1Char('/'), 1)), name)
                << path << content << left.value(path);
    }
}

void TestLauncherConfigLoading::unusableDocumentIsReplaced()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    QMap<QString, QByteArray> documents = usableDocumentsWith(path, content);
    if (content == "MISSING")
        documents.remove(path);
    const EmbeddedFiles files(documents);
    MessageLog log;
    QTEST(knows(loaded()), "known");
    QCOMPARE(log.entries().size(), 0);
}

void TestLauncherConfigLoading::replacementHasVersionOne_data()
{
    QTest::addColumn<QString>("unusable");
    QTest::addColumn<QString>("other");
    QTest::newRow("groups unusable") << groupsPath << referencePath;
    QTest::newRow("references unusable") << referencePath << groupsPath;
}

void TestLauncherConfigLoading::replacementHasVersionOne()
{
    QFETCH(QString, unusable);
    QFETCH(QString, other);
    QMap<QString, QByteArray> documents = usableDocumentsWith(unusable, "{");
    documents[other] = withVersion(documents.value(other), latin1("1.1"));
    const EmbeddedFiles files(documents);
    MessageLog log;
    QCOMPARE(knows(loaded()), QStringList());
    QCOMPARE(log.texts(QtCriticalMsg), QStringList{mismatch});
}

void TestLauncherConfigLoading::nothingEmbeddedIsAnEmptyConfigurationWithoutAMessage()
{
    MessageLog log;
    QCOMPARE(knows(loaded()), QStringList());
    QCOMPARE(log.entries().size(), 0);
}

void TestLauncherConfigLoading::fieldOfAnotherTypeReadsEmpty_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    for (const char *key : {"id", "name", "executable", "description"}) {
        for (const QJsonValue &value : noTexts())
            QTest::addRow("%s %s", key, typeName(value)) << latin1(key) << value;
    }
    for (const char *key : {"platforms", "transports"}) {
        for (const QJsonValue &value : noLists({{latin1("a"), 1}}))
            QTest::addRow("%s %s", key, typeName(value)) << latin1(key) << value;
    }
}

void TestLauncherConfigLoading::fieldOfAnotherTypeReadsEmpty()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject object = tool("id", "bin/Tool", {latin1("linux")}, {latin1("USB")});
    object.insert(key, value);
    const ToolConfig read = onlyTool(object);
    const QMap<QString, bool> empty{{latin1("id"), read.id.isEmpty()}, {latin1("name"), read.name.isEmpty()},
        {latin1("executable"), read.executable.isEmpty()},
        {latin1("description"), read.description.isEmpty()}, {latin1("platforms"), read.platforms.isEmpty()},
        {latin1("transports"), read.transports.isEmpty()}};
    QCOMPARE(empty.keys(true), QStringList{key}); // The others are read all the same.
}

void TestLauncherConfigLoading::groupFieldOfAnotherTypeReadsEmpty_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    for (const char *key : {"name", "brand", "description"}) {
        for (const QJsonValue &value : noTexts())
            QTest::addRow("%s %s", key, typeName(value)) << latin1(key) << value;
    }
    for (const QJsonValue &value : noLists(tool("a", "bin/A")))
        QTest::addRow("tools %s", typeName(value)) << latin1("tools") << value;
}

void TestLauncherConfigLoading::groupFieldOfAnotherTypeReadsEmpty()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject object = group("other", {tool("a", "bin/A")});
    object.insert(latin1("brand"), latin1("Brand"));
    object.insert(latin1("description"), latin1("Description"));
    object.insert(key, value);
    LauncherConfig config;
    config.parseConfig(groups({object}), {}, {});
    const HardwareGroupConfig read = config.findGroupForCamera({});
    const QMap<QString, bool> empty{{latin1("type"), read.type.isEmpty()},
        {latin1("name"), read.name.isEmpty()}, {latin1("brand"), read.brand.isEmpty()},
        {latin1("description"), read.description.isEmpty()}, {latin1("tools"), read.tools.isEmpty()}};
    QCOMPARE(empty.keys(true), QStringList{key}); // The others are read all the same.
}

void TestLauncherConfigLoading::groupWhoseTypeIsNoTextHasTheEmptyKey_data()
{
    QTest::addColumn<QJsonValue>("type");
    for (const QJsonValue &type : noTexts())
        QTest::newRow(typeName(type)) << type;
}

void TestLauncherConfigLoading::groupWhoseTypeIsNoTextHasTheEmptyKey()
{
    QFETCH(QJsonValue, type);
    QJsonObject earlier = group("", {tool("earlier", "bin/Earlier")});
    earlier.insert(latin1("type"), type);
    LauncherConfig config;
    config.parseConfig(groups({earlier}), {}, {});
    QCOMPARE(config.allTools({}).value(0).id, latin1("earlier"));
    // No query gets at the empty key; but what is stored under it as well takes the group's place.
    config.parseConfig(groups({group("", {tool("later", "bin/Later")})}), {}, {});
    QCOMPARE(config.allTools({}).size(), 1);
    QCOMPARE(config.allTools({}).value(0).id, latin1("later"));
}

void TestLauncherConfigLoading::listOfAnotherTypeReadsEmpty_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QStringList>("known");
    const auto add = [](const QString &path, const char *key, const QStringList &known) {
        const QJsonArray list
            = QJsonDocument::fromJson(usableDocuments().value(path)).object().value(latin1(key)).toArray();
        for (const QJsonValue &value : noLists(list.at(0).toObject()))
            QTest::addRow("%s %s", key, typeName(value)) << path << latin1(key) << value << known;
    };
    add(groupsPath, "hardwareGroups", {latin1("compatibility")}); // Without groups no row shows.
    add(referencePath, "cameras", {latin1("groups"), latin1("compatibility")});
}

void TestLauncherConfigLoading::listOfAnotherTypeReadsEmpty()
{
    QFETCH(QString, path);
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject document = QJsonDocument::fromJson(usableDocuments().value(path)).object();
    document.insert(key, value);
    const EmbeddedFiles files(usableDocumentsWith(path, json(document)));
    MessageLog log;
    QTEST(knows(loaded()), "known");
    QCOMPARE(log.entries().size(), 0);
}

void TestLauncherConfigLoading::toolIsReadWhole()
{
    const ToolConfig read = onlyTool(tool(
        "setup", "bin/Setup", {latin1("win32"), latin1("linux_x86_64")}, {latin1("USB"), latin1("GigE")}));
    QCOMPARE(read.id, latin1("setup"));
    QCOMPARE(read.name, latin1("SETUP"));
    QCOMPARE(read.executable, latin1("bin/Setup"));
    QCOMPARE(read.description, latin1("About setup"));
    QCOMPARE(read.platforms, QStringList({latin1("win32"), latin1("linux_x86_64")}));
    QCOMPARE(read.transports, QStringList({latin1("USB"), latin1("GigE")}));
}

void TestLauncherConfigLoading::missingListsAreEmpty()
{
    const ToolConfig read = onlyTool(tool("setup", "bin/Setup"));
    QCOMPARE(read.platforms, QStringList());
    QCOMPARE(read.transports, QStringList());
}

void TestLauncherConfigLoading::listElementsThatAreNoTextBecomeEmptyTexts()
{
    QJsonObject object = tool("setup", "bin/Setup");
    object.insert(latin1("platforms"), QJsonArray{latin1("a"), 7, latin1("b"), QJsonValue()});
    QCOMPARE(onlyTool(object).platforms, QStringList({latin1("a"), QString(), latin1("b"), QString()}));
}

void TestLauncherConfigLoading::groupsThatDifferInLetterCaseLeaveTheLater()
{
    LauncherConfig config;
    config.parseConfig(groups({group("AreaScan", {tool("earlier", "bin/Earlier")}),
                           group("AREASCAN", {tool("later", "bin/Later")})}),
        {}, {});
    const HardwareGroupConfig found = config.findGroupForCamera(camera(latin1("Orvelle"), {}));
    QCOMPARE(found.type, latin1("AREASCAN")); // Only the key is in lower case.
    QCOMPARE(found.tools.value(0).id, latin1("later"));
    QCOMPARE(config.allTools({}).size(), 1);
}

void TestLauncherConfigLoading::nothingIsValidated()
{
    LauncherConfig config;
    QJsonObject document = groups({group("", {tool("", "")}), group("areascan", {tool("a", "bin/A")})});
    QJsonArray array = document.value(latin1("hardwareGroups")).toArray();
    array.append(17); // Reads as a group without anything: it takes the place of the group without a type.
    config.parseConfig(groups({group("", {tool("", "")})}), {}, {});
    QCOMPARE(config.allTools({}).size(), 1);
    document.insert(latin1("hardwareGroups"), array);
    config.parseConfig(document, {}, {});
    QCOMPARE(config.allTools({}).size(), 1);
    QCOMPARE(config.allTools({}).value(0).id, latin1("a"));
}

void TestLauncherConfigLoading::parsingAddsToWhatIsThere()
{
    LauncherConfig config;
    config.parseConfig(
        groups({group("areascan", {tool("a", "bin/A")}), group("other", {tool("o", "bin/O")})}),
        references({{"Kx", "areascan"}}), compatibility({{"HX-1", {latin1("a")}}, {"HX-2", {latin1("a")}}}));
    config.parseConfig(groups({group("areascan", {tool("b", "bin/B")})}), references({{"Zz", "areascan"}}),
        compatibility({{"HX-1", {latin1("b")}}}));
    QCOMPARE(config.allTools({}).size(), 2);
    QCOMPARE(config.findGroupForCamera(camera({}, latin1("Kx"))).tools.value(0).id, latin1("b"));
    QCOMPARE(config.findGroupForCamera(camera({}, latin1("Zz"))).tools.value(0).id, latin1("b"));
    QVERIFY(config.isHalvexToolCompatibleWithCamera(latin1("HX-1"), latin1("b")));
    QVERIFY(!config.isHalvexToolCompatibleWithCamera(latin1("HX-1"), latin1("a")));
    QVERIFY(config.isHalvexToolCompatibleWithCamera(latin1("HX-2"), latin1("a")));
}

void TestLauncherConfigLoading::textsAreReadAsUtf8()
{
    const EmbeddedFiles files({{groupsPath,
        "{\"version\": \"1.0\", \"hardwareGroups\": [{\"type\": \"other\", \"name\": "
        "\"\xc3\x84\xe2\x82\xac\"}]}"}});
    QCOMPARE(loaded().findGroupForCamera({}).name, QString::fromUtf8("\xc3\x84\xe2\x82\xac"));
}

QTEST_GUILESS_MAIN(TestLauncherConfigLoading)
#include "TestLauncherConfigLoading.moc"
