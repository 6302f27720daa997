#include "tests/camera/AllocationLimit.h"
#include "tests/camera/ProviderTest.h"

#include <climits>

using namespace CvxScripted;
using namespace ProviderTest;
using CvxCPP::CvxError;
using CvxCPP::CvxErrorFailed;
using CvxCPP::CvxErrorSuccess;

namespace {

DeviceRecord device(const std::string &id, const std::string &vendor)
{
    return {id, vendor, CvxErrorSuccess};
}

/// The vendor listed for a camera of that ID on that interface.
QString vendorOf(const std::string &id, const std::shared_ptr<InterfaceRecord> &iface)
{
    CameraRecord record;
    record.id = id;
    record.iface = iface;
    return listOne(record).vendorName;
}

/// The values that "DeviceSelector" was set to, in order.
QVector<long> selectedValues()
{
    QVector<long> values;
    for (const Call &call : calls()) {
        if (call.function == Function::SetValue)
            values.append(call.value);
    }
    return values;
}

/// How often "DeviceVendorName" was read, counting the calls for its length.
int vendorReads()
{
    int reads = 0;
    for (const Call &call : calls())
        reads += call.function == Function::GetValue && call.subject == "DeviceVendorName" && call.asksLength;
    return reads;
}

/// An interface on which camera "b" is the second device, and the first one is selected.
std::shared_ptr<InterfaceRecord> twoDevices()
{
    return makeInterface({device("a", "Avelin"), device("b", "Brightline")});
}

QString avelin()
{
    return QStringLiteral("Avelin");
}

QString brightline()
{
    return QStringLiteral("Brightline");
}

} // namespace

/// The vendor is found in the device list of the camera's interface.
class TestCameraVendor : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    // The walk
    void eachCameraOfAnInterfaceGetsItsOwnVendor();
    void listIsUpdatedBeforeItIsWalked();
    void valuesAreTriedInOrderUntilTheFirstMatch();
    void firstOfTwoMatchesWins();
    void rangeIsInclusive_data();
    void rangeIsInclusive();
    void rangeUpToTheLargestValueEnds();
    void valueThatCannotBeSelectedIsSkipped();
    void unreadableDeviceIdIsSkipped_data();
    void unreadableDeviceIdIsSkipped();
    void idsAreComparedByteForByte_data();
    void idsAreComparedByteForByte();
    void closingNulOnOneSideOnlyStillMatches();
    void vendorIsUtf8();
    void vendorEndsAtItsFirstNul();

    // The fallback: the device that is selected anyway
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

void TestCameraVendor::eachCameraOfAnInterfaceGetsItsOwnVendor()
{
    CameraRecord first;
    first.id = "a";
    first.iface = twoDevices();
    CameraRecord second = first;
    second.id = "b";
    script().cameras = {second, first};
    const QVector<CameraInfo> cameras = list();
    QCOMPARE(cameras.size(), 2);
    QCOMPARE(cameras.at(0).vendorName, brightline());
    QCOMPARE(cameras.at(1).vendorName, avelin());
}

void TestCameraVendor::listIsUpdatedBeforeItIsWalked()
{
    const auto iface = std::make_shared<InterfaceRecord>();
    script().intercept = [&iface](const Call &call) -> CvxError {
        if (call.function == Function::RunCommand && call.subject == "DeviceUpdateList")
            iface->devices[0] = device("a", "Avelin");
        return CvxErrorSuccess;
    };
    QCOMPARE(vendorOf("a", iface), avelin());
    QCOMPARE(callCount(Function::RunCommand), std::size_t(1));
}

void TestCameraVendor::valuesAreTriedInOrderUntilTheFirstMatch()
{
    const auto iface
        = makeInterface({device("c", "C"), device("d", "D"), device("b", "Brightline"), device("e", "E")});
    QCOMPARE(vendorOf("b", iface), brightline());
    QCOMPARE(selectedValues(), (QVector<long>{0, 1, 2}));
    QCOMPARE(vendorReads(), 1);
}

void TestCameraVendor::firstOfTwoMatchesWins()
{
    QCOMPARE(vendorOf("a", makeInterface({device("a", "Avelin"), device("a", "Brightline")})), avelin());
}

