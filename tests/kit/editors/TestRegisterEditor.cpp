#include "tests/kit/editors/EditorBench.h"
#include "tools/kit/editors/HexText.h"
#include "tools/kit/editors/HexView.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QtTest>

using namespace CvxCPP;

namespace {

using Bytes = HexBytes::Bytes;

Bytes counting(std::size_t size)
{
    Bytes bytes(size);
    for (std::size_t index = 0; index < size; ++index)
        bytes[index] = static_cast<std::uint8_t>(index);
    return bytes;
}

void addTable(TestDevice &device)
{
    ScriptedDevice::Feature &feature = device.add("Table", counting(32));
    feature.info.displayName = "Lookup table";
    feature.state.maxLength = 32;
    device.setDependents("Table", {"Table"});
}

/// A shown editor of a register, with the focus.
struct TableEditor
{
    explicit TableEditor(const EditorBench::Script &script = addTable)
        : bench(script), editor(bench.show(QStringLiteral("Table"))), view(editor->findChild<HexView *>())
    {
        editor->resize(1000, 300);
        editor->activateWindow();
        view->setFocus();
        if (!QTest::qWaitFor([this] { return view->bytesPerRow() == 16; }, hangTimeout))
            qFatal("The view is not laid out.");
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(view, static_cast<Qt::Key>(key), modifiers);
    }

    /// Returns the texts of the buttons that can be clicked.
    QStringList buttons() const
    {
        QStringList texts;
        const auto all = editor->findChildren<QPushButton *>();
        for (const QPushButton *const button : all) {
            if (button->isVisible() && button->isEnabled())
                texts.append(button->text());
        }
        return texts;
    }

    QString shown(std::size_t first, std::size_t count) const
    {
        const Bytes &bytes = view->bytes().shown();
        const auto start = bytes.begin() + static_cast<std::ptrdiff_t>(first);
        return hexText({start, start + static_cast<std::ptrdiff_t>(count)});
    }

    EditorBench bench;
    std::unique_ptr<FeatureEditor> editor;
    HexView *view;
};

/// Makes the call and keeps the result, as if the stream took long to start again.
class SlowPauser : public StreamPauser
{
public:
    explicit SlowPauser(EditorBench &bench) : m_bench(bench) { }

    void pauseFor(CameraConnection::Call call, QObject *, CameraConnection::Done wanted) override
    {
        m_bench.device().change(
            [](ScriptedDevice &device) { device.feature("Table").state.lockReason = LockReason::None; });
        m_bench.connection.run(std::move(call), nullptr, {});
        done = std::move(wanted);
    }

    CameraConnection::Done done;

private:
    EditorBench &m_bench;
};

} // namespace

#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, hangTimeout)

class TestRegisterEditor : public QObject
{
    Q_OBJECT

private slots:
    void typedDigitsAndCharactersAreWrittenTogether();
    void escapeShowsTheCamerasBytes();
    void keysMoveTheCursor_data();
    void keysMoveTheCursor();
    void tabVisitsBothSides();
    void selectionIsCopiedAndPasted();
    void pasteSaysWhatIsWrong();
    void refreshKeepsWhatIsTyped();
    void failedWriteKeepsWhatWasTyped();
    void camerasChangeOfAWrittenByteIsNoEdit();
    void lockedRegisterCanOnlyBeRead();
    void mousePlacesTheCursor();
    void narrowViewHasShorterRows();
    void lossDropsTheEdit();
    void unreadableRegisterIsNotWritten();
    void writeOnlyRegisterBeginsWithZeros();
    void hugeLengthIsNotBelieved();
    void undoTakesBackWhatWasTyped();
    void keysWithAltBelongToTheWindow();
};

