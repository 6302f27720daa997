#include "tests/camera/AllocationLimit.h"
#include "tests/camera/ProviderTest.h"

#include <limits>

using namespace CvxScripted;
using namespace ProviderTest;

/// The list as a whole: how many cameras, in which order, with which fields.
class TestCameraList : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void bindingToTheSystemAsksItNothing();
    void listingNeedsNoMutableProvider();
    void noCameraGivesAnEmptyListWithoutASecondCall();
    void failedCountGivesAnEmptyListWithoutASecondCall();
    void failedFillGivesAnEmptyList();
    void everyFieldThatTheSdkKnowsIsFilled();
    void idIsThePlainOne();
    void ipAndMacAddressStayEmpty();
    void orderOfTheSdkIsKept();
    void camerasThatWentMeanwhileAreDropped_data();
    void camerasThatWentMeanwhileAreDropped();
    void camerasThatCameMeanwhileAreLeftOut();
    void fillThatClaimsMoreThanItWroteIsNotBelieved();
    void nullHandleKeepsItsPlace();
    void twoCamerasWithTheSameIdAreBothListed();
    void cameraOfWhichNothingCanBeReadIsStillListed();
    void outOfMemoryForTheHandlesGivesAnEmptyList();
    void outOfMemoryInsideTheSdkGivesAnEmptyList();
    void transportTypeHasAName_data();
    void transportTypeHasAName();
    void unreadableTransportTypeIsOther();
    void everyListingAsksAnew();
};

void TestCameraList::bindingToTheSystemAsksItNothing()
{
    const CorvixCameraProvider provider;
    Q_UNUSED(provider)
    QVERIFY(calls().empty());
}

void TestCameraList::listingNeedsNoMutableProvider()
{
    script().cameras = {completeCamera("a")};
    const CorvixCameraProvider provider;
    QCOMPARE(provider.listCameras(), QVector<CameraInfo>{completeInfo(QStringLiteral("a"))});
}

void TestCameraList::noCameraGivesAnEmptyListWithoutASecondCall()
{
    QCOMPARE(list(), QVector<CameraInfo>());
    QCOMPARE(callCount(Function::CountCameras), std::size_t(1));
    QCOMPARE(callCount(Function::FillCameras), std::size_t(0));
}

void TestCameraList::failedCountGivesAnEmptyListWithoutASecondCall()
{
    script().cameras = {completeCamera("a")};
    script().errors[Function::CountCameras] = CvxCPP::CvxErrorTimeout;
    QCOMPARE(list(), QVector<CameraInfo>());
    QCOMPARE(callCount(Function::FillCameras), std::size_t(0));
}

void TestCameraList::failedFillGivesAnEmptyList()
{
    script().cameras = {completeCamera("a")};
    script().errors[Function::FillCameras] = CvxCPP::CvxErrorFailed;
    QCOMPARE(list(), QVector<CameraInfo>());
    QCOMPARE(callCount(Function::FillCameras), std::size_t(1));
}

void TestCameraList::everyFieldThatTheSdkKnowsIsFilled()
{
    QCOMPARE(listOne(completeCamera("a")), completeInfo(QStringLiteral("a")));
}

void TestCameraList::idIsThePlainOne()
{
    QCOMPARE(listOne(completeCamera("a")).cameraId, QStringLiteral("a"));
    QCOMPARE(callCount(Function::GetExtendedId), std::size_t(0));
}

void TestCameraList::ipAndMacAddressStayEmpty()
{
    const CameraInfo info = listOne(completeCamera("a"));
    QCOMPARE(info.ipAddress, QString());
    QCOMPARE(info.macAddress, QString());
}

void TestCameraList::orderOfTheSdkIsKept()
{
    script().cameras = {completeCamera("c"), completeCamera("a"), completeCamera("b")};
    QCOMPARE(list(),
        (QVector<CameraInfo>{completeInfo(QStringLiteral("c")), completeInfo(QStringLiteral("a")),
            completeInfo(QStringLiteral("b"))}));
}

void TestCameraList::camerasThatWentMeanwhileAreDropped_data()
{
    QTest::addColumn<unsigned>("written");
    QTest::newRow("one went") << 2u;
    QTest::newRow("one is left") << 1u;
    QTest::newRow("all went") << 0u;
}

void TestCameraList::camerasThatWentMeanwhileAreDropped()
{
    QFETCH(unsigned, written);
    script().cameras = {completeCamera("a"), completeCamera("b"), completeCamera("c")};
    script().filledCameras = written;
    QVector<CameraInfo> expected{completeInfo(QStringLiteral("a")), completeInfo(QStringLiteral("b"))};
    expected.resize(int(written));
    QCOMPARE(list(), expected);
}

