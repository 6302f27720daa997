#include "tools/kit/editors/HexBytes.h"
#include "tools/kit/editors/HexText.h"

#include <QtTest>

using Bytes = HexBytes::Bytes;

class TestHexText : public QObject
{
    Q_OBJECT

private slots:
    void textIsParsedAsBytes_data();
    void textIsParsedAsBytes();
    void bytesAreShownAsText();
    void cameraDoesNotReplaceEditedBytes();
};

void TestHexText::textIsParsedAsBytes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("bytes"); // Empty if there are none.
    const auto row = [](const char *text, const char *bytes) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(bytes);
    };
    row("00 1f A2", "00 1F A2");
    row("001fa2", "00 1F A2");
    row("0x001f, 0xa2", "00 1F A2");
    row("1:2:f", "01 02 0F");
    row("de-ad\n\tbe ef\n", "DE AD BE EF");
    row("123", "");
    row("0x", "");
    row("12 3g", "");
    row("+1", "");
    row("  ", "");
}

void TestHexText::textIsParsedAsBytes()
{
    QFETCH(QString, text);
    const auto bytes = parseHexText(text);
    QTEST(bytes ? hexText(*bytes) : QString(), "bytes");
}

void TestHexText::bytesAreShownAsText()
{
    QCOMPARE(asciiText({0x1F, 0x20, 0x41, 0x7E, 0x7F, 0xC3}), QStringLiteral(". A~.."));
    QVERIFY(parseAsciiText(QStringLiteral("A~")) == (Bytes{0x41, 0x7E}));
    QVERIFY(!parseAsciiText(QStringLiteral("A\u00e4")));
    QCOMPARE(offsetText(0x1F, 32), QStringLiteral("001F"));
    QCOMPARE(offsetText(0, 0x10001), QStringLiteral("00000"));
}

void TestHexText::cameraDoesNotReplaceEditedBytes()
{
    HexBytes bytes;
    bytes.setCamera({0x10, 0x20, 0x30});
    QCOMPARE(bytes.overwrite(1, {0x21, 0x31, 0x41}), std::size_t(2));
    bytes.setHighDigit(0, 0xA);
    QVERIFY(bytes.shown() == (Bytes{0xA0, 0x21, 0x31}));
    bytes.setCamera({0x10, 0x21, 0x33});
    QVERIFY(bytes.shown() == (Bytes{0xA0, 0x21, 0x31}));
    QVERIFY(bytes.isChanged(0) && !bytes.isChanged(1) && bytes.isChanged(2));
    bytes.restore(2, 9);
    bytes.setLowDigit(2, 0x3);
    QVERIFY(bytes.isModified());
    bytes.setHighDigit(0, 0x1);
    QVERIFY(!bytes.isModified()); // What was typed is what the camera has.
    bytes.setCamera({0x11, 0x21, 0x33});
    QVERIFY(bytes.shown() == (Bytes{0x11, 0x21, 0x33}));
    bytes.setLowDigit(0, 0x5);
    bytes.setCamera({0x01});
    QVERIFY(bytes.shown() == Bytes{0x01}); // Another length is another register.
    bytes.setLowDigit(0, 0x5);
    bytes.restoreAll();
    QVERIFY(bytes.shown() == Bytes{0x01} && !bytes.isModified());
}

QTEST_GUILESS_MAIN(TestHexText)
#include "TestHexText.moc"
