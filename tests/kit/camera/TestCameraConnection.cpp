#include "sdk/testing/Gate.h"
#include "tests/kit/camera/OpenableCamera.h"
#include "tools/kit/camera/CameraConnection.h"

#include <QtTest>

using namespace CvxCPP;
using State = CameraConnection::State;

namespace {

std::shared_ptr<OpenableCamera> makeCamera(const std::string &id = "CAM-1")
{
    auto camera = std::make_shared<OpenableCamera>(id);
    camera->device().add("Gain", 1.0);
    return camera;
}

/// A connection with an opened camera.
struct OpenConnection
{
    explicit OpenConnection(CvxAccess access = CvxAccessControl)
    {
        connection.open(OpenableCamera::entry(camera), access);
        isOpen = QTest::qWaitFor([this] { return connection.state() == State::Open; }, 10000);
    }

    std::shared_ptr<OpenableCamera> camera = makeCamera();
    CameraConnection connection;
    bool isOpen = false;
};

} // namespace

class TestCameraConnection : public QObject
{
    Q_OBJECT

private slots:
    void cameraIsOpenedInTheBackground();
    void failureOfOpeningIsReported_data();
    void failureOfOpeningIsReported();
    void lossAndReturnAreFollowed();
    void lossBeforeTheFirstObserverIsNoticed();
    void shutdownOfTheSystemCloses();
    void closingWhileOpeningIsImmediate();
    void lateResultOfAnotherCameraIsDropped();
    void callsAreMadeInOrder();
    void callsWithoutDeviceFail();
    void resultsAreNotDeliveredToTheDead();
    void waitingCallsAreNotMadeAfterClose();
    void onlyAnOpenCameraWithControlIsControlled();
    void changedNodesAreReported();
};

void TestCameraConnection::cameraIsOpenedInTheBackground()
{
    CvxScripted::Gate gate;
    const auto camera = makeCamera();
    camera->onOpen = [&gate] {
        gate.pass();
        return CvxResult();
    };
    CameraConnection connection;
    QCOMPARE(connection.state(), State::Closed);
    connection.open(OpenableCamera::entry(camera), CvxAccessExclusive);
    QCOMPARE(connection.state(), State::Opening);
    QVERIFY(!connection.device());
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Open, 10000);
    QCOMPARE(connection.device().get(), static_cast<Device *>(&camera->device()));
    QCOMPARE(camera->opened(), std::vector<CvxAccess>{CvxAccessExclusive});
    QCOMPARE(connection.camera().deviceId, QStringLiteral("CAM-1"));
    QCOMPARE(connection.reason(), QString());

    connection.close();
    QCOMPARE(connection.state(), State::Closed);
    QVERIFY(!connection.device());
    QTRY_VERIFY_WITH_TIMEOUT(camera->device().isClosed(), 10000);
}

void TestCameraConnection::failureOfOpeningIsReported_data()
{
    QTest::addColumn<CvxError>("error");
    QTest::addColumn<State>("expected");
    QTest::newRow("in use") << CvxErrorInUse << State::InUse;
    QTest::newRow("gone") << CvxErrorNotFound << State::Failed;
    QTest::newRow("slow") << CvxErrorTimeout << State::Failed;
}

void TestCameraConnection::failureOfOpeningIsReported()
{
    QFETCH(const CvxError, error);
    QFETCH(const State, expected);
    const auto camera = makeCamera();
    camera->onOpen = [error] { return CvxResult{error, "The reason."}; };
    CameraConnection connection;
    connection.open(OpenableCamera::entry(camera), CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), expected, 10000);
    QCOMPARE(connection.reason(), QStringLiteral("The reason."));
    QVERIFY(!connection.device());
}

void TestCameraConnection::lossAndReturnAreFollowed()
{
    OpenConnection opened;
    QVERIFY(opened.isOpen);
    CameraConnection &connection = opened.connection;
    QSignalSpy changes(&connection, &CameraConnection::stateChanged);
    opened.camera->device().lose("The cable was pulled.");
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Lost, 10000);
    const QDateTime since = connection.since();
    opened.camera->device().lose("The camera was not found."); // An attempt of the SDK has failed.
    opened.camera->device().reopen("The camera refuses one value.");
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Open, 10000);
    QCOMPARE(connection.reason(), QStringLiteral("The camera refuses one value."));
    QCOMPARE(changes.count(), 2);
    QVERIFY(connection.since() >= since);
}

void TestCameraConnection::lossBeforeTheFirstObserverIsNoticed()
{
    const auto camera = makeCamera();
    camera->onOpen = [&] {
        camera->device().lose("Unplugged.");
        return CvxResult();
    };
    CameraConnection connection;
    connection.open(OpenableCamera::entry(camera), CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Lost, 10000);
    QVERIFY(connection.device() != nullptr);
}

void TestCameraConnection::shutdownOfTheSystemCloses()
{
    OpenConnection opened;
    QVERIFY(opened.isOpen);
    static_cast<void>(opened.camera->device().Close());
    QTRY_COMPARE_WITH_TIMEOUT(opened.connection.state(), State::Closed, 10000);
    QVERIFY(!opened.connection.device());
}

