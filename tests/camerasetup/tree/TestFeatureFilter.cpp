#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/tree/FilterHint.h"

#include <QPushButton>
#include <QtTest>

using namespace CvxCPP;

namespace {

struct Entry
{
    const char *name;
    const char *category;
    const char *displayName;
    const char *description;
    NodeVisibility visibility;
};

constexpr Entry entries[] = {
    {"Gain", "Analog", "Gain", "Amplifies the signal.", NodeVisibility::Beginner},
    {"GainAuto", "Analog", "Automatic Gain", "Controls the gain.", NodeVisibility::Expert},
    {"BlackLevel", "Analog", "Black Level", "Lifts the SIGNAL.", NodeVisibility::Guru},
    {"ExposureTime", "Acquisition", "Exposure Time", "", NodeVisibility::Beginner},
    {"Secret", "Acquisition", "Secret", "", NodeVisibility::Invisible},
};

void addFeatures(TestDevice &device)
{
    for (const char *const category : {"Analog", "Acquisition"})
        device.add(category, {}).info.type = NodeType::Category;
    for (const Entry &entry : entries) {
        NodeInfo &info = device.add(entry.name, std::int64_t(0)).info;
        info.category = entry.category;
        info.displayName = entry.displayName;
        info.description = entry.description;
        info.visibility = entry.visibility;
    }
}

/// Returns the names that are shown, those below others too.
QStringList shown(const FeatureFilter &filter, const QModelIndex &parent = {})
{
    QStringList names;
    for (int row = 0; row < filter.rowCount(parent); ++row) {
        const QModelIndex index = filter.index(row, 0, parent);
        names.append(filter.model().name(filter.featureOf(index)));
        names += shown(filter, index);
    }
    return names;
}

} // namespace

class TestFeatureFilter : public QObject
{
    Q_OBJECT

private slots:
    void filterShowsMatchesBelowTheirCategories_data();
    void filterShowsMatchesBelowTheirCategories();
    void marksAreFollowed();
    void hintSaysWhatIsHiddenAndShowsIt();
};

void TestFeatureFilter::filterShowsMatchesBelowTheirCategories_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("names");
    QTest::addColumn<int>("hiddenByLevel");

    const auto row = [](const char *name, const char *text, NodeVisibility level, const char *names,
                         int hidden) {
        QTest::newRow(name) << QString::fromLatin1(text) << int(level) << QString::fromLatin1(names)
                            << hidden;
    };
    const NodeVisibility guru = NodeVisibility::Guru;
    row("everything but the invisible", "", guru,
        "Analog Gain GainAuto BlackLevel Acquisition ExposureTime", 0);
    row("beginner", "", NodeVisibility::Beginner, "Analog Gain Acquisition ExposureTime", 2);
    row("part of a name", "gainau", guru, "Analog GainAuto", 0);
    row("display name", "k lev", guru, "Analog BlackLevel", 0);
    row("description, any letter case", "signal", guru, "Analog Gain BlackLevel", 0);
    row("several words in any order", " gain  AUTO ", guru, "Analog GainAuto", 0);
    row("all words", "gain exposure", guru, "", 0);
    row("hidden by the level", "signal", NodeVisibility::Expert, "Analog Gain", 1);
    row("a category without matches", "acqui", guru, "Acquisition ExposureTime", 0);
    row("invisible features are not counted", "secret", guru, "", 0);
}

void TestFeatureFilter::filterShowsMatchesBelowTheirCategories()
{
    QFETCH(QString, text);
    QFETCH(int, level);
    EditorBench bench(addFeatures);
    FeatureTreeModel model(bench.client);
    FeatureFilter filter(model);
    QAbstractItemModelTester tester(&filter);
    filter.setLevel(NodeVisibility(level));
    filter.setText(text);
    QTEST(shown(filter).join(QLatin1Char(' ')), "names");
    QTEST(filter.hiddenByLevel(), "hiddenByLevel");

    filter.clear(); // Everything of the level is back.
    filter.setLevel(NodeVisibility::Guru);
    QCOMPARE(shown(filter).size(), 6);
}

void TestFeatureFilter::marksAreFollowed()
{
    EditorBench bench(addFeatures);
    FeatureTreeModel model(bench.client);
    QSet<QString> changed;
    QSet<QString> favourites{QStringLiteral("ExposureTime"), QStringLiteral("Gain")};
    model.setMarkTests([&changed](const QString &name) { return changed.contains(name); },
        [&favourites](const QString &name) { return favourites.contains(name); });
    FeatureFilter filter(model);
    filter.setOnlyFavourites(true);
    QCOMPARE(shown(filter).join(QLatin1Char(' ')), QStringLiteral("Analog Gain Acquisition ExposureTime"));
    filter.setOnlyChanged(true);
    QCOMPARE(shown(filter), QStringList());
    changed.insert(QStringLiteral("Gain"));
    model.updateMarks({QStringLiteral("Gain")});
    QCOMPARE(shown(filter).join(QLatin1Char(' ')), QStringLiteral("Analog Gain"));
}

void TestFeatureFilter::hintSaysWhatIsHiddenAndShowsIt()
{
    EditorBench bench(addFeatures);
    FeatureTreeModel model(bench.client);
    FeatureFilter filter(model);
    FilterHint hint(filter);
    QVERIFY(hint.isHidden());
    filter.setText(QStringLiteral("lifts"));
    QVERIFY(!hint.isHidden());
    QVERIFY2(hint.text().contains(QLatin1Char('1')), qPrintable(hint.text()));
    hint.findChild<QPushButton *>()->click();
    QCOMPARE(shown(filter).join(QLatin1Char(' ')), QStringLiteral("Analog BlackLevel"));
    QVERIFY(hint.isHidden());

    filter.setText(QStringLiteral("nothing like this"));
    hint.findChild<QPushButton *>()->click();
    QCOMPARE(shown(filter).size(), 6);
    QCOMPARE(filter.text(), QString());
}

QTEST_MAIN(TestFeatureFilter)
#include "TestFeatureFilter.moc"
