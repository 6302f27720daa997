#include "tests/camerasetup/values/SetupBench.h"

#include <QtTest>

#include <atomic>
#include <thread>

using namespace CvxCPP;
using StreamUse = CameraJobs::StreamUse;

class TestCameraJobs : public QObject
{
    Q_OBJECT

private slots:
    void runsOneJobAfterTheOther();
    void cancelEndsRunningAndForgetsWaitingJobs();
    void closingForgetsJobs();
    void pausesStream();
};

void TestCameraJobs::runsOneJobAfterTheOther()
{
    EditorBench bench(scriptSetupCamera);
    CameraJobs jobs(bench.connection);
    QStringList done;
    std::atomic<bool> mayEnd{false};
    const auto wait = [&mayEnd](Device &, const FeatureProgress &progress) {
        while (!mayEnd && progress(3, 7))
            std::this_thread::yield();
        return CvxResult();
    };
    const auto fail = [](Device &, const FeatureProgress &) {
        return CvxResult{CvxErrorDevice, "The camera refuses."};
    };
    jobs.start(QStringLiteral("first"), StreamUse::Keep, wait, this,
        [&done](const CvxResult &result) { done.append(result ? QStringLiteral("good") : QString()); });
    jobs.start(QStringLiteral("second"), StreamUse::Keep, fail, this,
        [&done](const CvxResult &result) { done.append(QString::fromStdString(result.text)); });
    QTRY_COMPARE_WITH_TIMEOUT(jobs.done(), std::size_t(3), hangTimeout);
    QCOMPARE(jobs.total(), std::size_t(7));
    QCOMPARE(jobs.title(), QStringLiteral("first"));
    mayEnd = true;
    QTRY_VERIFY_WITH_TIMEOUT(!jobs.isBusy(), hangTimeout);
    QCOMPARE(done, (QStringList{QStringLiteral("good"), QStringLiteral("The camera refuses.")}));
    QVERIFY(jobs.title().isEmpty());
}

void TestCameraJobs::cancelEndsRunningAndForgetsWaitingJobs()
{
    EditorBench bench(scriptSetupCamera);
    CameraJobs jobs(bench.connection);
    int doneCount = 0;
    const auto untilCancelled = [](Device &, const FeatureProgress &progress) {
        while (progress(0, 1))
            std::this_thread::yield();
        return CvxResult();
    };
    for (int job = 0; job < 2; ++job)
        jobs.start(QString(), StreamUse::Keep, untilCancelled, this,
            [&doneCount](const CvxResult &) { ++doneCount; });
    jobs.cancel();
    QTRY_VERIFY_WITH_TIMEOUT(!jobs.isBusy(), hangTimeout);
    QCOMPARE(doneCount, 1);
}

void TestCameraJobs::closingForgetsJobs()
{
    EditorBench bench(scriptSetupCamera);
    CameraJobs jobs(bench.connection);
    const auto untilCancelled = [](Device &, const FeatureProgress &progress) {
        while (progress(0, 1))
            std::this_thread::yield();
        return CvxResult();
    };
    bool isDone = false;
    jobs.start(
        QString(), StreamUse::Keep, untilCancelled, this, [&isDone](const CvxResult &) { isDone = true; });
    bench.connection.close();
    QVERIFY(!jobs.isBusy());
    const auto other = std::make_shared<OpenableCamera>("CAM-2");
    bench.connection.open(OpenableCamera::entry(other), CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(bench.connection.state(), CameraConnection::State::Open, hangTimeout);
    QVERIFY(!isDone);
}

void TestCameraJobs::pausesStream()
{
    EditorBench bench(scriptSetupCamera);
    CameraJobs jobs(bench.connection);
    TestPauser pauser(bench);
    jobs.setStreamPauser(&pauser);
    const auto nothing = [](Device &, const FeatureProgress &) { return CvxResult(); };
    for (const StreamUse stream : {StreamUse::Keep, StreamUse::Pause})
        jobs.start(QString(), stream, nothing, this, {});
    QTRY_VERIFY_WITH_TIMEOUT(!jobs.isBusy(), hangTimeout);
    QCOMPARE(pauser.count, 1);
}

QTEST_GUILESS_MAIN(TestCameraJobs)
#include "TestCameraJobs.moc"
