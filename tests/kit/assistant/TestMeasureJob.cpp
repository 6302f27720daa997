#include "sdk/testing/Gate.h"
#include "tests/kit/camera/OpenableCamera.h"
#include "tests/kit/live/LiveImage.h"
#include "tests/kit/live/StreamingDevice.h"
#include "tools/kit/assistant/MeasureJob.h"
#include "tools/kit/assistant/SentenceText.h"

#include <QtTest>

#include <optional>

using namespace CvxCPP;
using CvxScripted::Gate;
using Changes = MeasureJob::Changes;

namespace {

using std::chrono_literals::operator""s;

constexpr int bound = 10000; // Milliseconds.

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// Waits for images until none arrives any more, as a measurement does that needs many of them.
Sentence takeEverything(const MeasureContext &context, const CameraRecord &)
{
    std::shared_ptr<const Image> image;
    while (context.frames.next(30s, image)) { }
    return {};
}

/// An opened camera and a job, and what its measurement has ended with.
struct JobTest
{
    explicit JobTest(CvxAccess access = CvxAccessControl)
    {
        device->add("Gain", 1.0);
        connection.open(OpenableCamera::entry(camera), access);
        QVERIFY(
            QTest::qWaitFor([this] { return connection.state() == CameraConnection::State::Open; }, bound));
    }

    void start(const MeasureJob::Work &work, Changes changes = Changes::PutBack)
    {
        job.start("Measuring"_s, changes, work, &context, [this](const QString &text) { problem = text; });
    }

    bool waitForStream()
    {
        return QTest::qWaitFor([this] { return stream.state() == LiveStream::State::Running; }, bound);
    }

    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return problem.has_value(); }, bound);
    }

    std::shared_ptr<StreamingDevice> device = std::make_shared<StreamingDevice>();
    std::shared_ptr<OpenableCamera> camera = std::make_shared<OpenableCamera>("CAM-1", device);
    CameraConnection connection;
    LiveStream stream{connection};
    QObject context;
    std::optional<QString> problem; ///< The parameter of `done`.
    MeasureJob job{connection, stream};
};

} // namespace

class TestMeasureJob : public QObject
{
    Q_OBJECT

private slots:
    void workReceivesTheImagesOfTheStream();
    void progressIsReported();
    void nextJobCanBeStartedWhenOneIsDone();
    void settingsArePutBackUnlessTheyAreKept_data();
    void settingsArePutBackUnlessTheyAreKept();
    void settingsThatWereNotPutBackAreReported();
    void failedWorkSaysWhy();
    void cancelledWorkIsNoSuccess();
    void lostCameraEndsTheWork();
    void failedStreamEndsTheWork();
    void watchedCameraIsNotMeasured();
    void destroyedContextIsNotCalled();
    void destroyedJobEndsTheWork();
};

void TestMeasureJob::workReceivesTheImagesOfTheStream()
{
    JobTest test;
    std::vector<std::uint64_t> ids;
    std::string id;
    test.start([&](const MeasureContext &context, const CameraRecord &record) {
        id = record.id;
        std::shared_ptr<const Image> image;
        while (ids.size() < 3 && context.frames.next(30s, image))
            ids.push_back(image->GetInfo().frameId);
        return Sentence{};
    });
    QVERIFY(test.job.isRunning());
    QVERIFY(test.waitForStream());
    QCOMPARE(test.device->record(), std::string("start 12"));
    for (std::uint64_t frame = 1; frame <= 3; ++frame)
        test.device->stream()->deliver(LiveImage::make(frame));
    QVERIFY(test.waitForEnd());
    QCOMPARE(*test.problem, QString());
    QCOMPARE(ids, (std::vector<std::uint64_t>{1, 2, 3}));
    QCOMPARE(id, std::string("test.cti/interface/CAM-1"));
    QVERIFY(!test.job.isRunning());
    QCOMPARE(test.stream.state(), LiveStream::State::Running); // The live picture goes on.
}

void TestMeasureJob::progressIsReported()
{
    JobTest test;
    Gate gate;
    bool goesOn = false;
    test.start([&](const MeasureContext &context, const CameraRecord &) {
        goesOn = context.progress(3, 10);
        gate.pass();
        return Sentence{};
    });
    QSignalSpy spy(&test.job, &MeasureJob::changed);
    QVERIFY(gate.waitForArrival());
    QTRY_VERIFY_WITH_TIMEOUT(spy.count() >= 2, bound);
    QCOMPARE(test.job.title(), "Measuring"_s);
    QCOMPARE(test.job.done(), std::size_t(3));
    QCOMPARE(test.job.total(), std::size_t(10));
    QVERIFY(goesOn);
    test.start(
        [](const MeasureContext &, const CameraRecord &) -> Sentence { qFatal("Two jobs at a time"); });
    gate.open();
    QVERIFY(test.waitForEnd());
    QCOMPARE(test.job.title(), QString());
}

