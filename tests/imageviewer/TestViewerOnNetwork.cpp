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
};

void TestViewerOnNetwork::cameraIsShownAndGoesOnAfterAPowerCycle()
{
    const auto switchOn = [](QProcess &camera) {
        camera.start(QStringLiteral(FAKE_CAMERA_PROGRAM),
            {QStringLiteral("-i"), QStringLiteral("127.0.0.1"), QStringLiteral("-s"),
                QStringLiteral("VIEWER")});
        QVERIFY(camera.waitForStarted());
    };
    QProcess camera;
    switchOn(camera);
    ViewerUnderTest viewer(QStringLiteral("VIEWER"));
    viewer.awaitPicture();
    QVERIFY(!viewer.canvas().picture().pictureSize.isEmpty());
    camera.kill();
    QVERIFY(camera.waitForFinished());
    await([&] { return viewer.window().connection().state() == State::Lost; });
    switchOn(camera);
    await([&] { return viewer.window().connection().state() == State::Open; });
    viewer.awaitNewPicture();
    camera.kill();
    QVERIFY(camera.waitForFinished());
}

QTEST_MAIN(TestViewerOnNetwork)
#include "TestViewerOnNetwork.moc"