void TestRegisterEditor::typedDigitsAndCharactersAreWrittenTogether()
{
    TableEditor table;
    WAIT_FOR(table.editor->isEditable() && table.view->bytes().size() == 32);
    QCOMPARE(table.buttons(), QStringList());
    QTest::keyClicks(table.view, QStringLiteral("fFx1z2")); // Letters that are no digits are ignored.
    table.press(Qt::Key_Tab);
    QTest::keyClicks(table.view, QStringLiteral("Hi"));
    QCOMPARE(table.shown(0, 5), QStringLiteral("FF 12 48 69 04"));
    QCOMPARE(table.buttons(), (QStringList{QStringLiteral("Write"), QStringLiteral("Discard")}));
    QVERIFY(table.bench.device().writtenValues("Table").empty());
    table.press(Qt::Key_Return, Qt::ControlModifier);
    Bytes expected = counting(32);
    for (const auto &[index, byte] : {std::pair(0, 0xFF), {1, 0x12}, {2, 0x48}, {3, 0x69}})
        expected[static_cast<std::size_t>(index)] = static_cast<std::uint8_t>(byte);
    WAIT_FOR(table.bench.value("Table") == NodeValue(expected));
    WAIT_FOR(table.buttons().isEmpty());
    QCOMPARE(table.bench.device().writtenValues("Table").size(), std::size_t(1));
}

void TestRegisterEditor::escapeShowsTheCamerasBytes()
{
    TableEditor table;
    WAIT_FOR(table.editor->isEditable());
    QTest::keyClicks(table.view, QStringLiteral("AABBCC"));
    table.press(Qt::Key_Backspace);
    QCOMPARE(table.shown(0, 3), QStringLiteral("AA BB 02"));
    table.press(Qt::Key_Home);
    table.press(Qt::Key_Delete);
    QCOMPARE(table.shown(0, 3), QStringLiteral("00 BB 02"));
    table.press(Qt::Key_Escape);
    QCOMPARE(table.shown(0, 3), QStringLiteral("00 01 02"));
    QCOMPARE(table.buttons(), QStringList());
}

void TestRegisterEditor::keysMoveTheCursor_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<int>("cursor");
    const int control = Qt::ControlModifier;
    QTest::newRow("right") << QVector<int>{Qt::Key_Right, Qt::Key_Right, Qt::Key_Left} << 1;
    QTest::newRow("beyond the start") << QVector<int>{Qt::Key_Left} << 0;
    QTest::newRow("down") << QVector<int>{Qt::Key_Right, Qt::Key_Down} << 17;
    QTest::newRow("down from the last row") << QVector<int>{Qt::Key_Down, Qt::Key_Down} << 16;
    QTest::newRow("up") << QVector<int>{Qt::Key_Down, Qt::Key_Right, Qt::Key_Up} << 1;
    QTest::newRow("end of the row") << QVector<int>{Qt::Key_End} << 15;
    QTest::newRow("start of the row") << QVector<int>{Qt::Key_Down, Qt::Key_End, Qt::Key_Home} << 16;
    QTest::newRow("end") << QVector<int>{control | Qt::Key_End} << 31;
    QTest::newRow("start") << QVector<int>{control | Qt::Key_End, control | Qt::Key_Home} << 0;
    QTest::newRow("pages") << QVector<int>{Qt::Key_PageDown, Qt::Key_PageDown} << 31;
}

void TestRegisterEditor::keysMoveTheCursor()
{
    QFETCH(QVector<int>, keys);
    TableEditor table;
    WAIT_FOR(table.view->bytes().size() == 32);
    for (const int key : qAsConst(keys))
        table.press(key & ~static_cast<int>(Qt::ControlModifier),
            key & static_cast<int>(Qt::ControlModifier) ? Qt::ControlModifier : Qt::NoModifier);
    QTEST(static_cast<int>(table.view->cursor()), "cursor");
    QVERIFY(!table.view->accessibleDescription().isEmpty());
}

