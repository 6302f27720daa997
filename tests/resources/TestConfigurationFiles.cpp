#include "config/LauncherConfig.h"
#include "tests/resources/JsonResource.h"

#include <QFontMetrics>
#include <QMap>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

QJsonArray groups()
{
    return jsonObject(QStringLiteral(":/config/launcher_config.json"))
        .value(QStringLiteral("hardwareGroups"))
        .toArray();
}

QJsonArray toolsOf(const QJsonValue &group)
{
    return group[QStringLiteral("tools")].toArray();
}

/// Every tool row of every group, in file order.
QVector<QJsonObject> toolRows()
{
    QVector<QJsonObject> rows;
    for (const QJsonValue &group : groups()) {
        for (const QJsonValue &tool : toolsOf(group))
            rows << tool.toObject();
    }
    return rows;
}

QString text(const QJsonValue &object, const char *key)
{
    return object[QLatin1String(key)].toString();
}

/// One field of every reference row.
QStringList referenceTexts(const char *key)
{
    const QJsonObject root = jsonObject(QStringLiteral(":/config/cameras_reference.json"));
    QStringList result;
    for (const QJsonValue &row : root.value(QStringLiteral("cameras")).toArray())
        result << text(row, key);
    return result;
}

QFont tileFont(int pixels, QFont::Weight weight)
{
    QFont font;
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

/// The groups, tools and reference cameras that are shipped.
class TestConfigurationFiles : public QObject
{
    Q_OBJECT

private slots:
    void documentsCarryTheSameVersion_data();
    void documentsCarryTheSameVersion();
    void fiveGroupsInOrder_data();
    void fiveGroupsInOrder();
    void viewerIsTheFirstToolOfEveryGroup();
    void fileNamesNineTools();
    void sameToolIsDescribedTheSameEverywhere();
    void twoToolRowsCarryOptionalLists();
    void executablesLieInBin();
    void tileShowsNameInOneLineAndDescriptionInTwo();
    void toolsOfAPlatform_data();
    void toolsOfAPlatform();
    void referenceRowsPerType_data();
    void referenceRowsPerType();
    void referenceModelsHaveDistinctTexts();
    void referencePicturesLieInTheCameraFolder();
};

void TestConfigurationFiles::documentsCarryTheSameVersion_data()
{
    QTest::addColumn<QString>("path");
    for (const char *name : {"launcher_config", "cameras_reference", "halvex_tool_compatibility"})
        QTest::newRow(name) << QStringLiteral(":/config/%1.json").arg(QLatin1String(name));
}

void TestConfigurationFiles::documentsCarryTheSameVersion()
{
    QFETCH(QString, path);
    QCOMPARE(jsonObject(path).value(QStringLiteral("version")).toString(), QStringLiteral("1.0"));
}

void TestConfigurationFiles::fiveGroupsInOrder_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("toolCount");
    const auto row = [](const char *type, const char *name, const char *brand, const char *description,
                         int toolCount) {
        const auto latin1 = [](const char *s) { return QString::fromLatin1(s); };
        QTest::newRow(type) << QStringList{latin1(type), latin1(name), latin1(brand), latin1(description)}
                            << toolCount;
    };
    row("areascan", "Area Scan Cameras", "Orvelle", "Standard area scan cameras for machine vision", 3);
    row("linescan", "Line Scan Cameras", "Lintaro", "Line scan cameras for high-speed inspection", 2);
    row("highres", "High Resolution Cameras", "KORDANE",
        "High-performance cameras for demanding applications", 6);
    row("other", "Other", "other", "Frame grabbers and other camera interfaces", 1);
    row("simulator", "Simulator", "simulator", "Orvelle cameras simulator", 1);
}

void TestConfigurationFiles::fiveGroupsInOrder()
{
    QFETCH(QStringList, texts);
    QFETCH(int, toolCount);
    const QStringList order{QStringLiteral("areascan"), QStringLiteral("linescan"), QStringLiteral("highres"),
        QStringLiteral("other"), QStringLiteral("simulator")};
    QCOMPARE(groups().size(), order.size());

    const QJsonValue group = groups().at(order.indexOf(texts.first()));
    const QStringList found{
        text(group, "type"), text(group, "name"), text(group, "brand"), text(group, "description")};
    QCOMPARE(found, texts);
    QCOMPARE(toolsOf(group).size(), toolCount);
}

void TestConfigurationFiles::viewerIsTheFirstToolOfEveryGroup()
{
    for (const QJsonValue &group : groups()) {
        const QJsonValue first = toolsOf(group).at(0);
        QCOMPARE(text(first, "id"), QStringLiteral("image-viewer"));
        QCOMPARE(text(first, "executable"), QStringLiteral("bin/ImageViewer"));
        QVERIFY(!first.toObject().contains(QStringLiteral("platforms")));
    }
}

void TestConfigurationFiles::fileNamesNineTools()
{
    QSet<QString> ids, executables;
    for (const QJsonObject &tool : toolRows()) {
        ids << text(tool, "id");
        executables << text(tool, "executable");
    }
    QCOMPARE(ids.size(), 9);
    QCOMPARE(executables.size(), 9);
}

