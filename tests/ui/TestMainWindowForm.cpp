#include "tests/support/ChildNamed.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QtTest>

Q_DECLARE_METATYPE(QMargins)

/// The window's form: what is where, how large, and with which texts and properties.
class TestMainWindowForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void windowHasAFixedSize();
    void windowIconIsTheLogo();
    void layout_data();
    void layout();
    void widget_data();
    void widget();
    void pictures_data();
    void pictures();
    void sizePolicies_data();
    void sizePolicies();
    void cameraTable();
    void scrollAreaHoldsTheTiles();
    void lineAboveTheFooter();
    void onlyListedPropertiesDifferFromTheDefault_data();
    void onlyListedPropertiesDifferFromTheDefault();
    void tabOrderFollowsTheForm();
    void everyWidgetIsKnown();

private:
    std::unique_ptr<MainWindow> m_window;
};

namespace {

template <typename Enum>
QString nameOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(value));
}

/// An item of a layout as the tables below write it.
QString described(QLayoutItem *item, int stretch)
{
    QString text;
    if (const QSpacerItem *spacer = item->spacerItem()) {
        text = QStringLiteral("%1x%2 %3 %4")
                   .arg(spacer->sizeHint().width())
                   .arg(spacer->sizeHint().height())
                   .arg(nameOf(spacer->sizePolicy().horizontalPolicy()),
                       nameOf(spacer->sizePolicy().verticalPolicy()));
    } else {
        text = item->widget() ? item->widget()->objectName() : QStringLiteral("a layout");
    }
    if (item->alignment())
        text += QStringLiteral(" aligned");
    return stretch ? text + QStringLiteral(" stretch %1").arg(stretch) : text;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

constexpr int defaultSpacing = -2; // What the style says.
const QMargins defaultMargins(-2, -2, -2, -2);

} // namespace

void TestMainWindowForm::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    m_window = std::make_unique<MainWindow>(nullptr);
}

void TestMainWindowForm::windowHasAFixedSize()
{
    QCOMPARE(m_window->objectName(), QStringLiteral("MainWindow"));
    QCOMPARE(m_window->size(), QSize(600, 660));
    QCOMPARE(m_window->minimumSize(), QSize(600, 660));
    QCOMPARE(m_window->maximumSize(), QSize(600, 660));
    m_window->resize(900, 900);
    QCOMPARE(m_window->size(), QSize(600, 660));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Corvix X - Application Launcher"));
    QCOMPARE(m_window->centralWidget()->objectName(), QStringLiteral("centralwidget"));
}

void TestMainWindowForm::windowIconIsTheLogo()
{
    const QIcon logo(QStringLiteral(":/images/orvelle-logo.ico"));
    QVERIFY(!logo.availableSizes().isEmpty());
    QCOMPARE(m_window->windowIcon().availableSizes(QIcon::Normal, QIcon::Off), logo.availableSizes());
    QCOMPARE(m_window->windowIcon().pixmap(32).toImage(), logo.pixmap(32).toImage());
}

void TestMainWindowForm::layout_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QByteArray>("on");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QStringList>("items");
    const auto add = [](const char *name, const char *className, const char *on, int spacing,
                         const QMargins &margins, const char *items) {
        QTest::newRow(name) << QByteArray(className) << QByteArray(on) << spacing << margins << words(items);
    };
    const QMargins none;
    add("verticalLayout", "QVBoxLayout", "centralwidget", 4, {10, 0, 10, 10},
        "widget|cameraHeader|cameraTable|recommendedToolsLabel|toolsDescriptionLabel|toolsScroll|"
        "20x0 Minimum MinimumExpanding|line|widget_3");
    add("horizontalLayout_2", "QHBoxLayout", "widget", defaultSpacing, defaultMargins,
        "label_3|widget_2|489x20 Expanding Minimum|widget_4");
    add("verticalLayout_2", "QVBoxLayout", "widget_2", 0, none, "titleLabel|label_5");
    add("verticalLayout_3", "QVBoxLayout", "widget_4", defaultSpacing, none,
        "widget_5|40x20 Minimum Expanding");
    add("horizontalLayout_4", "QHBoxLayout", "widget_5", defaultSpacing, none,
        "aboutQt_|pushButton|pushButton_2");
    add("horizontalLayout", "QHBoxLayout", "cameraHeader", defaultSpacing, defaultMargins,
        "connectedCamerasLabel|40x20 Expanding Minimum|refreshBtn");
    add("horizontalLayout_tools", "QHBoxLayout", "toolsScrollContent", defaultSpacing, none,
        "0x0 Expanding Minimum|toolsContainer stretch 1|0x0 Expanding Minimum");
    add("horizontalLayout_3", "QHBoxLayout", "widget_3", 0, none,
        "footerLabel|40x20 Expanding Minimum|linkLabel|40x20 Expanding Minimum|documentationBtn");
}

