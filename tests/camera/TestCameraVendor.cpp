#include "tests/camera/ProviderTest.h"

using namespace ProviderTest;

Q_DECLARE_METATYPE(CvxScripted::Function)

namespace {

const QString avelin = QStringLiteral("Avelin");
const QString brightline = QStringLiteral("Brightline");

/// Returns an interface on which camera "b" is the second device, and the first device is selected.
std::shared_ptr<InterfaceRecord> twoDevices()
{
    return makeInterface({{"a", "Avelin"}, {"b", "Brightline"}});
}

/// Returns the vendor that is listed for a camera with this ID on this interface.
QString vendorOf(const std::string &id, const std::shared_ptr<InterfaceRecord> &iface)
{
    CameraRecord record;
    record.id = id;
    record.iface = iface;
    return listOne(record).vendorName;
}

/// Returns the values that "DeviceSelector" was set to, in order.
QVector<long> selectedValues()
{
    QVector<long> values;
    for (const Call &call : calls()) {
        if (call.function == Function::SetValue)
            values.append(call.value);
    }
    return values;
}

} // namespace

/// The vendor of a camera. It is found in the device list of the camera's interface. If that fails, the
/// device that the interface has currently selected reports its vendor.
class TestCameraVendor : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    // The device list
    void eachCameraOfAnInterfaceGetsItsOwnVendor();
    void deviceListIsUpdatedBeforeItIsRead();
    void firstMatchEndsTheSearch();
    void rangeIsInclusive_data();
    void rangeIsInclusive();
    void rangeUpToTheLargestValueEnds();
    void unreadableDeviceIdIsSkipped_data() { addFailures(); }
    void unreadableDeviceIdIsSkipped();
    void idsAreComparedByteForByte_data();
    void idsAreComparedByteForByte();
    void vendorIsUtf8UpToItsFirstNul();

    // The selected device
    void withoutAMatchTheSelectedDeviceReportsTheVendor();
    void unreadableVendorEndsTheSearchAndIsReadAgain_data() { addFailures(); }
    void unreadableVendorEndsTheSearchAndIsReadAgain();
    void missingFeatureLeavesTheSelectedDevice_data();
    void missingFeatureLeavesTheSelectedDevice();
    void failedCallLeavesTheSelectedDevice_data();
    void failedCallLeavesTheSelectedDevice();
    void emptyRangeLeavesTheSelectedDevice();

    // No vendor
    void missingVendorFeatureLeavesTheVendorEmpty();
    void unreadableVendorOfTheSelectedDeviceLeavesTheVendorEmpty_data() { addFailures(); }
    void unreadableVendorOfTheSelectedDeviceLeavesTheVendorEmpty();
    void missingInterfaceLeavesTheVendorEmpty_data();
    void missingInterfaceLeavesTheVendorEmpty();
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
    QCOMPARE(cameras.at(0).vendorName, brightline);
    QCOMPARE(cameras.at(1).vendorName, avelin);
}

void TestCameraVendor::deviceListIsUpdatedBeforeItIsRead()
{
    const auto iface = std::make_shared<InterfaceRecord>();
    script().intercept = [&iface](const Call &call) {
        if (call.function == Function::RunCommand && call.subject == "DeviceUpdateList")
            iface->devices[0] = {"a", "Avelin"};
        return CvxErrorSuccess;
    };
    QCOMPARE(vendorOf("a", iface), avelin);
    QCOMPARE(callCount(Function::RunCommand), std::size_t(1));
}

void TestCameraVendor::firstMatchEndsTheSearch()
{
    const auto iface = makeInterface({{"c", "C"}, {"d", "D"}, {"b", "Brightline"}, {"b", "Avelin"}});
    QCOMPARE(vendorOf("b", iface), brightline);
    QCOMPARE(selectedValues(), (QVector<long>{0, 1, 2}));
}

void TestCameraVendor::rangeIsInclusive_data()
{
    QTest::addColumn<qlonglong>("position");
    QTest::newRow("at the smallest value") << -2LL;
    QTest::newRow("in between") << 0LL;
    QTest::newRow("at the largest value") << 3LL;
}

void TestCameraVendor::rangeIsInclusive()
{
    QFETCH(qlonglong, position);
    const auto iface = std::make_shared<InterfaceRecord>();
    iface->devices[long(position)] = {"b", "Brightline"};
    iface->selected = long(position);
    iface->min = -2;
    iface->max = 3;
    QCOMPARE(vendorOf("b", iface), brightline);
    // A value that cannot be set is skipped, although the device that stays selected matches.
    QCOMPARE(selectedValues(), (QVector<long>{-2, -1, 0, 1, 2, 3}).mid(0, int(position) + 3));
}

void TestCameraVendor::rangeUpToTheLargestValueEnds()
{
    const auto iface = std::make_shared<InterfaceRecord>();
    iface->devices[LONG_MAX] = {"c", "Brightline"};
    iface->min = LONG_MAX - 1;
    QCOMPARE(vendorOf("a", iface), brightline); // The search found no match and ended on this device.
    QCOMPARE(selectedValues(), (QVector<long>{LONG_MAX - 1, LONG_MAX}));
}

