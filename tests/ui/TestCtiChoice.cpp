#include "tests/config/ConfigDocuments.h"
#include "tests/support/ModalCatcher.h"
#include "tests/support/ScriptFile.h"
#include "tests/ui/ConfiguredWindow.h"
#include "tests/ui/OpenedDirectories.h"

#include <QDir>
#include <QtTest>

using ConfigDocuments::latin1;

/// Which transport-layer file a camera gets.
class TestCtiChoice : public QObject
{
    Q_OBJECT

private slots:
    void keywordBeatsEveryOtherName_data();
    void keywordBeatsEveryOtherName();
    void labelWithoutKeywordsTakesTheFirstPath_data();
    void labelWithoutKeywordsTakesTheFirstPath();
    void betterScoreWins_data();
    void betterScoreWins();
    void equalScoresAreDecidedByTheNameWhateverTheDirectory();
    void equalNamesStayWithTheEarlierDirectory();
    void firstPathIsDecidedByTheWholePath();
    void someFileIsChosenWheneverThereIsOne();
    void simulatorNeedsMakerAndModel_data();
    void simulatorNeedsMakerAndModel();
    void onlyFilesNamedLikeTransportLayersCount();
    void choiceIsKeptUntilTheNextConfigurationLoad();
    void missingFileIsRememberedAsWell();
    void labelsAreRememberedAsTheyStand();

private:
    static QString chosen(const QStringList &files, const QString &interfaceType);
};

namespace {

CameraInfo withInterface(const QString &interfaceType)
{
    return camera(latin1("Some Maker"), {}, {}, {}, interfaceType);
}

QStringList words(const char *text)
{
    return latin1(text).split(QLatin1Char(' '));
}

void writePaths(ConfiguredWindow &configured, const QStringList &directories)
{
    ScriptFile::write(configured.path("bin/CvxC.xml"),
        (latin1("<c><CtiPaths><Path>") + directories.join(latin1("</Path><Path>"))
            + latin1("</Path></CtiPaths></c>"))
            .toUtf8());
}

} // namespace

/// The file that a camera of that interface gets of these in one directory.
QString TestCtiChoice::chosen(const QStringList &files, const QString &interfaceType)
{
    ConfiguredWindow configured(QMap<QString, QByteArray>{}); // The choice needs no configuration.
    for (const QString &file : files)
        configured.touch(latin1("cti/") + file);
    configured.loadConfig();
    configured.list({withInterface(interfaceType)});
    return configured.ctiFile(0);
}

