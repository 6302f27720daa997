#include "tests/camera/ProviderTest.h"

using namespace ProviderTest;

Q_DECLARE_METATYPE(CvxScripted::Function)

namespace {

CameraInfo unreadableInfo()
{
    CameraInfo info;
    info.interfaceType = QStringLiteral("Other");
    return info;
}

} // namespace

/// Tests the enumeration as a whole: the number of cameras, their order and their fields.
class TestCameraList : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void constructorCallsNoSdkFunction();
    void emptyListNeedsOnlyTheCountCall();
    void failedCallReturnsAnEmptyList_data();
    void failedCallReturnsAnEmptyList();
    void everyFieldThatTheSdkReportsIsFilled();
    void camerasKeepTheOrderOfTheSdk();
    void listMayChangeBetweenTheTwoCalls_data();
    void listMayChangeBetweenTheTwoCalls();
    void nullHandleKeepsItsPositionInTheList();
    void camerasWithTheSameIdAreAllReturned();
    void cameraWithoutReadableFieldsIsReturned();
    void transportTypeIsReturnedAsItsName_data();
    void transportTypeIsReturnedAsItsName();
};

void TestCameraList::constructorCallsNoSdkFunction()
{
    const CorvixCameraProvider provider;
    QVERIFY(calls().empty());
}

void TestCameraList::emptyListNeedsOnlyTheCountCall()
{
    QCOMPARE(list(), QVector<CameraInfo>());
    QCOMPARE(callCount(Function::CountCameras), std::size_t(1));
    QCOMPARE(callCount(Function::FillCameras), std::size_t(0));
}

void TestCameraList::failedCallReturnsAnEmptyList_data()
{
    QTest::addColumn<Function>("failing");
    QTest::addColumn<bool>("outOfMemory");
    QTest::newRow("count") << Function::CountCameras << false;
    QTest::newRow("fill") << Function::FillCameras << false;
    QTest::newRow("out of memory") << Function::FillCameras << true;
}

void TestCameraList::failedCallReturnsAnEmptyList()
{
    QFETCH(Function, failing);
    QFETCH(bool, outOfMemory);
    script().cameras = {completeCamera("a")};
    script().intercept = [=](const Call &call) {
        if (call.function == failing && outOfMemory)
            throw std::bad_alloc();
        return call.function == failing ? CvxErrorFailed : CvxErrorSuccess;
    };
    QCOMPARE(list(), QVector<CameraInfo>());
    QCOMPARE(calls().back().function, failing); // No call follows the failed one.
}

void TestCameraList::everyFieldThatTheSdkReportsIsFilled()
{
    QCOMPARE(listOne(completeCamera("a")), completeInfo(QStringLiteral("a")));
}

void TestCameraList::camerasKeepTheOrderOfTheSdk()
{
    script().cameras = {completeCamera("c"), completeCamera("a"), completeCamera("b")};
    QCOMPARE(list(),
        (QVector<CameraInfo>{completeInfo(QStringLiteral("c")), completeInfo(QStringLiteral("a")),
            completeInfo(QStringLiteral("b"))}));
}

void TestCameraList::listMayChangeBetweenTheTwoCalls_data()
{
    QTest::addColumn<unsigned>("counted");
    QTest::addColumn<unsigned>("filled");
    QTest::addColumn<int>("listed");
    QTest::newRow("one camera disappeared") << 3u << 2u << 2;
    QTest::newRow("all cameras disappeared") << 3u << 0u << 0;
    QTest::newRow("one camera appeared") << 2u << 2u << 2;
    QTest::newRow("the SDK reports more than it wrote") << 3u << 50u << 3;
}

void TestCameraList::listMayChangeBetweenTheTwoCalls()
{
    QFETCH(unsigned, counted);
    QFETCH(unsigned, filled);
    QFETCH(int, listed);
    script().cameras = {completeCamera("a"), completeCamera("b"), completeCamera("c")};
    script().countedCameras = counted;
    script().filledCameras = filled;
    const QVector<CameraInfo> all{completeInfo(QStringLiteral("a")), completeInfo(QStringLiteral("b")),
        completeInfo(QStringLiteral("c"))};
    QCOMPARE(list(), all.mid(0, listed));
}

void TestCameraList::nullHandleKeepsItsPositionInTheList()
{
    CameraRecord null;
    null.nullHandle = true;
    script().cameras = {null, completeCamera("b")};
    QCOMPARE(list(), (QVector<CameraInfo>{unreadableInfo(), completeInfo(QStringLiteral("b"))}));
}

void TestCameraList::camerasWithTheSameIdAreAllReturned()
{
    script().cameras = {completeCamera("a"), completeCamera("a")};
    QCOMPARE(list(), QVector<CameraInfo>(2, completeInfo(QStringLiteral("a"))));
}

void TestCameraList::cameraWithoutReadableFieldsIsReturned()
{
    script().intercept = [](const Call &call) {
        return call.function > Function::FillCameras ? CvxCPP::CvxErrorNotAvailable : CvxErrorSuccess;
    };
    script().cameras = {completeCamera("a")};
    QCOMPARE(list(), QVector<CameraInfo>{unreadableInfo()});
}

void TestCameraList::transportTypeIsReturnedAsItsName_data()
{
    QTest::addColumn<unsigned>("type");
    const char *const names[] = {
        "Other", "GigE", "CameraLink", "IIDC", "UVC", "CoaXPress", "CameraLinkHS", "USB", "Ethernet", "PCI"};
    QTest::addColumn<QString>("name");
    for (unsigned type = 0; type < std::size(names); ++type)
        QTest::newRow(names[type]) << type << QString::fromLatin1(names[type]);
    QTest::newRow("custom") << 10u << QStringLiteral("Other");
    QTest::newRow("largest") << UINT_MAX << QStringLiteral("Other");
}

void TestCameraList::transportTypeIsReturnedAsItsName()
{
    QFETCH(unsigned, type);
    CameraRecord record = completeCamera("a");
    record.type = type;
    QTEST(listOne(record).interfaceType, "name");
}

QTEST_APPLESS_MAIN(TestCameraList)
#include "TestCameraList.moc"
