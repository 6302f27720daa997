#include "tests/config/ConfigDocuments.h"
#include "tests/support/MarkingTranslator.h"
#include "tests/support/ScriptFile.h"
#include "ui/ApplicationLauncher.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDir>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QMetaProperty>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>
#include <QtTest>

/// Compares the properties that the forms and constructors set with golden dumps. After an intended change,
/// run the test with CORVIX_UPDATE_GOLDEN=1 to rewrite the dumps. The dumps contain nothing that depends on
/// fonts.
class TestForms : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void mainWindowMatchesItsGoldenDump();
    void toolTileMatchesItsGoldenDump();
    void cameraTableIsAlwaysLeftToRight();
};

using namespace ConfigDocuments;

namespace {

/// The dumps omit these properties, which depend on the position in the window, on fonts or on other
/// properties.
const QStringList derivedProperties = QString::fromLatin1(
    "objectName geometry frameGeometry frameSize normalGeometry x y pos size width height rect childrenRect "
    "childrenRegion palette font cursor minimumWidth minimumHeight maximumWidth maximumHeight sizeHint "
    "minimumSizeHint visible windowIconText frameRect frameWidth hasSelectedText")
                                          .split(QLatin1Char(' '));

template <typename Value>
QString toText(const Value &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

/// Returns the path of the shipped picture with these pixels, or "none".
QString picturePath(const QImage &image)
{
    const auto order = QDir::Name | QDir::Reversed; // The logo's ".png" has to precede its ".ico".
    for (const QFileInfo &file : QDir(":/images"_s).entryInfoList(QDir::Files, order)) {
        if (!image.isNull() && QIcon(file.filePath()).pixmap(image.size()).toImage() == image)
            return file.filePath();
    }
    return "none"_s;
}

QString valueText(const QMetaProperty &property, const QVariant &value)
{
    if (property.isEnumType())
        return QString::fromLatin1(property.enumerator().valueToKeys(value.toInt()));
    if (value.userType() == QMetaType::QIcon)
        return picturePath(value.value<QIcon>().pixmap(32).toImage());
    if (value.userType() == QMetaType::QPixmap)
        return picturePath(value.value<QPixmap>().toImage());
    return value.canConvert<QString>() ? value.toString() : toText(value);
}

/// Returns a new widget of the first class in `Classes` of which `widget` is an instance.
template <typename... Classes>
std::unique_ptr<QWidget> freshWidget(const QWidget &widget)
{
    std::unique_ptr<QWidget> fresh;
    const auto create = [&](const auto *same, auto *parent) {
        if (!fresh && same)
            fresh = std::make_unique<std::decay_t<decltype(*same)>>(parent);
    };
    (create(qobject_cast<const Classes *>(&widget), widget.window()), ...);
    return fresh;
}

void dumpLayout(const QBoxLayout &layout, const QString &indent, QStringList &lines)
{
    QWidget page;
    QWidget plain(&page);
    const QHBoxLayout untouched(&plain); // This layout has the style's default margins and spacing.
    const bool hasDefaultSpacing = layout.spacing() == untouched.spacing();
    const bool hasDefaultMargins = layout.contentsMargins() == untouched.contentsMargins();
    lines += indent + latin1(layout.metaObject()->className()) + " "_s + layout.objectName();
    lines += indent + "- spacing: "_s + (hasDefaultSpacing ? "default"_s : toText(layout.spacing()));
    lines += indent + "- margins: "_s + (hasDefaultMargins ? "default"_s : toText(layout.contentsMargins()));
    for (int index = 0; index < layout.count(); ++index) {
        QLayoutItem *item = layout.itemAt(index);
        QString name = item->widget() ? item->widget()->objectName() : QString();
        if (const QSpacerItem *spacer = item->spacerItem())
            name = toText(spacer->sizeHint()) + toText(spacer->sizePolicy());
        const QString text = "- item: %1, stretch %2, alignment %3"_s;
        lines += indent + text.arg(name).arg(layout.stretch(index)).arg(int(item->alignment()));
    }
}

/// Adds the settings of the widget that are not properties.
void dumpExtras(const QWidget &widget, const QString &indent, QStringList &lines)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QPalette &palette = widget.palette();
        if (widget.testAttribute(Qt::WA_SetPalette))
            lines += indent + "palette: "_s + palette.color(group, QPalette::Window).name() + " "_s
                + palette.color(group, QPalette::Base).name();
    }
    if (const auto *area = qobject_cast<const QAbstractScrollArea *>(&widget)) {
        const QScrollBar &bar = *area->verticalScrollBar();
        lines += indent + "scroll bar: %1 to %2"_s.arg(bar.minimumWidth()).arg(bar.maximumWidth());
    }
    if (const auto *table = qobject_cast<const QTableWidget *>(&widget)) {
        const QHeaderView &header = *table->horizontalHeader();
        lines += indent + "headers hidden: "_s + toText(header.isHidden()) + " "_s
            + toText(table->verticalHeader()->isHidden());
        lines += indent + "last section stretched: "_s + toText(header.stretchLastSection());
        for (int column = 0; column < table->columnCount(); ++column) {
            const QTableWidgetItem &item = *table->horizontalHeaderItem(column);
            lines += indent + "header: "_s + item.text() + toText(item.data(Qt::TextAlignmentRole));
        }
    }
}

