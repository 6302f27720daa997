#include "config/LauncherConfig.h"
#include "tests/config/ConfigDocuments.h"
#include "tests/config/EmbeddedFiles.h"
#include "tests/support/CameraBuilder.h"
#include "tests/support/MarkingTranslator.h"
#include "tests/support/MessageLog.h"

#include <QtTest>

using namespace ConfigDocuments;

class TestLauncherConfigLoading : public QObject
{
    Q_OBJECT

private slots:
    void versionsOfTheFirstTwoDocumentsMustBeEqual_data();
    void versionsOfTheFirstTwoDocumentsMustBeEqual();
    void mismatchMessageIsTranslated();
    void unusableDocumentIsReplacedByAnEmptyOne_data();
    void unusableDocumentIsReplacedByAnEmptyOne();
    void everyFieldIsRead();
    void valueOfTheWrongTypeReadsAsEmpty_data();
    void valueOfTheWrongTypeReadsAsEmpty();
    void laterGroupReplacesAGroupThatDiffersOnlyInLetterCase();
    void groupsAndToolsAreNotValidated();
    void parsingKeepsEarlierContents();
};

namespace {

const QString groupsPath = "config/launcher_config.json"_s;
const QString referencePath = "config/cameras_reference.json"_s;
const QString compatibilityPath = "config/halvex_tool_compatibility.json"_s;
const QString mismatch = "Configuration files version mismatch!"_s;
const QString everything = "groups references compatibility"_s;

QMap<QString, QByteArray> usableDocuments()
{
    return {{groupsPath, json(groups({group("areascan", {tool("viewer", "bin/Viewer")}), group("other")}))},
        {referencePath, json(references({{"Kx200", "areascan"}}))},
        {compatibilityPath, json(compatibility("HX-1", {"viewer"_s}))}};
}

/// Sets the version of the document. A null version makes the document unusable instead.
void setVersion(QByteArray &document, const QJsonValue &version)
{
    QJsonObject object = QJsonDocument::fromJson(document).object();
    object.insert("version"_s, version);
    document = version.isNull() ? QByteArray("{") : json(object);
}

/// Loads the documents and returns the names of the documents whose contents were loaded.
QString loadedDocuments(const QMap<QString, QByteArray> &documents)
{
    const EmbeddedFiles files(documents);
    LauncherConfig config;
    config.load();
    QStringList names;
    if (!config.allTools("linux"_s).isEmpty())
        names.append("groups"_s);
    if (config.findGroupForCamera(camera({}, "Kx200"_s)).type == "areascan"_s)
        names.append("references"_s);
    if (!config.isHalvexToolCompatibleWithCamera("HX-1"_s, "another tool"_s))
        names.append("compatibility"_s);
    return names.join(QLatin1Char(' '));
}

/// Parses this group, whose type has to be "other", and returns the result.
HardwareGroupConfig parsedGroup(const QJsonObject &group)
{
    LauncherConfig config;
    config.parseConfig(groups({group}), {}, {});
    return config.findGroupForCamera({});
}

} // namespace

void TestLauncherConfigLoading::versionsOfTheFirstTwoDocumentsMustBeEqual_data()
{
    QTest::addColumn<QJsonValue>("groupsVersion");
    QTest::addColumn<QJsonValue>("referenceVersion");
    QTest::addColumn<bool>("equal");
    const auto add = [](const char *name, const QJsonValue &left, const QJsonValue &right, bool equal) {
        QTest::newRow(name) << left << right << equal;
    };
    add("equal", "2.7b"_s, "2.7b"_s, true);
    add("different", "1.1"_s, "1.0"_s, false);
    add("other letter case", "2.7b"_s, "2.7B"_s, false);
    add("trailing blank", "1.0"_s, "1.0 "_s, false);
    add("equal numbers", "1.0"_s, "1"_s, false);
    add("both missing", QJsonValue::Undefined, QJsonValue::Undefined, true);
    add("one missing", "1.0"_s, QJsonValue::Undefined, false);
    add("number and missing", 1.0, QJsonValue::Undefined, true);
    add("number and string", 1.0, "1.0"_s, false);
    add("unusable groups have version 1.0", QJsonValue::Null, "1.1"_s, false);
    add("unusable references have version 1.0", "1.1"_s, QJsonValue::Null, false);
}

