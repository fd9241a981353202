#include "qmlfixture.h"

#include "../platform/otherclient.h"
#include "../platform/xvfbserver.h"

#include <QGuiApplication>
#include <QRegularExpression>

#include <X11/keysym.h>

/// The hot key for QML on a real X server.
class TestFluHotkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tellsAChangeInOrder();
    void readsSequences();
    void reportsConflicts();
    void handlersMaySetAnotherSequence();
    void pickerCapturesAHotKeyInUse();

private:
    std::unique_ptr<OtherClient> m_other;
};

void TestFluHotkey::init()
{
    m_other = std::make_unique<OtherClient>();
    m_other->tap({ XK_Shift_L });
}

void TestFluHotkey::tellsAChangeInOrder()
{
    QmlFixture ui(R"(
        property var log: []
        FluObject {
            FluHotkey { id: key; name: "pen"; sequence: "Ctrl+E"
                onSequenceChanged: log.push(sequence + " " + isRegistered)
                onIsRegisteredChanged: log.push(isRegistered) }
        })");
    const auto log = [&ui] { return ui.text("log.splice(0).join()"); };
    QVERIFY(ui.holds("key.isRegistered"));
    log();
    ui.eval("key.sequence = 'Ctrl+D'");
    QCOMPARE(log(), "false,Ctrl+D false,true");
    ui.eval("key.sequence = 'Ctrl+D'");
    QCOMPARE(log(), QString());
    ui.eval("key.sequence = ''");
    QCOMPARE(log(), "false, false");
    ui.eval("key.destroy()");
}

void TestFluHotkey::readsSequences()
{
    struct Row {
        QString sequence;
        bool registered;
        QString warning;
    };
    for (const auto &[sequence, registered, warning] : { Row{ "Shift+Alt+Ctrl+S", true, {} },
             Row{ "A", true, {} }, Row{ "Ctrl+A, Ctrl+B", true, "several chords" },
             Row{ "Ctrl", false, {} }, Row{ "Foo", false, {} }, Row{ "Ctrl+A+B", false, {} },
             Row{ "Ctrl+Shift", false, "no key on this keyboard" } }) {
        QmlFixture ui("FluHotkey { id: key }");
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        ui.eval("key.sequence = '" + sequence + "'");
        QCOMPARE(ui.text("key.sequence"), sequence);
        QCOMPARE(ui.holds("key.isRegistered"), registered);
    }
}

void TestFluHotkey::reportsConflicts()
{
    const xcb_keycode_t k = m_other->codeOf(XK_k);
    QVERIFY(m_other->grab(k, XCB_MOD_MASK_CONTROL));
    QmlFixture ui(R"(
        FluHotkey { id: key; sequence: "Ctrl+D" }
        FluHotkey { id: same; sequence: "Ctrl+D" })");
    QVERIFY(ui.holds("key.isRegistered && same.isRegistered"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("held by another program"));
    ui.eval("key.sequence = 'Ctrl+K'");
    QVERIFY(!ui.holds("key.isRegistered"));
    ui.eval("same.sequence = ''");
    QVERIFY(m_other->grab(m_other->codeOf(XK_d), XCB_MOD_MASK_CONTROL));
}

void TestFluHotkey::handlersMaySetAnotherSequence()
{
    QmlFixture ui(R"(
        FluHotkey { id: key
            onSequenceChanged: if (sequence === "Ctrl+E") sequence = "Ctrl+D" })");
    ui.eval("key.sequence = 'Ctrl+E'");
    QVERIFY(ui.holds("key.isRegistered"));
    QVERIFY(m_other->grab(m_other->codeOf(XK_e), XCB_MOD_MASK_CONTROL));
    QVERIFY(!m_other->grab(m_other->codeOf(XK_d), XCB_MOD_MASK_CONTROL));
}

void TestFluHotkey::pickerCapturesAHotKeyInUse()
{
    QmlFixture ui(R"(
        property int fired: 0
        FluHotkey { id: pen; sequence: "Ctrl+E"; onActivated: ++fired }
        FluHotkey { id: eraser; sequence: "Ctrl+D"; onActivated: ++fired }
        FluShortcutPicker { id: picker; text: "Eraser"; syncHotkey: eraser })");
    m_other->focus(xcb_window_t(ui.window()->winId()));
    ui.click("picker");
    QTRY_VERIFY(ui.visibleItem("text", "Save"));
    QVERIFY(ui.holds("pen.isRegistered && eraser.isRegistered"));
    const auto shown = [&ui] {
        return ui.visibleItem("capHeight", 44)->property("keys").toStringList().join('+');
    };
    QTRY_COMPARE(shown(), "Ctrl+D");
    m_other->tap({ XK_Control_L, XK_e });
    QTRY_COMPARE(shown(), "Ctrl+E");
    QCOMPARE(ui.number("fired"), 0);

    ui.click(ui.visibleItem("text", "Save"));
    QTRY_VERIFY(!ui.visibleItem("text", "Save"));
    m_other->tap({ XK_Control_L, XK_e });
    QTRY_COMPARE(ui.number("fired"), 2);
}

int main(int argc, char **argv)
{
    return runOnXvfb<TestFluHotkey>(argc, argv);
}
#include "tst_fluhotkey.moc"