void TestRegisterEditor::tabVisitsBothSides()
{
    TableEditor table;
    WAIT_FOR(table.editor->isEditable() && table.view->hasFocus());
    table.press(Qt::Key_Tab);
    QVERIFY(table.view->hasFocus());
    QTest::keyClicks(table.view, QStringLiteral("A"));
    QCOMPARE(table.shown(0, 1), QStringLiteral("41")); // A character, not a digit.
    table.press(Qt::Key_Tab);
    QVERIFY(!table.view->hasFocus());
    table.view->setFocus(Qt::BacktabFocusReason);
    table.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(table.view->hasFocus());
    QTest::keyClicks(table.view, QStringLiteral("A"));
    QCOMPARE(table.shown(1, 1), QStringLiteral("A1"));
}

void TestRegisterEditor::selectionIsCopiedAndPasted()
{
    TableEditor table;
    QClipboard *const clipboard = QGuiApplication::clipboard();
    WAIT_FOR(table.editor->isEditable());
    table.press(Qt::Key_Right);
    table.press(Qt::Key_Right, Qt::ShiftModifier);
    table.view->copy();
    QCOMPARE(clipboard->text(), QStringLiteral("01 02"));
    table.press(Qt::Key_Down);
    table.view->paste();
    QCOMPARE(table.shown(17, 4), QStringLiteral("11 01 02 14"));
    QCOMPARE(table.view->cursor(), std::size_t(20));
    table.press(Qt::Key_Tab);
    clipboard->setText(QStringLiteral("ok"));
    table.view->paste();
    QCOMPARE(table.shown(20, 2), QStringLiteral("6F 6B"));
    table.view->selectAll();
    table.view->copy();
    QCOMPARE(clipboard->text().size(), 32);
    QCOMPARE(clipboard->text().mid(20, 2), QStringLiteral("ok"));
}

void TestRegisterEditor::pasteSaysWhatIsWrong()
{
    TableEditor table;
    WAIT_FOR(table.editor->isEditable());
    QGuiApplication::clipboard()->setText(QStringLiteral("gain"));
    table.view->paste();
    QVERIFY(!table.editor->noteText().isEmpty());
    QCOMPARE(table.buttons(), QStringList());
    table.press(Qt::Key_End, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText(QStringLiteral("AA BB"));
    table.view->paste();
    QCOMPARE(table.shown(30, 2), QStringLiteral("1E AA"));
    QVERIFY(!table.editor->noteText().isEmpty());
    QTest::keyClicks(table.view, QStringLiteral("1"));
    QCOMPARE(table.editor->noteText(), QString());
}

void TestRegisterEditor::refreshKeepsWhatIsTyped()
{
    TableEditor table;
    WAIT_FOR(table.editor->isEditable());
    QTest::keyClicks(table.view, QStringLiteral("AA"));
    Bytes other = counting(32);
    other[5] = 0x55;
    table.bench.device().setByCamera("Table", other);
    WAIT_FOR(table.view->bytes().isChanged(5));
    QCOMPARE(table.shown(0, 6), QStringLiteral("AA 01 02 03 04 05"));
    table.press(Qt::Key_Escape);
    QCOMPARE(table.shown(0, 6), QStringLiteral("00 01 02 03 04 55"));
    other[5] = 0x66;
    table.bench.device().setByCamera("Table", other);
    WAIT_FOR(table.shown(5, 1) == QStringLiteral("66"));
}

void TestRegisterEditor::failedWriteKeepsWhatWasTyped()
{
    TableEditor table;
    WAIT_FOR(table.editor->isEditable());
    table.bench.device().change(
        [](ScriptedDevice &device) { device.feature("Table").state.lockReason = LockReason::StreamRunning; });
    QTest::keyClicks(table.view, QStringLiteral("AA"));
    table.press(Qt::Key_Return, Qt::ControlModifier);
    WAIT_FOR(!table.editor->isEditable()); // The state is read again after the refused write.
    QVERIFY(!table.editor->noteText().isEmpty());
    QCOMPARE(table.shown(0, 2), QStringLiteral("AA 01"));
    QCOMPARE(table.buttons(), QStringList{QStringLiteral("Discard")});
}

void TestRegisterEditor::camerasChangeOfAWrittenByteIsNoEdit()
{
    TableEditor table([](TestDevice &device) {
        addTable(device);
        device.feature("Table").state.lockReason = LockReason::StreamRunning;
        device.feature("Table").onWrite = [](NodeValue &value) { std::get<Bytes>(value)[0] &= 0xF0; };
    });
    SlowPauser pauser(table.bench);
    table.editor->setStreamPauser(&pauser);
    WAIT_FOR(table.editor->isEditable());
    QTest::keyClicks(table.view, QStringLiteral("AA"));
    table.press(Qt::Key_Return, Qt::ControlModifier);
    table.editor->acceptQuestion();
    WAIT_FOR(std::get<Bytes>(table.bench.client.state(QStringLiteral("Table"))->value)[0] == 0xA0);
    QCOMPARE(table.shown(0, 2), QStringLiteral("AA 01")); // Until it is known whether the write succeeded.
    pauser.done({});
    QCOMPARE(table.shown(0, 2), QStringLiteral("A0 01"));
    QVERIFY(!table.view->bytes().isModified());
}

void TestRegisterEditor::lockedRegisterCanOnlyBeRead()
{
    TableEditor table([](TestDevice &device) {
        addTable(device);
        device.feature("Table").state.lockReason = LockReason::ReadOnlyNode;
    });
    WAIT_FOR(table.view->bytes().size() == 32);
    QTest::keyClicks(table.view, QStringLiteral("AA"));
    table.press(Qt::Key_Delete);
    QGuiApplication::clipboard()->setText(QStringLiteral("AA"));
    table.view->paste();
    QCOMPARE(table.shown(0, 2), QStringLiteral("00 01"));
    table.press(Qt::Key_Right);
    table.view->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("01"));
}

