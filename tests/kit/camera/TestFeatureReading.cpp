#include "sdk/testing/Gate.h"
#include "tests/kit/camera/OpenableCamera.h"
#include "tools/kit/camera/CameraConnection.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/camera/ReadBatch.h"
#include "tools/kit/camera/ReadQueue.h"

#include <QtTest>

#include <atomic>

using namespace CvxCPP;
using std::chrono::milliseconds;

namespace {

constexpr int hangTimeout = 10000;
constexpr int featureCount = 20;

using Names = std::vector<std::string>;

QStringList featureNames(int first, int count)
{
    QStringList names;
    for (int number = first; number < first + count; ++number)
        names.append(QStringLiteral("Feature%1").arg(number, 2, 10, QLatin1Char('0')));
    return names;
}

/// A camera whose reads can be held.
struct HeldCamera
{
    HeldCamera()
    {
        for (const QString &name : featureNames(0, featureCount))
            camera->device().add(name.toStdString(), 1.0);
        camera->device().addCommand("TriggerSoftware");
        camera->device().beforeCall = [this](const std::string &call) {
            if (call == "ReadStates" && isHeld)
                gate.pass();
        };
    }

    bool open()
    {
        QSignalSpy loaded(&features, &FeatureClient::nodesLoaded);
        connection.open(OpenableCamera::entry(camera), CvxAccessControl);
        return loaded.wait(hangTimeout);
    }

    /// Returns the features in the order in which they were read.
    QStringList readNames()
    {
        QStringList names;
        for (const Names &call : camera->device().calls("ReadStates")) {
            for (const std::string &name : call)
                names.append(QString::fromStdString(name));
        }
        return names;
    }

    CvxScripted::Gate gate;
    std::atomic<bool> isHeld = true;
    std::shared_ptr<OpenableCamera> camera = std::make_shared<OpenableCamera>("CAM-1");
    CameraConnection connection;
    FeatureClient features{connection};
};

} // namespace

class TestFeatureReading : public QObject
{
    Q_OBJECT

private slots:
    void sizeFollowsTheTimeOfACall_data();
    void sizeFollowsTheTimeOfACall();
    void queueKeepsItsOrder();
    void slowCameraDoesNotDelayTheList();
    void newlyWatchedFeaturesAreReadFirst();
    void firstCallIsSmall();
    void changesOfOthersAreReported();
};

void TestFeatureReading::sizeFollowsTheTimeOfACall_data()
{
    using Times = QVector<int>;
    QTest::addColumn<Times>("times"); // Milliseconds per feature, for each call.
    QTest::addColumn<QVector<int>>("sizes"); // Before the first call, and after each of them.
    QTest::newRow("fast") << Times{0, 1, 0, 1, 1, 1} << QVector<int>{2, 4, 8, 16, 32, 64, 64};
    QTest::newRow("twenty fit") << Times{10, 10, 10, 10} << QVector<int>{2, 4, 8, 16, 20};
    QTest::newRow("slow from the start") << Times{200, 200} << QVector<int>{2, 1, 1};
    QTest::newRow("very slow") << Times{1000, 3000} << QVector<int>{2, 1, 1};
    QTest::newRow("becomes slow") << Times{1, 1, 1, 100, 100} << QVector<int>{2, 4, 8, 16, 2, 2};
    QTest::newRow("slow ones among fast ones") << Times{500, 0, 0, 0, 0} << QVector<int>{2, 1, 2, 4, 5, 5};
    QTest::newRow("one hung call") << Times{5000, 0, 0} << QVector<int>{2, 1, 1, 1};
}

void TestFeatureReading::sizeFollowsTheTimeOfACall()
{
    QFETCH(QVector<int>, times);
    QFETCH(QVector<int>, sizes);
    ReadBatch batch;
    QVector<int> seen{static_cast<int>(batch.size())};
    for (const int time : qAsConst(times)) {
        batch.wasRead(batch.size(), milliseconds(time) * static_cast<int>(batch.size()));
        seen.append(static_cast<int>(batch.size()));
    }
    QCOMPARE(seen, sizes);
    const std::size_t before = batch.size();
    batch.wasRead(1, milliseconds(0));
    QVERIFY(batch.size() <= std::max<std::size_t>(before, 2)); // One feature says nothing about many.
}

