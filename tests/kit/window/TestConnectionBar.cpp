#include "tests/kit/camera/OpenableCamera.h"
#include "tools/kit/window/ConnectionBar.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using State = CameraConnection::State;

class TestConnectionBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void openCameraNeedsNoLine();
    void cameraInUseCanBeWatched();
    void watchedCameraCanBeControlled();
    void lossIsExplained();

private:
    static QStringList offers(const ConnectionBar &bar)
    {
        QStringList texts;
        for (const QPushButton *button : bar.findChildren<QPushButton *>()) {
            if (!button->isHidden())
                texts.append(button->text().remove(QLatin1Char('&')));
        }
        return texts;
    }

    std::shared_ptr<TestDevice> m_device;
    std::shared_ptr<OpenableCamera> m_camera;
};

void TestConnectionBar::init()
{
    m_device = std::make_shared<TestDevice>();
    m_camera = std::make_shared<OpenableCamera>("CAM", m_device);
}

void TestConnectionBar::openCameraNeedsNoLine()
{
    CameraConnection connection;
    const ConnectionBar bar(connection);
    connection.open(OpenableCamera::entry(m_camera), CvxCPP::CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Open, 30000);
    QVERIFY(bar.isHidden());
}

void TestConnectionBar::cameraInUseCanBeWatched()
{
    const auto camera = std::make_shared<OpenableCamera>("BUSY", std::make_shared<TestDevice>());
    camera->onOpen = [] {
        return CvxCPP::CvxResult{CvxCPP::CvxErrorInUse, "BUSY is in use by 192.168.0.7."};
    };
    CameraConnection connection;
    ConnectionBar bar(connection);
    const QSignalSpy watched(&bar, &ConnectionBar::watchRequested);
    connection.open(OpenableCamera::entry(camera), CvxCPP::CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::InUse, 30000);
    QVERIFY(!bar.isHidden());
    QVERIFY(bar.findChild<QLabel *>()->text().contains(QStringLiteral("192.168.0.7")));
    QCOMPARE(offers(bar),
        (QStringList{
            QStringLiteral("Watch only"), QStringLiteral("Try again"), QStringLiteral("Other camera…")}));
    bar.findChild<QPushButton *>()->click();
    QCOMPARE(watched.count(), 1);
}

void TestConnectionBar::watchedCameraCanBeControlled()
{
    CameraConnection connection;
    const ConnectionBar bar(connection);
    connection.open(OpenableCamera::entry(m_camera), CvxCPP::CvxAccessWatch);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Open, 30000);
    QCOMPARE(offers(bar), (QStringList{QStringLiteral("Take control"), QStringLiteral("Other camera…")}));
}

void TestConnectionBar::lossIsExplained()
{
    CameraConnection connection;
    ConnectionBar bar(connection);
    connection.open(OpenableCamera::entry(m_camera), CvxCPP::CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Open, 30000);
    m_device->lose("The cable was pulled.");
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), State::Lost, 30000);
    QVERIFY(bar.findChild<QLabel *>()->text().contains(QStringLiteral("The cable was pulled.")));
    bar.setShowsLoss(false);
    QVERIFY(bar.isHidden());
}

QTEST_MAIN(TestConnectionBar)
#include "TestConnectionBar.moc"
