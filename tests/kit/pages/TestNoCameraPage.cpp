#include "sdk/testing/Gate.h"
#include "tools/kit/pages/FindingCard.h"
#include "tools/kit/pages/NoCameraPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

#include <atomic>

namespace {

const Findings someFindings{
    {Severity::Ok, "producers", "Two producers work.", "", ""},
    {Severity::Notice, "usb", "The memory is small.", "", "sysctl usb"},
    {Severity::Error, "enp3s0", "There is no address.", "<b>No</b> camera can answer.", "ip address add"},
    {Severity::Warning, "enp4s0", "The link is slow.", "", ""},
};

/// Returns the subjects of the visible cards from top to bottom.
QStringList visibleSubjects(const QWidget &page)
{
    QMap<int, QString> subjects;
    for (const FindingCard *const card : page.findChildren<FindingCard *>()) {
        for (const QLabel *const label : card->findChildren<QLabel *>()) {
            if (label->isVisible() && label->property("role") == QLatin1String("heading"))
                subjects.insert(card->mapTo(&page, QPoint()).y(), label->text());
        }
    }
    return subjects.values();
}

QStringList list(const char *commaSeparated)
{
    return QString::fromLatin1(commaSeparated).split(QLatin1Char(','));
}

} // namespace

class TestNoCameraPage : public QObject
{
    Q_OBJECT

private slots:
    void findingsAreSortedBySeverity();
    void commandCanBeCopied();
    void checksRunInTheBackgroundAndAgain();
    void problemReplacesTheText();
};

void TestNoCameraPage::findingsAreSortedBySeverity()
{
    NoCameraPage page([] { return someFindings; });
    page.resize(800, 900);
    QSignalSpy checked(&page, &NoCameraPage::checked);
    page.show();
    QVERIFY(checked.wait(10000));
    QTRY_COMPARE_WITH_TIMEOUT(visibleSubjects(page), list("enp3s0,enp4s0,usb"), 10000);
    page.findChild<QCheckBox *>()->click();
    QTRY_COMPARE_WITH_TIMEOUT(visibleSubjects(page), list("enp3s0,enp4s0,usb,producers"), 10000);
}

void TestNoCameraPage::commandCanBeCopied()
{
    const FindingCard card(someFindings[2]);
    QCOMPARE(card.findChild<QLineEdit *>()->text(), QStringLiteral("ip address add"));
    QTest::mouseClick(card.findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("ip address add"));
    for (const QLabel *const label : card.findChildren<QLabel *>())
        QVERIFY(label->textFormat() == Qt::PlainText || !label->text().contains(QLatin1Char('<')));
    QVERIFY(!FindingCard(someFindings[3]).findChild<QPushButton *>());
}

void TestNoCameraPage::checksRunInTheBackgroundAndAgain()
{
    CvxScripted::Gate gate;
    std::atomic<int> runs = 0;
    NoCameraPage page([&] {
        ++runs;
        gate.pass();
        return Findings{someFindings[3]};
    });
    page.show();
    QVERIFY(gate.waitForArrival());
    QVERIFY(page.isChecking());
    QVERIFY(page.findChild<QProgressBar *>()->isVisible());
    page.check(); // Has no effect while the checks are running.
    page.hide();
    page.show();
    gate.open();
    QSignalSpy checked(&page, &NoCameraPage::checked);
    QVERIFY(checked.wait(10000));
    QCOMPARE(runs.load(), 1);
    QVERIFY(!page.findChild<QProgressBar *>()->isVisible());
    QTest::mouseClick(page.findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(checked.wait(10000));
    QCOMPARE(runs.load(), 2);
    QCOMPARE(page.findChildren<FindingCard *>().size(), 1);
}

void TestNoCameraPage::problemReplacesTheText()
{
    NoCameraPage page([] { return Findings(); });
    const auto hasText = [&page](const QString &text) {
        const auto labels = page.findChildren<QLabel *>();
        return std::any_of(
            labels.begin(), labels.end(), [&](const QLabel *label) { return label->text() == text; });
    };
    page.setProblem(QStringLiteral("The problem."));
    QVERIFY(hasText(QStringLiteral("The problem.")));
    page.setProblem({});
    QVERIFY(!hasText(QStringLiteral("The problem.")));
}

QTEST_MAIN(TestNoCameraPage)
#include "TestNoCameraPage.moc"
