#include "tests/imageviewer/numbers/StreamingDevice.h"
#include "tools/imageviewer/numbers/DetailsPage.h"
#include "tools/imageviewer/numbers/StatusNumbers.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QTableWidget>
#include <QtTest>

#include <future>

using CvxCPP::StreamStatistics;

/// What the numbers of a stream say, and that they are those of the stream.
class TestStreamNumbers : public QObject
{
    Q_OBJECT

private slots:
    void rowsTellEveryNumber();
    void rates_data();
    void rates();
    void historyHasOneRowPerSecond_data();
    void historyHasOneRowPerSecond();
    void historyKeepsOneMinute();
    void windowForgetsOldLosses();
    void monitorFollowsStreamAndCamera();
    void picturesOfTheNextCameraAreCounted();
    void resendsOfTheNextCameraAreRead();
};

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);

/// Returns name, value and mark of each row.
QStringList textsOf(const QVector<NumberRow> &rows)
{
    QStringList texts;
    for (const NumberRow &row : rows)
        texts << row.name + QLatin1Char('=') + row.value + (row.isLoss ? QStringLiteral("!") : QString());
    return texts;
}

StreamStatistics counters(std::uint64_t delivered, std::uint64_t lost, std::uint64_t incomplete)
{
    StreamStatistics statistics;
    statistics.delivered = delivered;
    statistics.lost = lost;
    statistics.incomplete = incomplete;
    return statistics;
}

/// A camera, its stream, and what shows the numbers.
struct MonitoredStream
{
    MonitoredStream()
    {
        device->add("DeviceLinkSpeed", std::int64_t(125'000'000));
        device->add("GevSCPSPacketSize", std::int64_t(1500));
        device->add("GevResentPackets", std::int64_t(7));
        connection.open(OpenableCamera::entry(camera), CvxCPP::CvxAccessControl);
        monitor.setBuffers(8);
    }

    bool start()
    {
        const auto isOpen = [this] { return connection.state() == CameraConnection::State::Open; };
        if (!QTest::qWaitFor(isOpen, 10000))
            return false;
        stream.start(8);
        return QTest::qWaitFor([this] { return stream.state() == LiveStream::State::Running; }, 10000);
    }

    void openOther(const std::shared_ptr<StreamingDevice> &other)
    {
        connection.open(OpenableCamera::entry(std::make_shared<OpenableCamera>("Net-2", other)),
            CvxCPP::CvxAccessControl);
    }

    std::shared_ptr<StreamingDevice> device = std::make_shared<StreamingDevice>();
    std::shared_ptr<OpenableCamera> camera = std::make_shared<OpenableCamera>("Net-1", device);
    CameraConnection connection;
    FeatureClient features{connection};
    LiveStream stream{connection};
    PictureFeed feed;
    StreamMonitor monitor{stream, feed, features};
};

} // namespace

void TestStreamNumbers::rowsTellEveryNumber()
{
    StreamFigures figures;
    QVERIFY(
        !textsOf(StreamNumbers(figures, english).rows()).join(QLatin1Char(' ')).contains(QLatin1Char('!')));
    QCOMPARE(StreamNumbers(figures, english).lossText(), QString());

    figures.totals = counters(1200, 3, 2);
    figures.totals.underruns = 4;
    figures.totals.imagesPerSecond = 29.97;
    figures.totals.bytesPerSecond = 150.04e6;
    figures.totals.reopenCount = 1;
    figures.shown = 900;
    figures.skippedForDisplay = 300;
    figures.usedBuffers = 3;
    figures.buffers = 8;
    figures.packetSize = 8228;
    figures.resends = 5;
    const StreamNumbers numbers(figures, english);
    const QStringList expected{QStringLiteral("Delivered=1,200"), QStringLiteral("Shown=900"),
        QStringLiteral("Skipped for display=300"), QStringLiteral("Incomplete=2!"), QStringLiteral("Lost=3!"),
        QStringLiteral("Underruns=4!"), QStringLiteral("Rate=30.0 images/s"),
        QStringLiteral("Data rate=150.0 MB/s"), QStringLiteral("Buffers in use=3 of 8"),
        QStringLiteral("Link speed=not reported"), QStringLiteral("Packet size=8,228 bytes"),
        QStringLiteral("Resent packets=5"), QStringLiteral("Continued after a loss=1!")};
    QCOMPARE(textsOf(numbers.rows()), expected);
    QCOMPARE(numbers.lossText(), QStringLiteral("3 lost, 2 incomplete, 4 underruns"));
    QVERIFY(numbers.plainText().contains(QStringLiteral("Lost: 3\n")));
}

