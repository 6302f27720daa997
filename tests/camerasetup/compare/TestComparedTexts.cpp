#include "tools/camerasetup/compare/ComparisonExport.h"
#include "tools/camerasetup/compare/ComparisonFilter.h"
#include "tools/camerasetup/compare/FileMerge.h"

#include <QtTest>

using namespace CvxCPP;

namespace {

ComparedSide cameraSide(const std::vector<FeatureSetting> &settings)
{
    NodeInfo gain, mode, serial;
    gain.name = "Gain";
    gain.displayName = "Total gain";
    gain.category = "Analog";
    gain.unit = "dB";
    gain.type = NodeType::Float;
    gain.selectors = {"Tap"};
    mode.name = "Tap";
    mode.type = NodeType::Enumeration;
    mode.entries = {{"A", "First tap", 0}};
    mode.selected = {"Gain"};
    serial.name = "DeviceSerialNumber";
    serial.type = NodeType::String;
    return {settings, FeatureDirectory({gain, mode, serial})};
}

std::vector<DifferenceRow> rowsOf(
    const std::vector<FeatureSetting> &left, const std::vector<FeatureSetting> &right)
{
    const ComparedSide leftSide = cameraSide(left);
    const ComparedSide rightSide = cameraSide(right);
    return SettingTexts(leftSide.directory, rightSide.directory).rows(compareFeatures(leftSide, rightSide));
}

const std::vector<SelectorSetting> tapA{{"Tap", "A"}};
const std::vector<FeatureSetting> leftSettings{
    {tapA, "Gain", "1.5"}, {{}, "DeviceSerialNumber", "1"}, {{}, "Same", "7"}, {{}, "Gone", "<&>"}};
const std::vector<FeatureSetting> rightSettings{
    {tapA, "Gain", "2"}, {{}, "DeviceSerialNumber", "2"}, {{}, "Same", "7"}};

/// Returns the settings as one text, for example "Gain[Tap=A]=1".
QString settingsText(const std::vector<FeatureSetting> &settings)
{
    QStringList texts;
    for (const FeatureSetting &setting : settings) {
        texts.append(SettingTexts::rawTitle(setting.name, setting.selectors) + QLatin1Char('=')
            + QString::fromStdString(setting.value));
    }
    return texts.join(QLatin1Char(' '));
}

std::vector<FeatureSetting> settingsOf(const QString &lines)
{
    const auto parsed = parseFeatureFile("# {05D8C294-F295-4dfb-9D01-096BD04049F4}\n" + lines.toStdString());
    return std::get<FeatureFile>(parsed).settings;
}

ComparisonReport reportOf(const std::vector<DifferenceRow> &rows)
{
    const QDateTime time(QDate(2024, 2, 29), QTime(12, 30));
    ComparisonReport report{{QStringLiteral("File <a&b>"), time}, {QStringLiteral("Camera %1"), time},
        QStringLiteral("2 of 3"), {}};
    for (const DifferenceRow &row : rows) {
        report.rows.append(
            {row.category, row.title, SettingTexts::rawTitle(row.feature.name, row.feature.selectors),
                row.left, row.right, row.feature.difference, row.feature.isIgnorable});
    }
    return report;
}

} // namespace

class TestComparedTexts : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreTextsForPeople();
    void differentValuesNeverLookEqual();
    void filterChoosesTheRows_data();
    void filterChoosesTheRows();
    void numbersAreASentence();
    void changesAreMergedIntoAFile_data();
    void changesAreMergedIntoAFile();
    void valueThatNoFileCanHoldIsReported();
    void textHasColumns();
    void pageIsEscapedAndComplete();
};

void TestComparedTexts::valuesAreTextsForPeople()
{
    const DifferenceRow gain = rowsOf(leftSettings, rightSettings).front();
    QCOMPARE(gain.title, QStringLiteral("Total gain [First tap]"));
    QCOMPARE(gain.category, QStringLiteral("Analog"));
    QCOMPARE(gain.left, QStringLiteral("1.5 dB"));
    QCOMPARE(
        SettingTexts::rawTitle(gain.feature.name, gain.feature.selectors), QStringLiteral("Gain [Tap=A]"));
}

