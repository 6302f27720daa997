#include "app/CameraObserver.h"
#include "app/InterfaceObserver.h"
#include "sdk/testing/ScriptedCvxCPP.h"

#include <QMutex>
#include <QSignalSpy>
#include <QtTest>

#include <climits>

using namespace CvxCPP;
using namespace CvxScripted;

namespace {

std::shared_ptr<Camera> cameraWithExtendedId(const std::string &extendedId)
{
    CameraRecord record;
    record.id = "plain";
    record.extendedId = extendedId;
    return makeCamera(record);
}

/// Returns the arguments of each signal that the observer emits for this notification.
QList<QVariantList> reported(const std::shared_ptr<Camera> &camera, unsigned reason = UpdateTriggerPluggedIn)
{
    CameraObserver observer(nullptr);
    const QSignalSpy spy(&observer, &CameraObserver::updateDeviceList);
    observer.CameraListChanged(camera, UpdateTriggerType(reason));
    return spy.mid(0);
}

} // namespace

/// The two observers on their own.
class TestObservers : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void cameraIsReportedWithItsExtendedId_data();
    void cameraIsReportedWithItsExtendedId();
    void cameraWithoutAReadableIdIsNotReported();
    void everyInterfaceChangeIsReported();
    void mutexIsHeldOnlyDuringTheNotification();
};

void TestObservers::cameraIsReportedWithItsExtendedId_data()
{
    QTest::addColumn<QByteArray>("extendedId");
    QTest::addColumn<unsigned>("reason");
    QTest::addColumn<QString>("id");
    QTest::newRow("plugged in") << QByteArray("if/device") << 0u << QStringLiteral("if/device");
    QTest::newRow("plugged out, UTF-8") << QByteArray("\xc3\xa4") << 1u << QStringLiteral("\u00e4");
    QTest::newRow("unknown reason, empty ID") << QByteArray("") << UINT_MAX << QString();
}

void TestObservers::cameraIsReportedWithItsExtendedId()
{
    QFETCH(QByteArray, extendedId);
    QFETCH(unsigned, reason);
    QFETCH(QString, id);
    const auto camera = cameraWithExtendedId(extendedId.toStdString());
    QCOMPARE(reported(camera, reason), (QList<QVariantList>{{id, reason}}));
}

void TestObservers::cameraWithoutAReadableIdIsNotReported()
{
    for (const bool failsAtLength : {true, false}) {
        script().intercept = [=](const Call &call) {
            return call.asksLength == failsAtLength ? CvxErrorFailed : CvxErrorSuccess;
        };
        QCOMPARE(reported(cameraWithExtendedId("x")), QList<QVariantList>());
    }
    QCOMPARE(reported(nullptr), QList<QVariantList>());
}

void TestObservers::everyInterfaceChangeIsReported()
{
    InterfaceObserver observer(nullptr);
    const QSignalSpy spy(&observer, &InterfaceObserver::updateInterfaceList);
    observer.InterfaceListChanged(nullptr, UpdateTriggerPluggedIn);
    observer.InterfaceListChanged(nullptr, UpdateTriggerPluggedOut);
    QCOMPARE(spy.count(), 2);
}

void TestObservers::mutexIsHeldOnlyDuringTheNotification()
{
    QMutex mutex;
    CameraObserver cameras(&mutex);
    InterfaceObserver interfaces(&mutex);
    QVector<bool> lockedByUs;
    const auto tryLock = [&] { lockedByUs.append(mutex.tryLock()); };
    connect(&cameras, &CameraObserver::updateDeviceList, this, tryLock);
    connect(&interfaces, &InterfaceObserver::updateInterfaceList, this, tryLock);
    cameras.CameraListChanged(cameraWithExtendedId("x"), UpdateTriggerPluggedIn);
    interfaces.InterfaceListChanged(nullptr, UpdateTriggerPluggedIn);
    cameras.CameraListChanged(nullptr, UpdateTriggerPluggedIn); // Is not reported.
    QCOMPARE(lockedByUs, (QVector<bool>{false, false}));
    QVERIFY(mutex.tryLock());
    mutex.unlock();
}

QTEST_GUILESS_MAIN(TestObservers)
#include "TestObservers.moc"