void TestRegisterEditor::mousePlacesTheCursor()
{
    TableEditor table;
    WAIT_FOR(table.view->bytes().size() == 32);
    const QFontMetrics metrics = table.view->fontMetrics();
    const int character = metrics.horizontalAdvance(QLatin1Char('0'));
    const auto clickAt = [&](int column, int row) {
        QTest::mouseClick(table.view->viewport(), Qt::LeftButton, Qt::NoModifier,
            QPoint(6 + character * column + character / 2, 6 + row * (metrics.height() + 2) + 4));
    };
    clickAt(6 + 3 * 2, 0); // Four digits of the offset and two spaces come first.
    QCOMPARE(table.view->cursor(), std::size_t(2));
    clickAt(6 + 3 * 5 + 1, 1); // One more space after four bytes.
    QCOMPARE(table.view->cursor(), std::size_t(21));
    clickAt(6 + 3 * 16 + 4 + 3, 1);
    QCOMPARE(table.view->cursor(), std::size_t(19));
    QTest::keyClicks(table.view, QStringLiteral("Z"));
    QCOMPARE(table.shown(19, 1), QStringLiteral("5A"));
}

void TestRegisterEditor::narrowViewHasShorterRows()
{
    TableEditor table;
    WAIT_FOR(table.view->bytes().size() == 32);
    table.editor->resize(table.editor->minimumSizeHint().width(), 200);
    WAIT_FOR(table.view->bytesPerRow() < 16);
    table.press(Qt::Key_Down);
    QCOMPARE(static_cast<int>(table.view->cursor()), table.view->bytesPerRow());
}

void TestRegisterEditor::lossDropsTheEdit()
{
    TableEditor table;
    WAIT_FOR(table.editor->isEditable());
    QTest::keyClicks(table.view, QStringLiteral("AA"));
    table.bench.device().lose("The cable was unplugged.");
    WAIT_FOR(!table.editor->isEditable());
    QCOMPARE(table.shown(0, 2), QStringLiteral("00 01"));
    QCOMPARE(table.buttons(), QStringList());
}

