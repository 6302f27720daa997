#include "tests/camera/AllocationLimit.h"
#include "tests/camera/ProviderTest.h"

#include <climits>

using namespace CvxScripted;
using namespace ProviderTest;

Q_DECLARE_METATYPE(CvxScripted::Text CvxScripted::CameraRecord::*)
Q_DECLARE_METATYPE(QString CameraInfo::*)
Q_DECLARE_METATYPE(CvxScripted::Text)

namespace {

using RecordText = Text CameraRecord::*;
using InfoText = QString CameraInfo::*;

Text text(const std::string &value, bool countsNul)
{
    Text made(value);
    made.countsNul = countsNul;
    return made;
}

Text textOfLength(const std::string &value, unsigned length)
{
    Text made(value);
    made.length = length;
    return made;
}

/// One row per text of a camera: where the SDK has it, and where the list has it.
void addTexts()
{
    QTest::addColumn<RecordText>("source");
    QTest::addColumn<InfoText>("target");
    QTest::newRow("ID") << &CameraRecord::id << &CameraInfo::cameraId;
    QTest::newRow("model") << &CameraRecord::model << &CameraInfo::modelName;
    QTest::newRow("name") << &CameraRecord::name << &CameraInfo::cameraName;
    QTest::newRow("serial number") << &CameraRecord::serialNumber << &CameraInfo::serialNumber;
}

/// What is listed when one text cannot be read: a camera without an ID finds no vendor either.
CameraInfo infoWithout(InfoText lost)
{
    CameraInfo info = completeInfo(QStringLiteral("a"));
    info.*lost = QString();
    if (info.cameraId.isEmpty())
        info.vendorName = QString();
    return info;
}

} // namespace

/// Reading one text of a camera, with the SDK's two calls.
class TestCameraTexts : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void failedLengthLeavesOnlyThatFieldEmpty_data() { addTexts(); }
    void failedLengthLeavesOnlyThatFieldEmpty();
    void failedReadLeavesOnlyThatFieldEmpty_data() { addTexts(); }
    void failedReadLeavesOnlyThatFieldEmpty();
    void failedLengthIsNotFollowedByARead();
    void outOfMemoryLeavesOnlyThatFieldEmpty_data() { addTexts(); }
    void outOfMemoryLeavesOnlyThatFieldEmpty();
    void outOfMemoryInsideTheSdkLeavesOnlyThatFieldEmpty();
    void textEndsAtItsFirstNul_data();
    void textEndsAtItsFirstNul();
    void textIsUtf8_data();
    void textIsUtf8();
    void idThatFailsTheSecondTimeKeepsTheIdButFindsNoVendor_data();
    void idThatFailsTheSecondTimeKeepsTheIdButFindsNoVendor();
};

void TestCameraTexts::failedLengthLeavesOnlyThatFieldEmpty()
{
    QFETCH(RecordText, source);
    QFETCH(InfoText, target);
    CameraRecord record = completeCamera("a");
    (record.*source).lengthError = CvxCPP::CvxErrorNotAvailable;
    QCOMPARE(listOne(record), infoWithout(target));
}

void TestCameraTexts::failedReadLeavesOnlyThatFieldEmpty()
{
    QFETCH(RecordText, source);
    QFETCH(InfoText, target);
    CameraRecord record = completeCamera("a");
    (record.*source).textError = CvxCPP::CvxErrorBufferTooSmall;
    QCOMPARE(listOne(record), infoWithout(target));
}

void TestCameraTexts::failedLengthIsNotFollowedByARead()
{
    CameraRecord record = completeCamera("a");
    record.model.lengthError = CvxCPP::CvxErrorFailed;
    listOne(record);
    QCOMPARE(callCount(Function::GetModel), std::size_t(1));
}

void TestCameraTexts::outOfMemoryLeavesOnlyThatFieldEmpty()
{
    QFETCH(RecordText, source);
    QFETCH(InfoText, target);
    const AllocationLimit limit;
    for (const unsigned length : {unsigned(INT_MAX), unsigned(INT_MAX) + 1, UINT_MAX}) {
        CameraRecord record = completeCamera("a");
        (record.*source).length = length;
        QCOMPARE(listOne(record), infoWithout(target));
    }
    QVERIFY(limit.refused() >= 3);
}

