#include "tools/imageviewer/measuring/DisplayControls.h"
#include "tools/imageviewer/measuring/HistogramWidget.h"
#include "tools/imageviewer/measuring/MeasuringPanel.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <limits>

namespace {

constexpr std::uint32_t rgb8 = 0x02180014;
constexpr std::uint32_t bayerRG8 = 0x01080009;
constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t unknownFormat = 0x81080123;
constexpr std::uint32_t toEnd = std::numeric_limits<std::uint32_t>::max();

/// An RGB8 or Mono8 image whose pixels all have one value.
class PlainImage : public CvxCPP::Image
{
public:
    PlainImage(std::uint32_t format, const std::vector<std::uint8_t> &pixel)
    {
        m_info.width = m_info.height = 8;
        m_info.pixelFormat = format;
        for (int i = 0; i < 64; ++i)
            m_bytes.insert(m_bytes.end(), pixel.begin(), pixel.end());
    }

    const std::uint8_t *GetData() const override { return m_bytes.data(); }
    std::size_t GetSize() const override { return m_bytes.size(); }
    const CvxCPP::ImageInfo &GetInfo() const override { return m_info; }
    std::vector<CvxCPP::ChunkValue> GetChunks() const override { return {}; }

private:
    CvxCPP::ImageInfo m_info;
    std::vector<std::uint8_t> m_bytes;
};

Measurements measurementsOf(std::uint32_t format, std::uint32_t width = 640, std::uint32_t height = 480)
{
    Measurements measurements;
    measurements.pixelFormat = format;
    measurements.width = width;
    measurements.height = height;
    return measurements;
}

/// A visible panel, and the last request.
struct PanelTest
{
    PanelTest()
    {
        QObject::connect(
            &panel, &MeasuringPanel::measureRequestChanged, &panel, [this](const MeasureRequest &request) {
                last = request;
                ++requestCount;
            });
        QObject::connect(&panel, &MeasuringPanel::displaySettingsChanged, &panel,
            [this](const DisplaySettings &settings) { shown = settings; });
        panel.show();
    }

    template <typename Widget>
    Widget *withText(const QString &text) const
    {
        for (Widget *const widget : panel.findChildren<Widget *>())
            if (widget->text() == text)
                return widget;
        return nullptr;
    }

    QComboBox *choice(const QString &name) const
    {
        for (QComboBox *const box : panel.findChildren<QComboBox *>())
            if (box->accessibleName() == name)
                return box;
        return nullptr;
    }

    QVector<std::uint32_t> line() const
    {
        return last.line ? QVector<std::uint32_t>{last.line->x1, last.line->y1, last.line->x2, last.line->y2}
                         : QVector<std::uint32_t>();
    }

    MeasuringPanel panel;
    MeasureRequest last;
    DisplaySettings shown;
    int requestCount = 0;
};

} // namespace

class TestMeasuringPanel : public QObject
{
    Q_OBJECT

private slots:
    void onlyAVisiblePanelRequests();
    void drawnRegionIsMeasured();
    void profileFollowsPointerAndDrawnLine();
    void contrastIsSharedWithTheHistogram();
    void greyPatchBalancesColors();
    void unusablePatchSaysWhy_data();
    void unusablePatchSaysWhy();
    void controlsFollowThePixelFormat();
    void choicesAreRestored();
};

void TestMeasuringPanel::onlyAVisiblePanelRequests()
{
    PanelTest test;
    QVERIFY(test.last.wantsHistogram && test.last.wantsStatistics && !test.last.region);
    test.panel.hide();
    QVERIFY(test.last.isEmpty());
    test.panel.show();
    QVERIFY(!test.last.isEmpty());
}