void TestStreamNumbers::rates_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<qlonglong>("linkSpeed");
    QTest::addColumn<QString>("rateText");
    QTest::addColumn<QString>("linkText");
    QTest::newRow("slow") << 0.21 << 12'500'000LL << "0.2 images/s · 0.0 MB/s"
                          << "100 Mbit/s";
    QTest::newRow("usual") << 60.04 << 125'000'000LL << "60.0 images/s · 0.0 MB/s"
                           << "1 Gbit/s";
    QTest::newRow("fast") << 523.7 << 312'500'000LL << "524 images/s · 0.0 MB/s"
                          << "2.5 Gbit/s";
}

void TestStreamNumbers::rates()
{
    QFETCH(const double, rate);
    QFETCH(const qlonglong, linkSpeed);
    StreamFigures figures;
    figures.totals.imagesPerSecond = rate;
    figures.linkSpeed = linkSpeed;
    const StreamNumbers numbers(figures, english);
    QTEST(numbers.rateText(), "rateText");
    QTEST(numbers.rows()[9].value, "linkText");
}

void TestStreamNumbers::historyHasOneRowPerSecond_data()
{
    // Milliseconds, delivered, losses of each sample; then rate:losses of the last known seconds.
    QTest::addColumn<QVector<qint64>>("samples");
    QTest::addColumn<QString>("expected");
    using Samples = QVector<qint64>;
    QTest::newRow("nothing") << Samples{} << "";
    QTest::newRow("first second is incomplete") << Samples{0, 0, 0, 500, 15, 0} << "";
    QTest::newRow("one second") << Samples{0, 0, 0, 500, 15, 0, 1000, 30, 2} << "30:2";
    QTest::newRow("counters do not begin at 0") << Samples{0, 100, 9, 1000, 130, 9} << "30:0";
    QTest::newRow("late sample") << Samples{0, 0, 0, 1200, 36, 0} << "30:0";
    QTest::newRow("stopped for three seconds") << Samples{0, 0, 0, 3000, 90, 6} << "30:0 30:0 30:6";
}

void TestStreamNumbers::historyHasOneRowPerSecond()
{
    QFETCH(const QVector<qint64>, samples);
    RateHistory history;
    for (int index = 0; index + 2 < samples.size(); index += 3)
        history.add(samples[index], std::uint64_t(samples[index + 1]), std::uint64_t(samples[index + 2]));
    QStringList known;
    for (const RateHistory::Second &second : history.seconds()) {
        if (second.isKnown)
            known << QStringLiteral("%1:%2").arg(second.rate).arg(second.losses);
    }
    QCOMPARE(history.seconds().size(), RateHistory::length);
    QTEST(known.join(QLatin1Char(' ')), "expected");
}

void TestStreamNumbers::historyKeepsOneMinute()
{
    RateHistory history;
    for (std::int64_t second = 0; second <= 100; ++second)
        history.add(second * 1000, std::uint64_t(second * second), 0);
    QCOMPARE(history.seconds().size(), RateHistory::length);
    QCOMPARE(history.seconds().first().rate, 40.0 + 41.0);
    QCOMPARE(history.seconds().last().rate, 99.0 + 100.0);
    history.clear();
    QVERIFY(!history.seconds().last().isKnown);
}

