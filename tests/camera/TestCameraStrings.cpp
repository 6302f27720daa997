#include "tests/camera/ProviderTest.h"

using namespace ProviderTest;

Q_DECLARE_METATYPE(CvxScripted::Function)
Q_DECLARE_METATYPE(QString CameraInfo::*)

using Field = QString CameraInfo::*;

/// Tests how one string of a camera is read with the SDK's two calls.
class TestCameraStrings : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void unreadableStringLeavesOnlyItsFieldEmpty_data();
    void unreadableStringLeavesOnlyItsFieldEmpty();
    void stringIsNotReadIfItsLengthCannotBeRead();
    void stringIsDecodedAsUtf8UpToItsFirstNul_data();
    void stringIsDecodedAsUtf8UpToItsFirstNul();
    void failureOfTheSecondIdReadLeavesOnlyTheVendorEmpty_data() { addFailures(); }
    void failureOfTheSecondIdReadLeavesOnlyTheVendorEmpty();
};

void TestCameraStrings::unreadableStringLeavesOnlyItsFieldEmpty_data()
{
    QTest::addColumn<Function>("function");
    QTest::addColumn<Field>("field");
    QTest::addColumn<Failure>("failure");
    const auto addRows = [](const char *name, Function function, Field field) {
        QTest::addRow("%s, length", name) << function << field << Failure::AtLength;
        QTest::addRow("%s, read", name) << function << field << Failure::AtRead;
        QTest::addRow("%s, out of memory", name) << function << field << Failure::OutOfMemory;
    };
    addRows("ID", Function::GetId, &CameraInfo::cameraId);
    addRows("model", Function::GetModel, &CameraInfo::modelName);
    addRows("name", Function::GetName, &CameraInfo::cameraName);
    addRows("serial number", Function::GetSerialNumber, &CameraInfo::serialNumber);
}

void TestCameraStrings::unreadableStringLeavesOnlyItsFieldEmpty()
{
    QFETCH(Function, function);
    QFETCH(Field, field);
    QFETCH(Failure, failure);
    CameraInfo expected = completeInfo(QStringLiteral("a"));
    expected.*field = QString();
    if (function == Function::GetId)
        expected.vendorName = QString(); // Without an ID, the vendor cannot be found either.
    failReads(function, "a", failure);
    QCOMPARE(listOne(completeCamera("a")), expected);
}

void TestCameraStrings::stringIsNotReadIfItsLengthCannotBeRead()
{
    failReads(Function::GetModel, "a", Failure::AtLength);
    listOne(completeCamera("a"));
    QCOMPARE(callCount(Function::GetModel), std::size_t(1));
}

void TestCameraStrings::stringIsDecodedAsUtf8UpToItsFirstNul_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("countsNul");
    QTest::addColumn<QString>("listed");
    const QString expected = QStringLiteral("Kx200");
    QTest::newRow("length includes the NUL") << QByteArray("Kx200") << true << expected;
    QTest::newRow("length excludes the NUL") << QByteArray("Kx200") << false << expected;
    QTest::newRow("several NULs at the end") << QByteArray("Kx200\0\0\0", 8) << true << expected;
    QTest::newRow("characters after the NUL") << QByteArray("Kx200\0old", 9) << false << expected;
    QTest::newRow("empty, NUL counted") << QByteArray("") << true << QString();
    QTest::newRow("empty, length 0") << QByteArray("") << false << QString();
    QTest::newRow("NUL at the front") << QByteArray("\0Kx200", 6) << false << QString();
    QTest::newRow("spaces stay") << QByteArray(" Kx200 ") << true << QStringLiteral(" Kx200 ");
    QTest::newRow("two-byte character") << QByteArray("\xc3\xa4") << true << QStringLiteral("\u00e4");
    QTest::newRow("invalid UTF-8") << QByteArray("a\xff") << true << QStringLiteral("a\ufffd");
}

void TestCameraStrings::stringIsDecodedAsUtf8UpToItsFirstNul()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, countsNul);
    QFETCH(QString, listed);
    StringField string(bytes.toStdString());
    string.countsNul = countsNul;
    const CameraRecord record{string, string, string, string};
    QCOMPARE(
        listOne(record), (CameraInfo{listed, {}, listed, listed, listed, {}, {}, QStringLiteral("Other")}));
    const bool isLengthZero = bytes.isEmpty() && !countsNul; // A string of length 0 is not read.
    QCOMPARE(callCount(Function::GetModel), std::size_t(isLengthZero ? 1 : 2));
}

void TestCameraStrings::failureOfTheSecondIdReadLeavesOnlyTheVendorEmpty()
{
    QFETCH(Failure, failure);
    failReads(Function::GetId, "a", failure, 2); // The ID is read first for its field, then for the vendor.
    CameraInfo expected = completeInfo(QStringLiteral("a"));
    expected.vendorName = QString();
    QCOMPARE(listOne(completeCamera("a")), expected);
}

QTEST_APPLESS_MAIN(TestCameraStrings)
#include "TestCameraStrings.moc"