void TestMeasuringPanel::drawnRegionIsMeasured()
{
    PanelTest test;
    QComboBox *const area = test.choice(QStringLiteral("Measured area"));
    QVERIFY(!area->isEnabled());
    test.panel.setRegion({10, 20, 30, 40});
    QVERIFY(area->isEnabled());
    QVERIFY(test.last.region);
    QCOMPARE(test.last.region->x, 10U);
    QCOMPARE(test.last.region->height, 40U);
    test.panel.setRegion({11, 20, 30, 40});
    QCOMPARE(test.last.region->x, 11U);
    area->setCurrentIndex(0); // The whole picture, although a region is drawn.
    QVERIFY(!test.last.region);
    test.panel.setRegion({12, 20, 30, 40});
    QVERIFY(!test.last.region);
    area->setCurrentIndex(1);
    QCOMPARE(test.last.region->x, 12U);
    test.panel.setRegion({});
    QVERIFY(!test.last.region);
    QVERIFY(!area->isEnabled());
}

void TestMeasuringPanel::profileFollowsPointerAndDrawnLine()
{
    PanelTest test;
    QComboBox *const kind = test.choice(QStringLiteral("Line of the profile"));
    test.panel.setMeasurements(measurementsOf(mono8)); // The middle, as there is no pointer yet.
    QCOMPARE(test.line(), (QVector<std::uint32_t>{0, 240, toEnd, 240}));
    test.panel.setPointer({5, 7});
    QCOMPARE(test.line(), (QVector<std::uint32_t>{0, 7, toEnd, 7}));
    const int count = test.requestCount;
    test.panel.setPointer({6, 7}); // The row is the same.
    test.panel.setMeasurements(measurementsOf(mono8, 100, 100));
    QCOMPARE(test.requestCount, count);
    kind->setCurrentIndex(1);
    QCOMPARE(test.line(), (QVector<std::uint32_t>{6, 0, 6, toEnd}));
    kind->setCurrentIndex(2);
    QVERIFY(test.line().isEmpty());
    kind->setCurrentIndex(0);
    test.panel.setLine({1, 2, 3, 4}); // The first drawn line becomes the choice.
    QCOMPARE(kind->currentIndex(), 2);
    QCOMPARE(test.line(), (QVector<std::uint32_t>{1, 2, 3, 4}));
    test.panel.setLine({});
    QVERIFY(test.line().isEmpty());
}

void TestMeasuringPanel::contrastIsSharedWithTheHistogram()
{
    PanelTest test;
    auto *const histogram = test.panel.findChild<HistogramWidget *>();
    test.panel.fitContrast(); // There is no histogram yet.
    QVERIFY(test.shown.curve.isNeutral());
    Measurements measurements = measurementsOf(mono8);
    measurements.histogram = Histogram{0, 4, 1, {{MeasuredComponent::Grey, {0, 5, 5, 5, 0}, 15}}};
    test.panel.setMeasurements(measurements);
    test.withText<QPushButton>(QStringLiteral("Fit contrast"))->click();
    QCOMPARE(test.shown.curve.black, 0.25);
    QCOMPARE(test.shown.curve.white, 0.75);
    QCOMPARE(histogram->curve().black, 0.25);
    emit histogram->curveChanged({0.1, 0.9, 1});
    QCOMPARE(test.shown.curve.white, 0.9);
    test.panel.resetContrast();
    QVERIFY(test.shown.curve.isNeutral());
    QVERIFY(histogram->curve().isNeutral());
}

void TestMeasuringPanel::greyPatchBalancesColors()
{
    PanelTest test;
    auto *const pick = test.withText<QPushButton>(QStringLiteral("Pick grey"));
    auto *const write = test.withText<QPushButton>(QStringLiteral("Write to camera"));
    QSignalSpy picking(&test.panel, &MeasuringPanel::greyPickingChanged);
    std::array<double, 3> written{};
    connect(&test.panel, &MeasuringPanel::whiteBalanceWriteRequested, this,
        [&written](const std::array<double, 3> &gains) { written = gains; });
    test.panel.setMeasurements(measurementsOf(rgb8));
    pick->click();
    QCOMPARE(picking.takeFirst(), QVariantList{true});
    test.panel.balanceWhite(PlainImage(rgb8, {50, 100, 200}), {0, 0});
    QCOMPARE(picking.takeFirst(), QVariantList{false});
    const std::array<double, 3> gains = {2, 1, 0.5};
    for (std::size_t i = 0; i < 3; ++i)
        QVERIFY(qFuzzyCompare(test.shown.gains[i], gains[i]));
    QVERIFY(!write->isEnabled());
    test.panel.setWhiteBalanceWritable(true);
    write->click();
    QVERIFY(written == test.shown.gains);
    test.panel.resetWhiteBalance();
    QVERIFY((test.shown.gains == std::array<double, 3>{1, 1, 1}));
    QVERIFY(!write->isEnabled());
}

