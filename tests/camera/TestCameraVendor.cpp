#include "tests/camera/VendorTest.h"

#include <climits>

using namespace VendorTest;
using CvxCPP::CvxError;
using CvxCPP::CvxErrorFailed;

/// The vendor is found in the device list of the camera's interface.
class TestVendorWalk : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

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
};

void TestVendorWalk::eachCameraOfAnInterfaceGetsItsOwnVendor()
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

void TestVendorWalk::listIsUpdatedBeforeItIsWalked()
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

void TestVendorWalk::valuesAreTriedInOrderUntilTheFirstMatch()
{
    const auto iface
        = makeInterface({device("c", "C"), device("d", "D"), device("b", "Brightline"), device("e", "E")});
    QCOMPARE(vendorOf("b", iface), brightline());
    QCOMPARE(selectedValues(), (QVector<long>{0, 1, 2}));
    QCOMPARE(vendorReads(), 1);
}

void TestVendorWalk::firstOfTwoMatchesWins()
{
    QCOMPARE(vendorOf("a", makeInterface({device("a", "Avelin"), device("a", "Brightline")})), avelin());
}

void TestVendorWalk::rangeIsInclusive_data()
{
    QTest::addColumn<qlonglong>("at");
    QTest::newRow("at the smallest value") << -2LL;
    QTest::newRow("in between") << 0LL;
    QTest::newRow("at the largest value") << 3LL;
}

void TestVendorWalk::rangeIsInclusive()
{
    QFETCH(qlonglong, at);
    const auto iface = std::make_shared<InterfaceRecord>();
    iface->devices[long(at)] = device("b", "Brightline");
    iface->min = -2;
    iface->max = 3;
    QCOMPARE(vendorOf("b", iface), brightline());
}

void TestVendorWalk::rangeUpToTheLargestValueEnds()
{
    const auto iface = std::make_shared<InterfaceRecord>();
    iface->devices[LONG_MAX] = device("a", "Avelin");
    iface->min = LONG_MAX - 1;
    QCOMPARE(vendorOf("a", iface), avelin());

    iface->devices[LONG_MAX] = device("c", "Brightline");
    QCOMPARE(vendorOf("a", iface), brightline()); // The selected device, after a walk without a match.
    QCOMPARE(selectedValues(), (QVector<long>{LONG_MAX - 1, LONG_MAX, LONG_MAX - 1, LONG_MAX}));
}

void TestVendorWalk::valueThatCannotBeSelectedIsSkipped()
{
    const auto iface = makeInterface({device("b", "Avelin"), device("b", "Brightline")});
    iface->devices[0].selectError = CvxCPP::CvxErrorInvalidParameter; // 0 is selected all the same.
    QCOMPARE(vendorOf("b", iface), brightline());
}

void TestVendorWalk::unreadableDeviceIdIsSkipped_data()
{
    QTest::addColumn<bool>("failsAtLength");
    QTest::newRow("length") << true;
    QTest::newRow("text") << false;
}

void TestVendorWalk::unreadableDeviceIdIsSkipped()
{
    QFETCH(bool, failsAtLength);
    const auto iface = makeInterface({device("b", "Avelin"), device("b", "Brightline")});
    Text &id = iface->devices[0].id;
    (failsAtLength ? id.lengthError : id.textError) = CvxErrorFailed;
    QCOMPARE(vendorOf("b", iface), brightline());
}

void TestVendorWalk::idsAreComparedByteForByte_data()
{
    QTest::addColumn<QByteArray>("listed");
    QTest::newRow("letter case") << QByteArray("CAM-\xfe");
    QTest::newRow("prefix") << QByteArray("cam-");
    QTest::newRow("longer") << QByteArray("cam-\xfe.");
    QTest::newRow("another byte that is no UTF-8") << QByteArray("cam-\xff");
}

void TestVendorWalk::idsAreComparedByteForByte()
{
    QFETCH(QByteArray, listed);
    const std::string id = "cam-\xfe";
    const auto iface = makeInterface({device(listed.toStdString(), "Avelin"), device(id, "Brightline")});
    QCOMPARE(vendorOf(id, iface), brightline());
}

void TestVendorWalk::closingNulOnOneSideOnlyStillMatches()
{
    const auto iface = twoDevices();
    iface->devices[1].id.countsNul = false;
    QCOMPARE(vendorOf("b", iface), brightline());

    iface->devices[1].id = std::string("b\0\0", 3);
    QCOMPARE(vendorOf("b", iface), brightline());
}

void TestVendorWalk::vendorIsUtf8()
{
    QCOMPARE(vendorOf("a", makeInterface({device("a", "M\xc3\xbcller Optik")})),
        QStringLiteral("M\u00fcller Optik"));
}

void TestVendorWalk::vendorEndsAtItsFirstNul()
{
    const auto iface = makeInterface({device("a", std::string("Avelin\0rest", 11))});
    QCOMPARE(vendorOf("a", iface), avelin());
    iface->devices[0].vendor = "Avelin";
    iface->devices[0].vendor.countsNul = false;
    QCOMPARE(vendorOf("a", iface), avelin());
}

QTEST_APPLESS_MAIN(TestVendorWalk)
#include "TestVendorWalk.moc"
