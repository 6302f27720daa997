#include "tests/imageviewer/files/SavingTest.h"
#include "tools/imageviewer/files/VideoWriter.h"

#include <QStandardPaths>

/// Videos are encoded by the program ffmpeg, which scripts of this name stand in for.
class TestVideoWriter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void framesReachTheEncoder();
    void colourAndOddSizesFitTheCodec();
    void missingProgramSaysWhatToInstall();
    void failureOfTheEncoderIsReported_data();
    void failureOfTheEncoderIsReported();
    void slowEncoderHoldsUpNobody();
    void newFormatEndsTheVideo();
    void realEncoderWritesAVideo_data();
    void realEncoderWritesAVideo();

private:
    void writeProgram(const QString &script);
    VideoWriter::Options options() const;
    QByteArray content(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_path; // The PATH outside the test.
};

namespace {

/// Takes all frames. The last argument is "file:" and the name of the video.
const QString recordingProgram = QStringLiteral("for name; do :; done\n"
                                                "echo \"$@\" > \"${name#file:}.arguments\"\n"
                                                "exec /bin/cat > \"${name#file:}\"\n");

std::shared_ptr<MadeUpImage> colorImage(std::uint32_t width, std::uint32_t height)
{
    std::vector<std::uint8_t> bytes;
    for (std::size_t index = 0; index < std::size_t(3) * width * height; ++index)
        bytes.push_back(static_cast<std::uint8_t>(index));
    return std::make_shared<MadeUpImage>(rgb8Format, width, height, bytes);
}

bool waitForCount(const VideoWriter &writer, std::uint64_t written)
{
    return QTest::qWaitFor([&] { return writer.counters().written == written; }, 10000);
}

} // namespace

void TestVideoWriter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = qgetenv("PATH");
    qputenv("PATH", m_folder->path().toLocal8Bit());
}

void TestVideoWriter::cleanup()
{
    qputenv("PATH", m_path);
    m_folder.reset();
}

void TestVideoWriter::writeProgram(const QString &script)
{
    QFile program(m_folder->filePath(QStringLiteral("ffmpeg")));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\n" + script.toUtf8());
    QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

VideoWriter::Options TestVideoWriter::options() const
{
    VideoWriter::Options options;
    options.path = m_folder->filePath(QStringLiteral("a.mp4"));
    options.rate = 12.5;
    return options;
}

QByteArray TestVideoWriter::content(const QString &name) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestVideoWriter::framesReachTheEncoder()
{
    writeProgram(recordingProgram);
    VideoWriter writer(options(), ImageKeeper(10, 0));
    QCOMPARE(writer.open(), QString());
    QByteArray expected;
    for (std::uint64_t number = 1; number <= 5; ++number) {
        auto image = numberedImage(number);
        image->info.isComplete = number != 3;
        writer.add(image);
        expected += QByteArray(16, static_cast<char>(number));
    }
    CvxCPP::StreamStatistics losses;
    losses.lost = 2;
    QCOMPARE(writer.finish(losses), QString());
    QCOMPARE(content(QStringLiteral("a.mp4")), expected);
    const QByteArray arguments = content(QStringLiteral("a.mp4.arguments"));
    QVERIFY2(arguments.contains("-pix_fmt gray -s:v 4x4 -r 12.5 -i pipe:0 -c:v libx264"), arguments);
    const QJsonObject sidecar = QJsonDocument::fromJson(content(QStringLiteral("a.mp4.json"))).object();
    const QJsonObject recording = sidecar[QStringLiteral("recording")].toObject();
    QCOMPARE(recording[QStringLiteral("images")].toInt(), 5);
    QCOMPARE(recording[QStringLiteral("incomplete")].toInt(), 1);
    QCOMPARE(recording[QStringLiteral("lost")].toInt(), 2);
}

void TestVideoWriter::colourAndOddSizesFitTheCodec()
{
    writeProgram(recordingProgram);
    VideoWriter::Options lossless = options();
    lossless.codec = RecordingFormat::VideoLossless;
    VideoWriter writer(lossless, ImageKeeper(10, 0));
    QCOMPARE(writer.open(), QString());
    const auto image = colorImage(5, 3);
    writer.add(image);
    QCOMPARE(writer.finish({}), QString());
    QByteArray expected; // Without the last column and the last line.
    for (int y = 0; y < 2; ++y)
        expected += QByteArray(reinterpret_cast<const char *>(image->GetData()) + y * 15, 12);
    QCOMPARE(content(QStringLiteral("a.mp4")), expected);
    const QByteArray arguments = content(QStringLiteral("a.mp4.arguments"));
    QVERIFY2(arguments.contains("-pix_fmt rgb24 -s:v 4x2") && arguments.contains("ffv1"), arguments);
}

void TestVideoWriter::missingProgramSaysWhatToInstall()
{
    VideoWriter writer(options(), ImageKeeper(10, 0));
    QVERIFY(writer.open().contains(QStringLiteral("sudo apt install ffmpeg")));
}

void TestVideoWriter::failureOfTheEncoderIsReported_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("problem");
    QTest::newRow("at once") << "echo warning >&2; echo 'Unknown encoder' >&2; exit 1"
                             << "Unknown encoder";
    QTest::newRow("at the end") << "/bin/cat > /dev/null; echo 'No space left' >&2; exit 1"
                                << "No space left";
    QTest::newRow("killed") << "kill -9 $$"
                            << "ffmpeg has failed";
}