void TestLauncherConfigLoading::versionsOfTheFirstTwoDocumentsMustBeEqual()
{
    QFETCH(QJsonValue, groupsVersion);
    QFETCH(QJsonValue, referenceVersion);
    QFETCH(bool, equal);
    QMap<QString, QByteArray> documents = usableDocuments();
    setVersion(documents[groupsPath], groupsVersion);
    setVersion(documents[referencePath], referenceVersion);
    setVersion(documents[compatibilityPath], "7.3"_s); // Intended: this version does not matter.
    const MessageLog log;
    QCOMPARE(loadedDocuments(documents), equal ? everything : QString());
    QCOMPARE(log.texts(QtCriticalMsg), equal ? QStringList() : QStringList{mismatch});
    QCOMPARE(log.entries().size(), equal ? 0 : 1);
}

void TestLauncherConfigLoading::mismatchMessageIsTranslated()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const MessageLog log;
    QCOMPARE(loadedDocuments({{groupsPath, "{\"version\": \"2\"}"}}), QString());
    QCOMPARE(log.texts(QtCriticalMsg), QStringList{"[LauncherConfig] "_s + mismatch});
}

void TestLauncherConfigLoading::unusableDocumentIsReplacedByAnEmptyOne_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("loaded");
    // Without groups, no camera gets the picture of a reference row.
    const QMap<QString, QString> loaded{{groupsPath, "compatibility"_s},
        {referencePath, "groups compatibility"_s}, {compatibilityPath, "groups references"_s}};
    const QMap<QByteArray, QByteArray> contents{{"missing", "MISSING"}, {"empty", ""},
        {"cut off", "{\"version\": \"9\", \"cameras\": ["}, {"text after the object", "{} x"},
        {"array", "[{\"version\": \"9\"}]"}, {"null", "null"}, {"other root keys", "{\"version\": \"1.0\"}"},
        {"list of another type", "{\"version\": \"1.0\", \"hardwareGroups\": 7, \"cameras\": \"x\"}"}};
    for (const QString &path : {groupsPath, referencePath, compatibilityPath}) {
        for (auto content = contents.begin(); content != contents.end(); ++content) {
            QTest::addRow("%s: %s", qPrintable(path), content.key().constData())
                << path << content.value() << loaded.value(path);
        }
    }
}

void TestLauncherConfigLoading::unusableDocumentIsReplacedByAnEmptyOne()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    QMap<QString, QByteArray> documents = usableDocuments();
    documents.insert(path, content);
    if (content == "MISSING")
        documents.remove(path);
    const MessageLog log;
    QTEST(loadedDocuments(documents), "loaded");
    QCOMPARE(log.entries().size(), 0);
}

void TestLauncherConfigLoading::everyFieldIsRead()
{
    QJsonObject setupObject = tool("setup", "bin/Setup", {}, {"USB"_s, "GigE"_s});
    // The number is read as an empty string.
    setupObject.insert("platforms"_s, QJsonArray{"win32"_s, 7, "linux"_s});
    QJsonObject groupObject = group("other", {setupObject, tool("viewer")});
    groupObject.insert("brand"_s, "Brand"_s);
    groupObject.insert("description"_s, "Ä €"_s); // The document is encoded in UTF-8.
    const EmbeddedFiles files({{groupsPath, json(groups({groupObject}))}});
    LauncherConfig config;
    config.load();
    const HardwareGroupConfig group = config.findGroupForCamera({});
    QCOMPARE(QStringList({group.type, group.name, group.brand, group.description}),
        QStringList({"other"_s, "OTHER"_s, "Brand"_s, "Ä €"_s}));
    QCOMPARE(group.tools.size(), 2);
    const ToolConfig setup = group.tools.at(0);
    QCOMPARE(QStringList({setup.id, setup.name, setup.executable, setup.description}),
        QStringList({"setup"_s, "SETUP"_s, "bin/Setup"_s, "About setup"_s}));
    QCOMPARE(setup.platforms, QStringList({"win32"_s, QString(), "linux"_s}));
    QCOMPARE(setup.transports, QStringList({"USB"_s, "GigE"_s}));
    QCOMPARE(group.tools.at(1).id, "viewer"_s);
    QCOMPARE(group.tools.at(1).platforms + group.tools.at(1).transports, QStringList());
}

