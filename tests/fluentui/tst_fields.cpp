#include "qmlfixture.h"

#include <QRegularExpression>

/// What the text box and the combo box do with keys, clicks and their menus.
class TestFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textBoxCommits();
    void textBoxIsCleaned();
    void textBoxMenuEdits();
    void comboBoxCommitsBeforeItAccepts();
    void comboBoxPicksFromItsList();
    void comboBoxLeavesTheFocusAlone();
    void comboBoxListFitsTheWindow();
};

void TestFields::textBoxCommits()
{
    QmlFixture ui(R"(
        property var log: []
        FluTextBox { id: box; focus: true; text: "a"
            onCommit: text => log.push("commit " + text)
            onAccepted: log.push("accepted")
            onEditingFinished: log.push("finished") }
        FluTextBox { id: next; y: 100 })");
    ui.press(Qt::Key_End);
    ui.press(Qt::Key_B);
    ui.press(Qt::Key_Return);
    QCOMPARE(ui.text("log.join()"), "commit ab");
    ui.press(Qt::Key_Enter);
    QCOMPARE(ui.text("log.splice(0).join()"), "commit ab,commit ab");
    ui.click("next");
    QCOMPARE(ui.text("log.join()"), "finished");
}

void TestFields::textBoxIsCleaned()
{
    QmlFixture ui(R"(
        property int commits: 0
        FluTextBox { id: box; text: "path"; onCommit: ++commits })");
    const QVariant clear = "Clear";
    QQuickItem *button = ui.visibleItem("contentDescription", clear);
    QVERIFY(button);
    ui.click(button);
    QCOMPARE(ui.text("box.text"), QString());
    QCOMPARE(ui.number("commits"), 0);
    QVERIFY(!ui.visibleItem("contentDescription", clear));

    for (const char *state :
        { "box.readOnly = true", "box.cleanEnabled = false", "box.disabled = true" }) {
        ui.eval("box.text = 'again'");
        QVERIFY(ui.visibleItem("contentDescription", clear));
        ui.eval(QString::fromLatin1(state));
        QVERIFY2(!ui.visibleItem("contentDescription", clear), state);
        ui.eval("box.readOnly = false; box.cleanEnabled = true; box.disabled = false");
    }
}

void TestFields::textBoxMenuEdits()
{
    QmlFixture ui(R"(
        FluTextBox { id: box; text: "abc" }
        FluTextBox { id: secret; y: 300; text: "abc"; echoMode: TextInput.Password })");
    const auto choose = [&ui](const QString &command) {
        ui.click("box", Qt::RightButton);
        QTRY_VERIFY(ui.visibleItem("text", command));
        QTRY_VERIFY(ui.visibleItem("text", command)->width() > 0);
        ui.click(ui.visibleItem("text", command));
        QTRY_VERIFY(!ui.visibleItem("text", command));
    };
    choose("Select All");
    QCOMPARE(ui.text("box.selectedText"), "abc");
    choose("Cut");
    QCOMPARE(ui.text("box.text"), QString());
    choose("Paste");
    choose("Paste");
    QCOMPARE(ui.text("box.text"), "abcabc");
    QTRY_VERIFY(ui.holds("box.activeFocus"));

    ui.click("secret", Qt::RightButton);
    QVERIFY(!ui.visibleItem("text", "Copy"));
}

void TestFields::comboBoxCommitsBeforeItAccepts()
{
    QmlFixture ui(R"(
        property var log: []
        FluComboBox { id: box; editable: true; model: ["12", "16"]
            onCommit: text => log.push("commit " + text)
            onAccepted: log.push("accepted") }
        FluComboBox { id: fixed; y: 100; model: ["12", "16"]
            onCommit: log.push("commit") })");
    ui.eval("box.textBox.forceActiveFocus()");
    ui.press(Qt::Key_End);
    ui.press(Qt::Key_0);
    ui.press(Qt::Key_Return);
    QCOMPARE(ui.text("log.join()"), "commit 120,accepted");
    ui.eval("fixed.forceActiveFocus()");
    ui.press(Qt::Key_Return);
    QCOMPARE(ui.number("log.length"), 2);
}

void TestFields::comboBoxPicksFromItsList()
{
    QmlFixture ui(R"(
        property int picked: -1
        FluComboBox { id: box; x: 50; y: 100; textRole: "display"
            model: [{ display: "简体中文", code: "zh_CN" }, { display: "English", code: "en" }]
            onActivated: index => picked = index })");
    ui.click("box");
    QTRY_VERIFY(ui.visibleItem("text", "English"));
    const QQuickItem *list = ui.item("box.popup.background");
    QTRY_COMPARE(list->mapToScene({}), QPointF(50, 100 + 32 + 1));
    QCOMPARE(list->width(), 140.0);
    ui.click(ui.visibleItem("text", "English"));
    QTRY_COMPARE(ui.number("picked"), 1);
    QCOMPARE(ui.text("box.displayText"), "English");
}

void TestFields::comboBoxLeavesTheFocusAlone()
{
    QmlFixture ui(R"(
        FluTextBox { id: first; focus: true }
        FluComboBox { id: box; y: 100; model: 3 })");
    QVERIFY(ui.holds("first.activeFocus"));
    ui.click("box");
    ui.eval("box.popup.close()");
    QTRY_VERIFY(ui.holds("first.activeFocus"));
    ui.press(Qt::Key_Tab);
    QVERIFY(ui.holds("box.activeFocus"));
}

void TestFields::comboBoxListFitsTheWindow()
{
    QmlFixture ui("FluComboBox { id: box; y: 500; model: 200 }");
    ui.click("box");
    const QQuickItem *list = ui.item("box.popup.background");
    QTRY_VERIFY(list->height() > 0 && list->isVisible());
    QTRY_VERIFY(list->mapToScene({ 0, 0 }).y() >= 0);
    QTRY_VERIFY(list->mapToScene({ 0, list->height() }).y() <= 600);
}

QTEST_MAIN(TestFields)
#include "tst_fields.moc"