void TestRegisterEditor::unreadableRegisterIsNotWritten()
{
    TableEditor table;
    WAIT_FOR(table.editor->isEditable());
    table.bench.device().change([](ScriptedDevice &device) {
        device.feature("Table").rule = [](NodeState &state) {
            state.value = {};
            state.problem = "The camera does not answer.";
        };
    });
    table.bench.device().notifyNodes({"Table"});
    WAIT_FOR(table.view->isReadOnly());
    QTest::keyClicks(table.view, QStringLiteral("AA"));
    QCOMPARE(table.shown(0, 2), QStringLiteral("00 01")); // No zeros instead of what was read before.
    table.press(Qt::Key_Return, Qt::ControlModifier);
    table.bench.device().change([](ScriptedDevice &device) { device.feature("Table").rule = {}; });
    table.bench.device().notifyNodes({"Table"});
    WAIT_FOR(!table.view->isReadOnly());
    QCOMPARE(table.buttons(), QStringList());
    QVERIFY(table.bench.device().writtenValues("Table").empty());
}

void TestRegisterEditor::writeOnlyRegisterBeginsWithZeros()
{
    TableEditor table([](TestDevice &device) {
        addTable(device);
        device.feature("Table").rule = [](NodeState &state) {
            state.value = {};
            state.access = NodeAccess::WriteOnly;
        };
    });
    WAIT_FOR(table.buttons() == QStringList{QStringLiteral("Write")});
    QCOMPARE(table.view->bytes().shown(), Bytes(32));
    table.press(Qt::Key_Return, Qt::ControlModifier);
    WAIT_FOR(table.bench.device().writtenValues("Table") == std::vector<NodeValue>{Bytes(32)});
}

void TestRegisterEditor::hugeLengthIsNotBelieved()
{
    TableEditor table([](TestDevice &device) {
        addTable(device);
        device.feature("Table").rule = [](NodeState &state) {
            state.value = {};
            state.access = NodeAccess::WriteOnly;
            state.maxLength = std::int64_t(1) << 40;
        };
    });
    WAIT_FOR(table.editor->isEditable());
    QVERIFY(table.view->isReadOnly());
    QCOMPARE(table.view->bytes().size(), std::size_t(0));
    QCOMPARE(table.buttons(), QStringList());
}

void TestRegisterEditor::undoTakesBackWhatWasTyped()
{
    TableEditor table;
    QAction undo;
    undo.setShortcut(QKeySequence::Undo);
    table.editor->addAction(&undo);
    QSignalSpy undone(&undo, &QAction::triggered);
    WAIT_FOR(table.editor->isEditable());
    QTest::keyClicks(table.view, QStringLiteral("AA"));
    table.press(Qt::Key_Down);
    QTest::keyClicks(table.view, QStringLiteral("B"));
    table.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(table.shown(17, 1), QStringLiteral("11"));
    QCOMPARE(table.shown(0, 2), QStringLiteral("AA 01"));
    table.press(Qt::Key_Z, Qt::ControlModifier);
    table.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(table.shown(0, 2), QStringLiteral("00 01"));
    QCOMPARE(table.view->cursor(), std::size_t(0));
    QVERIFY(!table.view->bytes().isModified());
    QCOMPARE(undone.count(), 0);
    table.press(Qt::Key_Z, Qt::ControlModifier); // Nothing was typed, so the window undoes.
    QCOMPARE(undone.count(), 1);
}

void TestRegisterEditor::keysWithAltBelongToTheWindow()
{
    TableEditor table;
    QAction panel;
    panel.setShortcut(Qt::ALT + Qt::Key_1);
    table.editor->addAction(&panel);
    QSignalSpy shown(&panel, &QAction::triggered);
    WAIT_FOR(table.editor->isEditable());
    table.press(Qt::Key_1, Qt::AltModifier);
    QCOMPARE(shown.count(), 1);
    QCOMPARE(table.shown(0, 1), QStringLiteral("00"));
}

QTEST_MAIN(TestRegisterEditor)
#include "TestRegisterEditor.moc"