void TestMainWindowForm::layout()
{
    QFETCH(QByteArray, on);
    QFETCH(int, spacing);
    QFETCH(QMargins, margins);
    auto *box = qobject_cast<QBoxLayout *>(childNamed<QWidget>(*m_window, on.constData())->layout());
    QVERIFY(box);
    QCOMPARE(box->objectName(), QString::fromLatin1(QTest::currentDataTag()));
    QTEST(QByteArray(box->metaObject()->className()), "className");

    QWidget plain(m_window.get()); // A layout of which nothing was set.
    const QHBoxLayout untouched(&plain);
    QCOMPARE(box->spacing(), spacing == defaultSpacing ? untouched.spacing() : spacing);
    QCOMPARE(box->contentsMargins(), margins == defaultMargins ? untouched.contentsMargins() : margins);

    QStringList found;
    for (int index = 0; index < box->count(); ++index)
        found.append(described(box->itemAt(index), box->stretch(index)));
    QTEST(found, "items");
}

void TestMainWindowForm::widget_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QSize>("minimum");
    QTest::addColumn<QSize>("maximum");
    QTest::addColumn<QString>("text");
    const QSize unlimited(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const auto add = [&unlimited](const char *name, const char *className, const char *text = "",
                         const QSize &minimum = {0, 0}, const QSize &maximum = {}) {
        QTest::newRow(name) << QByteArray(className) << minimum
                            << (maximum.isNull() || !maximum.isValid() ? unlimited : maximum)
                            << QString::fromLatin1(text);
    };
    add("centralwidget", "QWidget");
    add("widget", "QWidget", "", {0, 70}, {QWIDGETSIZE_MAX, 120});
    add("label_3", "QLabel", "", {65, 65}, {65, 65});
    add("widget_2", "QWidget");
    add("titleLabel", "QLabel", "Corvix X");
    add("label_5", "QLabel", "Application launcher");
    add("widget_4", "QWidget");
    add("widget_5", "QWidget");
    add("aboutQt_", "QPushButton", "", {24, 24}, {24, 24});
    add("pushButton", "QPushButton", "", {24, 24}, {24, 24});
    add("pushButton_2", "QPushButton", "", {24, 24}, {24, 24});
    add("cameraHeader", "QWidget");
    add("connectedCamerasLabel", "QLabel", "Connected cameras");
    add("refreshBtn", "QPushButton", "", {26, 26}, {26, 26});
    add("cameraTable", "QTableWidget");
    add("recommendedToolsLabel", "QLabel", "Recommended tools");
    add("toolsDescriptionLabel", "QLabel", "Select a camera to enable its recommended tools.");
    add("toolsScroll", "QScrollArea");
    add("toolsScrollContent", "QWidget");
    add("toolsContainer", "QWidget");
    add("line", "QFrame");
    add("widget_3", "QWidget", "", {0, 35});
    add("footerLabel", "QLabel", "Orvelle - Corvix X");
    add("documentationBtn", "QPushButton", "Documentation", {0, 0}, {130, QWIDGETSIZE_MAX});
}

void TestMainWindowForm::widget()
{
    const auto *found = childNamed<QWidget>(*m_window, QTest::currentDataTag());
    QTEST(QByteArray(found->metaObject()->className()), "className");
    QTEST(found->minimumSize(), "minimum");
    QTEST(found->maximumSize(), "maximum");
    QTEST(found->property("text").toString(), "text");
}

void TestMainWindowForm::pictures_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("aboutQt_") << QStringLiteral(":/images/menu-dots.png");
    QTest::newRow("pushButton") << QStringLiteral(":/images/minimize.png");
    QTest::newRow("pushButton_2") << QStringLiteral(":/images/cross.png");
    QTest::newRow("refreshBtn") << QStringLiteral(":/images/refresh.png");
    QTest::newRow("label_3") << QStringLiteral(":/images/orvelle-logo.png");
}

void TestMainWindowForm::pictures()
{
    QFETCH(QString, path);
    const QPixmap picture(path);
    QVERIFY(!picture.isNull());
    if (const auto *label = m_window->findChild<QLabel *>(QString::fromLatin1(QTest::currentDataTag()))) {
        QCOMPARE(label->pixmap(Qt::ReturnByValue).toImage(), picture.toImage());
        QVERIFY(label->hasScaledContents());
        return;
    }
    const auto *button = childNamed<QPushButton>(*m_window, QTest::currentDataTag());
    QCOMPARE(button->icon().pixmap(picture.size()).toImage(), picture.toImage());
    QCOMPARE(button->iconSize(), QPushButton().iconSize());
}

