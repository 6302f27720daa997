#include "tests/ui/ConfiguredWindow.h"

#include <QRegularExpression>
#include <QtTest>

using namespace ConfigDocuments;

class TestCameraTooltip : public QObject
{
    Q_OBJECT

private slots:
    void tooltipContainsThePictureAndTheFields();
    void picturesAreScaledToTheSameWidth();
    void tooltipOmitsEmptyFieldsAndEscapesHtml_data();
    void tooltipOmitsEmptyFieldsAndEscapesHtml();
};

namespace {

QString field(const char *label, const QString &value)
{
    return "<tr><td style='color:#64748b;padding-right:8px;white-space:nowrap;'>"_s + latin1(label)
        + "</td><td style='color:#e8edf2;'>"_s + value + "</td></tr>"_s;
}

QString tooltip(const QString &imageCell, const QString &fields)
{
    return "<table cellspacing='0' cellpadding='0' width='270' style='font-family:Segoe UI;font-size:11px;'>"
           "<tr>"_s
        + imageCell
        + "<td style='padding:8px;vertical-align:top;background:#1a2332;'><table cellspacing='2'>"_s + fields
        + "</table></td></tr></table>"_s;
}

QString base64(const QString &tooltip)
{
    static const QRegularExpression picture("base64,([^']*)'"_s);
    return picture.match(tooltip).captured(1);
}

CameraInfo withFields(const char *model, const char *interfaceType, const char *ip, const char *mac)
{
    CameraInfo info = camera("Orvelle"_s, latin1(model), {}, {}, latin1(interfaceType));
    info.ipAddress = latin1(ip);
    info.macAddress = latin1(mac);
    return info;
}

} // namespace

void TestCameraTooltip::tooltipContainsThePictureAndTheFields()
{
    ConfiguredWindow configured;
    configured.createFile("cti/a_gige.cti"_s);
    configured.loadConfig();
    configured.setCameras({withFields("Kx200 5MP", "GigE", "192.0.2.7", "02:00:5e:10:00:01")});
    const QString picture = base64(configured.toolTip(0));
    QVERIFY(!picture.isEmpty());
    const QString imageCell
        = "<td width='90' style='background:white;padding:6px;vertical-align:middle;text-align:center;'>"
          "<img src='data:image/png;base64,"_s
        + picture + "' width='78'></td>"_s;
    QCOMPARE(configured.toolTip(0),
        tooltip(imageCell,
            field("Interface", "GigE"_s) + field("IP", "192.0.2.7"_s) + field("MAC", "02:00:5e:10:00:01"_s)
                + field("CTI file", "a_gige.cti"_s)));
}

void TestCameraTooltip::picturesAreScaledToTheSameWidth()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.setCameras({camera("Orvelle"_s, "Kx200 5MP"_s), camera("Orvelle"_s, "Simulator"_s),
        camera("Some Vendor"_s, {})});
    const QVector<QPair<QSize, QColor>> expected{
        {{78, 50}, Qt::red}, {{78, 156}, Qt::blue}, {{78, 78}, Qt::green}};
    for (int row = 0; row < expected.size(); ++row) {
        const QByteArray text = base64(configured.toolTip(row)).toLatin1();
        const QByteArray png = QByteArray::fromBase64(text);
        QCOMPARE(png.toBase64(), text); // The encoding uses the standard alphabet with padding.
        const QImage image = QImage::fromData(png, "PNG");
        QCOMPARE(image.size(), expected.at(row).first);
        QCOMPARE(image.pixelColor(image.rect().center()), expected.at(row).second);
    }
}

void TestCameraTooltip::tooltipOmitsEmptyFieldsAndEscapesHtml_data()
{
    QTest::addColumn<CameraInfo>("info");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("expected");
    const QString noFile = field("CTI file", "-"_s);
    QTest::newRow("none") << withFields("Lost", "", "", "") << QString() << noFile;
    QTest::newRow("interface") << withFields("Lost", "USB", "", "") << QString()
                               << field("Interface", "USB"_s) + noFile;
    QTest::newRow("IP") << withFields("Lost", "", "10.0.0.1", "") << QString()
                        << field("IP", "10.0.0.1"_s) + noFile;
    QTest::newRow("MAC") << withFields("Lost", "", "", "02:00") << QString()
                         << field("MAC", "02:00"_s) + noFile;
    QTest::newRow("escaped") << withFields("Lost", "<GigE>", "1 & 2", "\"mac\"") << "a<b>&\"c'.cti"_s
                             << field("Interface", "&lt;GigE&gt;"_s) + field("IP", "1 &amp; 2"_s)
            + field("MAC", "&quot;mac&quot;"_s) + field("CTI file", "a&lt;b&gt;&amp;&quot;c'.cti"_s);
    QTest::newRow("percent signs") << withFields("Lost", "%3%2%1", "%1", "%99 %L1") << "%1%2%3.cti"_s
                                   << field("Interface", "%3%2%1"_s) + field("IP", "%1"_s)
            + field("MAC", "%99 %L1"_s) + field("CTI file", "%1%2%3.cti"_s);
}

// Intended: the placeholder does not replace a picture that cannot be loaded. The tooltip therefore has no
// image cell.
void TestCameraTooltip::tooltipOmitsEmptyFieldsAndEscapesHtml()
{
    QFETCH(CameraInfo, info);
    QFETCH(QString, file);
    QFETCH(QString, expected);
    ConfiguredWindow configured;
    if (!file.isEmpty())
        configured.createFile("cti/"_s + file);
    configured.loadConfig();
    configured.setCameras({info});
    QCOMPARE(configured.toolTip(0), tooltip({}, expected));
}

QTEST_MAIN(TestCameraTooltip)
#include "TestCameraTooltip.moc"
