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

/// Lists a camera with this ID on this interface, and returns its vendor name.
QString vendorOf(const std::string &id, const std::shared_ptr<InterfaceRecord> &iface)
{
    CameraRecord record;
    record.id = id;
    record.iface = iface;
    return listOne(record).vendorName;
}

/// Returns the values that were written to "DeviceSelector", in their order.
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

/// Tests how the vendor of a camera is found. The vendor is read from the device list of the camera's
/// interface. If this fails, the vendor of the interface's selected device is used.
class TestCameraVendor : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    // These tests find the vendor in the device list.
    void eachCameraOfAnInterfaceHasItsOwnVendor();
    void deviceListIsUpdatedBeforeItIsRead();
    void firstMatchEndsTheSearch();
    void selectorRangeIsInclusive_data();
    void selectorRangeIsInclusive();
    void searchEndsAtTheLargestPossibleValue();
    void unreadableDeviceIdIsSkipped_data() { addFailures(); }
    void unreadableDeviceIdIsSkipped();
    void idsAreComparedByteForByte_data();
    void idsAreComparedByteForByte();
    void vendorIsDecodedAsUtf8UpToItsFirstNul();

    // These tests use the vendor of the selected device.
    void vendorOfTheSelectedDeviceIsUsedIfNoIdMatches();
    void unreadableVendorIsReadOnceMore_data() { addFailures(); }
    void unreadableVendorIsReadOnceMore();
    void missingFeatureDoesNotChangeTheSelectedDevice_data();
    void missingFeatureDoesNotChangeTheSelectedDevice();
    void failedCallDoesNotChangeTheSelectedDevice_data();
    void failedCallDoesNotChangeTheSelectedDevice();
    void emptyRangeDoesNotChangeTheSelectedDevice();

    // These tests find no vendor.
    void missingVendorFeatureLeavesTheVendorEmpty();
    void unreadableVendorOfTheSelectedDeviceLeavesTheVendorEmpty_data() { addFailures(); }
    void unreadableVendorOfTheSelectedDeviceLeavesTheVendorEmpty();
    void missingInterfaceLeavesTheVendorEmpty_data();
    void missingInterfaceLeavesTheVendorEmpty();
    void cameraWithoutAnIdHasNoVendor();
};

void TestCameraVendor::eachCameraOfAnInterfaceHasItsOwnVendor()
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

void TestCameraVendor::selectorRangeIsInclusive_data()
{
    QTest::addColumn<qlonglong>("position");
    QTest::newRow("at the smallest value") << -2LL;
    QTest::newRow("in between") << 0LL;
    QTest::newRow("at the largest value") << 3LL;
}

void TestCameraVendor::selectorRangeIsInclusive()
{
    QFETCH(qlonglong, position);
    const auto iface = std::make_shared<InterfaceRecord>();
    iface->devices[long(position)] = {"b", "Brightline"};
    iface->selected = long(position);
    iface->min = -2;
    iface->max = 3;
    QCOMPARE(vendorOf("b", iface), brightline);
    // The search skips a value that cannot be set, although the device that stays selected has this ID.
    QCOMPARE(selectedValues(), (QVector<long>{-2, -1, 0, 1, 2, 3}).mid(0, int(position) + 3));
}

void TestCameraVendor::searchEndsAtTheLargestPossibleValue()
{
    const auto iface = std::make_shared<InterfaceRecord>();
    iface->devices[LONG_MAX] = {"c", "Brightline"};
    iface->min = LONG_MAX - 1;
    QCOMPARE(vendorOf("a", iface), brightline); // The search found no match and ended at this device.
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

void TestCameraVendor::vendorIsDecodedAsUtf8UpToItsFirstNul()
{
    const auto iface = makeInterface({{"a", std::string("M\xc3\xbcller\0rest", 12)}});
    QCOMPARE(vendorOf("a", iface), QStringLiteral("M\u00fcller"));
}

void TestCameraVendor::vendorOfTheSelectedDeviceIsUsedIfNoIdMatches()
{
    // Intended: the vendor belongs to another device, because the search ended at the last device.
    QCOMPARE(vendorOf("c", twoDevices()), brightline);
    QCOMPARE(selectedValues(), (QVector<long>{0, 1}));
}

void TestCameraVendor::unreadableVendorIsReadOnceMore()
{
    QFETCH(Failure, failure);
    failReads(Function::GetValue, "DeviceVendorName", failure, 1, 1);
    QCOMPARE(vendorOf("b", makeInterface({{"b", "Brightline"}, {"b", "Avelin"}})), brightline);
    QCOMPARE(selectedValues(), (QVector<long>{0}));
}

void TestCameraVendor::missingFeatureDoesNotChangeTheSelectedDevice_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("command") << QByteArray("DeviceUpdateList");
    QTest::newRow("selector") << QByteArray("DeviceSelector");
    QTest::newRow("ID") << QByteArray("DeviceID");
}

void TestCameraVendor::missingFeatureDoesNotChangeTheSelectedDevice()
{
    QFETCH(QByteArray, name);
    const auto iface = twoDevices();
    iface->features.erase(name.toStdString());
    QCOMPARE(vendorOf("b", iface), avelin);
    QCOMPARE(callCount(Function::RunCommand), std::size_t(0));
}

void TestCameraVendor::failedCallDoesNotChangeTheSelectedDevice_data()
{
    QTest::addColumn<Function>("function");
    QTest::newRow("command") << Function::RunCommand;
    QTest::newRow("range") << Function::GetRange;
}

void TestCameraVendor::failedCallDoesNotChangeTheSelectedDevice()
{
    QFETCH(Function, function);
    script().errors[function] = CvxErrorFailed;
    QCOMPARE(vendorOf("b", twoDevices()), avelin);
    QCOMPARE(selectedValues(), QVector<long>());
}

void TestCameraVendor::emptyRangeDoesNotChangeTheSelectedDevice()
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
