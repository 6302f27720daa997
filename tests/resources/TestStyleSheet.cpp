#include <QFile>
#include <QStringList>
#include <QTest>

namespace {

/// One block: its selectors and its declarations, each in written order.
struct Rule
{
    QStringList selectors;
    QStringList declarations;
};

QStringList trimmedParts(const QString &text, QChar separator)
{
    QStringList parts;
    for (const QString &part : text.split(separator)) {
        if (!part.trimmed().isEmpty())
            parts << part.simplified();
    }
    return parts;
}

QVector<Rule> rules()
{
    QFile file(QStringLiteral(":/styles/style.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Rule> result;
    for (const QString &block : QString::fromUtf8(file.readAll()).split(QLatin1Char('}'))) {
        const QStringList halves = block.split(QLatin1Char('{'));
        if (halves.size() == 2) {
            result.append({trimmedParts(halves.first(), QLatin1Char(',')),
                trimmedParts(halves.last(), QLatin1Char(';'))});
        }
    }
    return result;
}

/// What the widgets rely on: selectors, then declarations, in the order of the file.
const char *const expectedRules[][2] = {
    {"QMainWindow", "background: transparent"},
    {"QWidget", "color: #e8edf2; font-family: 'Segoe UI'"},
    {"QWidget#toolsContainer", "background: #0f1419"},
    {"QTableWidget",
        "background: transparent; border: 1px solid #2d3a4d; selection-background-color: transparent;"
        " selection-color: #e8edf2"},
    {"QTableWidget::item", "text-indent: 8px; padding-right: 8px; border-bottom: 1px solid #2d3a4d"},
    {"QTableWidget::item:selected", "background: rgba(33, 150, 243, 0.15); border-bottom: 1px solid #2196f3"},
    {"QPushButton", "background: #1e2a3a; border: 1px solid #2d3a4d; border-radius: 4px; padding: 4px 8px"},
    {"QPushButton:hover", "border-color: #2196f3"},
    {"ApplicationLauncher",
        "background: #1e2a3a; border: 1px solid #2d3a4d; border-radius: 4px; padding: 4px 8px"},
    {"ApplicationLauncher:hover", "border-color: #2196f3"},
    {"QToolTip", "background: #1a2332; color: #e8edf2; border: 1px solid #2d3a4d; padding: 0px"},
    {"QLabel", "color: #6b8ea3"},
    {"QLabel#connectedCamerasLabel, QLabel#recommendedToolsLabel, QLabel#titleLabel", "color: #ffffff"},
    {"QLabel#connectedCamerasLabel, QLabel#recommendedToolsLabel", "font-size: 16px; font-weight: bold"},
    {"QLabel#titleLabel", "font-size: 18px; font-weight: bold"},
    {"ApplicationLauncher QLabel#applicationName", "color: #e8edf2; font-size: 13px; font-weight: bold"},
    {"ApplicationLauncher QLabel#applicationDescription", "color: #94a3b8; font-size: 11px"},
    {"QScrollBar:vertical", "background: #0f1419; width: 8px; margin: 0; border-radius: 4px"},
    {"QScrollBar::handle:vertical", "background: #2d3a4d; min-height: 20px; border-radius: 4px"},
    {"QScrollBar::handle:vertical:hover", "background: #64748b"},
    {"QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical", "height: 0"},
    {"QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical", "background: none"},
    {"QHeaderView::section",
        "background: #1a2332; color: #94a3b8; border: 0; border-bottom: 1px solid #2d3a4d; padding: 6px;"
        " font-weight: bold"},
    {"QMenu",
        "background: #1a2332; color: #e8edf2; border: 1px solid #2d3a4d; border-radius: 4px; padding: 6px "
        "0px"},
    {"QMenu::item", "padding: 6px 12px; color: #e8edf2"},
    {"QMenu::item:selected", "background: rgba(33, 150, 243, 0.15)"},
    {"QMenu::item:disabled", "color: #64748b"},
    {"QMenu::separator", "background: #2d3a4d; height: 1px; margin: 4px 8px"},
};

constexpr int expectedCount = int(sizeof(expectedRules) / sizeof(expectedRules[0]));

} // namespace

/// The style sheet, rule by rule and in order.
class TestStyleSheet : public QObject
{
    Q_OBJECT

private slots:
    void holdsEveryRuleInOrder_data();
    void holdsEveryRuleInOrder();
    void holdsNothingElse();
};

void TestStyleSheet::holdsEveryRuleInOrder_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < expectedCount; ++index)
        QTest::newRow(expectedRules[index][0]) << index;
}

void TestStyleSheet::holdsEveryRuleInOrder()
{
    QFETCH(int, index);
    const QVector<Rule> found = rules();
    QVERIFY(index < found.size());
    QCOMPARE(found.at(index).selectors,
        trimmedParts(QString::fromLatin1(expectedRules[index][0]), QLatin1Char(',')));
    QCOMPARE(found.at(index).declarations,
        trimmedParts(QString::fromLatin1(expectedRules[index][1]), QLatin1Char(';')));
}

void TestStyleSheet::holdsNothingElse()
{
    QCOMPARE(rules().size(), expectedCount);
}

QTEST_APPLESS_MAIN(TestStyleSheet)
#include "TestStyleSheet.moc"
