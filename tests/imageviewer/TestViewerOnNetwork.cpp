#include "tests/imageviewer/ControllingProgram.h"
#include "tests/imageviewer/ViewerUnderTest.h"

#include <QApplication>
#include <QProcess>
#include <QtTest>

using State = CameraConnection::State;

/// Tests the Image Viewer with a simulated GigE Vision camera over the loopback interface.
class TestViewerOnNetwork : public QObject
{
    Q_OBJECT

private slots:
    void cameraIsShownAndGoesOnAfterAPowerCycle();
    void watcherIsToldWhyThereIsNoPicture();

private:
    static void switchOn(QProcess &camera);
    static void switchOff(QProcess &camera);
};

void TestViewerOnNetwork::switchOn(QProcess &camera)
{
    camera.start(QStringLiteral(FAKE_CAMERA_PROGRAM),
        {QStringLiteral("-i"), QStringLiteral("127.0.0.1"), QStringLiteral("-s"), QStringLiteral("VIEWER")});
    QVERIFY(camera.waitForStarted());
}

void TestViewerOnNetwork::switchOff(QProcess &camera)
{
    camera.kill();
    QVERIFY(camera.waitForFinished());
}

void TestViewerOnNetwork::cameraIsShownAndGoesOnAfterAPowerCycle()
{
    QProcess camera;
    switchOn(camera);
    ViewerUnderTest viewer(QStringLiteral("VIEWER"));
    viewer.awaitPicture();
    QVERIFY(!viewer.canvas().picture().pictureSize.isEmpty());
    switchOff(camera);
    await([&] { return viewer.window().connection().state() == State::Lost; });
    switchOn(camera);
    await([&] { return viewer.window().connection().state() == State::Open; });
    viewer.awaitNewPicture();
    switchOff(camera);
}

void TestViewerOnNetwork::watcherIsToldWhyThereIsNoPicture()
{
    QProcess camera;
    switchOn(camera);
    ControllingProgram other(QStringLiteral("VIEWER"), 512);
    ViewerUnderTest viewer(QStringLiteral("VIEWER"));
    viewer.watchOnly();
    const LiveStream &stream = viewer.window().stream();
    await([&] { return stream.state() == LiveStream::State::Failed; });
    const QString problem = stream.problem();
    QVERIFY2(
        problem.contains(QStringLiteral("images only to a program that controls it")), qPrintable(problem));
    QCOMPARE(viewer.window().connection().state(), State::Open); // Its settings are shown.
    other.end();
    switchOff(camera);
}

QTEST_MAIN(TestViewerOnNetwork)
#include "TestViewerOnNetwork.moc"
