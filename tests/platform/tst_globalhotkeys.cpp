#include "otherclient.h"
#include "platform/globalhotkeys.h"
#include "xvfbserver.h"

#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <X11/XF86keysym.h>
#include <X11/keysym.h>

namespace
{

QKeyCombination keys(const char *text)
{
    return QKeySequence(QString::fromLatin1(text), QKeySequence::PortableText)[0];
}

/// A bound hot key that counts its activations.
struct CountedKey {
    explicit CountedKey(const char *text) : registered(key.bind(keys(text))) { }

    GlobalHotKey key;
    QSignalSpy presses{ &key, &GlobalHotKey::activated };
    bool registered;
};

/// A window of the program, with or without a text editor that has its focus.
class TestWindow : public QWindow
{
public:
    class Editor : public QObject
    {
    public:
        bool event(QEvent *event) override
        {
            if (event->type() != QEvent::InputMethodQuery)
                return QObject::event(event);
            static_cast<QInputMethodQueryEvent *>(event)->setValue(Qt::ImEnabled, true);
            return true;
        }
    };

    [[nodiscard]] QObject *focusObject() const override
    {
        return m_editing ? const_cast<Editor *>(&m_editor) : QWindow::focusObject();
    }

    void setEditing(bool editing)
    {
        m_editing = editing;
        Q_EMIT focusObjectChanged(focusObject());
    }

    QList<QKeyCombination> typed;

protected:
    void keyPressEvent(QKeyEvent *event) override { typed << event->keyCombination(); }

private:
    Editor m_editor;
    bool m_editing = false;
};

void setLayout(const char *name)
{
    QCOMPARE(QProcess::execute("setxkbmap", { QString::fromLatin1(name) }), 0);
}

} // namespace

class TestGlobalHotKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void firesWithAnyLockKeyOn();
    void firesForNamedKeys();
    void firesOncePerPress();
    void firesAllOwners();
    void leavesNothingBoundAfterAChange();
    void noticesAnotherHolder();
    void followsTheLayout();
    void leavesTypingToOtherPrograms();
    void typingKeysWorkInOwnWindows();
    void leavesEditingKeysToATextEditor();
    void restsWhileSuspended();
    void keepsTheFocusWhileAKeyIsHeld();

private:
    void awaitEarlierEvents();
    void show(TestWindow &window);

    std::unique_ptr<OtherClient> m_other;
};

void TestGlobalHotKeys::init()
{
    m_other = std::make_unique<OtherClient>();
    m_other->takeFocus();
    // The first fake event makes the server switch keyboards, which it announces as a new layout.
    m_other->tap({ XK_Shift_L });
}

/// What happened on the keyboard before has been handled when this returns.
void TestGlobalHotKeys::awaitEarlierEvents()
{
    CountedKey fence("Ctrl+Alt+Shift+F11");
    QVERIFY(fence.registered);
    m_other->tap({ XK_Control_L, XK_Alt_L, XK_Shift_L, XK_F11 });
    QTRY_COMPARE(fence.presses.count(), 1);
}

