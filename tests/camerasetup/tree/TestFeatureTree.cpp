#include "tools/camerasetup/tree/FeatureTree.h"
#include "tools/camerasetup/tree/ValueMarks.h"
#include "tools/camerasetup/values/ValueText.h"

#include <QtTest>

using namespace CvxCPP;
using std::chrono::milliseconds;

namespace {

/// Describes a feature as "name" or "name@category" with "<selector" for each selector. Names that begin with
/// "C", and "Root", are categories.
NodeInfo node(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('<'));
    NodeInfo info;
    info.name = parts.first().section(QLatin1Char('@'), 0, 0).toStdString();
    info.category = parts.first().section(QLatin1Char('@'), 1).toStdString();
    info.type = info.name[0] == 'C' || info.name == "Root" ? NodeType::Category : NodeType::Integer;
    for (const QString &selector : parts.mid(1))
        info.selectors.push_back(selector.toStdString());
    return info;
}

QVector<NodeInfo> nodes(const QString &text)
{
    QVector<NodeInfo> list;
    for (const QString &part : text.split(QLatin1Char(' ')))
        list.append(node(part));
    return list;
}

/// Writes what is below a feature as "a(b c)"; each row and each parent is checked.
QString written(const FeatureTree &tree, const QVector<NodeInfo> &list, int parent)
{
    QStringList parts;
    for (const int child : tree.children(parent)) {
        if (tree.parent(child) != parent || tree.row(child) != parts.size())
            return QStringLiteral("A row or a parent is wrong.");
        const QString below = written(tree, list, child);
        const QString name = QString::fromStdString(list[child].name);
        parts.append(below.isEmpty() ? name : QStringLiteral("%1(%2)").arg(name, below));
    }
    return parts.join(QLatin1Char(' '));
}

NodeInfo typed(NodeType type, NodeRepresentation representation = NodeRepresentation::Undefined)
{
    NodeInfo info;
    info.type = type;
    info.representation = representation;
    info.unit = type == NodeType::Float ? "us" : "";
    info.entries = {{"Once", "Only once", 1}};
    return info;
}

NodeState valued(const NodeValue &value, NodeAccess access = NodeAccess::ReadWrite)
{
    NodeState state;
    state.value = value;
    state.access = access;
    return state;
}

} // namespace

class TestFeatureTree : public QObject
{
    Q_OBJECT

private slots:
    void featuresHaveOnePlace_data();
    void featuresHaveOnePlace();
    void deepListsStayShallow();
    void valuesAreWrittenForPeople_data();
    void valuesAreWrittenForPeople();
    void marksFadeAndSilenceSuppressesThem();
};

void TestFeatureTree::featuresHaveOnePlace_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("tree");

    const auto row = [](const char *name, const char *list, const char *tree) {
        QTest::newRow(name) << QString::fromLatin1(list) << QString::fromLatin1(tree);
    };
    row("categories in the camera's order", "Root C2@Root C1@Root a@C1 b@C2 c@C1", "C2(b) C1(a c)");
    row("selected features below the selector", "C1 s@C1 a@C1<s b@C1", "C1(s(a) b)");
    row("the innermost selector", "C1 s@C1 t@C1<s a@C1<s<t b@C1<t<s", "C1(s(t(a b)))");
    row("a selector of another category", "C1 C2 s@C1 a@C2<s", "C1(s) C2(a)");
    row("several selectors that do not select each other", "C1 s@C1 t@C1 a@C1<s<t", "C1(s(a) t)");
    row("no categories", "a b<a c", "a(b) c");
    row("unknown category and selector", "C1 a@C9 b@C1<x", "C1(b) a");
    row("a category that is a feature", "a b@a", "a b");
    row("categories that contain each other", "C1@C2 C2@C1 a@C1 b@C2", "C1(C2(b) a)");
    row("a category that contains itself", "C1@C1 a@C1", "C1(a)");
    row("selectors that select each other", "C1 s@C1<t t@C1<s a@C1<t", "C1(s(t(a)))");
    row("a selector of itself", "C1 s@C1<s", "C1(s)");
    row("two cycles", "C1@C2 C2@C1 s@C1<t t@C1<s", "C1(C2 s(t))");
    row("duplicate names", "C1 a@C1 a@C1 C1 b@C1", "C1(a a b) C1");
    row("a root that is contained", "Root@C1 C1@Root a@C1", "Root(C1(a))");
    row("no features", "Root", "");
}