void TestCameraConnection::closingWhileOpeningIsImmediate()
{
    CvxScripted::Gate gate;
    const auto camera = makeCamera();
    camera->onOpen = [&gate] {
        gate.pass();
        return CvxResult();
    };
    CameraConnection connection;
    connection.open(OpenableCamera::entry(camera), CvxAccessControl);
    QVERIFY(gate.waitForArrival());
    connection.close();
    QCOMPARE(connection.state(), State::Closed);
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(camera->device().isClosed(), 10000);
    QCoreApplication::processEvents();
    QCOMPARE(connection.state(), State::Closed);
}

void TestCameraConnection::lateResultOfAnotherCameraIsDropped()
{
    CvxScripted::Gate gate;
    const auto slow = makeCamera("slow");
    slow->onOpen = [&gate] {
        gate.pass();
        return CvxResult();
    };
    const auto quick = makeCamera("quick");
    CameraConnection connection;
    connection.open(OpenableCamera::entry(slow), CvxAccessControl);
    QVERIFY(gate.waitForArrival());
    connection.open(OpenableCamera::entry(quick), CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Open, 10000); // Although the other one still blocks.
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(slow->device().isClosed(), 10000);
    QCoreApplication::processEvents();
    QCOMPARE(connection.state(), State::Open);
    QCOMPARE(connection.device().get(), static_cast<Device *>(&quick->device()));
    QVERIFY(!quick->device().isClosed());
}

void TestCameraConnection::callsAreMadeInOrder()
{
    OpenConnection opened;
    QVERIFY(opened.isOpen);
    QStringList results;
    const QThread *const guiThread = QThread::currentThread();
    for (const double gain : {2.0, 3.0}) {
        opened.connection.run([gain](Device &device) { return device.WriteFloat("Gain", gain); }, this,
            [&, gain](const CvxResult &result) {
                results.append(QStringLiteral("%1 %2 %3")
                                   .arg(gain)
                                   .arg(result.code)
                                   .arg(QThread::currentThread() == guiThread));
            });
    }
    QVERIFY(results.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(
        results, QStringList({QStringLiteral("2 0 1"), QStringLiteral("3 0 1")}), 10000);
    QCOMPARE(opened.camera->device().writtenValues("Gain"), (std::vector<NodeValue>{2.0, 3.0}));
}

void TestCameraConnection::callsWithoutDeviceFail()
{
    CameraConnection connection;
    CvxResult received;
    connection.run(
        [](Device &) { return CvxResult(); }, this, [&](const CvxResult &result) { received = result; });
    QCOMPARE(received.code, CvxErrorSuccess); // Never before run() has returned.
    QTRY_COMPARE_WITH_TIMEOUT(received.code, CvxErrorClosed, 10000);
}

void TestCameraConnection::resultsAreNotDeliveredToTheDead()
{
    OpenConnection opened;
    QVERIFY(opened.isOpen);
    bool isDelivered = false;
    bool isLastDelivered = false;
    auto context = std::make_unique<QObject>();
    const auto call = [](Device &) { return CvxResult(); };
    opened.connection.run(call, context.get(), [&](const CvxResult &) { isDelivered = true; });
    opened.connection.run(call, this, [&](const CvxResult &) { isLastDelivered = true; });
    context.reset();
    QTRY_VERIFY_WITH_TIMEOUT(isLastDelivered, 10000);
    QVERIFY(!isDelivered);

    opened.connection.run(call, this, [&](const CvxResult &) { isDelivered = true; });
    opened.connection.open(OpenableCamera::entry(makeCamera("other")), CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(opened.connection.state(), State::Open, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(opened.camera->device().isClosed(), 10000);
    QCoreApplication::processEvents();
    QVERIFY(!isDelivered);
}

void TestCameraConnection::waitingCallsAreNotMadeAfterClose()
{
    OpenConnection opened;
    QVERIFY(opened.isOpen);
    CvxScripted::Gate gate;
    int madeCalls = 0; // Only used on the connection's thread until the results have arrived.
    QVector<CvxError> results;
    const auto call = [&](Device &) {
        ++madeCalls;
        gate.pass();
        return CvxResult();
    };
    const auto done = [&](const CvxResult &result) { results.append(result.code); };
    opened.connection.run(call, this, done);
    opened.connection.run(call, this, done);
    QVERIFY(gate.waitForArrival());
    opened.connection.close();
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(results, QVector<CvxError>({CvxErrorSuccess, CvxErrorClosed}), 10000);
    QCOMPARE(madeCalls, 1);
}

void TestCameraConnection::onlyAnOpenCameraWithControlIsControlled()
{
    OpenConnection watching(CvxAccessWatch);
    QVERIFY(watching.isOpen);
    QVERIFY(!watching.connection.isControlled());
    OpenConnection controlling(CvxAccessControl);
    QVERIFY(controlling.connection.isControlled());
    controlling.camera->device().lose("Unplugged.");
    QTRY_VERIFY_WITH_TIMEOUT(!controlling.connection.isControlled(), 10000);
}

void TestCameraConnection::changedNodesAreReported()
{
    OpenConnection opened;
    QVERIFY(opened.isOpen);
    QSignalSpy changes(&opened.connection, &CameraConnection::nodesChanged);
    opened.camera->device().notifyNodes({"Gain", "Gamma"});
    QTRY_COMPARE_WITH_TIMEOUT(changes.count(), 1, 10000);
    QCOMPARE(changes.first().first().toStringList(),
        QStringList({QStringLiteral("Gain"), QStringLiteral("Gamma")}));
}

QTEST_GUILESS_MAIN(TestCameraConnection)
#include "TestCameraConnection.moc"