void TestGlobalHotKeys::show(TestWindow &window)
{
    window.setGeometry(0, 0, 100, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    m_other->focus(xcb_window_t(window.winId()));
    QTRY_COMPARE(QGuiApplication::focusWindow(), &window);
}

void TestGlobalHotKeys::firesWithAnyLockKeyOn()
{
    m_other->setModifier(XCB_MAP_INDEX_3, m_other->codeOf(XK_Scroll_Lock));
    const QList<uint32_t> allLocks{ XK_Caps_Lock, XK_Num_Lock, XK_Scroll_Lock };
    for (const QList<uint32_t> &locks :
        { {}, allLocks.mid(0, 1), allLocks.mid(1, 1), allLocks.mid(2, 1), allLocks }) {
        CountedKey letter("Ctrl+E");
        CountedKey shifted("Ctrl+Shift+Alt+7");
        CountedKey super("Meta+F5");
        QVERIFY(letter.registered && shifted.registered && super.registered);

        for (const uint32_t lock : locks)
            m_other->tap({ lock });
        m_other->tap({ XK_Control_L, XK_e });
        m_other->tap({ XK_Alt_L, XK_Control_L, XK_Shift_L, XK_7 });
        m_other->tap({ XK_Super_L, XK_F5 });
        QTRY_COMPARE(letter.presses.count(), 1);
        QTRY_COMPARE(shifted.presses.count(), 1);
        QTRY_COMPARE(super.presses.count(), 1);

        m_other->tap({ XK_Alt_L, XK_Control_L, XK_e });
        for (const uint32_t lock : locks)
            m_other->tap({ lock });
        awaitEarlierEvents();
        QCOMPARE(letter.presses.count(), 1);
    }
    setLayout("us");
}

void TestGlobalHotKeys::firesForNamedKeys()
{
    struct Row {
        const char *sequence;
        QList<uint32_t> pressed;
    };
    const Row rows[] = { { "Print", { XK_Print } }, { "F1", { XK_F1 } },
        { "Shift+F12", { XK_Shift_L, XK_F12 } }, { "Pause", { XK_Pause } },
        { "Volume Up", { XF86XK_AudioRaiseVolume } }, { "Ctrl+PgUp", { XK_Control_L, XK_Prior } },
        { "Ctrl+PgDown", { XK_Control_L, XK_Next } },
        { "Ctrl+Insert", { XK_Control_L, XK_Insert } }, { "Alt+Delete", { XK_Alt_L, XK_Delete } },
        { "Ctrl+Esc", { XK_Control_L, XK_Escape } },
        { "Meta+Backspace", { XK_Super_L, XK_BackSpace } },
        { "Ctrl+Return", { XK_Control_L, XK_Return } },
        { "Ctrl+Space", { XK_Control_L, XK_space } },
        { "Ctrl+Shift+Left", { XK_Control_L, XK_Shift_L, XK_Left } },
        { "Ctrl+Shift+Tab", { XK_Control_L, XK_Shift_L, XK_Tab } },
        { "Ctrl+[", { XK_Control_L, XK_bracketleft } },
        { "Ctrl+!", { XK_Control_L, XK_Shift_L, XK_1 } },
        { "Ctrl+Home", { XK_Control_L, XK_KP_Home } },
        { "Ctrl+1", { XK_Num_Lock, XK_Control_L, XK_KP_End } },
        { "Ctrl+*", { XK_Control_L, XK_KP_Multiply } } };
    for (const auto &[sequence, pressed] : rows) {
        CountedKey key(sequence);
        QVERIFY2(key.registered, sequence);
        m_other->tap(pressed);
        QTRY_VERIFY2(key.presses.count() == 1, sequence);
        if (pressed.startsWith(XK_Num_Lock))
            m_other->tap({ XK_Num_Lock });
    }
    // Common layouts give these keys no symbol of their own.
    for (int number = 13; number <= 24; ++number) {
        GlobalHotKey high;
        QVERIFY(high.bind(QKeyCombination(Qt::Key(Qt::Key_F1 + number - 1))));
    }
}

void TestGlobalHotKeys::firesOncePerPress()
{
    CountedKey e("Ctrl+E");
    CountedKey d("Ctrl+D");
    m_other->press(XK_Control_L);
    for (int repeat = 0; repeat < 4; ++repeat)
        m_other->press(XK_e);
    m_other->release(XK_e);
    awaitEarlierEvents();
    QCOMPARE(e.presses.count(), 1);
    m_other->press(XK_Control_L);
    m_other->tap({ XK_e });
    QTRY_COMPARE(e.presses.count(), 2);

    // Rolled keys: the release of the second one is not told to the holder of the first.
    m_other->press(XK_e);
    m_other->press(XK_d);
    m_other->release(XK_e);
    m_other->release(XK_d);
    QTRY_COMPARE(d.presses.count(), 1);
    const auto tapAndCount = [&] {
        m_other->tap({ XK_d });
        QTest::qWait(1);
        return d.presses.count();
    };
    QTRY_VERIFY(tapAndCount() > 1);
    m_other->release(XK_Control_L);
}

void TestGlobalHotKeys::firesAllOwners()
{
    CountedKey first("Ctrl+L");
    auto second = std::make_unique<CountedKey>("Ctrl+L");
    CountedKey sameKey("Ctrl+Shift+8");
    CountedKey sameKeyBySign("Ctrl+*");
    QVERIFY(first.registered && second->registered);
    m_other->tap({ XK_Control_L, XK_l });
    m_other->tap({ XK_Control_L, XK_Shift_L, XK_8 });
    QTRY_COMPARE(first.presses.count(), 1);
    QTRY_COMPARE(second->presses.count(), 1);
    QTRY_COMPARE(sameKey.presses.count(), 1);
    QTRY_COMPARE(sameKeyBySign.presses.count(), 1);

    second.reset();
    sameKeyBySign.key.unbind();
    m_other->tap({ XK_Control_L, XK_l });
    m_other->tap({ XK_Control_L, XK_Shift_L, XK_8 });
    QTRY_COMPARE(first.presses.count(), 2);
    QTRY_COMPARE(sameKey.presses.count(), 2);
    QCOMPARE(sameKeyBySign.presses.count(), 1);
}

void TestGlobalHotKeys::leavesNothingBoundAfterAChange()
{
    const xcb_keycode_t e = m_other->codeOf(XK_e);
    const xcb_keycode_t d = m_other->codeOf(XK_d);
    const auto free = [this](xcb_keycode_t code) {
        bool granted = true;
        for (const unsigned locks : { 0U, 2U, 16U, 18U }) {
            const auto modifiers = uint16_t(XCB_MOD_MASK_CONTROL | locks);
            const bool mine = m_other->grab(code, modifiers);
            if (mine)
                m_other->ungrab(code, modifiers);
            granted = granted && mine;
        }
        return granted;
    };
    auto key = std::make_unique<CountedKey>("Ctrl+E");
    QVERIFY(key->registered);
    QVERIFY(!free(e) && free(d));

    m_other->tap({ XK_Control_L, XK_e });
    QVERIFY(key->key.bind(keys("Ctrl+D")));
    QVERIFY(free(e) && !free(d));
    awaitEarlierEvents();
    // Pressed, but not told before the change.
    QCOMPARE(key->presses.count(), 0);

    m_other->tap({ XK_Control_L, XK_d });
    QTRY_COMPARE(key->presses.count(), 1);
    key.reset();
    QTRY_VERIFY(free(d));
}

void TestGlobalHotKeys::noticesAnotherHolder()
{
    const xcb_keycode_t k = m_other->codeOf(XK_k);
    const uint16_t capsVariant = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_LOCK;
    QVERIFY(m_other->grab(k, capsVariant));
    QTest::ignoreMessage(QtWarningMsg, "Hot key Ctrl+K is held by another program");
    CountedKey key("Ctrl+K");
    QVERIFY(!key.registered);
    QVERIFY(!key.key.isRegistered());
    // What could be had without the held part was given back.
    QVERIFY(m_other->grab(k, XCB_MOD_MASK_CONTROL));
    m_other->ungrab(k, XCB_MOD_MASK_CONTROL);
    m_other->ungrab(k, capsVariant);
    QVERIFY(key.key.bind(keys("Ctrl+K")));

    QTest::ignoreMessage(QtWarningMsg, "Hot key Ctrl+Shift has no key on this keyboard");
    QVERIFY(!CountedKey("Ctrl+Shift").registered);
}

void TestGlobalHotKeys::followsTheLayout()
{
    const xcb_keycode_t codeOfUsA = m_other->codeOf(XK_a);
    CountedKey key("Ctrl+A");
    const QSignalSpy changes(&key.key, &GlobalHotKey::registeredChanged);
    QVERIFY(key.registered);

    setLayout("fr");
    const xcb_keycode_t codeOfFrenchA = m_other->codeOf(XK_a);
    QVERIFY(codeOfFrenchA != codeOfUsA);
    QTRY_VERIFY(m_other->grab(codeOfUsA, XCB_MOD_MASK_CONTROL));
    m_other->ungrab(codeOfUsA, XCB_MOD_MASK_CONTROL);
    m_other->tapCode({ XK_Control_L }, codeOfFrenchA);
    QTRY_COMPARE(key.presses.count(), 1);

    QTest::ignoreMessage(QtWarningMsg, "Hot key Ctrl+A has no key on this keyboard");
    setLayout("ru");
    QTRY_VERIFY(!key.key.isRegistered());
    setLayout("us,ru");
    QTRY_VERIFY(key.key.isRegistered());
    QTRY_COMPARE(changes.count(), 2);
    m_other->tapCode({ XK_Control_L }, codeOfUsA);
    QTRY_COMPARE(key.presses.count(), 2);
    setLayout("us");
}

void TestGlobalHotKeys::leavesTypingToOtherPrograms()
{
    const std::pair<QByteArray, uint32_t> rows[] = { { "A", XK_a }, { "1", XK_1 },
        { "/", XK_slash }, { "Return", XK_Return }, { "Space", XK_space },
        { "Backspace", XK_BackSpace }, { "Left", XK_Left } };
    for (const auto &[sequence, symbol] : rows) {
        CountedKey key(sequence.constData());
        CountedKey shifted(("Shift+" + sequence).constData());
        QVERIFY(key.registered);
        m_other->receivedPresses();
        m_other->tap({ symbol });
        m_other->tap({ XK_Shift_L, symbol });
        awaitEarlierEvents();
        QCOMPARE(key.presses.count() + shifted.presses.count(), 0);
        QCOMPARE(m_other->receivedPresses().count(m_other->codeOf(symbol)), 2);
    }
}

void TestGlobalHotKeys::typingKeysWorkInOwnWindows()
{
    CountedKey enter("Return");
    TestWindow window;
    show(window);
    m_other->tap({ XK_Return });
    QTRY_COMPARE(enter.presses.count(), 1);
    QCOMPARE(window.typed, QList<QKeyCombination>{ Qt::Key_Return });

    window.setEditing(true);
    m_other->tap({ XK_Return });
    QTRY_COMPARE(window.typed.count(), 2);
    awaitEarlierEvents();
    QCOMPARE(enter.presses.count(), 1);
}

void TestGlobalHotKeys::leavesEditingKeysToATextEditor()
{
    CountedKey selectAll("Ctrl+A");
    CountedKey undo("Ctrl+Z");
    CountedKey pen("Ctrl+E");
    TestWindow window;
    show(window);
    m_other->tap({ XK_Control_L, XK_a });
    QTRY_COMPARE(selectAll.presses.count(), 1);

    window.setEditing(true);
    QVERIFY(selectAll.key.isRegistered());
    m_other->tap({ XK_Control_L, XK_a });
    m_other->tap({ XK_Control_L, XK_z });
    m_other->tap({ XK_Control_L, XK_e });
    QTRY_COMPARE(pen.presses.count(), 1);
    QTRY_VERIFY(window.typed.contains(Qt::CTRL | Qt::Key_A));
    QTRY_VERIFY(window.typed.contains(Qt::CTRL | Qt::Key_Z));
    QCOMPARE(selectAll.presses.count(), 1);
    QCOMPARE(undo.presses.count(), 0);

    // Bound while the editor is open: refused to it now, taken as soon as it is closed.
    CountedKey redo("Ctrl+Y");
    QVERIFY(redo.registered);
    m_other->takeFocus();
    QTRY_VERIFY(!QGuiApplication::focusWindow());
    m_other->tap({ XK_Control_L, XK_z });
    m_other->tap({ XK_Control_L, XK_y });
    QTRY_COMPARE(undo.presses.count(), 1);
    QTRY_COMPARE(redo.presses.count(), 1);
}

void TestGlobalHotKeys::restsWhileSuspended()
{
    CountedKey key("Ctrl+E");
    CountedKey enter("Return");
    TestWindow window;
    show(window);
    {
        const GlobalHotKeySuspension outer;
        const GlobalHotKeySuspension inner;
        QVERIFY(key.key.isRegistered());
        CountedKey added("Ctrl+D");
        QVERIFY(added.registered);
        m_other->tap({ XK_Control_L, XK_e });
        m_other->tap({ XK_Control_L, XK_d });
        m_other->tap({ XK_Return });
        QTRY_VERIFY(window.typed.contains(QKeyCombination(Qt::Key_Return)));
        QVERIFY(window.typed.contains(Qt::CTRL | Qt::Key_E));
        QVERIFY(window.typed.contains(Qt::CTRL | Qt::Key_D));
        QCOMPARE(key.presses.count() + enter.presses.count() + added.presses.count(), 0);
    }
    m_other->tap({ XK_Control_L, XK_e });
    QTRY_COMPARE(key.presses.count(), 1);
}

void TestGlobalHotKeys::keepsTheFocusWhileAKeyIsHeld()
{
    CountedKey key("Ctrl+E");
    TestWindow window;
    show(window);
    const QSignalSpy focusChanges(qGuiApp, &QGuiApplication::focusWindowChanged);
    m_other->press(XK_Control_L);
    m_other->press(XK_e);
    QTest::qWait(800);
    m_other->release(XK_e);
    m_other->release(XK_Control_L);
    QTRY_COMPARE(key.presses.count(), 1);
    QCOMPARE(focusChanges.count(), 0);
}

int main(int argc, char **argv)
{
    return runOnXvfb<TestGlobalHotKeys>(argc, argv);
}
#include "tst_globalhotkeys.moc"
