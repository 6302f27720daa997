#include "sdk/testing/Gate.h"
#include "tests/camerasetup/compare/UserSetCamera.h"
#include "tests/kit/camera/OpenableCamera.h"
#include "tools/camerasetup/compare/FileSource.h"
#include "tools/camerasetup/compare/OtherCameraSource.h"
#include "tools/camerasetup/compare/UserSetWork.h"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <optional>

using namespace CvxCPP;

namespace {

constexpr int hangLimit = 10000;

std::string valueOf(const SettingsSnapshot &snapshot, const std::string &name)
{
    for (const FeatureSetting &setting : snapshot.side.settings) {
        if (setting.name == name)
            return setting.value;
    }
    return {};
}

bool hasNote(const std::vector<FeatureNote> &notes, const std::string &part)
{
    return std::any_of(notes.begin(), notes.end(), [&part](const FeatureNote &note) {
        return note.text.find(part) != std::string::npos || note.name == part;
    });
}

std::shared_ptr<OpenableCamera> makeOther()
{
    auto camera = std::make_shared<OpenableCamera>("other");
    defineUserSetCamera(camera->device());
    return camera;
}

/// Another camera, and what was read from it.
struct OtherBench
{
    void read()
    {
        source.read({}, [this](const SourceReading &done) { reading = done; });
    }

    bool waitForReading()
    {
        return QTest::qWaitFor([this] { return reading.has_value(); }, hangLimit);
    }

    std::shared_ptr<OpenableCamera> camera = makeOther();
    CameraConnection connection;
    OtherCameraSource source{OpenableCamera::entry(camera), connection};
    std::optional<SourceReading> reading;
};

} // namespace

class TestSettingsSources : public QObject
{
    Q_OBJECT

private slots:
    void userSetIsReadAndEverythingIsPutBack();
    void visitPutsBackWhatNoFileContains();
    void whatCannotBePutBackIsReported();
    void cameraThatIsLostStillHasTheSet();
    void failedUserSetIsLeftAndTheSettingsArePutBack();
    void cancelledVisitPutsBack();
    void userSetIsWritten();
    void cancelledWriteSavesNothing();
    void otherCameraIsReadAndClosed();
    void otherCameraInUseIsWatched();
    void otherCameraInUseIsNotWritten();
    void otherCameraIsWritten();
    void openingAnotherCameraCanBeCancelled();
    void fileIsReadAndWrittenInPlace();
    void missingFileIsAProblem();
};

void TestSettingsSources::userSetIsReadAndEverythingIsPutBack()
{
    TestDevice camera;
    defineUserSetCamera(camera);
    camera.set("ExposureTime", 250.0);
    const auto before = camera.changedValues();
    UserSetVisit visit;
    QVERIFY(readUserSet(camera, "UserSet1", {}, visit, {}));
    QCOMPARE(valueOf(visit.content, "Width"), std::string("320"));
    QCOMPARE(valueOf(visit.content, "ExposureAuto"), std::string("Continuous"));
    QVERIFY(camera.changedValues() == before);
    QVERIFY(visit.remaining.empty());
    QVERIFY(visit.notes.empty());
}

void TestSettingsSources::visitPutsBackWhatNoFileContains()
{
    TestDevice camera;
    defineUserSetCamera(camera);
    camera.add("Label", std::string());
    camera.add("Probe", std::int64_t(1)).info.isStreamable = false;
    camera.feature("UserSetLoad").onWrite = [&camera](NodeValue &) {
        camera.set("Label", std::string("Of the set"));
        camera.set("Probe", std::int64_t(5));
    };
    UserSetVisit visit;
    QVERIFY(readUserSet(camera, "UserSet1", {{{}, "Probe", "2"}}, visit, {}));
    QCOMPARE(valueOf(visit.content, "Probe"), std::string("5"));
    QVERIFY(camera.changedValues().empty());
    UserSetVisit writing;
    QVERIFY(writeUserSet(camera, "UserSet1", {{{}, "Probe", "2"}}, writing, {}));
    QCOMPARE(valueOf(writing.content, "Probe"), std::string("2"));
    QVERIFY(camera.changedValues().empty());
}