void TestCameraVendor::unreadableDeviceIdIsSkipped()
{
    QFETCH(Failure, failure);
    failReads(Function::GetValue, "DeviceID", failure, 1, 1);
    QCOMPARE(vendorOf("b", makeInterface({{"b", "Avelin"}, {"b", "Brightline"}})), brightline);
}

void TestCameraVendor::idsAreComparedByteForByte_data()
{
    QTest::addColumn<QByteArray>("listed");
    QTest::addColumn<QString>("vendor");
    QTest::newRow("equal") << QByteArray("cam-\xfe") << avelin;
    QTest::newRow("equal up to the first NUL") << QByteArray("cam-\xfe\0.", 7) << avelin;
    QTest::newRow("other letter case") << QByteArray("CAM-\xfe") << brightline;
    QTest::newRow("prefix") << QByteArray("cam-") << brightline;
    QTest::newRow("longer") << QByteArray("cam-\xfe.") << brightline;
    QTest::newRow("other byte that is invalid in UTF-8") << QByteArray("cam-\xff") << brightline;
}

void TestCameraVendor::idsAreComparedByteForByte()
{
    QFETCH(QByteArray, listed);
    const auto iface = makeInterface({{listed.toStdString(), "Avelin"}, {"cam-\xfe", "Brightline"}});
    QTEST(vendorOf("cam-\xfe", iface), "vendor");
}

void TestCameraVendor::vendorIsUtf8UpToItsFirstNul()
{
    const auto iface = makeInterface({{"a", std::string("M\xc3\xbcller\0rest", 12)}});
    QCOMPARE(vendorOf("a", iface), QStringLiteral("M\u00fcller"));
}

void TestCameraVendor::withoutAMatchTheSelectedDeviceReportsTheVendor()
{
    // Intended, although it is the vendor of another device: the search ended on the last one.
    QCOMPARE(vendorOf("c", twoDevices()), brightline);
    QCOMPARE(selectedValues(), (QVector<long>{0, 1}));
}

void TestCameraVendor::unreadableVendorEndsTheSearchAndIsReadAgain()
{
    QFETCH(Failure, failure);
    failReads(Function::GetValue, "DeviceVendorName", failure, 1, 1);
    QCOMPARE(vendorOf("b", makeInterface({{"b", "Brightline"}, {"b", "Avelin"}})), brightline);
    QCOMPARE(selectedValues(), (QVector<long>{0}));
}

void TestCameraVendor::missingFeatureLeavesTheSelectedDevice_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("command") << QByteArray("DeviceUpdateList");
    QTest::newRow("selector") << QByteArray("DeviceSelector");
    QTest::newRow("ID") << QByteArray("DeviceID");
}

void TestCameraVendor::missingFeatureLeavesTheSelectedDevice()
{
    QFETCH(QByteArray, name);
    const auto iface = twoDevices();
    iface->features.erase(name.toStdString());
    QCOMPARE(vendorOf("b", iface), avelin);
    QCOMPARE(callCount(Function::RunCommand), std::size_t(0));
}

void TestCameraVendor::failedCallLeavesTheSelectedDevice_data()
{
    QTest::addColumn<Function>("function");
    QTest::newRow("command") << Function::RunCommand;
    QTest::newRow("range") << Function::GetRange;
}

void TestCameraVendor::failedCallLeavesTheSelectedDevice()
{
    QFETCH(Function, function);
    script().errors[function] = CvxErrorFailed;
    QCOMPARE(vendorOf("b", twoDevices()), avelin);
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestCameraVendor::emptyRangeLeavesTheSelectedDevice()
{
    const auto iface = twoDevices();
    iface->min = 1;
    iface->max = 0;
    QCOMPARE(vendorOf("b", iface), avelin);
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestCameraVendor::missingVendorFeatureLeavesTheVendorEmpty()
{
    const auto iface = twoDevices();
    iface->features.erase("DeviceVendorName");
    QCOMPARE(vendorOf("b", iface), QString());
    QCOMPARE(callCount(Function::RunCommand), std::size_t(0));
}

void TestCameraVendor::unreadableVendorOfTheSelectedDeviceLeavesTheVendorEmpty()
{
    QFETCH(Failure, failure);
    failReads(Function::GetValue, "DeviceVendorName", failure);
    QCOMPARE(vendorOf("b", twoDevices()), QString());
    QCOMPARE(callCount(Function::GetFeatureByName), std::size_t(5)); // The feature was looked up again.
}

void TestCameraVendor::missingInterfaceLeavesTheVendorEmpty_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("the call fails") << true;
    QTest::newRow("the call returns none") << false;
}

void TestCameraVendor::missingInterfaceLeavesTheVendorEmpty()
{
    QFETCH(bool, fails);
    script().errors[Function::GetInterface] = fails ? CvxErrorFailed : CvxErrorSuccess;
    QCOMPARE(vendorOf("b", fails ? twoDevices() : nullptr), QString());
    QCOMPARE(callCount(Function::GetFeatureByName), std::size_t(0));
}

void TestCameraVendor::cameraWithoutAnIdHasNoVendor()
{
    QCOMPARE(vendorOf("", makeInterface({{"", "Avelin"}})), QString());
    QCOMPARE(callCount(Function::GetFeatureByName), std::size_t(0));
}

QTEST_APPLESS_MAIN(TestCameraVendor)
#include "TestCameraVendor.moc"
