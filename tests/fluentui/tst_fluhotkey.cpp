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
    void readsSequences_data();
    void readsSequences();
    void reportsConflicts();
    void handlersMaySetAnotherSequence();
    void firesFromTheEventLoop();
    void pickerCapturesAHotKeyInUse();

private:
    std::unique_ptr<OtherClient> m_other;
};

void TestFluHotkey::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
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
    const auto log = [&ui] { return ui.eval(QStringLiteral("log.splice(0).join()")).toString(); };
    QVERIFY(ui.eval(QStringLiteral("key.isRegistered")).toBool());
    log();
    ui.eval(QStringLiteral("key.sequence = 'Ctrl+D'"));
    QCOMPARE(log(), QStringLiteral("false,Ctrl+D false,true"));
    ui.eval(QStringLiteral("key.sequence = 'Ctrl+D'"));
    QCOMPARE(log(), QString());
    ui.eval(QStringLiteral("key.sequence = ''"));
    QCOMPARE(log(), QStringLiteral("false, false"));
    ui.eval(QStringLiteral("key.destroy()"));
}

void TestFluHotkey::readsSequences_data()
{
    QTest::addColumn<QString>("sequence");
    QTest::addColumn<bool>("registered");
    QTest::addColumn<QString>("warning");
    QTest::newRow("order") << "Shift+Alt+Ctrl+S" << true << "";
    QTest::newRow("bare") << "A" << true << "";
    QTest::newRow("chords") << "Ctrl+A, Ctrl+B" << true << "several chords";
    QTest::newRow("no key") << "Ctrl" << false << "";
    QTest::newRow("unknown") << "Foo" << false << "";
    QTest::newRow("two keys") << "Ctrl+A+B" << false << "";
    QTest::newRow("modifiers") << "Ctrl+Shift" << false << "no key on this keyboard";
}

void TestFluHotkey::readsSequences()
{
    QFETCH(const QString, sequence);
    QFETCH(const bool, registered);
    QFETCH(const QString, warning);
    QmlFixture ui("FluHotkey { id: key }");
    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    ui.eval(QStringLiteral("key.sequence = '%1'").arg(sequence));
    QCOMPARE(ui.eval(QStringLiteral("key.sequence")).toString(), sequence);
    QCOMPARE(ui.eval(QStringLiteral("key.isRegistered")).toBool(), registered);
}

void TestFluHotkey::reportsConflicts()
{
    const xcb_keycode_t k = m_other->codeOf(XK_k);
    QVERIFY(m_other->grab(k, XCB_MOD_MASK_CONTROL));
    QmlFixture ui(R"(
        FluHotkey { id: key; sequence: "Ctrl+D" }
        FluHotkey { id: same; sequence: "Ctrl+D" })");
    QVERIFY(ui.eval(QStringLiteral("key.isRegistered && same.isRegistered")).toBool());
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("held by another program")));
    ui.eval(QStringLiteral("key.sequence = 'Ctrl+K'"));
    QVERIFY(!ui.eval(QStringLiteral("key.isRegistered")).toBool());
    ui.eval(QStringLiteral("same.sequence = ''"));
    QVERIFY(m_other->grab(m_other->codeOf(XK_d), XCB_MOD_MASK_CONTROL));
}

void TestFluHotkey::handlersMaySetAnotherSequence()
{
    QmlFixture ui(R"(
        FluHotkey { id: key
            onSequenceChanged: if (sequence === "Ctrl+E") sequence = "Ctrl+D" })");
    ui.eval(QStringLiteral("key.sequence = 'Ctrl+E'"));
    QVERIFY(ui.eval(QStringLiteral("key.isRegistered")).toBool());
    QVERIFY(m_other->grab(m_other->codeOf(XK_e), XCB_MOD_MASK_CONTROL));
    QVERIFY(!m_other->grab(m_other->codeOf(XK_d), XCB_MOD_MASK_CONTROL));
}

void TestFluHotkey::firesFromTheEventLoop()
{
    QmlFixture ui(R"(
        property int fired: 0
        FluHotkey { sequence: "Ctrl+L"; onActivated: ++fired }
        FluHotkey { sequence: "Ctrl+L"; onActivated: ++fired })");
    m_other->tap({ XK_Control_L, XK_l });
    QCOMPARE(ui.eval(QStringLiteral("fired")).toInt(), 0);
    QTRY_COMPARE(ui.eval(QStringLiteral("fired")).toInt(), 2);
}

void TestFluHotkey::pickerCapturesAHotKeyInUse()
{
    QmlFixture ui(R"(
        property int fired: 0
        FluHotkey { id: pen; sequence: "Ctrl+E"; onActivated: ++fired }
        FluHotkey { id: eraser; sequence: "Ctrl+D"; onActivated: ++fired }
        FluShortcutPicker { id: picker; text: "Eraser"; syncHotkey: eraser })");
    m_other->focus(xcb_window_t(ui.window()->winId()));
    ui.click(ui.item(QStringLiteral("picker")));
    QTRY_VERIFY(ui.visibleItem("text", QStringLiteral("Save")));
    QVERIFY(ui.eval(QStringLiteral("pen.isRegistered && eraser.isRegistered")).toBool());
    const auto shown = [&ui] {
        return ui.visibleItem("capHeight", 44)
            ->property("keys")
            .toStringList()
            .join(QLatin1Char('+'));
    };
    QTRY_COMPARE(shown(), QStringLiteral("Ctrl+D"));
    m_other->tap({ XK_Control_L, XK_e });
    QTRY_COMPARE(shown(), QStringLiteral("Ctrl+E"));
    QCOMPARE(ui.eval(QStringLiteral("fired")).toInt(), 0);

    ui.click(ui.visibleItem("text", QStringLiteral("Save")));
    QTRY_VERIFY(!ui.visibleItem("text", QStringLiteral("Save")));
    m_other->tap({ XK_Control_L, XK_e });
    QTRY_COMPARE(ui.eval(QStringLiteral("fired")).toInt(), 2);
}

int main(int argc, char **argv)
{
    const XvfbServer server;
    if (!server.isRunning()) {
        qCritical("Xvfb does not start: install the package xvfb");
        return 1;
    }
    const QGuiApplication app(argc, argv);
    TestFluHotkey test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_fluhotkey.moc"