void TestFeatureReading::queueKeepsItsOrder()
{
    const auto list = [](const char *names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); };
    ReadQueue queue;
    queue.append(list("a b c d"));
    queue.append(list("e a"));
    queue.prepend(list("x"));
    queue.prepend(list("y c"));
    queue.endGroup();
    queue.prepend(list("z"));
    QCOMPARE(queue.take(2), list("z x"));
    queue.remove(QStringLiteral("b"));
    queue.remove(QStringLiteral("missing"));
    QCOMPARE(queue.take(100), list("y c a d e"));
    QVERIFY(queue.isEmpty());
    queue.append(list("a"));
    queue.clear();
    QVERIFY(queue.isEmpty());
}

void TestFeatureReading::slowCameraDoesNotDelayTheList()
{
    HeldCamera held;
    held.features.watch(featureNames(0, 2));
    QVERIFY(held.open()); // Although the first read has not ended.
    QVERIFY(!held.features.state(QStringLiteral("Feature00")));
    QSignalSpy changes(&held.features, &FeatureClient::stateChanged);
    QSignalSpy loaded(&held.features, &FeatureClient::nodesLoaded);
    held.gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(changes.count(), 2, hangTimeout);
    QVERIFY(held.features.state(QStringLiteral("Feature00")));
    QCOMPARE(loaded.count(), 0); // Once is enough.
}

void TestFeatureReading::newlyWatchedFeaturesAreReadFirst()
{
    HeldCamera held;
    QVERIFY(held.open());
    const QStringList early = featureNames(0, 6);
    const QStringList shown = featureNames(6, 3);
    held.features.watch(early);
    QTRY_COMPARE_WITH_TIMEOUT(held.readNames().size(), 2, hangTimeout); // This read blocks, so others wait.
    held.features.unwatch({early[3]});
    for (const QString &name : shown) // Each is watched like a row that becomes visible.
        held.features.watch({name});
    held.gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(
        held.features.state(early.last()) && held.features.state(shown.last()), hangTimeout);
    QCOMPARE(held.readNames(), early.mid(0, 2) + shown + QStringList{early[2]} + early.mid(4));
}

void TestFeatureReading::firstCallIsSmall()
{
    HeldCamera held;
    held.isHeld = false;
    held.features.watch(featureNames(0, featureCount));
    QVERIFY(held.open());
    QTRY_VERIFY_WITH_TIMEOUT(held.readNames().size() >= featureCount, hangTimeout);
    QCOMPARE(held.camera->device().calls("ReadStates").front().size(), ReadBatch::firstSize);
    QStringList names = held.readNames();
    names.sort();
    QCOMPARE(names, featureNames(0, featureCount)); // Each of them once.
}

void TestFeatureReading::changesOfOthersAreReported()
{
    HeldCamera held;
    held.isHeld = false;
    const QString name = QStringLiteral("Feature00");
    const QString command = QStringLiteral("TriggerSoftware");
    held.features.watch({name});
    QVERIFY(held.open());
    QSignalSpy writes(&held.features, &FeatureClient::written);
    QSignalSpy executed(&held.features, &FeatureClient::executed);
    held.camera->device().change([](ScriptedDevice &device) { device.set("Feature00", 2.5); });
    held.features.noteWritten(name, 1.0, 2.0);
    QCOMPARE(held.features.state(name)->value, NodeValue(2.0));
    QCOMPARE(writes.count(), 1);
    QCOMPARE(writes[0][1].value<NodeValue>(), NodeValue(1.0));
    QCOMPARE(writes[0][2].value<NodeValue>(), NodeValue(2.0));
    QTRY_COMPARE_WITH_TIMEOUT(held.features.state(name)->value, NodeValue(2.5), hangTimeout);
    held.features.noteWritten(name, 1.0, 2.0); // What the camera has made of the value is already known.
    QCOMPARE(held.features.state(name)->value, NodeValue(2.5));

    held.features.noteExecuted(command);
    QCOMPARE(executed.count(), 1);
    held.features.execute(command);
    QTRY_COMPARE_WITH_TIMEOUT(executed.count(), 2, hangTimeout);
    QCOMPARE(executed[1][0].toString(), command);
    held.camera->device().lose("Unplugged.");
    QSignalSpy failures(&held.features, &FeatureClient::failed);
    held.features.execute(command);
    QTRY_COMPARE_WITH_TIMEOUT(failures.count(), 1, hangTimeout);
    QCOMPARE(executed.count(), 2);
}

QTEST_GUILESS_MAIN(TestFeatureReading)
#include "TestFeatureReading.moc"