void TestComparedTexts::differentValuesNeverLookEqual()
{
    NodeInfo mode;
    mode.name = "Mode";
    mode.type = NodeType::Enumeration;
    mode.entries = {{"A", "Fast", 0}, {"B", "Fast", 1}};
    const FeatureDirectory directory({mode});
    const auto features = compareFeatures({{{{}, "Mode", "A"}}, directory}, {{{{}, "Mode", "B"}}, directory});
    const DifferenceRow row = SettingTexts(directory, directory).rows(features).front();
    QCOMPARE(row.left + row.right, QStringLiteral("AB"));
}

void TestComparedTexts::filterChoosesTheRows_data()
{
    QTest::addColumn<bool>("isEqualShown");
    QTest::addColumn<bool>("isIgnorableShown");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("expected");
    QTest::newRow("default") << false << false << ""
                             << "Gain Gone";
    QTest::newRow("equal") << true << false << ""
                           << "Gain Same Gone";
    QTest::newRow("ignorable") << false << true << ""
                               << "Gain DeviceSerialNumber Gone";
    QTest::newRow("all") << true << true << ""
                         << "Gain DeviceSerialNumber Same Gone";
    QTest::newRow("title") << true << true << " TOTAL "
                           << "Gain";
    QTest::newRow("name") << true << true << "ial"
                          << "DeviceSerialNumber";
    QTest::newRow("value") << true << true << "2 db"
                           << "Gain";
    QTest::newRow("nothing") << true << true << "unknown"
                             << "";
}

void TestComparedTexts::filterChoosesTheRows()
{
    QFETCH(const bool, isEqualShown);
    QFETCH(const bool, isIgnorableShown);
    QFETCH(const QString, search);
    const ComparisonFilter filter{isEqualShown, isIgnorableShown, search};
    QStringList names;
    for (const DifferenceRow &row : rowsOf(leftSettings, rightSettings)) {
        if (filter.shows(row))
            names.append(QString::fromStdString(row.feature.name));
    }
    QTEST(names.join(QLatin1Char(' ')), "expected");
}

void TestComparedTexts::numbersAreASentence()
{
    const ComparisonCounts counts = ComparisonCounts::of(rowsOf(leftSettings, rightSettings));
    QCOMPARE(counts.all, 3);
    QCOMPARE(counts.different, 2);
    QCOMPARE(counts.ignorable, 1);
    QCOMPARE(counts.summary({}),
        QStringLiteral(
            "2 of 3 setting(s) differ. 1 more difference(s) that belong to one camera or one moment "
            "are hidden."));
    QVERIFY(!counts.summary({false, true, {}}).contains(QStringLiteral("hidden")));
    QCOMPARE(ComparisonCounts::of(rowsOf(leftSettings, leftSettings)).summary({}),
        QStringLiteral("No difference in 3 setting(s)."));
}

void TestComparedTexts::changesAreMergedIntoAFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("changes");
    QTest::addColumn<bool>("isCameraKnown");
    QTest::addColumn<QString>("expected");
    QTest::newRow("replaced in place") << "A\t1\nB\t2\nC\t3"
                                       << "B\t5" << true << "A=1 B=5 C=3";
    QTest::newRow("appended") << "A\t1\nB\t2"
                              << "C\t5" << true << "A=1 B=2 C=5";
    QTest::newRow("last repeat") << "A\t1\nA\t2"
                                 << "A\t5" << true << "A=1 A=5";
    QTest::newRow("selected") << "Tap\tA\nGain\t1\nTap\tB\nGain\t2\nC\t3"
                              << "Gain\t{Tap=A}\t5" << true << "Gain [Tap=A]=5 Gain [Tap=B]=2 C=3";
    QTest::newRow("other value of the selector")
        << "Tap\tA\nGain\t1\nC\t3"
        << "Gain\t{Tap=B}\t5" << true << "Gain [Tap=A]=1 Gain [Tap=B]=5 C=3";
    QTest::newRow("file without selector") << "Gain\t1\nC\t3"
                                           << "Gain\t{Tap=B}\t5" << true << "Gain=5 C=3";
    QTest::newRow("guessed selector")
        << "XSelector\tA\nM\t1\nXSelector\tB\nM\t2"
        << "M\t{XSelector=B}\t5" << false << "M [XSelector=A]=1 M [XSelector=B]=5";
}