void TestLauncherConfigLoading::valueOfTheWrongTypeReadsAsEmpty_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined);
    QTest::newRow("null") << QJsonValue();
    QTest::newRow("boolean") << QJsonValue(true);
    QTest::newRow("number") << QJsonValue(12);
    QTest::newRow("object") << QJsonValue(QJsonObject{{"x"_s, "x"_s}});
}

// All fields of the tool and of the group have this value, except for the type and the tools of the group.
void TestLauncherConfigLoading::valueOfTheWrongTypeReadsAsEmpty()
{
    QFETCH(QJsonValue, value);
    QJsonObject toolObject;
    for (const QString &key : tool("id", "x", {"x"_s}, {"x"_s}).keys())
        toolObject.insert(key, value);
    const QJsonObject groupObject{{"type"_s, "other"_s}, {"name"_s, value}, {"brand"_s, value},
        {"description"_s, value}, {"tools"_s, QJsonArray{toolObject}}};
    const HardwareGroupConfig group = parsedGroup(groupObject);
    QCOMPARE(group.name + group.brand + group.description, QString());
    QCOMPARE(group.tools.size(), 1);
    const ToolConfig read = group.tools.at(0);
    QCOMPARE(read.id + read.name + read.executable + read.description, QString());
    QCOMPARE(read.platforms + read.transports, QStringList());
    QCOMPARE(parsedGroup({{"type"_s, "other"_s}, {"tools"_s, value}}).tools.size(), 0);
}

void TestLauncherConfigLoading::laterGroupReplacesAGroupThatDiffersOnlyInLetterCase()
{
    LauncherConfig config;
    config.parseConfig(
        groups({group("AreaScan", {tool("earlier")}), group("AREASCAN", {tool("later")})}), {}, {});
    const HardwareGroupConfig group = config.findGroupForCamera(camera("Orvelle"_s, {}));
    QCOMPARE(group.type, "AREASCAN"_s); // Only the key in the map is in lower case.
    QCOMPARE(group.tools.value(0).id, "later"_s);
    QCOMPARE(config.allTools({}).size(), 1);
}

void TestLauncherConfigLoading::groupsAndToolsAreNotValidated()
{
    LauncherConfig config;
    config.parseConfig(groups({group("", {tool("")})}), {}, {});
    QCOMPARE(config.allTools({}).size(), 1);
    // The new group replaces the first one, because both types are empty.
    config.parseConfig(groups({17}), {}, {});
    QCOMPARE(config.allTools({}).size(), 0);
}

void TestLauncherConfigLoading::parsingKeepsEarlierContents()
{
    LauncherConfig config;
    config.parseConfig(groups({group("areascan", {tool("a")}), group("other", {tool("o")})}),
        references({{"Kx", "areascan"}}), compatibility("HX-1", {"a"_s}));
    config.parseConfig(groups({group("areascan", {tool("b")})}), references({{"Zz", "areascan"}}),
        compatibility("HX-2", {"b"_s}));
    QCOMPARE(config.allTools({}).size(), 2);
    QCOMPARE(config.findGroupForCamera(camera({}, "Kx"_s)).tools.value(0).id, "b"_s);
    QCOMPARE(config.findGroupForCamera(camera({}, "Zz"_s)).tools.value(0).id, "b"_s);
    QVERIFY(!config.isHalvexToolCompatibleWithCamera("HX-1"_s, "b"_s));
    QVERIFY(!config.isHalvexToolCompatibleWithCamera("HX-2"_s, "a"_s));
}

QTEST_GUILESS_MAIN(TestLauncherConfigLoading)
#include "TestLauncherConfigLoading.moc"