void TestCameraVendor::rangeIsInclusive_data()
{
    QTest::addColumn<qlonglong>("at");
    QTest::newRow("at the smallest value") << -2LL;
    QTest::newRow("in between") << 0LL;
    QTest::newRow("at the largest value") << 3LL;
}

void TestCameraVendor::rangeIsInclusive()
{
    QFETCH(qlonglong, at);
    const auto iface = std::make_shared<InterfaceRecord>();
    iface->devices[long(at)] = device("b", "Brightline");
    iface->min = -2;
    iface->max = 3;
    QCOMPARE(vendorOf("b", iface), brightline());
}

void TestCameraVendor::rangeUpToTheLargestValueEnds()
{
    const auto iface = std::make_shared<InterfaceRecord>();
    iface->devices[LONG_MAX] = device("a", "Avelin");
    iface->min = LONG_MAX - 1;
    QCOMPARE(vendorOf("a", iface), avelin());

    iface->devices[LONG_MAX] = device("c", "Brightline");
    QCOMPARE(vendorOf("a", iface), brightline()); // The selected device, after a walk without a match.
    QCOMPARE(selectedValues(), (QVector<long>{LONG_MAX - 1, LONG_MAX, LONG_MAX - 1, LONG_MAX}));
}

void TestCameraVendor::valueThatCannotBeSelectedIsSkipped()
{
    const auto iface = makeInterface({device("b", "Avelin"), device("b", "Brightline")});
    iface->devices[0].selectError = CvxCPP::CvxErrorInvalidParameter; // 0 is selected all the same.
    QCOMPARE(vendorOf("b", iface), brightline());
}

void TestCameraVendor::unreadableDeviceIdIsSkipped_data()
{
    QTest::addColumn<bool>("failsAtLength");
    QTest::newRow("length") << true;
    QTest::newRow("text") << false;
}

void TestCameraVendor::unreadableDeviceIdIsSkipped()
{
    QFETCH(bool, failsAtLength);
    const auto iface = makeInterface({device("b", "Avelin"), device("b", "Brightline")});
    Text &id = iface->devices[0].id;
    (failsAtLength ? id.lengthError : id.textError) = CvxErrorFailed;
    QCOMPARE(vendorOf("b", iface), brightline());
}

void TestCameraVendor::idsAreComparedByteForByte_data()
{
    QTest::addColumn<QByteArray>("listed");
    QTest::newRow("letter case") << QByteArray("CAM-\xfe");
    QTest::newRow("prefix") << QByteArray("cam-");
    QTest::newRow("longer") << QByteArray("cam-\xfe.");
    QTest::newRow("another byte that is no UTF-8") << QByteArray("cam-\xff");
}

void TestCameraVendor::idsAreComparedByteForByte()
{
    QFETCH(QByteArray, listed);
    const std::string id = "cam-\xfe";
    const auto iface = makeInterface({device(listed.toStdString(), "Avelin"), device(id, "Brightline")});
    QCOMPARE(vendorOf(id, iface), brightline());
}

void TestCameraVendor::closingNulOnOneSideOnlyStillMatches()
{
    const auto iface = twoDevices();
    iface->devices[1].id.countsNul = false;
    QCOMPARE(vendorOf("b", iface), brightline());

    iface->devices[1].id = std::string("b\0\0", 3);
    QCOMPARE(vendorOf("b", iface), brightline());
}

void TestCameraVendor::vendorIsUtf8()
{
    QCOMPARE(vendorOf("a", makeInterface({device("a", "M\xc3\xbcller Optik")})),
        QStringLiteral("M\u00fcller Optik"));
}

void TestCameraVendor::vendorEndsAtItsFirstNul()
{
    const auto iface = makeInterface({device("a", std::string("Avelin\0rest", 11))});
    QCOMPARE(vendorOf("a", iface), avelin());
    iface->devices[0].vendor = "Avelin";
    iface->devices[0].vendor.countsNul = false;
    QCOMPARE(vendorOf("a", iface), avelin());
}