void TestCameraList::camerasThatCameMeanwhileAreLeftOut()
{
    script().cameras = {completeCamera("a"), completeCamera("b")};
    script().countedCameras = 1;
    QCOMPARE(list(), QVector<CameraInfo>{completeInfo(QStringLiteral("a"))});
}

void TestCameraList::fillThatClaimsMoreThanItWroteIsNotBelieved()
{
    script().cameras = {completeCamera("a"), completeCamera("b")};
    script().filledCameras = 50;
    QCOMPARE(
        list(), (QVector<CameraInfo>{completeInfo(QStringLiteral("a")), completeInfo(QStringLiteral("b"))}));
}

void TestCameraList::nullHandleKeepsItsPlace()
{
    CameraRecord null;
    null.nullHandle = true;
    script().cameras = {completeCamera("a"), null, completeCamera("b")};
    CameraInfo unreadable;
    unreadable.interfaceType = QStringLiteral("Other");
    QCOMPARE(list(),
        (QVector<CameraInfo>{
            completeInfo(QStringLiteral("a")), unreadable, completeInfo(QStringLiteral("b"))}));
}

void TestCameraList::twoCamerasWithTheSameIdAreBothListed()
{
    script().cameras = {completeCamera("a"), completeCamera("a")};
    QCOMPARE(list(), QVector<CameraInfo>(2, completeInfo(QStringLiteral("a"))));
}

void TestCameraList::cameraOfWhichNothingCanBeReadIsStillListed()
{
    script().cameras = {completeCamera("a")};
    for (const Function function : {Function::GetId, Function::GetModel, Function::GetName,
             Function::GetSerialNumber, Function::GetInterface, Function::GetInterfaceType})
        script().errors[function] = CvxCPP::CvxErrorNotAvailable;
    CameraInfo unreadable;
    unreadable.interfaceType = QStringLiteral("Other");
    QCOMPARE(list(), QVector<CameraInfo>{unreadable});
}

void TestCameraList::outOfMemoryForTheHandlesGivesAnEmptyList()
{
    script().cameras = {completeCamera("a")};
    script().countedCameras = std::numeric_limits<unsigned>::max();
    const AllocationLimit limit;
    QCOMPARE(list(), QVector<CameraInfo>());
    QCOMPARE(limit.refused(), 1);
}

void TestCameraList::outOfMemoryInsideTheSdkGivesAnEmptyList()
{
    script().cameras = {completeCamera("a")};
    script().intercept = [](const Call &call) -> CvxCPP::CvxError {
        if (call.function == Function::FillCameras)
            throw std::bad_alloc();
        return CvxCPP::CvxErrorSuccess;
    };
    QCOMPARE(list(), QVector<CameraInfo>());
}

void TestCameraList::transportTypeHasAName_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << 0u << QStringLiteral("Other");
    QTest::newRow("GigE") << 1u << QStringLiteral("GigE");
    QTest::newRow("Camera Link") << 2u << QStringLiteral("CameraLink");
    QTest::newRow("IIDC") << 3u << QStringLiteral("IIDC");
    QTest::newRow("UVC") << 4u << QStringLiteral("UVC");
    QTest::newRow("CoaXPress") << 5u << QStringLiteral("CoaXPress");
    QTest::newRow("Camera Link HS") << 6u << QStringLiteral("CameraLinkHS");
    QTest::newRow("USB") << 7u << QStringLiteral("USB");
    QTest::newRow("Ethernet") << 8u << QStringLiteral("Ethernet");
    QTest::newRow("PCI") << 9u << QStringLiteral("PCI");
    QTest::newRow("custom") << 10u << QStringLiteral("Other");
    QTest::newRow("mixed") << 11u << QStringLiteral("Other");
    QTest::newRow("from a later SDK") << 12u << QStringLiteral("Other");
    QTest::newRow("largest") << std::numeric_limits<unsigned>::max() << QStringLiteral("Other");
}

void TestCameraList::transportTypeHasAName()
{
    QFETCH(unsigned, type);
    CameraRecord record = completeCamera("a");
    record.type = type;
    QTEST(listOne(record).interfaceType, "name");
}

void TestCameraList::unreadableTransportTypeIsOther()
{
    script().errors[Function::GetInterfaceType] = CvxCPP::CvxErrorFailed;
    CameraInfo expected = completeInfo(QStringLiteral("a"));
    expected.interfaceType = QStringLiteral("Other");
    QCOMPARE(listOne(completeCamera("a")), expected);
}

void TestCameraList::everyListingAsksAnew()
{
    const CorvixCameraProvider provider;
    QCOMPARE(provider.listCameras(), QVector<CameraInfo>());
    script().cameras = {completeCamera("a")};
    QCOMPARE(provider.listCameras(), QVector<CameraInfo>{completeInfo(QStringLiteral("a"))});
}

QTEST_APPLESS_MAIN(TestCameraList)
#include "TestCameraList.moc"
