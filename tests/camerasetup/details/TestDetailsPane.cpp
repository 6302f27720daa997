#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/details/DetailsPane.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/Favourites.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/kit/editors/HexView.h"
#include "tools/kit/start/ToolSettings.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

using namespace CvxCPP;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

void addCategory(TestDevice &device, const std::string &name, const std::string &category)
{
    NodeInfo &info = device.addCommand(name).info;
    info.type = NodeType::Category;
    info.displayName = name + " shown";
    info.category = category;
}

void addFeatures(TestDevice &device)
{
    addCategory(device, "Root", "");
    addCategory(device, "Analog", "Root");
    addCategory(device, "Gains", "Analog");
    addChoice(device, "GainAuto", {"Off", "Continuous"}).info.displayName = "Automatic <gain>";
    addNumber(device, "Gain", 1.0, 0.0, 10.0).info.category = "Gains";
    device.feature("Gain").info.displayName = "The gain";
    device.feature("Gain").info.description = "Makes the picture brighter.";
    device.feature("Gain").state.lockReason = LockReason::LockedByNode;
    device.feature("Gain").state.lockingNode = "GainAuto";
    device.add("Width", std::int64_t(640));
    device.add("Table", std::vector<std::uint8_t>(4)).state.maxLength = 4;
}

/// A shown pane and what it works with.
struct Pane
{
    Pane() : bench(addFeatures) { pane.show(); }

    /// Returns the texts of all visible labels.
    QStringList labels() const
    {
        QStringList texts;
        const auto all = pane.findChildren<QLabel *>();
        for (const QLabel *const label : all) {
            if (label->isVisible())
                texts.append(label->text());
        }
        return texts;
    }

    QAbstractButton *button(const char *shown) const
    {
        const auto all = pane.findChildren<QAbstractButton *>();
        for (QAbstractButton *const button : all) {
            if (button->isVisible()
                && (button->text() == text(shown) || button->accessibleName() == text(shown)))
                return button;
        }
        return nullptr;
    }

    QTemporaryDir directory;
    ToolSettings settings{text("Test"), directory.path()};
    EditorBench bench;
    CameraJobs jobs{bench.connection};
    PresentSelectors selectors{bench.client};
    OpeningSnapshot opening{bench.client, selectors};
    ChangeHistory history{bench.client, jobs, selectors, opening};
    Favourites favourites{settings};
    DetailsPane pane{{bench.client, selectors, opening, history, favourites}};
};

} // namespace

#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, hangTimeout)

class TestDetailsPane : public QObject
{
    Q_OBJECT

private slots:
    void featureIsDescribed();
    void lockCanBeEnded();
    void nameIsCopied();
    void favouriteIsMarked();
    void changedFeatureCanBeSetBack();
    void linksLeadToOtherFeatures();
    void unknownFeatureShowsAHint();
    void featureStaysThroughALoss();
    void typedBytesStayWhileAnotherFeatureIsShown();
};

void TestDetailsPane::featureIsDescribed()
{
    Pane pane;
    pane.pane.setFeature(text("Gain"));
    for (const char *const expected :
        {"Analog shown \u203a Gains shown", "The gain", "Gain", "Makes the picture brighter."})
        QVERIFY2(pane.labels().contains(text(expected)), expected);
    WAIT_FOR(pane.labels().contains(text("10"))); // The maximum.
    pane.pane.setFeature(text("Width"));
    QVERIFY(!pane.labels().contains(text("Makes the picture brighter.")));
    QCOMPARE(pane.pane.feature(), text("Width"));
}

void TestDetailsPane::lockCanBeEnded()
{
    Pane pane;
    QSignalSpy requests(&pane.pane, &DetailsPane::featureRequested);
    pane.pane.setFeature(text("Gain"));
    WAIT_FOR(pane.button("Show Automatic <gain>"));
    pane.button("Show Automatic <gain>")->click();
    QCOMPARE(requests.value(0).value(0).toString(), text("GainAuto"));
}

void TestDetailsPane::nameIsCopied()
{
    Pane pane;
    pane.pane.setFeature(text("Gain"));
    pane.button("Copy the name used in programs")->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), text("Gain"));
}