void TestCameraVendor::withoutAMatchTheSelectedDeviceAnswers()
{
    QCOMPARE(vendorOf("c", twoDevices()), brightline()); // The walk ended on the last device.
    QCOMPARE(selectedValues(), (QVector<long>{0, 1}));
}

void TestCameraVendor::failedVendorReadEndsTheWalkAndIsTriedAgain_data()
{
    QTest::addColumn<bool>("failsAtLength");
    QTest::newRow("length") << true;
    QTest::newRow("text") << false;
}

void TestCameraVendor::failedVendorReadEndsTheWalkAndIsTriedAgain()
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

void TestCameraVendor::missingFeatureLeavesTheSelectedDevice_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("command") << QStringLiteral("DeviceUpdateList");
    QTest::newRow("selector") << QStringLiteral("DeviceSelector");
    QTest::newRow("ID") << QStringLiteral("DeviceID");
}

void TestCameraVendor::missingFeatureLeavesTheSelectedDevice()
{
    QFETCH(QString, name);
    const auto iface = twoDevices();
    iface->missingFeatures = {name.toStdString()};
    QCOMPARE(vendorOf("b", iface), avelin());
    QCOMPARE(callCount(Function::RunCommand), std::size_t(0));
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestCameraVendor::featureWithoutAnObjectCountsAsMissing_data()
{
    missingFeatureLeavesTheSelectedDevice_data();
}

void TestCameraVendor::featureWithoutAnObjectCountsAsMissing()
{
    QFETCH(QString, name);
    const auto iface = twoDevices();
    iface->nullFeatures = {name.toStdString()};
    QCOMPARE(vendorOf("b", iface), avelin());
    QCOMPARE(callCount(Function::RunCommand), std::size_t(0));

    iface->nullFeatures = {"DeviceVendorName"};
    QCOMPARE(vendorOf("b", iface), QString());
}

void TestCameraVendor::failedCallLeavesTheSelectedDevice_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<int>("rangesRead");
    QTest::newRow("command") << int(Function::RunCommand) << 0;
    QTest::newRow("range") << int(Function::GetRange) << 1;
}

void TestCameraVendor::failedCallLeavesTheSelectedDevice()
{
    QFETCH(int, function);
    QFETCH(int, rangesRead);
    script().errors[Function(function)] = CvxCPP::CvxErrorTimeout;
    QCOMPARE(vendorOf("b", twoDevices()), avelin());
    QCOMPARE(int(callCount(Function::GetRange)), rangesRead);
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestCameraVendor::emptyRangeLeavesTheSelectedDevice()
{
    const auto iface = twoDevices();
    iface->min = 1;
    iface->max = 0;
    QCOMPARE(vendorOf("b", iface), avelin());
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestCameraVendor::missingVendorFeatureLeavesTheVendorEmpty()
{
    const auto iface = twoDevices();
    iface->missingFeatures = {"DeviceVendorName"};
    QCOMPARE(vendorOf("b", iface), QString());
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestCameraVendor::failedFallbackLeavesTheVendorEmpty_data()
{
    unreadableDeviceIdIsSkipped_data();
}

void TestCameraVendor::failedFallbackLeavesTheVendorEmpty()
{
    QFETCH(bool, failsAtLength);
    const auto iface = twoDevices();
    Text &vendor = iface->devices[1].vendor;
    (failsAtLength ? vendor.lengthError : vendor.textError) = CvxErrorFailed;
    QCOMPARE(vendorOf("b", iface), QString());
    QCOMPARE(vendorReads(), 2);
}

void TestCameraVendor::outOfMemoryLeavesTheVendorEmpty()
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

void TestCameraVendor::interfaceOutOfReachLeavesTheVendorEmpty_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("the call fails") << true;
    QTest::newRow("the call gives none") << false;
}

void TestCameraVendor::interfaceOutOfReachLeavesTheVendorEmpty()
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

void TestCameraVendor::cameraWithoutAnIdHasNoVendor()
{
    QCOMPARE(vendorOf("", makeInterface({device("", "Avelin")})), QString());
    QCOMPARE(callCount(Function::GetFeatureByName), std::size_t(0));
}

QTEST_APPLESS_MAIN(TestCameraVendor)
#include "TestCameraVendor.moc"
