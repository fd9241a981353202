#include "qmlfixture.h"

#include "fluentui/shortcutkeys.h"

#include <QKeySequence>
#include <QRegularExpression>

class TestFluShortcutPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void namesKeys_data();
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
    ui.click(ui.item(QStringLiteral("picker")));
    QTRY_VERIFY(ui.visibleItem("text", QStringLiteral("Save")));
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
    return caps ? caps->property("keys").toStringList().join(QLatin1Char('+')) : QString();
}

void TestFluShortcutPicker::namesKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("names");
    const auto row = [](const char *names, int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::addRow("%x %s", unsigned(key), names)
            << key << int(modifiers) << QString::fromLatin1(names);
    };
    constexpr Qt::KeyboardModifiers kAll =
        Qt::AltModifier | Qt::ControlModifier | Qt::ShiftModifier | Qt::MetaModifier;
    row("Alt+Ctrl+Shift+S", Qt::Key_S, kAll);
    row("S", Qt::Key_S, Qt::MetaModifier);
    row("Ctrl+F12", Qt::Key_F12, Qt::ControlModifier);
    row("Shift+PgDown", Qt::Key_PageDown, Qt::ShiftModifier);
    row("Space", Qt::Key_Space);
    row("Ctrl+Shift+1", Qt::Key_Exclam, Qt::ControlModifier | Qt::ShiftModifier);
    row("Ctrl+Shift+'", Qt::Key_QuoteDbl, Qt::ControlModifier | Qt::ShiftModifier);
    row("Ctrl+Shift+=", Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    row("Ctrl+&", Qt::Key_Ampersand, Qt::ControlModifier);
    row("Ctrl+*", Qt::Key_Asterisk, Qt::ControlModifier | Qt::KeypadModifier);
    row("", Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    for (const int key : std::initializer_list<int>{ Qt::Key_Control, Qt::Key_Shift, Qt::Key_Escape,
             Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Print, Qt::Key_CapsLock,
             Qt::Key_F13, Qt::Key_VolumeUp, Qt::Key_Adiaeresis })
        row("", key, Qt::ControlModifier);
}

void TestFluShortcutPicker::namesKeys()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QFETCH(const QString, names);
    QCOMPARE(
        shortcutKeyNames(Qt::Key(key), Qt::KeyboardModifiers(modifiers)).join(QLatin1Char('+')),
        names);
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
        const QKeySequence sequence(names.join(QLatin1Char('+')), QKeySequence::PortableText);
        QCOMPARE(sequence.count(), 1);
        QCOMPARE(sequence[0], QKeyCombination(modifiers, Qt::Key(key)));
    }
    QVERIFY(named > 26 + 10 + 12 + 11);
}

void TestFluShortcutPicker::savesBeforeTheHotKeyChanges()
{
    QmlFixture ui(kPicker);
    open(ui);
    QCOMPARE(shownKeys(ui), QStringLiteral("A"));
    ui.press(Qt::Key_Control);
    QCOMPARE(shownKeys(ui), QStringLiteral("A"));
    ui.press(Qt::Key_D, Qt::ControlModifier);
    ui.press(Qt::Key_B, Qt::ShiftModifier);
    QCOMPARE(shownKeys(ui), QStringLiteral("Shift+B"));
    choose(ui, "Save");
    QCOMPARE(ui.eval(QStringLiteral("log.join()")).toString(), QStringLiteral("Shift+B with A"));
    QCOMPARE(ui.eval(QStringLiteral("hotkey.sequence")).toString(), QStringLiteral("Shift+B"));
    QTRY_VERIFY(!ui.visibleItem("text", QStringLiteral("Save")));

    // Saving what is already there is told as well.
    open(ui);
    choose(ui, "Save");
    QCOMPARE(ui.eval(QStringLiteral("log.length")).toInt(), 2);
}

void TestFluShortcutPicker::cancelChangesNothing()
{
    QmlFixture ui(kPicker);
    open(ui);
    ui.press(Qt::Key_B);
    choose(ui, "Cancel");
    QTRY_VERIFY(!ui.visibleItem("text", QStringLiteral("Save")));
    QCOMPARE(ui.eval(QStringLiteral("picker.current.join()")).toString(), QStringLiteral("A"));
    QCOMPARE(ui.eval(QStringLiteral("log.length")).toInt(), 0);
    open(ui);
    QCOMPARE(shownKeys(ui), QStringLiteral("A"));
}

void TestFluShortcutPicker::resetShowsTheCurrentKeys()
{
    QmlFixture ui(kPicker);
    open(ui);
    ui.press(Qt::Key_B);
    choose(ui, "Reset");
    QCOMPARE(shownKeys(ui), QStringLiteral("A"));
    // Still open, and still capturing.
    ui.press(Qt::Key_C);
    QCOMPARE(shownKeys(ui), QStringLiteral("C"));
}

void TestFluShortcutPicker::isLeftByItsButtonsOnly()
{
    QmlFixture ui(kPicker + "Shortcut { sequence: 'Ctrl+K'; onActivated: log.push('shortcut') }");
    open(ui);
    ui.press(Qt::Key_Escape);
    QTest::mouseClick(ui.window(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 595));
    ui.press(Qt::Key_K, Qt::ControlModifier);
    QVERIFY(ui.visibleItem("text", QStringLiteral("Save")));
    QCOMPARE(shownKeys(ui), QStringLiteral("Ctrl+K"));
    QCOMPARE(ui.eval(QStringLiteral("log.length")).toInt(), 0);

    // All of it without a pointer.
    ui.press(Qt::Key_Tab);
    ui.press(Qt::Key_Tab);
    ui.press(Qt::Key_Tab);
    ui.press(Qt::Key_Space);
    QCOMPARE(ui.eval(QStringLiteral("log.join()")).toString(), QStringLiteral("Ctrl+K with A"));
}

void TestFluShortcutPicker::followsTheHotKeyItIsGiven()
{
    QmlFixture ui(R"(
        FluHotkey { id: none }
        FluHotkey { id: typed; sequence: "Shift+X" }
        FluShortcutPicker { id: picker; x: 20; text: "Draw" })");
    const auto current = [&ui] {
        return ui.eval(QStringLiteral("picker.current.join('+')")).toString();
    };
    QCOMPARE(current(), QStringLiteral("Ctrl+Shift+A"));
    QVERIFY(!ui.visibleItem("text", QStringLiteral("Conflict")));

    ui.eval(QStringLiteral("picker.syncHotkey = typed"));
    QCOMPARE(current(), QStringLiteral("Shift+X"));
    QVERIFY(!ui.visibleItem("text", QStringLiteral("Conflict")));
    ui.eval(QStringLiteral("typed.sequence = 'Foo'"));
    QCOMPARE(current(), QStringLiteral("Shift+X"));
    QVERIFY(ui.visibleItem("text", QStringLiteral("Conflict")));

    ui.eval(QStringLiteral("picker.syncHotkey = none"));
    QCOMPARE(ui.eval(QStringLiteral("picker.current.length")).toInt(), 0);
    ui.eval(QStringLiteral("picker.syncHotkey = null"));
    QVERIFY(!ui.visibleItem("text", QStringLiteral("Conflict")));
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