void TestMeasuringPanel::unusablePatchSaysWhy_data()
{
    QTest::addColumn<QVector<int>>("pixel");
    QTest::addColumn<QString>("word");
    QTest::newRow("grey") << QVector<int>{100} << "no colours";
    QTest::newRow("dark") << QVector<int>{100, 1, 100} << "too dark";
    QTest::newRow("clipped") << QVector<int>{100, 255, 100} << "overexposed";
}

void TestMeasuringPanel::unusablePatchSaysWhy()
{
    QFETCH(QVector<int>, pixel);
    QFETCH(QString, word);
    PanelTest test;
    test.panel.setMeasurements(measurementsOf(rgb8));
    auto *const pick = test.withText<QPushButton>(QStringLiteral("Pick grey"));
    pick->click();
    const PlainImage image(pixel.size() == 1 ? mono8 : rgb8, {pixel.begin(), pixel.end()});
    test.panel.balanceWhite(image, {4, 4});
    const QList<QLabel *> labels = test.panel.findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(),
        [&word](const QLabel *label) { return label->isVisible() && label->text().contains(word); }));
    QVERIFY(pick->isChecked()); // Another place can be picked.
    QVERIFY((test.panel.displaySettings().gains == std::array<double, 3>{1, 1, 1}));
}

void TestMeasuringPanel::controlsFollowThePixelFormat()
{
    PanelTest test;
    auto *const pick = test.withText<QPushButton>(QStringLiteral("Pick grey"));
    const QString unknownText = QStringLiteral("The pixel format is not known, so bytes are measured.");
    const QList<QComboBox *> boxes = test.panel.findChild<DisplayControls *>()->findChildren<QComboBox *>();
    struct Row
    {
        std::uint32_t format;
        bool isBayer;
        bool hasColors;
        bool isUnknown;
    };
    for (const Row &row : {Row{mono8, false, false, false}, Row{bayerRG8, true, true, false},
             Row{unknownFormat, false, false, true}, Row{rgb8, false, true, false}}) {
        test.panel.setMeasurements(measurementsOf(row.format));
        QCOMPARE(boxes.at(0)->isEnabled(), row.isBayer);
        QCOMPARE(pick->isEnabled(), row.hasColors);
        QCOMPARE(test.withText<QLabel>(unknownText) != nullptr, row.isUnknown);
    }
}

void TestMeasuringPanel::choicesAreRestored()
{
    PanelTest test;
    DisplaySettings settings;
    settings.demosaicing = Demosaicing::EdgeAware;
    settings.curve = {0.1, 0.5, 2};
    settings.gains = {1.5, 1, 1.25};
    settings.hasClipMarks = true;
    QSignalSpy sizes(&test.panel, &MeasuringPanel::micrometresPerPixelChanged);
    test.panel.setDisplaySettings(settings);
    test.panel.setMicrometresPerPixel(3.45);
    test.panel.setLogarithmic(true);
    QCOMPARE(sizes.takeFirst(), QVariantList{3.45});
    QCOMPARE(test.panel.micrometresPerPixel(), 3.45);
    QVERIFY(test.panel.isLogarithmic());
    QCOMPARE(test.panel.findChild<HistogramWidget *>()->curve().gamma, 2.0);
    QVERIFY(test.shown.gains == settings.gains);
    QCOMPARE(test.shown.demosaicing, Demosaicing::EdgeAware);
    auto *const clipMarks = test.withText<QAbstractButton>(QStringLiteral("Mark clipped pixels"));
    QVERIFY(clipMarks->isChecked());
    clipMarks->click(); // The other settings stay.
    QVERIFY(!test.shown.hasClipMarks);
    QCOMPARE(test.shown.curve.white, 0.5);
}

QTEST_MAIN(TestMeasuringPanel)
#include "TestMeasuringPanel.moc"
