#include "tests/ui/ConfiguredWindow.h"

#include <QLayout>
#include <QtTest>

using namespace ConfigDocuments;

/// Tests which producer file is chosen for a camera.
class TestCtiChoice : public QObject
{
    Q_OBJECT

private slots:
    void fileNameWithAKeywordIsPreferred_data();
    void fileNameWithAKeywordIsPreferred();
    void fileWithTheMostPointsIsChosen_data();
    void fileWithTheMostPointsIsChosen();
    void simulatorIsRecognisedByVendorAndModel();
    void choiceIsCachedForEachLabel();
};

namespace {

CameraInfo withInterface(const QString &interfaceType)
{
    return camera("Some Vendor"_s, {}, {}, {}, interfaceType);
}

QStringList split(const QString &names)
{
    return names.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// Returns the file that is chosen among `files`. A file without a directory is created in "cti". The search
/// order is "cti", "b", "a".
QString chosenFile(const QStringList &files, const CameraInfo &info)
{
    ConfiguredWindow configured(QMap<QString, QByteArray>{});
    for (const QString &file : files)
        configured.createFile(file.contains(QLatin1Char('/')) ? file : "cti/"_s + file);
    configured.writeCtiPaths({"cti"_s, "b"_s, "a"_s});
    configured.loadConfig();
    configured.setCameras({info});
    return configured.ctiFile(0);
}

} // namespace

void TestCtiChoice::fileNameWithAKeywordIsPreferred_data()
{
    QTest::addColumn<QString>("interfaceType");
    QTest::addColumn<QString>("keyword");
    const auto add = [](const char *labels, const char *keywords) {
        for (const QString &label : split(latin1(labels))) {
            for (const QString &keyword : split(latin1(keywords)))
                QTest::addRow("%s %s", qPrintable(label), qPrintable(keyword)) << label << keyword;
        }
    };
    add("Simulator MySIMULATORs", "simulator camerasimulator CameraSimulator");
    add("GigE GIGE gig 10GigE-Vision", "gige gig gev gevt gigeetl gigetl GEV");
    add("USB usb3 U3V xu3vx", "usb u3v usbt usbtL usbtl USBTL");
    add("CoaXPress CXP-12", "cxp coaxpress CoaXPress");
    add("CameraLinkHS clhs CLHS2", "clhs cameralinkhs cl-hs CL-HS");
    add("CameraLink CL Cl-Full", "cameralink cl cltl");
    add("FireWire IIDC iidc", "iidc firewire FireWire");
}

void TestCtiChoice::fileNameWithAKeywordIsPreferred()
{
    QFETCH(QString, interfaceType);
    QFETCH(QString, keyword);
    const QString expected = "zz"_s + keyword + ".cti"_s;
    QCOMPARE(chosenFile({"aa_corvix.cti"_s, "0.cti"_s, expected}, withInterface(interfaceType)), expected);
}

void TestCtiChoice::fileWithTheMostPointsIsChosen_data()
{
    QTest::addColumn<QString>("interfaceType");
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("best");
    const auto add = [](const char *name, const char *interfaceType, const char *files, const char *best) {
        QTest::newRow(name) << latin1(interfaceType) << latin1(files) << latin1(best);
    };
    add("two keywords, none", "GigE", "b_gige.cti a_usb.cti", "b_gige.cti");
    add("two keywords, one", "GigE", "a_gig.cti b_gige.cti", "b_gige.cti");
    add("three keywords, two", "GigE", "a_gige.cti b_gevt_gig.cti", "b_gevt_gig.cti");
    add("gigeetl has three keywords", "GigE", "a_gevt.cti b_gigeetl.cti", "b_gigeetl.cti");
    // Intended: the keywords contain "usbt" twice, and "usbtL" matches in lower case as well.
    add("usbt counts twice", "USB", "a_usb_u3v.cti b_usbt.cti", "b_usbt.cti");
    add("usbtl counts twice more", "USB", "a_usbt_u3v.cti b_usbtl.cti", "b_usbtl.cti");
    add("usb and u3v, usb", "USB", "a_usb.cti b_usb_u3v.cti", "b_usb_u3v.cti");
    add("CameraLinkHS", "CameraLinkHS", "a_cameralink_cltl.cti b_clhs.cti", "b_clhs.cti");
    add("CameraLink", "CameraLink", "a_clhs.cti b_cltl.cti", "b_cltl.cti");
    // If a label matches two rows of keywords, only the keywords of the earlier row count.
    add("simulator before gige", "GigE Simulator", "a_gige.cti b_simulator.cti", "b_simulator.cti");
    add("gige before usb", "USB GigE", "a_usb.cti b_gige.cti", "b_gige.cti");
    add("usb before cxp", "CXP USB", "a_cxp.cti b_usb.cti", "b_usb.cti");
    add("cxp before clhs", "CLHS CXP", "a_clhs.cti b_cxp.cti", "b_cxp.cti");
    add("clhs before cl", "CL CLHS", "a_cl.cti b_clhs.cti", "b_clhs.cti");
    add("cl before iidc", "IIDC CL", "a_iidc.cti b_cl.cti", "b_cl.cti");
    add("corvix decides a tie", "GigE", "a_gige.cti b_gige_Corvix.cti", "b_gige_Corvix.cti");
    add("corvix outweighs no keyword", "GigE", "a_corvix_gev.cti b_gige.cti", "b_gige.cti");
    add("name decides a tie", "GigE", "b_gige.cti a_gige.cti c_gige.cti", "a_gige.cti");
    add("name decides a tie across directories", "GigE", "b/b_gige.cti a/a_gige.cti", "a_gige.cti");
    add("name with its letter case", "GigE", "a_gige.cti B_gige.cti", "B_gige.cti");
    add("extension in capitals", "GigE", "a.cti b_gige.CTI", "b_gige.CTI");
    for (const char *interfaceType : {"GigE", "Other"}) // In the last path, "gige.cti" is a directory.
        add("other files", interfaceType, "z.CtI gige.txt gige.cti.bak gigecti cti/gige.cti/x", "z.CtI");
    add("label is trimmed", " GigE ", "a.cti b_gige.cti", "b_gige.cti");
    add("label in capitals", "COAXPRESS", "a.cti b_cxp.cti", "b_cxp.cti");
    add("no file has a keyword", "CoaXPress", "only.cti", "only.cti");
    add("no file", "CoaXPress", "", "-");
    add("no file and no keywords", "Other", "", "-");
    add("without keywords the whole path decides", "Other", "b/a.cti a/z.cti", "z.cti");
    for (const char *interfaceType : {"UVC", "Ethernet", "PCI", "Other", "", "  ", "Custom", "Mixed"})
        add(interfaceType, interfaceType, "b_corvix.cti a.cti Zed.cti zz_gige.cti zz_usb.cti", "Zed.cti");
}

void TestCtiChoice::fileWithTheMostPointsIsChosen()
{
    QFETCH(QString, interfaceType);
    QFETCH(QString, files);
    QTEST(chosenFile(split(files), withInterface(interfaceType)), "best");
}

void TestCtiChoice::simulatorIsRecognisedByVendorAndModel()
{
    const auto chosen = [](const char *vendor, const char *model) {
        const CameraInfo info = camera(latin1(vendor), latin1(model), {}, {}, "GigE"_s);
        return chosenFile({"a_gige.cti"_s, "z_simulator.cti"_s}, info);
    };
    QCOMPARE(chosen("the oRVELLe works", "CameraSIMULATOR 2"), "z_simulator.cti"_s);
    QCOMPARE(chosen("Some Vendor", "Simulator"), "a_gige.cti"_s);
    QCOMPARE(chosen("Orvelle", "Kx200"), "a_gige.cti"_s);
}

// Intended: a refresh does not find new files. Labels with the same keywords have separate cache entries.
void TestCtiChoice::choiceIsCachedForEachLabel()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.setCameras({withInterface("GigE"_s)});
    configured.createFile("cti/b_gige.cti"_s);
    configured.setCameras({withInterface("GigE"_s), withInterface(" GigE"_s)});
    configured.createFile("cti/a_gige.cti"_s);
    configured.setCameras({withInterface("GigE"_s), withInterface(" GigE"_s), withInterface("gige"_s)});
    QCOMPARE(configured.ctiFile(0), "-"_s); // The empty result is cached as well.
    QCOMPARE(configured.ctiFile(1), "b_gige.cti"_s);
    QCOMPARE(configured.ctiFile(2), "a_gige.cti"_s);
    // loadConfig() needs a container without a layout.
    delete childNamed<QWidget>(configured.window, "toolsContainer")->layout();
    configured.loadConfig();
    configured.setCameras({withInterface("GigE"_s)});
    QCOMPARE(configured.ctiFile(0), "a_gige.cti"_s);
}

QTEST_MAIN(TestCtiChoice)
#include "TestCtiChoice.moc"
