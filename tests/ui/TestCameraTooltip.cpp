#include "tests/config/ConfigDocuments.h"
#include "tests/ui/ConfiguredWindow.h"

#include <QRegularExpression>
#include <QtTest>

using ConfigDocuments::latin1;

class TestCameraTooltip : public QObject
{
    Q_OBJECT

private slots:
    void tooltipIsThisTable();
    void pictureIsScaledToItsWidth_data();
    void pictureIsScaledToItsWidth();
    void pictureThatDoesNotLoadLeavesNoCell();
    void emptyFactsAreLeftOut_data();
    void emptyFactsAreLeftOut();
    void missingFileIsADash();
    void simulatorShowsItsRealInterface();
    void factsAreEscaped();
    void percentSignsInTheDataAreNoPlaces();
    void onlyTheFileNameIsShown();
    void tooltipFollowsTheCamera();
};

namespace {

QString fact(const char *label, const QString &escapedValue)
{
    return QStringLiteral("<tr><td style='color:#64748b;padding-right:8px;white-space:nowrap;'>")
        + latin1(label) + QStringLiteral("</td><td style='color:#e8edf2;'>") + escapedValue
        + QStringLiteral("</td></tr>");
}

QString table(const QString &imageCell, const QString &facts)
{
    return QStringLiteral("<table cellspacing='0' cellpadding='0' width='270' "
                          "style='font-family:Segoe UI;font-size:11px;'><tr>")
        + imageCell
        + QStringLiteral(
            "<td style='padding:8px;vertical-align:top;background:#1a2332;'><table cellspacing='2'>")
        + facts + QStringLiteral("</table></td></tr></table>");
}

QString imageCell(const QString &base64)
{
    return QStringLiteral("<td width='90' style='background:white;padding:6px;vertical-align:middle;"
                          "text-align:center;'><img src='data:image/png;base64,")
        + base64 + QStringLiteral("' width='78'></td>");
}

QString base64Of(const QString &toolTip)
{
    static const QRegularExpression picture(QStringLiteral("base64,([^']*)'"));
    return picture.match(toolTip).captured(1);
}

CameraInfo withAllFacts()
{
    CameraInfo info
        = camera(latin1("Orvelle"), latin1("Kx200 5MP"), latin1("1"), latin1("a"), latin1("GigE"));
    info.ipAddress = latin1("192.0.2.7");
    info.macAddress = latin1("02:00:5e:10:00:01");
    return info;
}

QString toolTipOf(const CameraInfo &info)
{
    ConfiguredWindow configured;
    configured.touch(latin1("cti/a_gige.cti"));
    configured.loadConfig();
    configured.list({info});
    return configured.toolTip(0);
}

} // namespace

void TestCameraTooltip::tooltipIsThisTable()
{
    const QString toolTip = toolTipOf(withAllFacts());
    const QString base64 = base64Of(toolTip);
    QVERIFY(!base64.isEmpty());
    QCOMPARE(toolTip,
        table(imageCell(base64),
            fact("Interface", latin1("GigE")) + fact("IP", latin1("192.0.2.7"))
                + fact("MAC", latin1("02:00:5e:10:00:01")) + fact("CTI file", latin1("a_gige.cti"))));
}

void TestCameraTooltip::pictureIsScaledToItsWidth_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QColor>("color");
    QTest::newRow("row's picture, shrunk") << latin1("Kx200 5MP") << QSize(78, 50) << QColor(Qt::red);
    QTest::newRow("logo, enlarged") << latin1("Simulator") << QSize(78, 156) << QColor(Qt::blue);
    QTest::newRow("placeholder") << QString() << QSize(78, 78) << QColor(Qt::green);
}

void TestCameraTooltip::pictureIsScaledToItsWidth()
{
    QFETCH(QString, model);
    const QString vendor = model.isEmpty() ? latin1("Some Maker") : latin1("Orvelle");
    const QString base64 = base64Of(toolTipOf(camera(vendor, model)));
    const QByteArray png = QByteArray::fromBase64(base64.toLatin1());
    QCOMPARE(QString::fromLatin1(png.toBase64()), base64); // Standard alphabet, padded.
    const QImage image = QImage::fromData(png, "PNG");
    QTEST(image.size(), "size");
    QTEST(image.pixelColor(image.rect().center()), "color");
}

// Intended: the placeholder is for cameras without a picture, not for pictures that are missing.
void TestCameraTooltip::pictureThatDoesNotLoadLeavesNoCell()
{
    QCOMPARE(toolTipOf(camera(latin1("Orvelle"), latin1("Lost 1"), {}, {}, latin1("GigE"))),
        table({}, fact("Interface", latin1("GigE")) + fact("CTI file", latin1("a_gige.cti"))));
}

