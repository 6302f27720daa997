#include "sdk/testing/Gate.h"
#include "sdk/testing/ScriptedCvxCPP.h"
#include "tools/kit/camera/CameraFinder.h"

#include <QtTest>

using namespace CvxScripted;
using CvxCPP::CvxErrorFailed;
using CvxCPP::CvxErrorHostMissing;
using CvxCPP::CvxErrorSuccess;
using State = CameraFinder::State;

namespace {

CameraRecord cameraNamed(const std::string &id)
{
    return {id, "model", "name", "serial " + id, "a.cti/net/" + id, CvxCPP::CvxTransportLayerUSB};
}

QStringList ids(const CameraEntries &cameras)
{
    QStringList list;
    for (const CameraEntry &camera : cameras)
        list.append(camera.deviceId);
    return list;
}

QStringList names(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *const text : texts)
        list.append(QString::fromLatin1(text));
    return list;
}

} // namespace

class TestCameraFinder : public QObject
{
    Q_OBJECT

private slots:
    void init() { reset(); }
    void camerasAreListedInTheBackground();
    void cameraThatAnswersLateIsFoundBeforeTheListSettles();
    void pluggedCamerasAreFollowed();
    void manyCamerasAreListed();
    void missingHostIsAProblemUntilItIsThere();
    void failedListIsAProblem();
    void textsAreOnOneLine();
    void titleIsTheFirstText();
    void systemIsShutDown();
};

void TestCameraFinder::camerasAreListedInTheBackground()
{
    Gate gate;
    script().cameras = {cameraNamed("A"), cameraNamed("B")};
    script().intercept = [&gate](const Call &call) {
        if (call.function == Function::CountCameras)
            gate.pass();
        return CvxErrorSuccess;
    };
    CameraFinder finder;
    QSignalSpy changes(&finder, &CameraFinder::changed);
    QCOMPARE(finder.state(), State::Searching);
    gate.open();
    QTRY_COMPARE_WITH_TIMEOUT(finder.state(), State::Listed, 10000);
    QVERIFY(finder.isComplete());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(ids(finder.cameras()), names({"A", "B"}));
    QCOMPARE(ids(finder.matching(QStringLiteral("serial b"))), names({"B"}));
    QCOMPARE(finder.cameras().first().connection, QStringLiteral("USB"));
}

void TestCameraFinder::cameraThatAnswersLateIsFoundBeforeTheListSettles()
{
    script().intercept = [searches = 0](const Call &call) mutable {
        if (call.function == Function::CountCameras && ++searches == 2)
            script().cameras = {cameraNamed("late")};
        return CvxErrorSuccess;
    };
    CameraFinder finder;
    QTRY_COMPARE_WITH_TIMEOUT(finder.state(), State::Listed, 10000);
    QVERIFY(finder.cameras().isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(finder.hasSettled(), 10000);
    QCOMPARE(ids(finder.cameras()), names({"late"}));
    QVERIFY(finder.isComplete());
}

void TestCameraFinder::pluggedCamerasAreFollowed()
{
    script().cameras = {cameraNamed("A")};
    CameraFinder finder;
    QTRY_VERIFY_WITH_TIMEOUT(finder.hasSettled(), 10000); // The script must not change during a search.
    const std::size_t searches = callCount(Function::CountCameras);
    script().cameras = {cameraNamed("A"), cameraNamed("B")};
    announceCamera(cameraNamed("B"), CvxCPP::UpdateTriggerPluggedIn);
    QTRY_COMPARE_WITH_TIMEOUT(ids(finder.cameras()), names({"A", "B"}), 10000);
    QVERIFY(finder.hasSettled());
    QCOMPARE(callCount(Function::CountCameras), searches); // The change is known, so nothing is searched.
    QSignalSpy changes(&finder, &CameraFinder::changed);
    script().cameras = {};
    announceCamera(cameraNamed("A"), CvxCPP::UpdateTriggerPluggedOut);
    announceCamera(cameraNamed("B"), CvxCPP::UpdateTriggerPluggedOut);
    QTRY_VERIFY_WITH_TIMEOUT(finder.cameras().isEmpty(), 10000);
    QCOMPARE(changes.count(), 1);
}

void TestCameraFinder::manyCamerasAreListed()
{
    for (int number = 0; number < 200; ++number)
        script().cameras.push_back(cameraNamed(std::to_string(number)));
    CameraFinder finder;
    QTRY_COMPARE_WITH_TIMEOUT(finder.cameras().size(), 200, 10000);
}

void TestCameraFinder::missingHostIsAProblemUntilItIsThere()
{
    script().errors[Function::Startup] = CvxErrorHostMissing;
    CameraFinder finder;
    QCOMPARE(finder.state(), State::Failed);
    QVERIFY(finder.problem().contains(QStringLiteral("CvxProducerHost")));
    script().errors.clear();
    script().cameras = {cameraNamed("A")};
    finder.refresh();
    QCOMPARE(finder.state(), State::Searching);
    QTRY_COMPARE_WITH_TIMEOUT(ids(finder.cameras()), names({"A"}), 10000);
    QCOMPARE(finder.problem(), QString());
}

void TestCameraFinder::failedListIsAProblem()
{
    script().errors[Function::FillCameras] = CvxErrorFailed;
    CameraFinder finder;
    QTRY_COMPARE_WITH_TIMEOUT(finder.state(), State::Failed, 10000);
    QVERIFY(!finder.problem().isEmpty());
}

void TestCameraFinder::textsAreOnOneLine()
{
    CameraRecord record = cameraNamed("A\n1");
    record.name = "two\nlines  \t\x01 and more";
    const CameraEntry entry = CameraEntry::read(makeCamera(record));
    QCOMPARE(entry.name, QStringLiteral("two lines and more"));
    QCOMPARE(entry.deviceId, QStringLiteral("A\n1")); // An ID stays as it is.
}

void TestCameraFinder::titleIsTheFirstText()
{
    CameraEntry entry;
    entry.id = QStringLiteral("id");
    QCOMPARE(entry.title(), QStringLiteral("id"));
    entry.model = QStringLiteral("model");
    QCOMPARE(entry.title(), QStringLiteral("model"));
    entry.name = QStringLiteral("name");
    QCOMPARE(entry.title(), QStringLiteral("name"));
    entry.userName = QStringLiteral("user");
    QCOMPARE(entry.title(), QStringLiteral("user"));
}

void TestCameraFinder::systemIsShutDown()
{
    {
        const CameraFinder finder;
    }
    QCOMPARE(callCount(Function::Shutdown), std::size_t(1));
}

QTEST_GUILESS_MAIN(TestCameraFinder)
#include "TestCameraFinder.moc"