void TestMeasureJob::nextJobCanBeStartedWhenOneIsDone()
{
    JobTest test;
    const auto succeed = [](const MeasureContext &, const CameraRecord &) { return Sentence{}; };
    int count = 0;
    test.job.start("First"_s, Changes::PutBack, succeed, &test.context, [&](const QString &) {
        test.job.start("Second"_s, Changes::Keep, succeed, &test.context, [&](const QString &) { ++count; });
    });
    QTRY_COMPARE_WITH_TIMEOUT(count, 1, bound);
}

void TestMeasureJob::settingsArePutBackUnlessTheyAreKept_data()
{
    QTest::addColumn<bool>("keeps");
    QTest::addColumn<bool>("fails");
    QTest::addColumn<double>("gain");
    QTest::newRow("measured") << false << false << 1.0;
    QTest::newRow("set") << true << false << 2.0;
    QTest::newRow("not set completely") << true << true << 1.0;
}

void TestMeasureJob::settingsArePutBackUnlessTheyAreKept()
{
    QFETCH(bool, keeps);
    QFETCH(bool, fails);
    JobTest test;
    const auto work = [fails](const MeasureContext &context, const CameraRecord &) {
        (void)context.device.Write("Gain", 2.0);
        return fails ? Sentence{"The camera refuses the value."} : Sentence{};
    };
    test.start(work, keeps ? Changes::Keep : Changes::PutBack);
    QVERIFY(test.waitForEnd());
    QCOMPARE(test.problem->isEmpty(), !fails);
    const NodeValue gain = test.device->change([](ScriptedDevice &device) { return device.value("Gain"); });
    QTEST(std::get<double>(gain), "gain");
}

void TestMeasureJob::settingsThatWereNotPutBackAreReported()
{
    JobTest test;
    test.start([](const MeasureContext &context, const CameraRecord &) {
        (void)context.device.EndTemporaryChanges(TemporaryChanges::Keep); // The next call fails.
        return Sentence{"Too dark."};
    });
    QVERIFY(test.waitForEnd());
    QVERIFY2(test.problem->startsWith("Too dark. Some settings"_s), qPrintable(*test.problem));
}

void TestMeasureJob::failedWorkSaysWhy()
{
    JobTest test;
    test.start([](const MeasureContext &, const CameraRecord &) {
        return Sentence{"Only %1 of %2 images are sharp. 100%", {SentenceNumber{2.5, 1}, std::string("%1")}};
    });
    QVERIFY(test.waitForEnd());
    QCOMPARE(*test.problem, "Only 2.5 of %1 images are sharp. 100%"_s);
}

void TestMeasureJob::cancelledWorkIsNoSuccess()
{
    JobTest test;
    bool goesOn = true;
    test.start([&](const MeasureContext &context, const CameraRecord &record) {
        const Sentence sentence = takeEverything(context, record);
        goesOn = context.progress(1, 2);
        return sentence;
    });
    test.job.cancel();
    QVERIFY(test.waitForEnd());
    QCOMPARE(*test.problem, translatedSentence(cancelledSentence()));
    QVERIFY(!test.problem->isEmpty());
}

void TestMeasureJob::lostCameraEndsTheWork()
{
    JobTest test;
    test.start(takeEverything);
    QVERIFY(test.waitForStream());
    test.device->lose("The cable was pulled.");
    QVERIFY(test.waitForEnd());
    QVERIFY(test.problem->contains("was lost"_s));
}

void TestMeasureJob::failedStreamEndsTheWork()
{
    JobTest test;
    test.device->failNextStart({CvxErrorInUse, "Another program uses the stream."});
    test.start(takeEverything);
    QVERIFY(test.waitForEnd());
    QVERIFY(test.problem->contains("Another program uses the stream."_s));
}

void TestMeasureJob::watchedCameraIsNotMeasured()
{
    JobTest test(CvxAccessWatch);
    test.start([](const MeasureContext &, const CameraRecord &) -> Sentence { qFatal("Not controlled"); });
    QVERIFY(!test.job.isRunning());
    QVERIFY(test.waitForEnd());
    QVERIFY(!test.problem->isEmpty());
}

void TestMeasureJob::destroyedContextIsNotCalled()
{
    JobTest test;
    auto context = std::make_unique<QObject>();
    test.job.start("Measuring"_s, Changes::PutBack, takeEverything, context.get(),
        [](const QString &) { qFatal("The context was destroyed"); });
    context.reset();
    test.job.cancel();
    QTRY_VERIFY_WITH_TIMEOUT(!test.job.isRunning(), bound);
}

void TestMeasureJob::destroyedJobEndsTheWork()
{
    bool hasEnded = false;
    {
        JobTest test;
        test.start([&](const MeasureContext &context, const CameraRecord &record) {
            const Sentence sentence = takeEverything(context, record);
            hasEnded = true;
            return sentence;
        });
        QVERIFY(test.waitForStream());
    }
    QVERIFY(hasEnded);
}

QTEST_GUILESS_MAIN(TestMeasureJob)
#include "TestMeasureJob.moc"