void TestConfigurationFiles::sameToolIsDescribedTheSameEverywhere()
{
    QMap<QString, QJsonObject> byId;
    for (const QJsonObject &tool : toolRows()) {
        const QString id = text(tool, "id");
        QCOMPARE(byId.value(id, tool), tool);
        byId.insert(id, tool);
    }
}

void TestConfigurationFiles::twoToolRowsCarryOptionalLists()
{
    const QString platforms = QStringLiteral("platforms"), transports = QStringLiteral("transports");
    QVector<QStringList> found;
    for (const QJsonValue &group : groups()) {
        for (const QJsonValue &tool : toolsOf(group)) {
            if (tool.toObject().contains(platforms) || tool.toObject().contains(transports))
                found << (QStringList{text(group, "type")} + strings(tool[platforms])
                    + strings(tool[transports]));
        }
    }
    const QVector<QStringList> expected{
        {QStringLiteral("areascan"), QStringLiteral("win32"), QStringLiteral("USB"), QStringLiteral("GigE")},
        {QStringLiteral("linescan"), QStringLiteral("win32"), QStringLiteral("linux_x86_64")}};
    QCOMPARE(found, expected);
}

void TestConfigurationFiles::executablesLieInBin()
{
    for (const QJsonObject &tool : toolRows()) {
        const QString executable = text(tool, "executable");
        QVERIFY2(
            executable.startsWith(QStringLiteral("bin/")) && executable.size() > 4, qPrintable(executable));
    }
}

void TestConfigurationFiles::tileShowsNameInOneLineAndDescriptionInTwo()
{
    const QSize inside(185 - 2 * 6, 70 - 2 * 6);
    const QFontMetrics name(tileFont(13, QFont::Bold)), description(tileFont(11, QFont::Normal));
    for (const QJsonObject &tool : toolRows()) {
        const QString title = text(tool, "name");
        QVERIFY2(!title.isEmpty() && name.horizontalAdvance(title) <= inside.width(), qPrintable(title));
        const QString sentence = text(tool, "description");
        const QRect wrapped
            = description.boundingRect(QRect(0, 0, inside.width(), 1000), Qt::TextWordWrap, sentence);
        QVERIFY2(!sentence.isEmpty() && wrapped.height() <= description.height() + description.lineSpacing(),
            qPrintable(title));
        QVERIFY2(name.height() + 2 + wrapped.height() <= inside.height(), qPrintable(title));
    }
}

void TestConfigurationFiles::toolsOfAPlatform_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QStringList>("ids");
    const QStringList everywhere{QStringLiteral("image-viewer"), QStringLiteral("camera-setup"),
        QStringLiteral("pixel-repair"), QStringLiteral("flat-field"), QStringLiteral("focus-assist"),
        QStringLiteral("thermal-monitor"), QStringLiteral("tap-balance")};
    QTest::newRow("x86-64") << QStringLiteral("linux_x86_64")
                            << (everywhere + QStringList{QStringLiteral("line-tuner")});
    QTest::newRow("arm64") << QStringLiteral("linux_arm64") << everywhere;
}

void TestConfigurationFiles::toolsOfAPlatform()
{
    QFETCH(QString, platform);
    LauncherConfig config;
    config.load();
    QStringList ids;
    for (const ToolConfig &tool : config.allTools(platform))
        ids << tool.id;
    QTEST(ids, "ids");
}

void TestConfigurationFiles::referenceRowsPerType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("count");
    QTest::newRow("areascan") << QStringLiteral("areascan") << 17;
    QTest::newRow("highres") << QStringLiteral("highres") << 4;
    QTest::newRow("linescan") << QStringLiteral("linescan") << 4;
}

void TestConfigurationFiles::referenceRowsPerType()
{
    QFETCH(QString, type);
    const QStringList types = referenceTexts("type");
    QCOMPARE(types.size(), 25);
    QTEST(int(types.count(type)), "count");
}

void TestConfigurationFiles::referenceModelsHaveDistinctTexts()
{
    const QStringList models = referenceTexts("model");
    QCOMPARE(QSet<QString>(models.begin(), models.end()).size(), models.size());
    const auto shorter = [](const QString &left, const QString &right) { return left.size() < right.size(); };
    QCOMPARE(std::min_element(models.begin(), models.end(), shorter)->size(), 2);
    QCOMPARE(std::max_element(models.begin(), models.end(), shorter)->size(), 14);
    QCOMPARE(models.filter(QStringLiteral(" ")).size(), 11);
    QVERIFY(models.contains(QStringLiteral("Kx200")) && models.contains(QStringLiteral("Kx200 Pro")));
}

void TestConfigurationFiles::referencePicturesLieInTheCameraFolder()
{
    const QString folder = QStringLiteral("assets/cameras/");
    for (const QString &thumbnail : referenceTexts("thumbnail"))
        QVERIFY2(thumbnail.startsWith(folder) && thumbnail.size() > folder.size(), qPrintable(thumbnail));
}

QTEST_MAIN(TestConfigurationFiles)
#include "TestConfigurationFiles.moc"
