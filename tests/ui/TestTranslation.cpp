#include "tests/support/MarkingTranslator.h"
#include "tests/support/ModalCatcher.h"
#include "tests/ui/ConfiguredWindow.h"

#include <QLabel>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

using namespace ConfigDocuments;

/// Tests the strings that are set at run time. The golden dump of the form contains the other strings.
class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void stringsAreTranslatedInTheContextOfTheWindow();
    void percentSignInATranslatedLabelIsNotAPlaceholder();
};

void TestTranslation::stringsAreTranslatedInTheContextOfTheWindow()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    ConfiguredWindow configured;
    configured.createFile("cti/a.cti"_s);
    CameraInfo info = camera("Lintaro"_s, "Model"_s, {}, "id"_s, "USB"_s);
    info.ipAddress = "1"_s;
    info.macAddress = "2"_s;
    configured.open({info});
    for (const char *label : {"Interface", "IP", "MAC", "CTI file"})
        QVERIFY2(configured.toolTip(0).contains(">[MainWindow] "_s + latin1(label) + "<"_s), label);

    const auto *hint = childNamed<QLabel>(configured.window, "toolsDescriptionLabel");
    QCOMPARE(hint->text(), "[MainWindow] Select a camera to enable its recommended tools."_s);
    configured.window.setSelectedCamera(info);
    QCOMPARE(hint->text(), "[MainWindow] Recommended for LINESCAN. Non-recommended tools are disabled."_s);

    ModalCatcher catcher;
    configured.click(configured.cellCenter(0, 0), Qt::RightButton);
    QTest::mouseClick(childNamed<QPushButton>(configured.window, "aboutQt_"), Qt::LeftButton);
    QTest::mouseClick(childNamed<QPushButton>(configured.window, "documentationBtn"), Qt::LeftButton);
    QCOMPARE(catcher.menus().size(), 2);
    QCOMPARE(catcher.menus().at(0).actions, QStringList{"[MainWindow] CTI location"_s});
    QCOMPARE(catcher.menus().at(1).actions, QStringList{"[MainWindow] About Qt"_s});
    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().at(0).title, "[MainWindow] Documentation"_s);
    QVERIFY(catcher.boxes().at(0).text.startsWith("[MainWindow] Unable to open documentation at:\n"_s));
}

void TestTranslation::percentSignInATranslatedLabelIsNotAPlaceholder()
{
    class PercentTranslator : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return qstrcmp(text, "IP") == 0 ? "<%2>"_s : QString();
        }
        bool isEmpty() const override { return false; }
    };
    PercentTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    ConfiguredWindow configured;
    CameraInfo info = camera("Orvelle"_s, "Model"_s, {}, "id"_s, "USB"_s);
    info.ipAddress = "10.0.0.1"_s;
    configured.open({info});
    QVERIFY(configured.toolTip(0).contains(">&lt;%2&gt;</td><td style='color:#e8edf2;'>10.0.0.1</td>"_s));
}

QTEST_MAIN(TestTranslation)
#include "TestTranslation.moc"
