#include "tools/camerasetup/details/FeatureFacts.h"

#include <QtTest>

using namespace CvxCPP;

Q_DECLARE_METATYPE(CvxCPP::NodeInfo)
Q_DECLARE_METATYPE(CvxCPP::NodeState)

namespace {

/// Returns the facts as "title: text", features as their names.
QStringList lines(const NodeInfo &info, const NodeState *state)
{
    QStringList texts;
    for (const FeatureFact &fact : featureFacts(info, state))
        texts.append(
            fact.title + QStringLiteral(": ") + fact.text + fact.features.join(QStringLiteral(" + ")));
    return texts;
}

} // namespace

class TestFeatureFacts : public QObject
{
    Q_OBJECT

private slots:
    void factsFollowTheType_data();
    void factsFollowTheType();
};

void TestFeatureFacts::factsFollowTheType_data()
{
    QTest::addColumn<NodeInfo>("info");
    QTest::addColumn<NodeState>("state");
    QTest::addColumn<QStringList>("expected");

    NodeInfo number;
    number.type = NodeType::Integer;
    number.representation = NodeRepresentation::HexNumber;
    number.unit = "us";
    number.pollingTime = 500;
    number.isStreamable = true;
    number.selectors = {"Outer", "Inner"};
    NodeState state;
    state.access = NodeAccess::ReadWrite;
    state.minimum = std::int64_t(16);
    state.maximum = std::int64_t(255);
    state.increment = std::int64_t(2);
    state.lockingNode = "Mode";
    QTest::newRow("integer")
        << number << state
        << QStringList{QStringLiteral("Type: Integer"), QStringLiteral("Shown as: Hexadecimal"),
               QStringLiteral("Unit: \u00b5s"), QStringLiteral("Minimum: 0x10 \u00b5s"),
               QStringLiteral("Maximum: 0xFF \u00b5s"), QStringLiteral("Increment: 0x2 \u00b5s"),
               QStringLiteral("Access: Read and write"), QStringLiteral("Level: Beginner"),
               QStringLiteral("In settings files: Yes"), QStringLiteral("Changes by itself: Every 500 ms"),
               QStringLiteral("Selected by: Outer + Inner"), QStringLiteral("Depends on: Mode")};

    NodeInfo mode;
    mode.type = NodeType::Enumeration;
    mode.visibility = NodeVisibility::Guru;
    mode.entries = {{"A", "First", 0}, {"B", "Second", 1}, {"C", "Third", 2}};
    mode.selected = {"Gain"};
    NodeState modeState;
    modeState.access = NodeAccess::ReadOnly;
    modeState.availableEntries = {"B"};
    modeState.problem = "The camera does not answer.";
    QTest::newRow("enumeration") << mode << modeState
                                 << QStringList{QStringLiteral("Type: Enumeration"),
                                        QStringLiteral("Not allowed now: First, Third"),
                                        QStringLiteral("Access: Read only"), QStringLiteral("Level: Guru"),
                                        QStringLiteral("In settings files: No"),
                                        QStringLiteral("Selects: Gain"),
                                        QStringLiteral("Problem: The camera does not answer.")};

    NodeInfo absent = mode;
    absent.selected.clear();
    NodeState absentState;
    absentState.access = NodeAccess::NotAvailable;
    QTest::newRow("enumeration that is not available")
        << absent << absentState
        << QStringList{QStringLiteral("Type: Enumeration"),
               QStringLiteral("Access: Not available at present"), QStringLiteral("Level: Guru"),
               QStringLiteral("In settings files: No")};

    NodeInfo category;
    QTest::newRow("category") << category << NodeState()
                              << QStringList{
                                     QStringLiteral("Type: Category"), QStringLiteral("Level: Beginner")};
}

void TestFeatureFacts::factsFollowTheType()
{
    QFETCH(NodeInfo, info);
    QFETCH(NodeState, state);
    QTEST(lines(info, &state), "expected");
    QVERIFY(!lines(info, nullptr).isEmpty());
}

QTEST_GUILESS_MAIN(TestFeatureFacts)
#include "TestFeatureFacts.moc"
