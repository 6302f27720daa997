#include "tests/camera/AllocationLimit.h"
#include "tests/camera/VendorTest.h"

#include <climits>

using namespace VendorTest;
using CvxCPP::CvxError;
using CvxCPP::CvxErrorFailed;

/// Where the device list does not help, the device that is selected anyway answers; or nobody.
class TestVendorFallback : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void withoutAMatchTheSelectedDeviceAnswers();
    void failedVendorReadEndsTheWalkAndIsTriedAgain_data();
    void failedVendorReadEndsTheWalkAndIsTriedAgain();
    void missingFeatureLeavesTheSelectedDevice_data();
    void missingFeatureLeavesTheSelectedDevice();
    void featureWithoutAnObjectCountsAsMissing_data();
    void featureWithoutAnObjectCountsAsMissing();
    void failedCallLeavesTheSelectedDevice_data();
    void failedCallLeavesTheSelectedDevice();
    void emptyRangeLeavesTheSelectedDevice();

    // No vendor
    void missingVendorFeatureLeavesTheVendorEmpty();
    void failedFallbackLeavesTheVendorEmpty_data();
    void failedFallbackLeavesTheVendorEmpty();
    void outOfMemoryLeavesTheVendorEmpty();
    void interfaceOutOfReachLeavesTheVendorEmpty_data();
    void interfaceOutOfReachLeavesTheVendorEmpty();
    void cameraWithoutAnIdHasNoVendor();
};

void TestVendorFallback::withoutAMatchTheSelectedDeviceAnswers()
{
    QCOMPARE(vendorOf("c", twoDevices()), brightline()); // The walk ended on the last device.
    QCOMPARE(selectedValues(), (QVector<long>{0, 1}));
}

void TestVendorFallback::failedVendorReadEndsTheWalkAndIsTriedAgain_data()
{
    QTest::addColumn<bool>("failsAtLength");
    QTest::newRow("length") << true;
    QTest::newRow("text") << false;
}

void TestVendorFallback::failedVendorReadEndsTheWalkAndIsTriedAgain()
{
    QFETCH(bool, failsAtLength);
    script().intercept = [failsAtLength, seen = 0](const Call &call) mutable -> CvxError {
        const bool read = call.function == Function::GetValue && call.subject == "DeviceVendorName";
        return read && call.asksLength == failsAtLength && ++seen == 1 ? CvxErrorFailed : CvxErrorSuccess;
    };
    const auto iface = makeInterface({device("b", "Brightline"), device("b", "Avelin")});
    QCOMPARE(vendorOf("b", iface), brightline());
    QCOMPARE(selectedValues(), (QVector<long>{0}));
    QCOMPARE(vendorReads(), 2);
}

void TestVendorFallback::missingFeatureLeavesTheSelectedDevice_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("command") << QStringLiteral("DeviceUpdateList");
    QTest::newRow("selector") << QStringLiteral("DeviceSelector");
    QTest::newRow("ID") << QStringLiteral("DeviceID");
}

void TestVendorFallback::missingFeatureLeavesTheSelectedDevice()
{
    QFETCH(QString, name);
    const auto iface = twoDevices();
    iface->missingFeatures = {name.toStdString()};
    QCOMPARE(vendorOf("b", iface), avelin());
    QCOMPARE(callCount(Function::RunCommand), std::size_t(0));
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestVendorFallback::featureWithoutAnObjectCountsAsMissing_data()
{
    missingFeatureLeavesTheSelectedDevice_data();
}

void TestVendorFallback::featureWithoutAnObjectCountsAsMissing()
{
    QFETCH(QString, name);
    const auto iface = twoDevices();
    iface->nullFeatures = {name.toStdString()};
    QCOMPARE(vendorOf("b", iface), avelin());
    QCOMPARE(callCount(Function::RunCommand), std::size_t(0));

    iface->nullFeatures = {"DeviceVendorName"};
    QCOMPARE(vendorOf("b", iface), QString());
}

void TestVendorFallback::failedCallLeavesTheSelectedDevice_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<int>("rangesRead");
    QTest::newRow("command") << int(Function::RunCommand) << 0;
    QTest::newRow("range") << int(Function::GetRange) << 1;
}

void TestVendorFallback::failedCallLeavesTheSelectedDevice()
{
    QFETCH(int, function);
    QFETCH(int, rangesRead);
    script().errors[Function(function)] = CvxCPP::CvxErrorTimeout;
    QCOMPARE(vendorOf("b", twoDevices()), avelin());
    QCOMPARE(int(callCount(Function::GetRange)), rangesRead);
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestVendorFallback::emptyRangeLeavesTheSelectedDevice()
{
    const auto iface = twoDevices();
    iface->min = 1;
    iface->max = 0;
    QCOMPARE(vendorOf("b", iface), avelin());
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestVendorFallback::missingVendorFeatureLeavesTheVendorEmpty()
{
    const auto iface = twoDevices();
    iface->missingFeatures = {"DeviceVendorName"};
    QCOMPARE(vendorOf("b", iface), QString());
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestVendorFallback::failedFallbackLeavesTheVendorEmpty_data()
{
    QTest::addColumn<bool>("failsAtLength");
    QTest::newRow("length") << true;
    QTest::newRow("text") << false;
}

void TestVendorFallback::failedFallbackLeavesTheVendorEmpty()
{
    QFETCH(bool, failsAtLength);
    const auto iface = twoDevices();
    Text &vendor = iface->devices[1].vendor;
    (failsAtLength ? vendor.lengthError : vendor.textError) = CvxErrorFailed;
    QCOMPARE(vendorOf("b", iface), QString());
    QCOMPARE(vendorReads(), 2);
}

void TestVendorFallback::outOfMemoryLeavesTheVendorEmpty()
{
    const AllocationLimit limit;
    const auto iface = makeInterface({device("b", "Brightline")});
    iface->devices[0].vendor.length = UINT_MAX;
    QCOMPARE(vendorOf("b", iface), QString());
    QCOMPARE(limit.refused(), 2); // On the walk, and in the fallback.

    iface->devices[0] = device("b", "Brightline");
    iface->devices[0].id.length = UINT_MAX;
    iface->devices[1] = device("b", "Avelin");
    QCOMPARE(vendorOf("b", iface), avelin());
}

void TestVendorFallback::interfaceOutOfReachLeavesTheVendorEmpty_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("the call fails") << true;
    QTest::newRow("the call gives none") << false;
}

void TestVendorFallback::interfaceOutOfReachLeavesTheVendorEmpty()
{
    QFETCH(bool, fails);
    CameraRecord record = completeCamera("a");
    if (fails)
        script().errors[Function::GetInterface] = CvxErrorFailed;
    else
        record.iface.reset();
    CameraInfo expected = completeInfo(QStringLiteral("a"));
    expected.vendorName = QString();
    QCOMPARE(listOne(record), expected);
    QCOMPARE(callCount(Function::GetFeatureByName), std::size_t(0));
}

void TestVendorFallback::cameraWithoutAnIdHasNoVendor()
{
    QCOMPARE(vendorOf("", makeInterface({device("", "Avelin")})), QString());
    QCOMPARE(callCount(Function::GetFeatureByName), std::size_t(0));
}

QTEST_APPLESS_MAIN(TestVendorFallback)
#include "TestVendorFallback.moc"
