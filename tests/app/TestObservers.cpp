#include "app/CameraObserver.h"
#include "app/InterfaceObserver.h"
#include "sdk/testing/Gate.h"
#include "sdk/testing/ScriptedCvxCPP.h"

#include <QMutex>
#include <QSignalSpy>
#include <QtTest>

#include <climits>
#include <thread>

using CvxCPP::UpdateTriggerPluggedIn;
using CvxCPP::UpdateTriggerType;
using CvxScripted::CameraRecord;
using CvxScripted::Function;

namespace {

CameraRecord cameraRecord(const CvxScripted::Text &extendedId)
{
    CameraRecord record;
    record.id = "plain";
    record.extendedId = extendedId;
    return record;
}

/// What the observer announces for the camera: the arguments of each signal.
QList<QVariantList> announced(const CameraRecord &record, UpdateTriggerType reason = UpdateTriggerPluggedIn)
{
    CameraObserver observer(nullptr);
    const QSignalSpy spy(&observer, &CameraObserver::updateDeviceList);
    observer.CameraListChanged(CvxScripted::makeCamera(record), reason);
    return spy.mid(0);
}

std::shared_ptr<CvxCPP::Interface> anInterface()
{
    return CvxScripted::makeInterface(std::make_shared<CvxScripted::InterfaceRecord>());
}

} // namespace

/// The two observers by themselves.
class TestObservers : public QObject
{
    Q_OBJECT

private slots:
    void init() { CvxScripted::reset(); }

    void cameraIsAnnouncedByItsExtendedId();
    void idIsUtf8UpToItsFirstNul_data();
    void idIsUtf8UpToItsFirstNul();
    void reasonIsPassedOnUnchanged_data();
    void reasonIsPassedOnUnchanged();
    void unreadableIdAnnouncesNothing_data();
    void unreadableIdAnnouncesNothing();
    void missingCameraAnnouncesNothing();
    void everyInterfaceChangeIsAnnounced();
    void mutexIsHeldDuringTheAnnouncementAndFreeAfterwards();
    void mutexIsFreeAgainWhenNothingIsAnnounced();
    void observersWaitForTheirMutex_data();
    void observersWaitForTheirMutex();
};

void TestObservers::cameraIsAnnouncedByItsExtendedId()
{
    QCOMPARE(announced(cameraRecord("producer/interface/device")),
        (QList<QVariantList>{{QStringLiteral("producer/interface/device"), 0u}}));
    QCOMPARE(CvxScripted::callCount(Function::GetId), std::size_t(0));
}

void TestObservers::idIsUtf8UpToItsFirstNul_data()
{
    using namespace std::string_literals;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("countsNul");
    QTest::addColumn<QString>("id");
    QTest::newRow("NUL counted") << QByteArray("a/b") << true << QStringLiteral("a/b");
    QTest::newRow("NUL not counted") << QByteArray("a/b") << false << QStringLiteral("a/b");
    QTest::newRow("length 0") << QByteArray() << false << QString();
    QTest::newRow("empty") << QByteArray() << true << QString();
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa4/b") << true << QStringLiteral("\u00e4/b");
    QTest::newRow("NUL inside") << QByteArray("a\0b", 3) << true << QStringLiteral("a");
}

void TestObservers::idIsUtf8UpToItsFirstNul()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, countsNul);
    QFETCH(QString, id);
    CvxScripted::Text text(bytes.toStdString());
    text.countsNul = countsNul;
    QCOMPARE(announced(cameraRecord(text)), (QList<QVariantList>{{id, 0u}}));
}

void TestObservers::reasonIsPassedOnUnchanged_data()
{
    QTest::addColumn<unsigned>("reason");
    QTest::newRow("plugged in") << 0u;
    QTest::newRow("plugged out") << 1u;
    QTest::newRow("of a later SDK") << 77u;
    QTest::newRow("largest") << UINT_MAX;
}

void TestObservers::reasonIsPassedOnUnchanged()
{
    QFETCH(unsigned, reason);
    QCOMPARE(announced(cameraRecord("x"), UpdateTriggerType(reason)),
        (QList<QVariantList>{{QStringLiteral("x"), reason}}));
}

void TestObservers::unreadableIdAnnouncesNothing_data()
{
    QTest::addColumn<bool>("failsAtLength");
    QTest::newRow("length") << true;
    QTest::newRow("text") << false;
}