/// Adds the widget with every property that differs from a new widget, and then its layout and its children.
void dumpWidget(const QWidget &widget, const QString &indent, QStringList &lines)
{
    const auto fresh
        = freshWidget<QLabel, QPushButton, QTableWidget, QScrollArea, QFrame, QMainWindow, QWidget>(widget);
    const QString inner = indent + "  "_s;
    lines += indent + latin1(widget.metaObject()->className()) + " "_s + widget.objectName();
    for (int index = 0; index < fresh->metaObject()->propertyCount(); ++index) {
        const QMetaProperty property = fresh->metaObject()->property(index);
        const QString name = latin1(property.name());
        const QString value = valueText(property, property.read(&widget));
        if (!derivedProperties.contains(name) && value != valueText(property, property.read(fresh.get())))
            lines += inner + name + ": "_s + value;
    }
    dumpExtras(widget, inner, lines);
    if (const auto *layout = qobject_cast<const QBoxLayout *>(widget.layout()))
        dumpLayout(*layout, inner, lines);
    for (const QWidget *child : widget.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        // Names of Qt's internal widgets are empty or start with "qt_".
        const QString name = child->objectName();
        const bool isInternal = name.isEmpty() || name.startsWith(QLatin1String("qt_"));
        if (!isInternal || name == QLatin1String("qt_scrollarea_viewport"))
            dumpWidget(*child, inner, lines);
    }
}

void compareWithGolden(const QStringList &lines, const char *fileName)
{
    const QString path = QStringLiteral(GOLDEN_DIRECTORY "/") + QString::fromLatin1(fileName);
    if (qEnvironmentVariableIsSet("CORVIX_UPDATE_GOLDEN"))
        ScriptFile::write(path, lines.join(QLatin1Char('\n')).toUtf8() + '\n');
    QCOMPARE(lines, QString::fromUtf8(ScriptFile::read(path)).split(QLatin1Char('\n'), Qt::SkipEmptyParts));
}

} // namespace

void TestForms::initTestCase()
{
    QApplication::setStyle("fusion"_s);
}

// The translator marks every translated string with its context.
void TestForms::mainWindowMatchesItsGoldenDump()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    MainWindow window(nullptr);
    QStringList lines;
    dumpWidget(window, {}, lines);
    for (const QWidget *stop = window.nextInFocusChain(); stop != &window; stop = stop->nextInFocusChain()) {
        if (stop->focusPolicy() & Qt::TabFocus && !stop->objectName().startsWith(QLatin1String("qt_")))
            lines += "tab stop: "_s + stop->objectName();
    }
    compareWithGolden(lines, "MainWindow.txt");
}

void TestForms::toolTileMatchesItsGoldenDump()
{
    QWidget page;
    const ApplicationLauncher tile("Tune & %1"_s, "About <it>"_s, &page);
    QStringList lines;
    dumpWidget(tile, {}, lines);
    compareWithGolden(lines, "ApplicationLauncher.txt");
}

void TestForms::cameraTableIsAlwaysLeftToRight()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const MainWindow window(nullptr);
    QCOMPARE(window.layoutDirection(), Qt::RightToLeft);
    QCOMPARE(window.findChild<QTableWidget *>()->layoutDirection(), Qt::LeftToRight);
}

QTEST_MAIN(TestForms)
#include "TestForms.moc"
