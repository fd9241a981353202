#include "qmlfixture.h"

#include "fluentui/shortcutkeys.h"

#include <QKeySequence>
#include <QRegularExpression>

class TestFluShortcutPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesKeys();
    void namesAreSequences();
    void savesBeforeTheHotKeyChanges();
    void cancelChangesNothing();
    void resetShowsTheCurrentKeys();
    void isLeftByItsButtonsOnly();
    void followsTheHotKeyItIsGiven();
    void fitsANarrowWindow();

private:
    static void open(QmlFixture &ui);
    static void choose(QmlFixture &ui, const char *button);
    static QString shownKeys(QmlFixture &ui);
};

namespace
{

// Typing keys are registered on every platform, since they are not taken from other programs.
const QByteArray kPicker = R"(
    property var log: []
    FluHotkey { id: hotkey; sequence: "A" }
    FluShortcutPicker { id: picker; x: 20; text: "Draw"; height: 40; syncHotkey: hotkey
        onAccepted: log.push(current.join("+") + " with " + hotkey.sequence) }
)";

} // namespace

void TestFluShortcutPicker::open(QmlFixture &ui)
{
    ui.click("picker");
    QTRY_VERIFY(ui.visibleItem("text", "Save"));
    QTRY_VERIFY(
        qobject_cast<QQuickItem *>(ui.window()->activeFocusItem())->inherits("FluKeyCapture"));
}

void TestFluShortcutPicker::choose(QmlFixture &ui, const char *button)
{
    ui.click(ui.visibleItem("text", QString::fromLatin1(button)));
}

/// What the open dialog shows.
QString TestFluShortcutPicker::shownKeys(QmlFixture &ui)
{
    const QQuickItem *caps = ui.visibleItem("capHeight", 44);
    return caps ? caps->property("keys").toStringList().join('+') : QString();
}