void TestCameraTooltip::emptyFactsAreLeftOut_data()
{
    QTest::addColumn<QString>("interfaceType");
    QTest::addColumn<QString>("ip");
    QTest::addColumn<QString>("mac");
    QTest::addColumn<QString>("facts");
    const QString file = fact("CTI file", latin1("a_gige.cti"));
    QTest::newRow("no facts") << QString() << QString() << QString() << file;
    QTest::newRow("interface") << latin1("GigE") << QString() << QString()
                               << fact("Interface", latin1("GigE")) + file;
    QTest::newRow("address") << QString() << latin1("10.0.0.1") << QString()
                             << fact("IP", latin1("10.0.0.1")) + file;
    QTest::newRow("hardware address")
        << QString() << QString() << latin1("02:00") << fact("MAC", latin1("02:00")) + file;
}

void TestCameraTooltip::emptyFactsAreLeftOut()
{
    QFETCH(QString, interfaceType);
    QFETCH(QString, ip);
    QFETCH(QString, mac);
    QFETCH(QString, facts);
    CameraInfo info = camera(latin1("Orvelle"), latin1("Lost 1"), {}, {}, interfaceType);
    info.ipAddress = ip;
    info.macAddress = mac;
    QCOMPARE(toolTipOf(info), table({}, facts));
}

void TestCameraTooltip::missingFileIsADash()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list({camera(latin1("Orvelle"), latin1("Lost 1"))});
    QCOMPARE(configured.toolTip(0), table({}, fact("CTI file", latin1("-"))));
}

// Intended: the label "Simulator" chooses the file, the tooltip shows what the SDK reported.
void TestCameraTooltip::simulatorShowsItsRealInterface()
{
    const QString toolTip = toolTipOf(camera(latin1("Orvelle"), latin1("Simulator"), {}, {}, latin1("GigE")));
    QVERIFY(toolTip.contains(fact("Interface", latin1("GigE"))));
}

void TestCameraTooltip::factsAreEscaped()
{
    ConfiguredWindow configured;
    configured.touch(latin1("cti/a<b>&\"c'.cti"));
    configured.loadConfig();
    CameraInfo info = camera(latin1("Orvelle"), latin1("Lost 1"), {}, {}, latin1("<GigE>"));
    info.ipAddress = latin1("1 & 2");
    info.macAddress = latin1("\"mac\"");
    configured.list({info});
    QCOMPARE(configured.toolTip(0),
        table({},
            fact("Interface", latin1("&lt;GigE&gt;")) + fact("IP", latin1("1 &amp; 2"))
                + fact("MAC", latin1("&quot;mac&quot;"))
                + fact("CTI file", latin1("a&lt;b&gt;&amp;&quot;c'.cti"))));
}

void TestCameraTooltip::percentSignsInTheDataAreNoPlaces()
{
    ConfiguredWindow configured;
    configured.touch(latin1("cti/%1%2%3.cti"));
    configured.loadConfig();
    CameraInfo info = camera(latin1("Orvelle"), latin1("Kx200 5MP"), {}, {}, latin1("%3%2%1"));
    info.ipAddress = latin1("%1");
    info.macAddress = latin1("%99 %L1");
    configured.list({info});
    QCOMPARE(configured.toolTip(0),
        table(imageCell(base64Of(configured.toolTip(0))),
            fact("Interface", latin1("%3%2%1")) + fact("IP", latin1("%1")) + fact("MAC", latin1("%99 %L1"))
                + fact("CTI file", latin1("%1%2%3.cti"))));
}

void TestCameraTooltip::onlyTheFileNameIsShown()
{
    QVERIFY(!toolTipOf(withAllFacts()).contains(latin1("cti/a_gige")));
}

void TestCameraTooltip::tooltipFollowsTheCamera()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    CameraInfo info = camera(latin1("Orvelle"), latin1("Lost 1"), {}, {}, latin1("USB"));
    configured.list({info});
    QVERIFY(configured.toolTip(0).contains(latin1("USB")));
    info.interfaceType = latin1("PCI");
    configured.list({info});
    QVERIFY(configured.toolTip(0).contains(latin1("PCI")));
    QVERIFY(!configured.toolTip(0).contains(latin1("USB")));
}

QTEST_MAIN(TestCameraTooltip)
#include "TestCameraTooltip.moc"
