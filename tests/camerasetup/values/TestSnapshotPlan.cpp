#include "tools/camerasetup/values/SnapshotPlan.h"

#include <QtTest>

using namespace CvxCPP;

namespace {

/// Returns the features Width, and Gain and BlackLevel, which ChannelSelector selects.
FeatureDirectory directory()
{
    std::vector<NodeInfo> nodes;
    for (const char *const name : {"Width", "ChannelSelector", "Gain", "BlackLevel"}) {
        NodeInfo node;
        node.name = name;
        node.type = NodeType::Float;
        nodes.push_back(node);
    }
    nodes[1].selected = {"Gain", "BlackLevel"};
    nodes[2].selectors = nodes[3].selectors = {"ChannelSelector"};
    return FeatureDirectory(std::move(nodes));
}

/// Returns a plan with a part of which one combination is finished.
SnapshotPlan begunPlan()
{
    SnapshotPlan plan;
    plan.add(directory(), "Gain");
    plan.add(directory(), "BlackLevel");
    SnapshotPart part = plan.take(2);
    part.finished.insert("Red");
    plan.putBack(part);
    return plan;
}

} // namespace

class TestSnapshotPlan : public QObject
{
    Q_OBJECT

private slots:
    void unselectedFeaturesComeFirst();
    void begunPartKeepsWhatIsFinished();
    void changeOfWaitingFeatureLetsItsPartBeginAgain();
    void changeOfTakenFeatureLetsItsPartBeginAgain();
    void endlessPartIsNotContinued();
};

void TestSnapshotPlan::unselectedFeaturesComeFirst()
{
    SnapshotPlan plan;
    plan.add(directory(), "Gain");
    plan.add(directory(), "Width");
    QCOMPARE(plan.take(10).names, std::vector<std::string>{"Width"});
}

void TestSnapshotPlan::begunPartKeepsWhatIsFinished()
{
    SnapshotPlan plan = begunPlan();
    const SnapshotPart part = plan.take(1); // A begun part is not split.
    QCOMPARE(part.names, (std::vector<std::string>{"Gain", "BlackLevel"}));
    QCOMPARE(part.finished, std::set<std::string>{"Red"});
    QVERIFY(plan.isEmpty());
}

void TestSnapshotPlan::changeOfWaitingFeatureLetsItsPartBeginAgain()
{
    SnapshotPlan plan = begunPlan();
    plan.add(directory(), "BlackLevel");
    QVERIFY(plan.take(2).finished.empty());
    QVERIFY(plan.isEmpty());
}

void TestSnapshotPlan::changeOfTakenFeatureLetsItsPartBeginAgain()
{
    SnapshotPlan plan = begunPlan();
    SnapshotPart part = plan.take(2);
    plan.add(directory(), "Gain");
    QVERIFY(plan.putBack(part));
    QVERIFY(plan.take(2).finished.empty());
    QVERIFY(plan.isEmpty());
}

void TestSnapshotPlan::endlessPartIsNotContinued()
{
    SnapshotPlan plan = begunPlan();
    SnapshotPart part = plan.take(2);
    for (std::size_t count = part.finished.size(); count < SnapshotPlan::maxCombinations; ++count)
        part.finished.insert(std::to_string(count));
    QVERIFY(!plan.putBack(part));
    QVERIFY(plan.isEmpty());
    QCOMPARE(part.names.size(), std::size_t(2)); // For the notes.
}

QTEST_GUILESS_MAIN(TestSnapshotPlan)
#include "TestSnapshotPlan.moc"
