#include "tools/kit/assistant/HtmlReport.h"
#include "tools/kit/assistant/ResultSaver.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

std::string writeText(const std::string &path, const QByteArray &text)
{
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return file.errorString().toStdString();
    return {};
}

/// Returns a result of two files, with this text as their content.
QVector<ResultSaver::File> twoFiles(const QByteArray &text)
{
    const auto write = [text](const std::string &path) { return writeText(path, text); };
    return {{".json"_s, write}, {".csv"_s, write}};
}

/// A saver and what it has saved.
struct SaverTest
{
    SaverTest() { settings.setValue("results/directory"_s, folder.path()); }

    QString path(const QString &name) const { return folder.filePath(name); }

    /// Chooses a file in the dialog as a person does.
    void choose(const QString &name)
    {
        auto *const dialog = window.findChild<QFileDialog *>("resultFiles"_s);
        QVERIFY(dialog);
        QCOMPARE(dialog->directory().absolutePath(), QDir(folder.path()).absolutePath());
        dialog->setOption(QFileDialog::DontConfirmOverwrite); // Qt's own question blocks.
        dialog->selectFile(path(name));
        QMetaObject::invokeMethod(dialog, "accept");
    }

    const QTemporaryDir folder;
    ToolSettings settings{"Tool"_s, folder.path()};
    QWidget window;
    ResultSaver saver{settings, &window};
    QSignalSpy saved{&saver, &ResultSaver::saved};
};

CameraRecord exampleCamera()
{
    CameraRecord camera;
    camera.vendor = "Orvelle";
    camera.model = "Kx200 <b>";
    camera.settings = nlohmann::ordered_json{{"Gain", 1.5}, {"DeviceUserID", "a<i>&\"b"}};
    return camera;
}

} // namespace

class TestResults : public QObject
{
    Q_OBJECT

private slots:
    void savesAllFilesUnderOneName();
    void asksBeforeOtherFilesAreReplaced();
    void saysWhichFileCannotBeWritten();
    void reportShowsTextsAsTheyAre();
    void reportContainsItsPictures();
    void reportThatCannotBeWrittenSaysWhy();
};

void TestResults::savesAllFilesUnderOneName()
{
    SaverTest test;
    test.saver.save("focus"_s, twoFiles("new"));
    test.choose("my focus"_s); // The ending is added.
    QCOMPARE(test.saved.count(), 1);
    QCOMPARE(test.saved.first().first().toString(), test.path("my focus.json"_s));
    QCOMPARE(contentOf(test.path("my focus.json"_s)), QByteArray("new"));
    QCOMPARE(contentOf(test.path("my focus.csv"_s)), QByteArray("new"));
}

void TestResults::asksBeforeOtherFilesAreReplaced()
{
    SaverTest test;
    (void)writeText(test.path("old.csv"_s).toStdString(), "old");
    test.saver.save("old"_s, twoFiles("new"));
    test.choose("old.json"_s);
    auto *const question = test.window.findChild<QMessageBox *>("question"_s);
    QVERIFY(question);
    QVERIFY(question->text().contains("old.csv"_s));
    QCOMPARE(contentOf(test.path("old.csv"_s)), QByteArray("old"));
    QVERIFY(test.saved.isEmpty());
    for (QAbstractButton *const button : question->buttons()) {
        if (question->buttonRole(button) == QMessageBox::AcceptRole)
            button->click();
    }
    QCOMPARE(contentOf(test.path("old.csv"_s)), QByteArray("new"));
    QCOMPARE(test.saved.count(), 1);
}

void TestResults::saysWhichFileCannotBeWritten()
{
    SaverTest test;
    QVERIFY(QDir(test.folder.path()).mkdir("busy.csv"_s));
    const QString problem = ResultSaver::write(test.path("busy.json"_s), twoFiles("new"));
    QVERIFY2(problem.contains("\"busy.csv\""_s), qPrintable(problem));
    QCOMPARE(ResultSaver::write(test.path("free.json"_s), twoFiles("new")), QString());
}

void TestResults::reportShowsTextsAsTheyAre()
{
    HtmlReport report("Focus & <Tilt>"_s, exampleCamera());
    report.addHeading("A <h>"_s);
    report.addText("1 < 2"_s);
    report.addTable({"<Corner>"_s}, {{"<0.5"_s}});
    const QString html = QString::fromUtf8(report.html());
    for (const QString &text :
        {"<title>Focus &amp; &lt;Tilt&gt;</title>"_s, "<h2>A &lt;h&gt;</h2>"_s, "<p>1 &lt; 2</p>"_s,
            "<th>&lt;Corner&gt;</th>"_s, "<td>&lt;0.5</td>"_s, "<td>Kx200 &lt;b&gt;</td>"_s,
            "<td>Gain</td><td>1.5</td>"_s, "<td>DeviceUserID</td><td>a&lt;i&gt;&amp;&quot;b</td>"_s})
        QVERIFY2(html.contains(text), qPrintable(text));
}

void TestResults::reportContainsItsPictures()
{
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    HtmlReport report("Focus"_s, exampleCamera());
    report.addPicture(picture, "\"Map\""_s);
    const QString html = QString::fromUtf8(report.html());
    const QRegularExpressionMatch match
        = QRegularExpression("alt=\"&quot;Map&quot;\" src=\"data:image/png;base64,([^\"]+)\""_s).match(html);
    QVERIFY(match.hasMatch());
    const QImage embedded = QImage::fromData(QByteArray::fromBase64(match.captured(1).toLatin1()), "PNG");
    QCOMPARE(embedded.convertToFormat(QImage::Format_RGB32), picture);
}

void TestResults::reportThatCannotBeWrittenSaysWhy()
{
    const QTemporaryDir folder;
    const HtmlReport report("Focus"_s, {});
    QCOMPARE(report.write(folder.filePath("a.html"_s).toStdString()), std::string());
    QVERIFY(contentOf(folder.filePath("a.html"_s)).startsWith("<!DOCTYPE html>"));
    QVERIFY(!report.write(folder.filePath("missing/a.html"_s).toStdString()).empty());
}

QTEST_MAIN(TestResults)
#include "TestResults.moc"
