#include "sdk/testing/ScriptedCvxCPP.h"
#include "tools/kit/pages/CameraChooser.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace CvxScripted;

namespace {

CameraRecord cameraNamed(const std::string &name)
{
    return {"ID-" + name, "Model " + name, name, "Serial-" + name, "a.cti/net/" + name,
        CvxCPP::CvxTransportLayerGigE};
}

bool defineCameras()
{
    script().cameras = {cameraNamed("Charlie"), cameraNamed("Alpha"), cameraNamed("Bravo")};
    return true;
}

/// A chooser that shows three cameras.
struct Chooser
{
    Chooser()
    {
        isReady = QTest::qWaitFor([this] { return finder.isComplete(); }, 10000);
        chooser.show();
        QApplication::setActiveWindow(&chooser);
    }

    void plug(std::initializer_list<const char *> names)
    {
        // The script must not change during a search, and a settled finder does not search.
        isReady = QTest::qWaitFor([this] { return finder.hasSettled(); }, 10000);
        script().cameras.clear();
        for (const char *const name : names)
            script().cameras.push_back(cameraNamed(name));
        announceCamera(cameraNamed("Any"), CvxCPP::UpdateTriggerPluggedIn);
        isReady = QTest::qWaitFor([&] { return finder.cameras().size() == int(names.size()); }, 10000);
    }

    QStringList rows() const
    {
        QStringList names;
        for (int row = 0; row < table->model()->rowCount(); ++row)
            names.append(table->model()->index(row, 0).data().toString());
        return names;
    }

    QString selected() const { return chooser.selected() ? chooser.selected()->name : QString(); }

    const bool areDefined = defineCameras(); // Before the finder lists them on another thread.
    CameraFinder finder;
    CameraChooser chooser{finder};
    QTableView *table = chooser.findChild<QTableView *>();
    QLineEdit *search = chooser.findChild<QLineEdit *>();
    QPushButton *open = chooser.findChild<QPushButton *>();
    QSignalSpy chosen{&chooser, &CameraChooser::chosen};
    bool isReady = false;
};

QStringList names(const char *commaSeparated)
{
    return QString::fromLatin1(commaSeparated).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

} // namespace

class TestCameraChooser : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }
    void camerasAreSortedAndTheFirstIsSelected();
    void searchFindsEveryWord_data();
    void searchFindsEveryWord();
    void selectionSurvivesChangesOfTheList();
    void cameraIsChosenWithMouseAndKeys();
    void nothingIsChosenWithoutCamera();
    void problemIsShown();
};

void TestCameraChooser::camerasAreSortedAndTheFirstIsSelected()
{
    Chooser chooser;
    QVERIFY(chooser.isReady);
    QCOMPARE(chooser.rows(), names("Alpha,Bravo,Charlie"));
    QCOMPARE(chooser.selected(), QStringLiteral("Alpha"));
    QStringList row;
    for (int column = 0; column < 5; ++column)
        row.append(chooser.table->model()->index(0, column).data().toString());
    QCOMPARE(row.join(QLatin1Char('|')), QStringLiteral("Alpha|Model Alpha|Serial-Alpha|GigE|"));
}

void TestCameraChooser::searchFindsEveryWord_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("name") << QStringLiteral("bra") << names("Bravo");
    QTest::newRow("two columns") << QStringLiteral(" gige  serial-C ") << names("Charlie");
    QTest::newRow("model") << QStringLiteral("model") << names("Alpha,Bravo,Charlie");
    QTest::newRow("extended ID") << QStringLiteral("a.cti/net/alpha") << names("Alpha");
    QTest::newRow("nothing") << QStringLiteral("bravo charlie") << names("");
}

void TestCameraChooser::searchFindsEveryWord()
{
    QFETCH(const QString, text);
    Chooser chooser;
    QVERIFY(chooser.isReady);
    QTest::keyClicks(chooser.search, text);
    QTEST(chooser.rows(), "expected");
    QCOMPARE(chooser.selected(), chooser.rows().value(0));
    QCOMPARE(chooser.open->isEnabled(), !chooser.rows().isEmpty());
}

void TestCameraChooser::selectionSurvivesChangesOfTheList()
{
    Chooser chooser;
    chooser.chooser.select(QStringLiteral("a.cti/net/Bravo"));
    chooser.plug({"Aaron", "Bravo", "Zulu", "Alpha"});
    QVERIFY(chooser.isReady);
    QCOMPARE(chooser.rows(), names("Aaron,Alpha,Bravo,Zulu"));
    QCOMPARE(chooser.selected(), QStringLiteral("Bravo"));
    chooser.plug({"Zulu"});
    QVERIFY(chooser.isReady);
    QCOMPARE(chooser.selected(), QStringLiteral("Zulu"));
}

void TestCameraChooser::cameraIsChosenWithMouseAndKeys()
{
    Chooser chooser;
    QVERIFY(chooser.isReady);
    QTest::keyClick(chooser.search, Qt::Key_Down); // Moves the selection.
    QTest::keyClick(chooser.search, Qt::Key_Return);
    QTest::keyClick(chooser.table, Qt::Key_Enter);
    QTest::mouseClick(chooser.open, Qt::LeftButton);
    const QPoint last = chooser.table->visualRect(chooser.table->model()->index(2, 1)).center();
    QTest::mouseClick(chooser.table->viewport(), Qt::LeftButton, {}, last);
    QTest::mouseDClick(chooser.table->viewport(), Qt::LeftButton, {}, last);
    QStringList chosen;
    for (const auto &arguments : qAsConst(chooser.chosen))
        chosen.append(arguments.first().value<CameraEntry>().name);
    QCOMPARE(chosen, names("Bravo,Bravo,Bravo,Charlie"));
}

void TestCameraChooser::nothingIsChosenWithoutCamera()
{
    Chooser chooser;
    QTest::keyClicks(chooser.search, QStringLiteral("unknown"));
    QTest::keyClick(chooser.search, Qt::Key_Return);
    chooser.plug({});
    QTest::keyClick(chooser.table, Qt::Key_Return);
    QCOMPARE(chooser.chosen.count(), 0);
}

void TestCameraChooser::problemIsShown()
{
    script().errors[Function::Startup] = CvxCPP::CvxErrorHostMissing;
    CameraFinder finder;
    const CameraChooser chooser(finder);
    const auto labels = chooser.findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(),
        [&](const QLabel *label) { return label->text() == finder.problem(); }));
}

QTEST_MAIN(TestCameraChooser)
#include "TestCameraChooser.moc"