void TestComparedTexts::changesAreMergedIntoAFile()
{
    QFETCH(const QString, file);
    QFETCH(const QString, changes);
    QFETCH(const bool, isCameraKnown);
    LoadReport report;
    const FeatureDirectory directory = isCameraKnown ? cameraSide({}).directory : FeatureDirectory();
    const auto merged = mergedSettings(settingsOf(file), settingsOf(changes), directory, report);
    QTEST(settingsText(merged), "expected");
    QCOMPARE(report.count(FeatureOutcome::Changed), std::size_t(1));
    // The text of the file means the same.
    const auto parsed = std::get<FeatureFile>(parseFeatureFile(formatFeatureFile(merged, "")));
    QVERIFY(compareFeatures({parsed.settings, directory}, {merged, directory}).size() > 0);
    for (const ComparedFeature &feature :
        compareFeatures({directory.resolve(parsed.settings), directory}, {merged, directory})) {
        if (isCameraKnown)
            QCOMPARE(feature.difference, FeatureDifference::Equal);
    }
}

void TestComparedTexts::valueThatNoFileCanHoldIsReported()
{
    LoadReport report;
    const auto merged = mergedSettings({{{}, "A", "1"}}, {{{}, "A", "two\nlines"}}, {}, report);
    QCOMPARE(settingsText(merged), QStringLiteral("A=1"));
    QCOMPARE(report.count(FeatureOutcome::Failed), std::size_t(1));
    QVERIFY(!report.changes.front().reason.empty());
}

void TestComparedTexts::textHasColumns()
{
    const QString text = comparisonText(reportOf(rowsOf(leftSettings, rightSettings)));
    const QStringList lines = text.split(QLatin1Char('\n'));
    QVERIFY2(lines.contains(QStringLiteral("Analog")), qPrintable(text));
    const auto line = [&lines](const QString &start) {
        const QStringList found = lines.filter(QRegularExpression(QStringLiteral("^  ") + start));
        return found.value(0);
    };
    const QString gain = line(QStringLiteral("Total gain"));
    const QString gone = line(QStringLiteral("Gone"));
    QCOMPARE(gain.indexOf(QStringLiteral("1.5 dB")), gone.indexOf(QStringLiteral("<&>")));
    QCOMPARE(gain.indexOf(QStringLiteral("2 dB")), gone.indexOf(QStringLiteral("(missing)")));
    QVERIFY(line(QStringLiteral("DeviceSerialNumber"))
                .endsWith(QStringLiteral("belongs to one camera or one moment")));
    QVERIFY(line(QStringLiteral("Same")).endsWith(QStringLiteral("equal")));
    QVERIFY(text.contains(QStringLiteral("Right: Camera %1, ")));
}

void TestComparedTexts::pageIsEscapedAndComplete()
{
    const QString page = comparisonPage(reportOf(rowsOf(leftSettings, rightSettings)));
    QVERIFY(page.startsWith(QStringLiteral("<!DOCTYPE html>")));
    QVERIFY(page.endsWith(QStringLiteral("</body></html>\n")));
    QVERIFY(page.contains(QStringLiteral("File &lt;a&amp;b&gt;")));
    QVERIFY(
        page.contains(QStringLiteral("<td class=\"different\">&lt;&amp;&gt;</td><td class=\"missing\">")));
    QVERIFY(page.contains(QStringLiteral("<tr class=\"ignorable\">")));
    QVERIFY(page.contains(QStringLiteral("Camera %1")));
    QVERIFY(!page.contains(QStringLiteral("<&>")) && !page.contains(QStringLiteral("http")));
    for (const char *const tag : {"table", "tr", "td", "th", "h2", "p", "style", "tbody"}) {
        const QString name = QString::fromLatin1(tag);
        QCOMPARE(page.count(QRegularExpression(QStringLiteral("<%1[ >]").arg(name))),
            page.count(QStringLiteral("</%1>").arg(name)));
    }
}

QTEST_APPLESS_MAIN(TestComparedTexts)
#include "TestComparedTexts.moc"