void TestVideoWriter::failureOfTheEncoderIsReported()
{
    QFETCH(const QString, script);
    QFETCH(const QString, problem);
    writeProgram(script);
    VideoWriter writer(options(), ImageKeeper(1000, 0));
    QCOMPARE(writer.open(), QString());
    for (std::uint64_t number = 1; number <= 100; ++number)
        writer.add(numberedImage(number));
    const QString text = writer.finish({});
    QVERIFY2(text.contains(problem), qPrintable(text));
    const TargetCounters counters = writer.counters();
    QCOMPARE(counters.written + counters.unwritten, 100U);
    QVERIFY(content(QStringLiteral("a.mp4.json")).contains("\"problem\""));
}

void TestVideoWriter::slowEncoderHoldsUpNobody()
{
    // The program waits until the test creates a file.
    writeProgram(QStringLiteral("while [ ! -e %1 ]; do /bin/sleep 0.01; done\n")
                     .arg(m_folder->filePath(QStringLiteral("go")))
        + recordingProgram);
    VideoWriter writer(options(), ImageKeeper(2, 0));
    QCOMPARE(writer.open(), QString());
    constexpr std::uint32_t width = 512; // One image does not fit into the pipe.
    const auto image = std::make_shared<MadeUpImage>(
        mono8Format, width, width, std::vector<std::uint8_t>(std::size_t(width) * width));
    for (int count = 0; count < 10; ++count)
        writer.add(image);
    QCOMPARE(writer.counters().skipped, 8U);
    QFile go(m_folder->filePath(QStringLiteral("go")));
    QVERIFY(go.open(QIODevice::WriteOnly));
    QCOMPARE(writer.finish({}), QString());
    QCOMPARE(writer.counters().written, 2U);
    QCOMPARE(content(QStringLiteral("a.mp4")).size(), 2 * int(width * width));
}

void TestVideoWriter::newFormatEndsTheVideo()
{
    writeProgram(recordingProgram);
    VideoWriter writer(options(), ImageKeeper(10, 0));
    QCOMPARE(writer.open(), QString());
    writer.add(numberedImage(1));
    QVERIFY(waitForCount(writer, 1));
    writer.add(colorImage(4, 4));
    QTRY_VERIFY_WITH_TIMEOUT(!writer.problem().isEmpty(), 10000);
    writer.add(numberedImage(2));
    QVERIFY(writer.finish({}).contains(QStringLiteral("start another recording")));
    QCOMPARE(writer.counters().unwritten, 2U);
    QCOMPARE(content(QStringLiteral("a.mp4")), QByteArray(16, 1)); // What came before is kept.
}

void TestVideoWriter::realEncoderWritesAVideo_data()
{
    QTest::addColumn<int>("codec");
    QTest::newRow("H.264") << int(RecordingFormat::VideoH264);
    QTest::newRow("lossless") << int(RecordingFormat::VideoLossless);
}

void TestVideoWriter::realEncoderWritesAVideo()
{
    QFETCH(const int, codec);
    qputenv("PATH", m_path);
    if (findFfmpeg().isEmpty())
        QSKIP("ffmpeg is not installed.");
    VideoWriter::Options chosen = options();
    chosen.codec = static_cast<RecordingFormat>(codec);
    VideoWriter writer(chosen, ImageKeeper(100, 0));
    QCOMPARE(writer.open(), QString());
    for (int count = 0; count < 20; ++count)
        writer.add(colorImage(64, 48));
    QCOMPARE(writer.finish({}), QString());
    QProcess reader;
    reader.start(findFfmpeg(),
        {QStringLiteral("-loglevel"), QStringLiteral("error"), QStringLiteral("-i"), chosen.path,
            QStringLiteral("-f"), QStringLiteral("rawvideo"), QStringLiteral("-pix_fmt"),
            QStringLiteral("rgb24"), QStringLiteral("-")});
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.readAllStandardOutput().size(), 20 * 64 * 48 * 3);
}

QTEST_GUILESS_MAIN(TestVideoWriter)
#include "TestVideoWriter.moc"