void TestCtiChoice::keywordBeatsEveryOtherName_data()
{
    QTest::addColumn<QString>("interfaceType");
    QTest::addColumn<QString>("keyword");
    const auto add = [](const char *labels, const char *keywords) {
        for (const QString &label : words(labels)) {
            for (const QString &keyword : words(keywords))
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

void TestCtiChoice::keywordBeatsEveryOtherName()
{
    QFETCH(QString, interfaceType);
    QFETCH(QString, keyword);
    const QString expected = latin1("zz") + keyword + latin1(".cti");
    // The maker's name and an early name together do not outweigh a keyword.
    QCOMPARE(chosen({latin1("aa_corvix.cti"), latin1("0.cti"), expected}, interfaceType), expected);
}

void TestCtiChoice::labelWithoutKeywordsTakesTheFirstPath_data()
{
    QTest::addColumn<QString>("interfaceType");
    for (const char *type : {"UVC", "Ethernet", "PCI", "Other", "", "  ", "Custom", "Mixed"})
        QTest::newRow(type) << latin1(type);
}

void TestCtiChoice::labelWithoutKeywordsTakesTheFirstPath()
{
    QFETCH(QString, interfaceType);
    // Ordered by code units: capitals first. No keyword and no maker's name counts.
    QCOMPARE(
        chosen(words("b_corvix.cti a.cti Zed.cti zz_gige.cti zz_usb.cti zz_ethernet.cti"), interfaceType),
        latin1("Zed.cti"));
}

void TestCtiChoice::betterScoreWins_data()
{
    QTest::addColumn<QString>("interfaceType");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("best");
    const auto add = [](const char *name, const char *type, const char *files, const char *best) {
        QTest::newRow(name) << latin1(type) << words(files) << latin1(best);
    };
    add("two keywords against none", "GigE", "a_gige.cti b_usb.cti", "a_gige.cti");
    add("two keywords outweigh the name", "GigE", "b_gige.cti a_usb.cti", "b_gige.cti");
    add("two keywords against one", "GigE", "a_gig.cti b_gige.cti", "b_gige.cti");
    add("three keywords against two", "GigE", "a_gige.cti b_gevt_gig.cti", "b_gevt_gig.cti");
    add("gigeetl has three", "GigE", "a_gevt.cti b_gigeetl.cti", "b_gigeetl.cti");
    add("usbtl has five hits", "USB", "y_usb.cti x_usbtl.cti", "x_usbtl.cti");
    add("five hits outweigh the name", "USB", "y_usb.cti z_usbtl.cti", "z_usbtl.cti");
    // "usbt" stands twice in the list and "usbtL" is lower-cased: both on purpose. So "usbt" scores 300 and
    // ties with nothing less, "usbtl" scores 500.
    add("usbt counts twice", "USB", "a_usb_u3v.cti b_usbt.cti", "b_usbt.cti");
    add("usbtl counts for both spellings", "USB", "a_usbt_u3v.cti b_usbtl.cti", "b_usbtl.cti");
    add("usb and u3v against usb", "USB", "a_usb.cti b_usb_u3v.cti", "b_usb_u3v.cti");
    add("high-speed link has its own row", "CameraLinkHS", "a_cameralink_cltl.cti b_clhs.cti", "b_clhs.cti");
    add("link has its own row", "CameraLink", "a_clhs.cti b_cltl.cti", "b_cltl.cti");
    // A label with the words of two rows has the keywords of the earlier one alone.
    add("simulator before gige", "GigE Simulator", "a_gige.cti b_simulator.cti", "b_simulator.cti");
    add("gige before usb", "USB GigE", "a_usb.cti b_gige.cti", "b_gige.cti");
    add("usb before cxp", "CXP USB", "a_cxp.cti b_usb.cti", "b_usb.cti");
    add("cxp before clhs", "CLHS CXP", "a_clhs.cti b_cxp.cti", "b_cxp.cti");
    add("clhs before cl", "CL CLHS", "a_cl.cti b_clhs.cti", "b_clhs.cti");
    add("cl before iidc", "IIDC CL", "a_iidc.cti b_cl.cti", "b_cl.cti");
    add("maker's name decides between equals", "GigE", "a_gige.cti b_gige_Corvix.cti", "b_gige_Corvix.cti");
    add("maker's name never outweighs a keyword", "GigE", "a_corvix_gev.cti b_gige.cti", "b_gige.cti");
    add("name decides between equals", "GigE", "b_gige.cti a_gige.cti c_gige.cti", "a_gige.cti");
    add("name as it stands", "GigE", "a_gige.cti B_gige.cti", "B_gige.cti");
    add("extension in capitals", "GigE", "a.cti b_gige.CTI", "b_gige.CTI");
    add("directory is not part of the name", "GigE", "a.cti b.cti", "a.cti");
    add("label is trimmed", " GigE ", "a.cti b_gige.cti", "b_gige.cti");
    add("label in capitals", "COAXPRESS", "a.cti b_cxp.cti", "b_cxp.cti");
}

void TestCtiChoice::betterScoreWins()
{
    QFETCH(QString, interfaceType);
    QFETCH(QStringList, files);
    QTEST(chosen(files, interfaceType), "best");
}

void TestCtiChoice::equalScoresAreDecidedByTheNameWhateverTheDirectory()
{
    ConfiguredWindow configured;
    configured.touch(latin1("one/b_gige.cti"));
    configured.touch(latin1("two/a_gige.cti"));
    configured.touch(latin1("three/c_gige.cti"));
    writePaths(configured, words("one two three"));
    configured.loadConfig();
    configured.list({withInterface(latin1("GigE"))});
    QCOMPARE(configured.ctiFile(0), latin1("a_gige.cti"));
}

void TestCtiChoice::equalNamesStayWithTheEarlierDirectory()
{
    ConfiguredWindow configured;
    configured.touch(latin1("b/gige.cti"));
    configured.touch(latin1("a/gige.cti"));
    writePaths(configured, words("b a"));
    configured.loadConfig();
    configured.list({withInterface(latin1("GigE"))});
    configured.show();
    const OpenedDirectories opened;
    ModalCatcher catcher;
    catcher.choose = latin1("CTI location");
    configured.click(configured.cellCenter(0, 1), Qt::RightButton);
    QTRY_COMPARE(opened.arguments(), configured.path("b\n"));
}

void TestCtiChoice::firstPathIsDecidedByTheWholePath()
{
    ConfiguredWindow configured;
    configured.touch(latin1("b/a.cti"));
    configured.touch(latin1("a/z.cti"));
    writePaths(configured, words("b a"));
    configured.loadConfig();
    configured.list({withInterface(latin1("Other"))});
    QCOMPARE(configured.ctiFile(0), latin1("z.cti"));
}

void TestCtiChoice::someFileIsChosenWheneverThereIsOne()
{
    QCOMPARE(chosen(words("only.cti"), latin1("CoaXPress")), latin1("only.cti"));
    QCOMPARE(chosen({}, latin1("CoaXPress")), latin1("-"));
    QCOMPARE(chosen({}, latin1("Other")), latin1("-"));
}

void TestCtiChoice::simulatorNeedsMakerAndModel_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("simulator");
    QTest::newRow("both") << latin1("Orvelle") << latin1("Simulator") << true;
    QTest::newRow("mixed letter case") << latin1("the oRVELLe works") << latin1("CameraSIMULATOR 2") << true;
    QTest::newRow("another maker") << latin1("Some Maker") << latin1("Simulator") << false;
    QTest::newRow("another model") << latin1("Orvelle") << latin1("Kx200") << false;
    QTest::newRow("swapped") << latin1("Simulator") << latin1("Orvelle") << false;
}

void TestCtiChoice::simulatorNeedsMakerAndModel()
{
    QFETCH(QString, vendor);
    QFETCH(QString, model);
    QFETCH(bool, simulator);
    ConfiguredWindow configured;
    configured.touch(latin1("cti/a_gige.cti"));
    configured.touch(latin1("cti/z_simulator.cti"));
    configured.loadConfig();
    configured.list({camera(vendor, model, {}, {}, latin1("GigE"))});
    QCOMPARE(configured.ctiFile(0), simulator ? latin1("z_simulator.cti") : latin1("a_gige.cti"));
}

void TestCtiChoice::onlyFilesNamedLikeTransportLayersCount()
{
    ConfiguredWindow configured;
    for (const char *name : {"gige.txt", "gige.cti.bak", "gigecti", "sub/gige.cti"})
        configured.touch(latin1("cti/") + latin1(name));
    QVERIFY(QDir().mkpath(configured.path("cti/gige.cti"))); // A directory of that name.
    configured.touch(latin1("cti/z.CtI"));
    configured.loadConfig();
    configured.list({withInterface(latin1("GigE")), withInterface(latin1("Other"))});
    QCOMPARE(configured.ctiFile(0), latin1("z.CtI"));
    QCOMPARE(configured.ctiFile(1), latin1("z.CtI"));
}

// Intended: a refresh does not look for new files.
void TestCtiChoice::choiceIsKeptUntilTheNextConfigurationLoad()
{
    ConfiguredWindow configured;
    configured.touch(latin1("cti/b_gige.cti"));
    configured.loadConfig();
    configured.list({withInterface(latin1("GigE"))});
    configured.touch(latin1("cti/a_gige.cti"));
    configured.list({withInterface(latin1("GigE"))});
    QCOMPARE(configured.ctiFile(0), latin1("b_gige.cti"));
    configured.loadConfigAgain();
    configured.list({withInterface(latin1("GigE"))});
    QCOMPARE(configured.ctiFile(0), latin1("a_gige.cti"));
}

void TestCtiChoice::missingFileIsRememberedAsWell()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list({withInterface(latin1("GigE"))});
    configured.touch(latin1("cti/a_gige.cti"));
    configured.list({withInterface(latin1("GigE"))});
    QCOMPARE(configured.ctiFile(0), latin1("-"));
}

// Intended: " GigE" has the same keywords as "GigE", and an entry of its own.
void TestCtiChoice::labelsAreRememberedAsTheyStand()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    configured.list({withInterface(latin1("GigE"))});
    configured.touch(latin1("cti/a_gige.cti"));
    configured.list(
        {withInterface(latin1("GigE")), withInterface(latin1("gige")), withInterface(latin1(" GigE"))});
    QCOMPARE(configured.ctiFile(0), latin1("-"));
    QCOMPARE(configured.ctiFile(1), latin1("a_gige.cti"));
    QCOMPARE(configured.ctiFile(2), latin1("a_gige.cti"));
}

QTEST_MAIN(TestCtiChoice)
#include "TestCtiChoice.moc"
