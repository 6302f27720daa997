#include "tools/kit/window/StartChoice.h"

#include <QtTest>

using State = CameraFinder::State;
using Page = StartChoice::Page;

Q_DECLARE_METATYPE(StartChoice::Page)

class TestStartChoice : public QObject
{
    Q_OBJECT

private slots:
    void cameraIsFound_data();
    void cameraIsFound();
};

void TestStartChoice::cameraIsFound_data()
{
    QTest::addColumn<QStringList>("serials");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<State>("state");
    QTest::addColumn<Page>("page");
    QTest::addColumn<int>("index");
    const QStringList two{QStringLiteral("1001"), QStringLiteral("1002")};
    const QStringList one{QStringLiteral("1001")};
    const QString none;
    QTest::newRow("no list yet") << two << two.at(0) << State::Searching << Page::Searching << -1;
    QTest::newRow("named, listed") << two << two.at(1) << State::Listed << Page::Open << 1;
    QTest::newRow("named, not listed yet") << one << two.at(1) << State::Listed << Page::Searching << -1;
    QTest::newRow("named, missing") << one << two.at(1) << State::Settled << Page::Choose << -1;
    QTest::newRow("named, no camera") << QStringList() << two.at(1) << State::Settled << Page::NoCamera << -1;
    QTest::newRow("ambiguous name") << two << QStringLiteral("100") << State::Settled << Page::Choose << -1;
    QTest::newRow("one, others may come") << one << none << State::Listed << Page::Searching << -1;
    QTest::newRow("one") << one << none << State::Settled << Page::Open << 0;
    QTest::newRow("several") << two << none << State::Settled << Page::Choose << -1;
    QTest::newRow("none yet") << QStringList() << none << State::Listed << Page::Searching << -1;
    QTest::newRow("none") << QStringList() << none << State::Settled << Page::NoCamera << -1;
    QTest::newRow("no camera system") << QStringList() << two.at(0) << State::Failed << Page::NoCamera << -1;
}

void TestStartChoice::cameraIsFound()
{
    QFETCH(QStringList, serials);
    QFETCH(QString, wanted);
    QFETCH(State, state);
    QFETCH(Page, page);
    QFETCH(int, index);
    CameraEntries cameras;
    for (const QString &serial : serials) {
        CameraEntry camera;
        camera.id = QStringLiteral("Sim/") + serial;
        camera.serialNumber = serial;
        cameras.append(camera);
    }
    const StartChoice choice = chooseStart(cameras, wanted, state);
    QCOMPARE(choice.page, page);
    QCOMPARE(choice.index, index);
}

QTEST_GUILESS_MAIN(TestStartChoice)
#include "TestStartChoice.moc"