void TestFluShortcutPicker::namesKeys()
{
    constexpr Qt::KeyboardModifiers kCtrl = Qt::ControlModifier;
    constexpr Qt::KeyboardModifiers kAll =
        Qt::AltModifier | Qt::ControlModifier | Qt::ShiftModifier | Qt::MetaModifier;
    struct Row {
        QString names;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    for (const auto &[names, key, modifiers] : { Row{ "Alt+Ctrl+Shift+S", Qt::Key_S, kAll },
             Row{ "S", Qt::Key_S, Qt::MetaModifier }, Row{ "Ctrl+F12", Qt::Key_F12, kCtrl },
             Row{ "Shift+PgDown", Qt::Key_PageDown, Qt::ShiftModifier },
             Row{ "Space", Qt::Key_Space, {} },
             Row{ "Ctrl+Shift+1", Qt::Key_Exclam, kCtrl | Qt::ShiftModifier },
             Row{ "Ctrl+Shift+'", Qt::Key_QuoteDbl, kCtrl | Qt::ShiftModifier },
             Row{ "Ctrl+Shift+=", Qt::Key_Plus, kCtrl | Qt::ShiftModifier },
             Row{ "Ctrl+&", Qt::Key_Ampersand, kCtrl },
             Row{ "Ctrl+*", Qt::Key_Asterisk, kCtrl | Qt::KeypadModifier },
             Row{ "", Qt::Key_Plus, kCtrl | Qt::KeypadModifier } })
        QCOMPARE(shortcutKeyNames(key, modifiers).join('+'), names);
    for (const Qt::Key key : { Qt::Key_Control, Qt::Key_Shift, Qt::Key_Escape, Qt::Key_Tab,
             Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Print, Qt::Key_CapsLock, Qt::Key_F13,
             Qt::Key_VolumeUp, Qt::Key_Adiaeresis })
        QVERIFY(shortcutKeyNames(key, kCtrl).isEmpty());
}

void TestFluShortcutPicker::namesAreSequences()
{
    const Qt::KeyboardModifiers modifiers = Qt::ControlModifier | Qt::AltModifier;
    int named = 0;
    for (int key = Qt::Key_Space; key <= Qt::Key_F35; ++key) {
        if (key == Qt::Key_Z + 1)
            key = Qt::Key_BracketLeft;
        if (key == Qt::Key_QuoteLeft + 1)
            key = Qt::Key_BraceLeft;
        if (key == Qt::Key_AsciiTilde + 1)
            key = Qt::Key_Escape;
        const QStringList names = shortcutKeyNames(Qt::Key(key), modifiers);
        if (names.isEmpty())
            continue;
        ++named;
        const QKeySequence sequence(names.join('+'), QKeySequence::PortableText);
        QCOMPARE(sequence.count(), 1);
        QCOMPARE(sequence[0], QKeyCombination(modifiers, Qt::Key(key)));
    }
    QVERIFY(named > 26 + 10 + 12 + 11);
}

void TestFluShortcutPicker::savesBeforeTheHotKeyChanges()
{
    QmlFixture ui(kPicker);
    open(ui);
    QCOMPARE(shownKeys(ui), "A");
    ui.press(Qt::Key_Control);
    QCOMPARE(shownKeys(ui), "A");
    ui.press(Qt::Key_D, Qt::ControlModifier);
    ui.press(Qt::Key_B, Qt::ShiftModifier);
    QCOMPARE(shownKeys(ui), "Shift+B");
    choose(ui, "Save");
    QCOMPARE(ui.text("log.join()"), "Shift+B with A");
    QCOMPARE(ui.text("hotkey.sequence"), "Shift+B");
    QTRY_VERIFY(!ui.visibleItem("text", "Save"));

    // Saving what is already there is told as well.
    open(ui);
    choose(ui, "Save");
    QCOMPARE(ui.number("log.length"), 2);
}

void TestFluShortcutPicker::cancelChangesNothing()
{
    QmlFixture ui(kPicker);
    open(ui);
    ui.press(Qt::Key_B);
    choose(ui, "Cancel");
    QTRY_VERIFY(!ui.visibleItem("text", "Save"));
    QCOMPARE(ui.text("picker.current.join()"), "A");
    QCOMPARE(ui.number("log.length"), 0);
    open(ui);
    QCOMPARE(shownKeys(ui), "A");
}

void TestFluShortcutPicker::resetShowsTheCurrentKeys()
{
    QmlFixture ui(kPicker);
    open(ui);
    ui.press(Qt::Key_B);
    choose(ui, "Reset");
    QCOMPARE(shownKeys(ui), "A");
    // Still open, and still capturing.
    ui.press(Qt::Key_C);
    QCOMPARE(shownKeys(ui), "C");
}

void TestFluShortcutPicker::isLeftByItsButtonsOnly()
{
    QmlFixture ui(kPicker + "Shortcut { sequence: 'Ctrl+K'; onActivated: log.push('shortcut') }");
    open(ui);
    ui.press(Qt::Key_Escape);
    QTest::mouseClick(ui.window(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 595));
    ui.press(Qt::Key_K, Qt::ControlModifier);
    QVERIFY(ui.visibleItem("text", "Save"));
    QCOMPARE(shownKeys(ui), "Ctrl+K");
    QCOMPARE(ui.number("log.length"), 0);

    // All of it without a pointer.
    ui.press(Qt::Key_Tab);
    ui.press(Qt::Key_Tab);
    ui.press(Qt::Key_Tab);
    ui.press(Qt::Key_Space);
    QCOMPARE(ui.text("log.join()"), "Ctrl+K with A");
}

void TestFluShortcutPicker::followsTheHotKeyItIsGiven()
{
    QmlFixture ui(R"(
        FluHotkey { id: none }
        FluHotkey { id: typed; sequence: "Shift+X" }
        FluShortcutPicker { id: picker; x: 20; text: "Draw" })");
    const auto current = [&ui] { return ui.text("picker.current.join('+')"); };
    QCOMPARE(current(), "Ctrl+Shift+A");
    QVERIFY(!ui.visibleItem("text", "Conflict"));

    ui.eval("picker.syncHotkey = typed");
    QCOMPARE(current(), "Shift+X");
    QVERIFY(!ui.visibleItem("text", "Conflict"));
    ui.eval("typed.sequence = 'Foo'");
    QCOMPARE(current(), "Shift+X");
    QVERIFY(ui.visibleItem("text", "Conflict"));

    ui.eval("picker.syncHotkey = none");
    QCOMPARE(ui.number("picker.current.length"), 0);
    ui.eval("picker.syncHotkey = null");
    QVERIFY(!ui.visibleItem("text", "Conflict"));
}

void TestFluShortcutPicker::fitsANarrowWindow()
{
    QmlFixture ui(kPicker);
    open(ui);
    const QQuickItem *capture = ui.window()->activeFocusItem();
    QTRY_COMPARE(capture->width(), 400.0);
    QTRY_VERIFY((QmlFixture::center(capture) - QPoint(250, 300)).manhattanLength() <= 1);
    ui.window()->resize(320, 600);
    QTRY_VERIFY(capture->width() < 320);
}

QTEST_MAIN(TestFluShortcutPicker)
#include "tst_flushortcutpicker.moc"
