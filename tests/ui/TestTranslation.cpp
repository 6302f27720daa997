#include "tests/config/ConfigDocuments.h"
#include "tests/support/ChildNamed.h"
#include "tests/support/ModalCatcher.h"
#include "tests/ui/ConfiguredWindow.h"

#include <QLabel>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

using ConfigDocuments::latin1;

/// Every text of the window goes through the translation in the window's context: a translator that puts
/// brackets around them has to show everywhere.
class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void formsTexts_data();
    void formsTexts();
    void headersAndTitle();
    void toolTipOfTheDocumentationButton();
    void hints();
    void factsOfACamera();
    void percentSignInATranslatedLabelIsNoPlace();
    void menus();
    void documentationBox();
};

namespace {

class Brackets : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "MainWindow") != 0 || qstrlen(text) == 0)
            return {};
        return QLatin1Char('[') + latin1(text) + QLatin1Char(']');
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void TestTranslation::initTestCase()
{
    static Brackets brackets;
    QVERIFY(QCoreApplication::installTranslator(&brackets));
}

void TestTranslation::formsTexts_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("text");
    const auto add
        = [](const char *name, const char *text) { QTest::newRow(name) << QByteArray(name) << latin1(text); };
    add("titleLabel", "[Corvix X]");
    add("label_5", "[Application launcher]");
    add("connectedCamerasLabel", "[Connected cameras]");
    add("recommendedToolsLabel", "[Recommended tools]");
    add("toolsDescriptionLabel", "[Select a camera to enable its recommended tools.]");
    add("footerLabel", "[Orvelle - Corvix X]");
    add("documentationBtn", "[Documentation]");
}

void TestTranslation::formsTexts()
{
    QFETCH(QByteArray, name);
    const MainWindow window(nullptr);
    QTEST(childNamed<QWidget>(window, name.constData())->property("text").toString(), "text");
}

void TestTranslation::headersAndTitle()
{
    const MainWindow window(nullptr);
    QCOMPARE(window.windowTitle(), latin1("[Corvix X - Application Launcher]"));
    const auto *table = childNamed<QTableWidget>(window, "cameraTable");
    QCOMPARE(table->horizontalHeaderItem(0)->text(), latin1("[Vendor Name]"));
    QCOMPARE(table->horizontalHeaderItem(1)->text(), latin1("[Model Name]"));
    QCOMPARE(table->horizontalHeaderItem(2)->text(), latin1("[Serial Number]"));
}

void TestTranslation::toolTipOfTheDocumentationButton()
{
    const MainWindow window(nullptr);
    QCOMPARE(childNamed<QPushButton>(window, "documentationBtn")->toolTip(), latin1("[Documentation]"));
}

void TestTranslation::hints()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    const auto *label = childNamed<QLabel>(configured.window, "toolsDescriptionLabel");
    configured.window.setSelectedCamera(camera(latin1("Lintaro"), {}, {}, latin1("id")));
    QCOMPARE(label->text(), latin1("[Recommended for LINESCAN. Non-recommended tools are disabled.]"));
    configured.window.setSelectedCamera({});
    QCOMPARE(label->text(), latin1("[Select a camera to enable its recommended tools.]"));
}

void TestTranslation::factsOfACamera()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    CameraInfo info = camera(latin1("Orvelle"), latin1("Lost"), {}, {}, latin1("USB"));
    info.ipAddress = latin1("1");
    info.macAddress = latin1("2");
    configured.list({info});
    for (const char *label : {"[Interface]", "[IP]", "[MAC]", "[CTI file]"})
        QVERIFY2(configured.toolTip(0).contains(latin1(label)), label);
}

void TestTranslation::percentSignInATranslatedLabelIsNoPlace()
{
    class Percent : public QTranslator
    {
    public:
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            const bool label = qstrcmp(context, "MainWindow") == 0 && qstrcmp(text, "IP") == 0;
            return label ? latin1("<%2>") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Percent percent;
    QVERIFY(QCoreApplication::installTranslator(&percent)); // Asked first; its destructor removes it.
    ConfiguredWindow configured;
    configured.loadConfig();
    CameraInfo info = camera(latin1("Orvelle"), latin1("Lost"));
    info.ipAddress = latin1("10.0.0.1");
    configured.list({info});
    QVERIFY(
        configured.toolTip(0).contains(latin1(">&lt;%2&gt;</td><td style='color:#e8edf2;'>10.0.0.1</td>")));
}

void TestTranslation::menus()
{
    ConfiguredWindow configured;
    configured.touch(latin1("cti/a.cti"));
    configured.loadConfig();
    configured.list({camera(latin1("Orvelle"), latin1("Lost"))});
    configured.show();
    ModalCatcher catcher;
    configured.click(configured.cellCenter(0, 0), Qt::RightButton);
    QTest::mouseClick(childNamed<QPushButton>(configured.window, "aboutQt_"), Qt::LeftButton);
    QCOMPARE(catcher.menus().size(), 2);
    QCOMPARE(catcher.menus().at(0).actions, QStringList{latin1("[CTI location]")});
    QCOMPARE(catcher.menus().at(1).actions, QStringList{latin1("[About Qt]")});
}

void TestTranslation::documentationBox()
{
    ConfiguredWindow configured;
    configured.loadConfig();
    ModalCatcher catcher;
    QTest::mouseClick(childNamed<QPushButton>(configured.window, "documentationBtn"), Qt::LeftButton);
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().at(0).title, latin1("[Documentation]"));
    QCOMPARE(catcher.boxes().at(0).text,
        latin1("[Unable to open documentation at:\nfile://") + configured.path("doc/index.html")
            + QLatin1Char(']'));
}

QTEST_MAIN(TestTranslation)
#include "TestTranslation.moc"