void TestMainWindowForm::sizePolicies_data()
{
    QTest::addColumn<QSizePolicy>("policy");
    QTest::newRow("cameraHeader") << QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    QTest::newRow("cameraTable") << QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    QTest::newRow("toolsScroll") << QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    QTest::newRow("toolsContainer") << QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void TestMainWindowForm::sizePolicies()
{
    const QSizePolicy found = childNamed<QWidget>(*m_window, QTest::currentDataTag())->sizePolicy();
    QFETCH(QSizePolicy, policy);
    QCOMPARE(found.horizontalPolicy(), policy.horizontalPolicy());
    QCOMPARE(found.verticalPolicy(), policy.verticalPolicy());
    QCOMPARE(found.horizontalStretch(), 0);
    QCOMPARE(found.verticalStretch(), 0);
}

void TestMainWindowForm::cameraTable()
{
    const auto *table = childNamed<QTableWidget>(*m_window, "cameraTable");
    QCOMPARE(table->columnCount(), 3);
    QCOMPARE(table->rowCount(), 0);
    QCOMPARE(table->horizontalHeaderItem(0)->text(), QStringLiteral("Vendor Name"));
    QCOMPARE(table->horizontalHeaderItem(1)->text(), QStringLiteral("Model Name"));
    QCOMPARE(table->horizontalHeaderItem(2)->text(), QStringLiteral("Serial Number"));
    QCOMPARE(table->focusPolicy(), Qt::NoFocus);
    QCOMPARE(table->layoutDirection(), Qt::LeftToRight);
    QVERIFY(table->testAttribute(Qt::WA_SetLayoutDirection)); // Also where the application is right-to-left.
    QCOMPARE(table->editTriggers(), QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
    QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(!table->showGrid());
    QVERIFY(!table->isSortingEnabled());
    QVERIFY(table->horizontalHeader()->stretchLastSection());
    QVERIFY(!table->horizontalHeader()->isHidden());
    QVERIFY(table->verticalHeader()->isHidden());
    QCOMPARE(table->contextMenuPolicy(), Qt::CustomContextMenu);
}

void TestMainWindowForm::scrollAreaHoldsTheTiles()
{
    const auto *scroll = childNamed<QScrollArea>(*m_window, "toolsScroll");
    QCOMPARE(scroll->frameShape(), QFrame::NoFrame);
    QVERIFY(scroll->widgetResizable());
    QCOMPARE(scroll->widget()->objectName(), QStringLiteral("toolsScrollContent"));
}

void TestMainWindowForm::lineAboveTheFooter()
{
    const auto *line = childNamed<QFrame>(*m_window, "line");
    QCOMPARE(line->frameShape(), QFrame::HLine);
    QCOMPARE(line->frameShadow(), QFrame::Plain);
    QCOMPARE(line->lineWidth(), 1);
}

void TestMainWindowForm::onlyListedPropertiesDifferFromTheDefault_data()
{
    QTest::addColumn<QString>("different");
    const auto add = [](const char *name, const char *properties) {
        QStringList names = words(properties);
        names.removeAll(QString());
        names.sort();
        QTest::newRow(name) << names.join(QLatin1Char('|'));
    };
    const char *const fixed = "minimumSize|maximumSize|accessibleName|icon";
    add("centralwidget", "");
    add("widget", "minimumSize|maximumSize");
    add("label_3", "minimumSize|maximumSize|pixmap|scaledContents");
    add("widget_2", "");
    add("titleLabel", "text");
    add("label_5", "text");
    add("widget_4", "");
    add("widget_5", "");
    add("aboutQt_", fixed);
    add("pushButton", fixed);
    add("pushButton_2", fixed);
    add("cameraHeader", "sizePolicy");
    add("connectedCamerasLabel", "text");
    add("refreshBtn", fixed);
    add("cameraTable",
        "sizePolicy|accessibleName|focusPolicy|editTriggers|selectionMode|selectionBehavior|showGrid|"
        "contextMenuPolicy|"
        "mouseTracking|columnCount");
    add("recommendedToolsLabel", "text");
    add("toolsDescriptionLabel", "text");
    add("toolsScroll", "sizePolicy|accessibleName|frameShape|widgetResizable|autoFillBackground");
    add("toolsScrollContent", "autoFillBackground");
    add("toolsContainer", "sizePolicy|autoFillBackground");
    add("line", "frameShape|sizePolicy"); // The shape brings its policy along.
    add("widget_3", "minimumSize");
    add("footerLabel", "text");
    add("linkLabel", "text|textFormat|textInteractionFlags|openExternalLinks|focusPolicy|mouseTracking");
    add("documentationBtn", "maximumSize|text|toolTip");
}

void TestMainWindowForm::onlyListedPropertiesDifferFromTheDefault()
{
    auto *found = childNamed<QWidget>(*m_window, QTest::currentDataTag());
    std::unique_ptr<QWidget> fresh;
    const QByteArray className = found->metaObject()->className();
    if (className == "QLabel")
        fresh = std::make_unique<QLabel>(m_window.get());
    else if (className == "QPushButton")
        fresh = std::make_unique<QPushButton>(m_window.get());
    else if (className == "QTableWidget")
        fresh = std::make_unique<QTableWidget>(m_window.get());
    else if (className == "QScrollArea")
        fresh = std::make_unique<QScrollArea>(m_window.get());
    else if (className == "QFrame")
        fresh = std::make_unique<QFrame>(m_window.get());
    else
        fresh = std::make_unique<QWidget>(m_window.get());

    // What follows from the others, or from the place in the window.
    static const QStringList derived{QStringLiteral("objectName"), QStringLiteral("geometry"),
        QStringLiteral("frameGeometry"), QStringLiteral("frameSize"), QStringLiteral("normalGeometry"),
        QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("pos"), QStringLiteral("size"),
        QStringLiteral("width"), QStringLiteral("height"), QStringLiteral("rect"),
        QStringLiteral("childrenRect"), QStringLiteral("childrenRegion"), QStringLiteral("palette"),
        QStringLiteral("cursor"), QStringLiteral("minimumWidth"), QStringLiteral("minimumHeight"),
        QStringLiteral("maximumWidth"), QStringLiteral("maximumHeight"), QStringLiteral("sizeHint"),
        QStringLiteral("minimumSizeHint"), QStringLiteral("visible"), QStringLiteral("windowIcon"),
        QStringLiteral("windowIconText"), QStringLiteral("frameRect"), QStringLiteral("frameWidth"),
        QStringLiteral("hasSelectedText")};
    QStringList different;
    const QMetaObject *meta = found->metaObject();
    for (int index = 0; index < meta->propertyCount(); ++index) {
        const QMetaProperty property = meta->property(index);
        const QString name = QString::fromLatin1(property.name());
        if (derived.contains(name))
            continue;
        const QVariant left = property.read(found);
        const QVariant right = property.read(fresh.get());
        const bool equal = name == QLatin1String("icon") || name == QLatin1String("pixmap")
            ? left.isNull() == right.isNull()
            : left == right;
        if (!equal)
            different.append(name);
    }
    different.sort();
    QTEST(different.join(QLatin1Char('|')), "different");
}

void TestMainWindowForm::tabOrderFollowsTheForm()
{
    QStringList stops;
    QWidget *start = m_window.get();
    for (QWidget *next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain()) {
        if (next->focusPolicy() & Qt::TabFocus && !next->objectName().startsWith(QLatin1String("qt_")))
            stops.append(next->objectName());
    }
    QCOMPARE(
        stops, words("aboutQt_|pushButton|pushButton_2|refreshBtn|toolsScroll|linkLabel|documentationBtn"));
}

void TestMainWindowForm::everyWidgetIsKnown()
{
    QStringList names; // What Qt's own widgets are made of has no name, or one of Qt's.
    for (const QWidget *found : m_window->findChildren<QWidget *>()) {
        if (!found->objectName().isEmpty() && !found->objectName().startsWith(QLatin1String("qt_")))
            names.append(found->objectName());
    }
    names.sort();
    QStringList expected = words(
        "aboutQt_|cameraHeader|cameraTable|centralwidget|connectedCamerasLabel|documentationBtn|footerLabel|"
        "label_3|label_5|line|linkLabel|pushButton|pushButton_2|recommendedToolsLabel|refreshBtn|titleLabel|"
        "toolsContainer|toolsDescriptionLabel|toolsScroll|toolsScrollContent|widget|widget_2|widget_3|"
        "widget_4|widget_5");
    expected.sort();
    QCOMPARE(names.join(QLatin1Char('|')), expected.join(QLatin1Char('|')));
}

QTEST_MAIN(TestMainWindowForm)
#include "TestMainWindowForm.moc"