void TestSettingsSources::cameraThatIsLostStillHasTheSet()
{
    TestDevice camera;
    defineUserSetCamera(camera);
    camera.feature("UserSetLoad").onWrite
        = [&camera](NodeValue &) { camera.callsUntilLoss = camera.callCount + 3; };
    UserSetVisit visit;
    QCOMPARE(readUserSet(camera, "UserSet1", {}, visit, {}).code, CvxErrorDeviceLost);
    QVERIFY(visit.isStillLoaded);
    QVERIFY(visit.remaining.empty()); // Nobody knows them.
}

void TestSettingsSources::whatCannotBePutBackIsReported()
{
    TestDevice camera;
    defineUserSetCamera(camera);
    camera.feature("Width").onWrite = [](NodeValue &value) { value = std::int64_t(600); };
    UserSetVisit visit;
    QVERIFY(readUserSet(camera, "UserSet1", {}, visit, {}));
    QCOMPARE(visit.remaining.size(), std::size_t(1));
    QCOMPARE(visit.remaining.front().before, std::optional<std::string>("640"));
    QCOMPARE(visit.remaining.front().after, std::string("600"));
    QVERIFY(hasNote(visit.notes, "Width"));
    QVERIFY(!visit.isStillLoaded);
}

void TestSettingsSources::failedUserSetIsLeftAndTheSettingsArePutBack()
{
    TestDevice camera;
    defineUserSetCamera(camera);
    const auto before = camera.changedValues();
    UserSetVisit visit;
    const CvxResult result = readUserSet(camera, "UserSet9", {}, visit, {});
    QCOMPARE(result.code, CvxErrorOutOfRange);
    QVERIFY(camera.changedValues() == before);
}

void TestSettingsSources::cancelledVisitPutsBack()
{
    TestDevice camera;
    defineUserSetCamera(camera);
    UserSetVisit visit;
    const auto untilLoaded = [&camera](std::size_t, std::size_t) {
        return camera.value("Width") == NodeValue(std::int64_t(640));
    };
    QVERIFY(readUserSet(camera, "UserSet1", {}, visit, untilLoaded));
    QVERIFY(visit.content.isCancelled);
    QVERIFY(camera.changedValues().empty());
}

void TestSettingsSources::userSetIsWritten()
{
    TestDevice camera;
    defineUserSetCamera(camera);
    UserSetVisit visit;
    QVERIFY(writeUserSet(camera, "UserSet1", {{{}, "Width", "100"}, {{}, "Missing", "1"}}, visit, {}));
    QCOMPARE(visit.report.count(FeatureOutcome::Changed), std::size_t(1));
    QCOMPARE(visit.report.count(FeatureOutcome::Failed), std::size_t(1));
    QCOMPARE(valueOf(visit.content, "Width"), std::string("100"));
    QVERIFY(camera.changedValues().empty());
    UserSetVisit second;
    QVERIFY(readUserSet(camera, "UserSet1", {}, second, {}));
    QCOMPARE(valueOf(second.content, "Width"), std::string("100"));
}

void TestSettingsSources::cancelledWriteSavesNothing()
{
    TestDevice camera;
    defineUserSetCamera(camera);
    UserSetVisit visit;
    const auto untilWritten = [&camera](std::size_t, std::size_t) {
        return camera.value("Width") != NodeValue(std::int64_t(100));
    };
    QVERIFY(writeUserSet(camera, "UserSet1", {{{}, "Width", "100"}, {{}, "Gain", "2"}}, visit, untilWritten));
    QVERIFY(visit.report.isCancelled && !visit.isSaved);
    QCOMPARE(std::count(camera.writes.begin(), camera.writes.end(), "UserSetSave"), 0);
    QVERIFY(camera.changedValues().empty());
}

void TestSettingsSources::otherCameraIsReadAndClosed()
{
    OtherBench bench;
    bench.read();
    QVERIFY(bench.waitForReading());
    QCOMPARE(bench.reading->problem, QString());
    QCOMPARE(valueOf(bench.reading->snapshot, "Width"), std::string("640"));
    QVERIFY(bench.reading->snapshot.notes.empty());
    QCOMPARE(bench.camera->opened(), std::vector<CvxAccess>{CvxAccessControl});
    QTRY_VERIFY_WITH_TIMEOUT(bench.camera->device().isClosed(), hangLimit);
}

