#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/StepCard.h"
#include "tools/kit/widgets/StepList.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// Three steps, the second one without a button.
void addSteps(StepList &steps)
{
    steps.addStep("Dark"_s, "Cover the lens."_s, "Take"_s);
    steps.addStep("Look"_s, "Look at the map."_s, {});
    steps.addStep("Save"_s, "Save the map."_s, "Save…"_s);
}

/// Returns the state of each step (pending, current, done), and after it "+" if its button can be clicked, or
/// "*" if it is also the primary one.
QString summary(const StepList &steps)
{
    QString text;
    for (int i = 0; i < steps.count(); ++i) {
        text += "PCD"_s.at(int(steps.step(i)->state()));
        const QPushButton *const button = steps.step(i)->button();
        if (button && button->isEnabled())
            text += button->property("role") == "primary"_s ? "*"_s : "+"_s;
    }
    return text;
}

} // namespace

class TestStepList : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheCurrentStepIsPrimary();
    void buttonOfAStepIsReported();
    void stepIsReadAloudWithItsState();
    void bigNumberIsReadAloudWithItsCaption();
};

void TestStepList::onlyTheCurrentStepIsPrimary()
{
    StepList steps;
    addSteps(steps);
    QCOMPARE(summary(steps), "C*PP"_s);
    steps.setCurrent(1);
    QCOMPARE(summary(steps), "D+CP"_s);
    steps.setCurrent(3);
    QCOMPARE(summary(steps), "D+DD+"_s);
    steps.setBusy(true);
    QCOMPARE(summary(steps), "DDD"_s);
    steps.setBusy(false);
    steps.step(0)->setResult("16 images"_s);
    steps.reset();
    QCOMPARE(summary(steps), "C*PP"_s);
    for (const QLabel *const label : steps.step(0)->findChildren<QLabel *>())
        QVERIFY(label->text() != "16 images"_s);
}

void TestStepList::buttonOfAStepIsReported()
{
    StepList steps;
    addSteps(steps);
    QSignalSpy spy(steps.step(0), &StepCard::triggered);
    steps.step(0)->button()->click();
    QCOMPARE(spy.count(), 1);
}

void TestStepList::stepIsReadAloudWithItsState()
{
    StepList steps;
    addSteps(steps);
    steps.setCurrent(1);
    QCOMPARE(steps.step(0)->accessibleName(), "Step 1, done: Dark"_s);
    QCOMPARE(steps.step(1)->accessibleName(), "Step 2, next: Look"_s);
    QCOMPARE(steps.step(2)->accessibleName(), "Step 3, not yet possible: Save"_s);
}

void TestStepList::bigNumberIsReadAloudWithItsCaption()
{
    BigNumber number("Temperature"_s);
    QCOMPARE(number.text(), "–"_s);
    number.setValue(41.28, 1, "°C"_s);
    QCOMPARE(number.text(), "41.3 °C"_s);
    const auto labels = number.findChildren<QLabel *>();
    const auto isDescribed
        = [](const QLabel *label) { return label->accessibleName() == "Temperature: 41.3 °C"_s; };
    QVERIFY(std::any_of(labels.begin(), labels.end(), isDescribed));
}

QTEST_MAIN(TestStepList)
#include "TestStepList.moc"