void TestDetailsPane::favouriteIsMarked()
{
    Pane pane;
    pane.pane.setFeature(text("Gain"));
    pane.button("Favourite")->click();
    QVERIFY(pane.favourites.contains(text("Gain")));
    pane.favourites.set(text("Gain"), false);
    QVERIFY(!pane.button("Favourite")->isChecked());
    pane.favourites.set(text("Width"), true);
    pane.pane.setFeature(text("Width"));
    QVERIFY(pane.button("Favourite")->isChecked());
    QVERIFY(!pane.favourites.contains(text("Gain"))); // Showing is no change.
}

void TestDetailsPane::changedFeatureCanBeSetBack()
{
    Pane pane;
    pane.pane.setFeature(text("Width"));
    WAIT_FOR(pane.opening.state() == OpeningSnapshot::State::Complete);
    QVERIFY(!pane.button("Set back"));
    pane.bench.client.write(text("Width"), std::int64_t(320));
    WAIT_FOR(pane.button("Set back") && pane.button("Set back")->isEnabled());
    QVERIFY(pane.labels().contains(text("At opening: 640")));
    pane.button("Set back")->click();
    WAIT_FOR(!pane.button("Set back"));
    QVERIFY(pane.bench.value("Width") == NodeValue(std::int64_t(640)));
}

void TestDetailsPane::linksLeadToOtherFeatures()
{
    Pane pane;
    QSignalSpy requests(&pane.pane, &DetailsPane::featureRequested);
    pane.pane.setFeature(text("Gains"));
    const auto labels = pane.pane.findChildren<QLabel *>();
    const auto link = std::find_if(labels.begin(), labels.end(),
        [](const QLabel *label) { return label->text().contains(text("href=\"Gain\"")); });
    QVERIFY(link != labels.end());
    emit(*link)->linkActivated(text("Gain"));
    QCOMPARE(requests.value(0).value(0).toString(), text("Gain"));
    pane.pane.setFeature(text("Gain"));
    const auto hasEscapedLink = [&pane] {
        const QString all = pane.labels().join(QLatin1Char('\n'));
        return all.contains(text("href=\"GainAuto\">Automatic &lt;gain&gt;"));
    };
    WAIT_FOR(hasEscapedLink());
}

void TestDetailsPane::unknownFeatureShowsAHint()
{
    Pane pane;
    pane.pane.setFeature(text("Missing"));
    QCOMPARE(pane.labels().size(), 1);
    pane.pane.setFeature(text("Gain"));
    QVERIFY(pane.labels().size() > 1);
    pane.pane.setFeature({});
    QCOMPARE(pane.labels().size(), 1);
}

void TestDetailsPane::featureStaysThroughALoss()
{
    Pane pane;
    pane.pane.setFeature(text("Width"));
    WAIT_FOR(pane.bench.client.state(text("Width")));
    pane.bench.device().lose("The cable was unplugged.");
    WAIT_FOR(!pane.bench.client.state(text("Width")));
    QVERIFY(pane.labels().contains(text("Width")));
    pane.bench.device().reopen();
    WAIT_FOR(pane.bench.client.state(text("Width"))); // The editor of the pane watches again.
    QVERIFY(pane.labels().contains(text("Width")));
}

void TestDetailsPane::typedBytesStayWhileAnotherFeatureIsShown()
{
    Pane pane;
    const auto modified = [&pane] {
        const auto *const view = pane.pane.findChild<HexView *>();
        return view && view->isVisible() && view->bytes().isModified();
    };
    pane.pane.setFeature(text("Table"));
    auto *const view = pane.pane.findChild<HexView *>();
    WAIT_FOR(view && view->bytes().size() == 4 && !view->isReadOnly());
    QCOMPARE(pane.pane.focusProxy(), view);
    QTest::keyClicks(view, text("AB"));
    pane.pane.setFeature(text("Width"));
    QVERIFY(!view->isVisible());
    pane.pane.setFeature(text("Table"));
    QVERIFY(modified());
    QCOMPARE(pane.pane.findChildren<HexView *>().size(), 1);

    pane.pane.setFeature(text("Width"));
    pane.bench.device().lose("The cable was unplugged.");
    WAIT_FOR(!pane.bench.client.info(text("Table")));
    pane.bench.device().reopen();
    WAIT_FOR(pane.bench.client.info(text("Table")));
    pane.pane.setFeature(text("Table"));
    QVERIFY(!modified()); // The camera may be another one now.
}

QTEST_MAIN(TestDetailsPane)
#include "TestDetailsPane.moc"
