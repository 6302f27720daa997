#include "tests/doctor/MachineBuilder.h"
#include "tools/imageviewer/numbers/LossAdviser.h"

#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <condition_variable>

using namespace CvxCPP;

/// Which cause of losses a person is told.
class TestLossAdvice : public QObject
{
    Q_OBJECT

private slots:
    void mostRelevantCauseIsChosen_data();
    void mostRelevantCauseIsChosen();
    void gigeCauses_data();
    void gigeCauses();
    void usbCauses();
    void checksRunOnceAndElsewhere();
    void findingsAboutAnEarlierCameraAreIgnored();
};

Q_DECLARE_METATYPE(Findings)
Q_DECLARE_METATYPE(RecentLosses)

namespace {

const Finding slowLinkFinding{Severity::Warning, "eth1", "The link is slow.", "It needs more.", "ethtool"};
const Finding smallMtuFinding{Severity::Notice, "eth1", "The MTU is small.", "Larger is better.", "ip link"};

} // namespace

void TestLossAdvice::mostRelevantCauseIsChosen_data()
{
    QTest::addColumn<RecentLosses>("losses");
    QTest::addColumn<int>("technology");
    QTest::addColumn<Findings>("findings");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("command");
    const int gige = CvxTransportLayerGigE, usb = CvxTransportLayerUSB, other = CvxTransportLayerCustom;
    const Findings both{smallMtuFinding, slowLinkFinding};
    QTest::newRow("nothing lost") << RecentLosses{} << gige << both << ""
                                  << "";
    QTest::newRow("warning before notice")
        << RecentLosses{2, 1, 0} << gige << both
        << "3 image(s) were lost or damaged in the last seconds. The link is slow. It needs more."
        << "ethtool";
    QTest::newRow("notice")
        << RecentLosses{0, 2, 0} << gige << Findings{smallMtuFinding}
        << "2 image(s) were incomplete in the last seconds. The MTU is small. Larger is better."
        << "ip link";
    QTest::newRow("GigE without finding")
        << RecentLosses{1, 0, 0} << gige << Findings{} << "check cable and switch"
        << "";
    QTest::newRow("USB without finding") << RecentLosses{1, 0, 0} << usb << Findings{} << "without a hub"
                                         << "";
    QTest::newRow("other technology")
        << RecentLosses{1, 0, 0} << other << Findings{} << "reduce the frame rate"
        << "";
    QTest::newRow("no free buffer") << RecentLosses{5, 0, 5} << gige << both
                                    << "No buffer was free for 5 image(s)."
                                    << "";
}

void TestLossAdvice::mostRelevantCauseIsChosen()
{
    QFETCH(const RecentLosses, losses);
    QFETCH(const int, technology);
    QFETCH(const Findings, findings);
    QFETCH(const QString, text);
    const LossAdvice advice
        = LossAdvice::choose(losses, static_cast<CvxTransportLayerType>(technology), findings);
    QVERIFY2(advice.text.contains(text), qPrintable(advice.text));
    QCOMPARE(advice.text.isEmpty(), text.isEmpty());
    QTEST(advice.command, "command");
}

void TestLossAdvice::gigeCauses_data()
{
    QTest::addColumn<QString>("speed");
    QTest::addColumn<QString>("mtu");
    QTest::addColumn<QString>("receiveBuffer");
    QTest::addColumn<qlonglong>("packetSize");
    QTest::addColumn<QStringList>("commands"); // The beginnings.
    const QString gigabit = QStringLiteral("1000"), jumbo = QStringLiteral("9000"),
                  usual = QStringLiteral("1500");
    const QString large = QStringLiteral("33554432"), small = QStringLiteral("212992");
    const QString set = QStringLiteral("cvxctl set 'Kx 1' GevSCPSPacketSize=");
    QTest::newRow("nothing to correct") << gigabit << jumbo << large << 8228LL << QStringList{};
    QTest::newRow("packets do not fit")
        << gigabit << usual << large << 8228LL << QStringList{set + usual, QStringLiteral("sudo ip link")};
    QTest::newRow("small packets") << gigabit << jumbo << large << 1500LL << QStringList{set + jumbo};
    QTest::newRow("small receive buffer")
        << gigabit << jumbo << small << 8228LL << QStringList{QStringLiteral("echo net.core.rmem_max")};
    QTest::newRow("slow link") << QStringLiteral("100") << jumbo << large << 8228LL
                               << QStringList{QStringLiteral("sudo ethtool eth1")};
}