void TestStreamNumbers::windowForgetsOldLosses()
{
    LossWindow window;
    QVERIFY(window.losses().isEmpty());
    window.add(0, counters(0, 5, 0)); // Lost before anybody looked.
    QVERIFY(window.losses().isEmpty());
    window.add(1000, counters(0, 6, 2));
    window.add(10'900, counters(0, 6, 2));
    QCOMPARE(window.losses().lost, 1U);
    QCOMPARE(window.losses().incomplete, 2U);
    window.add(11'100, counters(0, 6, 2));
    QVERIFY(window.losses().isEmpty());
}

void TestStreamNumbers::monitorFollowsStreamAndCamera()
{
    MonitoredStream monitored;
    DetailsPage page(monitored.monitor);
    StatusNumbers status(monitored.monitor);
    page.show();
    const auto *const table = page.findChild<QTableWidget *>(QStringLiteral("numbers"));
    const auto shown = [&](int row) { return table->item(row, 1)->text(); };
    QVERIFY(monitored.start());
    const auto image = numberedImage(1);
    monitored.device->stream()->deliver(image);
    QTRY_COMPARE_WITH_TIMEOUT(shown(8), QStringLiteral("1 of 8"), 10000); // The test holds the image.
    monitored.device->stream()->setCounters(counters(30, 2, 0));
    QTRY_COMPARE_WITH_TIMEOUT(shown(0), QStringLiteral("30"), 10000);
    QTRY_COMPARE_WITH_TIMEOUT(shown(11), QStringLiteral("7"), 10000);
    QCOMPARE(shown(9), QStringLiteral("1 Gbit/s"));
    QCOMPARE(shown(10), QLocale().toString(1500) + QStringLiteral(" bytes"));
    QCOMPARE(status.findChild<QLabel *>(QStringLiteral("losses"))->text(), QStringLiteral("2 lost"));
    QTRY_VERIFY_WITH_TIMEOUT(!monitored.monitor.advice().text.isEmpty(), 10000);

    // Another stream of the same camera: its losses are added.
    monitored.stream.stop();
    QTRY_COMPARE_WITH_TIMEOUT(monitored.stream.state(), LiveStream::State::Stopped, 10000);
    QVERIFY(monitored.start());
    monitored.device->stream()->setCounters(counters(10, 1, 0));
    QTRY_COMPARE_WITH_TIMEOUT(shown(0), QStringLiteral("40"), 10000);
    QCOMPARE(shown(4), QStringLiteral("3"));
    page.copyAsText();
    QVERIFY(QApplication::clipboard()->text().contains(QStringLiteral("Lost: 3")));

    // Another camera begins at 0.
    monitored.connection.open(
        OpenableCamera::entry(std::make_shared<OpenableCamera>("Net-2")), CvxCPP::CvxAccessControl);
    QTRY_COMPARE_WITH_TIMEOUT(shown(0), QStringLiteral("0"), 10000);
    QVERIFY(monitored.monitor.advice().text.isEmpty());
}

void TestStreamNumbers::picturesOfTheNextCameraAreCounted()
{
    MonitoredStream monitored;
    PictureFeed &feed = monitored.feed;
    QVERIFY(monitored.start());
    feed.setRequest({QSize(4, 4), QRect(0, 0, 4, 4), QSize(4, 4), {}});
    for (std::uint64_t number = 1; number <= 2; ++number) {
        feed.take(numberedImage(number));
        QTRY_COMPARE_WITH_TIMEOUT(feed.shownCount(), number, 10000);
        feed.accept();
    }
    QTRY_COMPARE_WITH_TIMEOUT(monitored.monitor.figures().shown, 2U, 10000);
    // A window clears the feed after the monitor has seen the next camera.
    connect(&monitored.connection, &CameraConnection::stateChanged, &feed, &PictureFeed::clear);
    monitored.openOther(std::make_shared<StreamingDevice>());
    disconnect(&monitored.connection, nullptr, &feed, nullptr);
    feed.take(numberedImage(3));
    QTRY_COMPARE_WITH_TIMEOUT(feed.shownCount(), 1U, 10000);
    feed.take(numberedImage(4)); // Waits, because the picture was not accepted yet.
    feed.take(numberedImage(5)); // Replaces it.
    QTRY_COMPARE_WITH_TIMEOUT(monitored.monitor.figures().skippedForDisplay, 1U, 10000);
    QCOMPARE(monitored.monitor.figures().shown, 1U);
}

void TestStreamNumbers::resendsOfTheNextCameraAreRead()
{
    std::promise<void> reading, permission;
    MonitoredStream monitored;
    monitored.device->beforeCall = [&, isFirst = true](const std::string &call) mutable {
        if (call != "Read" || !std::exchange(isFirst, false))
            return;
        reading.set_value();
        permission.get_future().wait();
    };
    QVERIFY(monitored.start());
    const auto isReading = [future = reading.get_future().share()] {
        return future.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    };
    const bool hasRead = QTest::qWaitFor(isReading, 10000);
    const auto next = std::make_shared<StreamingDevice>();
    next->add("GevResentPackets", std::int64_t(9));
    monitored.openOther(next);
    const auto isNew = [&] { return monitored.monitor.figures().resends == 9; };
    const bool isNextRead = QTest::qWaitFor(isNew, 10000);
    permission.set_value();
    QVERIFY(hasRead);
    QVERIFY(isNextRead);
}

QTEST_MAIN(TestStreamNumbers)
#include "TestStreamNumbers.moc"