void TestObservers::unreadableIdAnnouncesNothing()
{
    QFETCH(bool, failsAtLength);
    CameraRecord record = cameraRecord("x");
    (failsAtLength ? record.extendedId.lengthError : record.extendedId.textError) = CvxCPP::CvxErrorFailed;
    QCOMPARE(announced(record), QList<QVariantList>());
    QCOMPARE(CvxScripted::callCount(Function::GetExtendedId), std::size_t(failsAtLength ? 1 : 2));
}

void TestObservers::missingCameraAnnouncesNothing()
{
    CameraObserver observer(nullptr);
    const QSignalSpy spy(&observer, &CameraObserver::updateDeviceList);
    observer.CameraListChanged(nullptr, UpdateTriggerPluggedIn);
    QCOMPARE(spy.count(), 0);
}

void TestObservers::everyInterfaceChangeIsAnnounced()
{
    InterfaceObserver observer(nullptr);
    const QSignalSpy spy(&observer, &InterfaceObserver::updateInterfaceList);
    observer.InterfaceListChanged(anInterface(), UpdateTriggerPluggedIn);
    observer.InterfaceListChanged(nullptr, CvxCPP::UpdateTriggerPluggedOut);
    QCOMPARE(spy.count(), 2);
    QVERIFY(spy.last().isEmpty());
}

void TestObservers::mutexIsHeldDuringTheAnnouncementAndFreeAfterwards()
{
    QMutex mutex;
    CameraObserver cameras(&mutex);
    InterfaceObserver interfaces(&mutex);
    int announcements = 0;
    const auto isHeld = [&] {
        ++announcements;
        QVERIFY(!mutex.tryLock());
    };
    connect(&cameras, &CameraObserver::updateDeviceList, this, isHeld);
    connect(&interfaces, &InterfaceObserver::updateInterfaceList, this, isHeld);
    cameras.CameraListChanged(CvxScripted::makeCamera(cameraRecord("x")), UpdateTriggerPluggedIn);
    interfaces.InterfaceListChanged(anInterface(), UpdateTriggerPluggedIn);
    QCOMPARE(announcements, 2);
    QVERIFY(mutex.tryLock());
    mutex.unlock();
}

void TestObservers::mutexIsFreeAgainWhenNothingIsAnnounced()
{
    QMutex mutex;
    CameraObserver observer(&mutex);
    CameraRecord record = cameraRecord("x");
    record.extendedId.lengthError = CvxCPP::CvxErrorFailed;
    observer.CameraListChanged(CvxScripted::makeCamera(record), UpdateTriggerPluggedIn);
    observer.CameraListChanged(nullptr, UpdateTriggerPluggedIn);
    QVERIFY(mutex.tryLock());
    mutex.unlock();
}

void TestObservers::observersWaitForTheirMutex_data()
{
    QTest::addColumn<bool>("ofCameras");
    QTest::newRow("cameras") << true;
    QTest::newRow("interfaces") << false;
}

void TestObservers::observersWaitForTheirMutex()
{
    QFETCH(bool, ofCameras);
    QMutex mutex;
    CameraObserver cameras(&mutex);
    InterfaceObserver interfaces(&mutex);
    CvxScripted::Gate announced;
    announced.open(); // Only tells of arrivals.
    connect(
        &cameras, &CameraObserver::updateDeviceList, this, [&] { announced.pass(); }, Qt::DirectConnection);
    connect(
        &interfaces, &InterfaceObserver::updateInterfaceList, this, [&] { announced.pass(); },
        Qt::DirectConnection);

    mutex.lock();
    std::thread sdk([&] {
        if (ofCameras)
            cameras.CameraListChanged(CvxScripted::makeCamera(cameraRecord("x")), UpdateTriggerPluggedIn);
        else
            interfaces.InterfaceListChanged(anInterface(), UpdateTriggerPluggedIn);
    });
    const bool announcedTooEarly = announced.waitForArrival(std::chrono::milliseconds(100));
    mutex.unlock();
    sdk.join();
    QVERIFY(!announcedTooEarly);
    QVERIFY(announced.waitForArrival());
}

QTEST_GUILESS_MAIN(TestObservers)
#include "TestObservers.moc"
