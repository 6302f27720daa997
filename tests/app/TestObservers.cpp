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

/// Tests the two observers without the controller.
class TestObservers : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void cameraIsReportedWithItsExtendedId();
    void cameraWithoutAReadableIdIsNotReported();
    void everyInterfaceChangeIsReported();
    void mutexIsHeldOnlyDuringTheNotification();
};

void TestObservers::cameraIsReportedWithItsExtendedId()
{
    const QString id = QStringLiteral("if/\u00e4");
    for (const unsigned reason : {0u, 1u, UINT_MAX}) // The SDK may define more reasons later.
        QCOMPARE(reported(cameraWithExtendedId("if/\xc3\xa4"), reason), (QList<QVariantList>{{id, reason}}));
    QCOMPARE(reported(cameraWithExtendedId("")), (QList<QVariantList>{{QString(), 0u}}));
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
    cameras.CameraListChanged(nullptr, UpdateTriggerPluggedIn); // Emits no signal.
    QCOMPARE(lockedByUs, (QVector<bool>{false, false}));
    QVERIFY(mutex.tryLock());
    mutex.unlock();
}

QTEST_GUILESS_MAIN(TestObservers)
#include "TestObservers.moc"