void TestSettingsSources::otherCameraInUseIsWatched()
{
    OtherBench bench;
    bench.camera->onOpen = [&camera = *bench.camera] {
        return camera.opened().back() == CvxAccessWatch ? CvxResult() : CvxResult{CvxErrorInUse, "In use."};
    };
    bench.read();
    QVERIFY(bench.waitForReading());
    QCOMPARE(bench.reading->problem, QString());
    QCOMPARE(valueOf(bench.reading->snapshot, "Width"), std::string("640"));
    QVERIFY(hasNote(bench.reading->snapshot.notes, "watched"));
}

void TestSettingsSources::otherCameraInUseIsNotWritten()
{
    OtherBench bench;
    bench.camera->onOpen = [] { return CvxResult{CvxErrorInUse, "In use by a tool."}; };
    std::optional<SourceWriting> writing;
    bench.source.write({{{}, "Width", "100"}}, [&writing](const SourceWriting &done) { writing = done; });
    QTRY_VERIFY_WITH_TIMEOUT(writing.has_value(), hangLimit);
    QCOMPARE(writing->problem, QStringLiteral("In use by a tool."));
    QCOMPARE(bench.camera->opened(), std::vector<CvxAccess>{CvxAccessControl});
}

void TestSettingsSources::otherCameraIsWritten()
{
    OtherBench bench;
    std::optional<SourceWriting> writing;
    bench.source.write({{{{"GainSelector", "Tap2"}}, "Gain", "4"}, {{}, "Width", "9999"}},
        [&writing](const SourceWriting &done) { writing = done; });
    QTRY_VERIFY_WITH_TIMEOUT(writing.has_value(), hangLimit);
    QCOMPARE(writing->problem, QString());
    QCOMPARE(writing->report.count(FeatureOutcome::Failed), std::size_t(1));
    const auto changed
        = bench.camera->device().change([](ScriptedDevice &device) { return device.changedValues(); });
    QVERIFY((changed == std::map<std::string, NodeValue>{{"Gain/GainSelector=Tap2", 4.0}}));
}

void TestSettingsSources::openingAnotherCameraCanBeCancelled()
{
    CvxScripted::Gate gate;
    OtherBench bench;
    bench.camera->onOpen = [&gate] {
        gate.pass();
        return CvxResult();
    };
    bench.read();
    QVERIFY(gate.waitForArrival());
    bench.source.cancel();
    QVERIFY(bench.reading.has_value());
    QVERIFY(!bench.reading->problem.isEmpty());
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(bench.camera->device().isClosed(), hangLimit);
}

void TestSettingsSources::fileIsReadAndWrittenInPlace()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("a.txt"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("# {05D8C294-F295-4dfb-9D01-096BD04049F4}\r\nWidth\t640\r\nloneword\r\nGain\t1\r\n");
    file.close();
    FileSource source(path, [] { return FeatureDirectory(); });
    SourceReading reading;
    const auto take = [&reading](const SourceReading &done) { reading = done; };
    source.read({}, take);
    QCOMPARE(reading.problem, QString());
    QCOMPARE(reading.snapshot.notes.size(), std::size_t(1));
    QCOMPARE(reading.snapshot.notes.front().name, std::string("Line 3"));
    QVERIFY(source.writeQuestion(1).contains(QStringLiteral("comments")));

    SourceWriting writing;
    source.write({{{}, "Width", "320"}}, [&writing](const SourceWriting &done) { writing = done; });
    QCOMPARE(writing.problem, QString());
    source.read({}, take);
    QCOMPARE(reading.snapshot.side.settings.front().value, std::string("320"));
    QCOMPARE(reading.snapshot.side.settings.back().name, std::string("Gain"));
}

void TestSettingsSources::missingFileIsAProblem()
{
    FileSource source(QStringLiteral("/nowhere/settings.txt"), [] { return FeatureDirectory(); });
    SourceReading reading;
    source.read({}, [&reading](const SourceReading &done) { reading = done; });
    QVERIFY(reading.problem.contains(QStringLiteral("settings.txt")));
    QVERIFY(!source.readOnlyReason().isEmpty());
}

QTEST_GUILESS_MAIN(TestSettingsSources)
#include "TestSettingsSources.moc"