void TestLossAdvice::gigeCauses()
{
    QFETCH(const QString, speed);
    QFETCH(const QString, mtu);
    QFETCH(const QString, receiveBuffer);
    QFETCH(const qlonglong, packetSize);
    QFETCH(const QStringList, commands);
    MachineBuilder builder;
    builder.link("eth0", "1", "10", "1500").link("eth1", "1", speed.toStdString(), mtu.toStdString());
    builder.file("/proc/sys/net/core/rmem_max", receiveBuffer.toStdString());
    builder.machine.links = readNetworkLinks(builder.machine.files);
    builder.address("eth0", "192.168.1.2", 24).address("eth1", "10.77.1.1", 24).camera("10.77.1.5", 1);
    LossQuestion question;
    question.camera = "Kx 1";
    question.report.packetSize = packetSize;
    const Findings causes = gigeLossCauses(question, builder.machine);
    QVERIFY2(int(causes.size()) == commands.size(), describe(causes).c_str());
    for (int index = 0; index < commands.size(); ++index)
        QVERIFY2(causes[std::size_t(index)].command.rfind(commands[index].toStdString(), 0) == 0,
            describe(causes).c_str());
}

void TestLossAdvice::usbCauses()
{
    MachineBuilder builder;
    const std::string device = "/sys/bus/usb/devices/2-1", interface = device + ":1.0";
    builder.file(interface + "/bInterfaceClass", "ef\n").file(interface + "/bInterfaceSubClass", "05\n");
    builder.file(device + "/busnum", "2\n").file(device + "/devnum", "3\n").file(device + "/speed", "5000\n");
    builder.file("/dev/bus/usb/002/003", "");
    const std::string limit = "/sys/module/usbcore/parameters/usbfs_memory_mb";
    builder.file(limit, "16\n");
    const Findings causes = usbLossCauses(builder.machine.files);
    QVERIFY2(causes.size() == 1 && causes[0].subject == "usbfs_memory_mb", describe(causes).c_str());
    builder.file(limit, "1000\n").file(device + "/speed", "480\n");
    const Findings slow = usbLossCauses(builder.machine.files);
    QVERIFY2(slow.size() == 1 && slow[0].command == "lsusb --tree", describe(slow).c_str());
}

void TestLossAdvice::checksRunOnceAndElsewhere()
{
    std::atomic<int> count{0};
    std::atomic<QThread *> thread{nullptr};
    LossAdviser adviser([&](const LossQuestion &) {
        thread = QThread::currentThread();
        ++count;
        return Findings{slowLinkFinding};
    });
    adviser.update({}, {});
    QVERIFY(adviser.advice().text.isEmpty());
    for (int repeat = 0; repeat < 3; ++repeat)
        adviser.update({1, 0, 0}, {});
    QTRY_COMPARE_WITH_TIMEOUT(adviser.advice().command, QStringLiteral("ethtool"), 10000);
    adviser.update({1, 0, 0}, {});
    QCOMPARE(count.load(), 1); // Neither without a loss nor again within 30 s.
    QVERIFY(thread.load() != QThread::currentThread());
    adviser.update({}, {});
    QVERIFY(adviser.advice().text.isEmpty());
}

void TestLossAdvice::findingsAboutAnEarlierCameraAreIgnored()
{
    std::mutex mutex;
    std::condition_variable changed;
    bool mayEnd = false;
    LossAdviser adviser([&](const LossQuestion &question) {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return mayEnd; });
        return Findings{question.camera == "second" ? smallMtuFinding : slowLinkFinding};
    });
    LossQuestion question;
    question.camera = "first";
    adviser.update({1, 0, 0}, question);
    adviser.clear();
    question.camera = "second";
    {
        const std::lock_guard lock(mutex);
        mayEnd = true;
        changed.notify_all();
    }
    const auto hasCommand = [&] {
        adviser.update({1, 0, 0}, question);
        return !adviser.advice().command.isEmpty();
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasCommand(), 10000);
    QCOMPARE(adviser.advice().command, QStringLiteral("ip link"));
}

QTEST_MAIN(TestLossAdvice)
#include "TestLossAdvice.moc"