void TestCameraTexts::outOfMemoryInsideTheSdkLeavesOnlyThatFieldEmpty()
{
    script().intercept = [](const Call &call) -> CvxCPP::CvxError {
        if (call.function == Function::GetName && !call.asksLength)
            throw std::bad_alloc();
        return CvxCPP::CvxErrorSuccess;
    };
    QCOMPARE(listOne(completeCamera("a")), infoWithout(&CameraInfo::cameraName));
}

void TestCameraTexts::textEndsAtItsFirstNul_data()
{
    using namespace std::string_literals;
    QTest::addColumn<Text>("told");
    QTest::addColumn<QString>("listed");
    const QString expected = QStringLiteral("Kx200");
    QTest::newRow("length counts the NUL") << text("Kx200", true) << expected;
    QTest::newRow("length does not count it") << text("Kx200", false) << expected;
    QTest::newRow("several NULs at the end") << text("Kx200\0\0\0"s, true) << expected;
    QTest::newRow("something after the NUL") << text("Kx200\0old text"s, false) << expected;
    QTest::newRow("buffer longer than the text") << textOfLength("Kx200", 64) << expected;
    QTest::newRow("empty, NUL counted") << text("", true) << QString();
    QTest::newRow("empty, length 0") << text("", false) << QString();
    QTest::newRow("NUL at the front") << text("\0Kx200"s, false) << QString();
    Text boasting("Kx200");
    boasting.writtenSize = 4000;
    QTest::newRow("claims to have written more") << boasting << expected;
    QTest::newRow("blanks stay") << text(" Kx200 ", true) << QStringLiteral(" Kx200 ");
}

void TestCameraTexts::textEndsAtItsFirstNul()
{
    QFETCH(Text, told);
    QFETCH(QString, listed);
    CameraRecord record;
    record.id = record.model = record.name = record.serialNumber = told;
    CameraInfo expected;
    expected.cameraId = expected.modelName = expected.cameraName = expected.serialNumber = listed;
    expected.interfaceType = QStringLiteral("Other");
    QCOMPARE(listOne(record), expected);
}

void TestCameraTexts::textIsUtf8_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("listed");
    QTest::newRow("two bytes") << QByteArray("K\xc3\xa4mera") << QStringLiteral("K\u00e4mera");
    QTest::newRow("three bytes") << QByteArray("\xe7\x9b\xb8\xe6\x9c\xba") << QStringLiteral("\u76f8\u673a");
    QTest::newRow("four bytes") << QByteArray("\xf0\x9f\x93\xb7") << QStringLiteral("\U0001f4f7");
    QTest::newRow("a bad byte is replaced") << QByteArray("a\xff"
                                                          "b")
                                            << QStringLiteral("a\ufffd"
                                                              "b");
}

void TestCameraTexts::textIsUtf8()
{
    QFETCH(QByteArray, bytes);
    CameraRecord record = completeCamera("a");
    record.model = bytes.toStdString();
    QTEST(listOne(record).modelName, "listed");
}

void TestCameraTexts::idThatFailsTheSecondTimeKeepsTheIdButFindsNoVendor_data()
{
    QTest::addColumn<bool>("failsAtLength");
    QTest::newRow("length") << true;
    QTest::newRow("text") << false;
}

void TestCameraTexts::idThatFailsTheSecondTimeKeepsTheIdButFindsNoVendor()
{
    QFETCH(bool, failsAtLength);
    script().intercept = [failsAtLength, seen = 0](const Call &call) mutable -> CvxCPP::CvxError {
        if (call.function == Function::GetId && call.asksLength == failsAtLength && ++seen == 2)
            return CvxCPP::CvxErrorFailed;
        return CvxCPP::CvxErrorSuccess;
    };
    QCOMPARE(listOne(completeCamera("a")), infoWithout(&CameraInfo::vendorName));
}

QTEST_APPLESS_MAIN(TestCameraTexts)
#include "TestCameraTexts.moc"