void TestFeatureTree::featuresHaveOnePlace()
{
    QFETCH(QString, list);
    const QVector<NodeInfo> features = nodes(list);
    QTEST(written(FeatureTree(features), features, FeatureTree::none), "tree");
}

void TestFeatureTree::deepListsStayShallow()
{
    constexpr int count = 20000;
    QVector<NodeInfo> list;
    for (int i = 0; i < count; ++i) // The innermost category is the first one.
        list.append(node(QStringLiteral("C%1@C%2").arg(i).arg(i + 1)));
    const FeatureTree tree(list);
    std::size_t found = tree.children(FeatureTree::none).size();
    int deepest = 0;
    for (int i = 0; i < count; ++i) {
        found += tree.children(i).size();
        int depth = 0;
        for (int above = i; above != FeatureTree::none; above = tree.parent(above))
            ++depth;
        deepest = qMax(deepest, depth);
    }
    QCOMPARE(found, std::size_t(count));
    QVERIFY(deepest <= 32);
}

void TestFeatureTree::valuesAreWrittenForPeople_data()
{
    QTest::addColumn<NodeInfo>("info");
    QTest::addColumn<NodeState>("state");
    QTest::addColumn<QString>("text");

    using Bytes = std::vector<std::uint8_t>;
    const auto row = [](const char *text, const NodeInfo &info, const NodeState &state) {
        QTest::newRow(text) << info << state << QString::fromUtf8(text);
    };
    row("10.5 µs", typed(NodeType::Float), valued(10.5));
    row("0x1F", typed(NodeType::Integer, NodeRepresentation::HexNumber), valued(std::int64_t(31)));
    row("10.0.0.1", typed(NodeType::Integer, NodeRepresentation::IPv4Address),
        valued(std::int64_t(0x0a000001)));
    row("On", typed(NodeType::Boolean), valued(true));
    row("Only once", typed(NodeType::Enumeration), valued(std::string("Once")));
    row("Twice", typed(NodeType::Enumeration), valued(std::string("Twice")));
    row("a b", typed(NodeType::String), valued(std::string("a\nb")));
    row("01 FF", typed(NodeType::Register), valued(Bytes{1, 255}));
    row("00 00 00 00 00 00 00 00 … (20 bytes)", typed(NodeType::Register), valued(Bytes(20)));
    row("Run", typed(NodeType::Command), valued({}));
    NodeState running = valued({});
    running.isCommandDone = false;
    row("Running …", typed(NodeType::Command), running);
    row("not available", typed(NodeType::Integer), valued({}, NodeAccess::NotAvailable));
    NodeState unreadable = valued({});
    unreadable.problem = "No answer.";
    row("cannot be read", typed(NodeType::Integer), unreadable);
}

void TestFeatureTree::valuesAreWrittenForPeople()
{
    QFETCH(NodeInfo, info);
    QFETCH(NodeState, state);
    QTEST(valueText(info, state), "text");
}

void TestFeatureTree::marksFadeAndSilenceSuppressesThem()
{
    const auto start = ValueMarks::Clock::now();
    const auto at = [start](int time) { return start + milliseconds(time); };
    const QString name = QStringLiteral("Gain");
    ValueMarks marks;

    marks.add(name, at(0));
    QCOMPARE(marks.strength(name, at(0)), 1.0);
    QCOMPARE(marks.strength(name, at(500)), 0.5);
    QCOMPARE(marks.advance(at(500)), QStringList{name});
    QCOMPARE(marks.advance(at(1000)), QStringList{name}); // To be painted without a mark.
    QVERIFY(marks.isEmpty());

    marks.add(name, at(2000));
    marks.silence(name, at(2001));
    QCOMPARE(marks.strength(name, at(2001)), 0.0);
    marks.add(name, at(3000)); // Still part of what the person has done.
    QVERIFY(marks.isEmpty());
    marks.add(name, at(3001));
    QCOMPARE(marks.strength(name, at(3001)), 1.0);
}

Q_DECLARE_METATYPE(CvxCPP::NodeInfo)
Q_DECLARE_METATYPE(CvxCPP::NodeState)

QTEST_APPLESS_MAIN(TestFeatureTree)
#include "TestFeatureTree.moc"
