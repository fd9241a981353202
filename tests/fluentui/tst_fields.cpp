#include "qmlfixture.h"

#include <QRegularExpression>

/// What the text box and the combo box do with keys, clicks and their menus.
class TestFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void textBoxCommits_data();
    void textBoxCommits();
    void textBoxIsCleaned();
    void textBoxMenuEdits();
    void comboBoxCommitsBeforeItAccepts();
    void comboBoxPicksFromItsList();
    void comboBoxLeavesTheFocusAlone();
    void comboBoxListFitsTheWindow();
    void disabledFollowsTheProperty();
};

void TestFields::textBoxCommits_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void TestFields::textBoxCommits()
{
    QFETCH(const Qt::Key, key);
    QmlFixture ui(R"(
        property var log: []
        FluTextBox { id: box; focus: true; text: "a"
            onCommit: text => log.push("commit " + text)
            onAccepted: log.push("accepted")
            onEditingFinished: log.push("finished") }
        FluTextBox { id: next; y: 100 })");
    ui.press(Qt::Key_End);
    ui.press(Qt::Key_B);
    ui.press(key);
    QCOMPARE(ui.eval(QStringLiteral("log.join()")).toString(), QStringLiteral("commit ab"));
    ui.click(ui.item(QStringLiteral("next")));
    QCOMPARE(
        ui.eval(QStringLiteral("log.join()")).toString(), QStringLiteral("commit ab,finished"));
}

void TestFields::textBoxIsCleaned()
{
    QmlFixture ui(R"(
        property int commits: 0
        FluTextBox { id: box; text: "path"; onCommit: ++commits })");
    const QVariant clear = QStringLiteral("Clear");
    QQuickItem *button = ui.visibleItem("contentDescription", clear);
    QVERIFY(button);
    ui.click(button);
    QCOMPARE(ui.eval(QStringLiteral("box.text")).toString(), QString());
    QCOMPARE(ui.eval(QStringLiteral("commits")).toInt(), 0);
    QVERIFY(!ui.visibleItem("contentDescription", clear));

    for (const char *state :
        { "box.readOnly = true", "box.cleanEnabled = false", "box.disabled = true" }) {
        ui.eval(QStringLiteral("box.text = 'again'"));
        QVERIFY(ui.visibleItem("contentDescription", clear));
        ui.eval(QString::fromLatin1(state));
        QVERIFY2(!ui.visibleItem("contentDescription", clear), state);
        ui.eval(
            QStringLiteral("box.readOnly = false; box.cleanEnabled = true; box.disabled = false"));
    }
}

void TestFields::textBoxMenuEdits()
{
    QmlFixture ui(R"(
        FluTextBox { id: box; text: "abc" }
        FluTextBox { id: secret; y: 300; text: "abc"; echoMode: TextInput.Password })");
    const auto choose = [&ui](const QString &command) {
        ui.click(ui.item(QStringLiteral("box")), Qt::RightButton);
        QTRY_VERIFY(ui.visibleItem("text", command));
        QTRY_VERIFY(ui.visibleItem("text", command)->width() > 0);
        ui.click(ui.visibleItem("text", command));
        QTRY_VERIFY(!ui.visibleItem("text", command));
    };
    choose(QStringLiteral("Select All"));
    QCOMPARE(ui.eval(QStringLiteral("box.selectedText")).toString(), QStringLiteral("abc"));
    choose(QStringLiteral("Cut"));
    QCOMPARE(ui.eval(QStringLiteral("box.text")).toString(), QString());
    choose(QStringLiteral("Paste"));
    choose(QStringLiteral("Paste"));
    QCOMPARE(ui.eval(QStringLiteral("box.text")).toString(), QStringLiteral("abcabc"));
    QTRY_VERIFY(ui.eval(QStringLiteral("box.activeFocus")).toBool());

    ui.click(ui.item(QStringLiteral("secret")), Qt::RightButton);
    QVERIFY(!ui.visibleItem("text", QStringLiteral("Copy")));
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
    ui.eval(QStringLiteral("box.textBox.forceActiveFocus()"));
    ui.press(Qt::Key_End);
    ui.press(Qt::Key_0);
    ui.press(Qt::Key_Return);
    QCOMPARE(
        ui.eval(QStringLiteral("log.join()")).toString(), QStringLiteral("commit 120,accepted"));
    ui.eval(QStringLiteral("fixed.forceActiveFocus()"));
    ui.press(Qt::Key_Return);
    QCOMPARE(ui.eval(QStringLiteral("log.length")).toInt(), 2);
}

void TestFields::comboBoxPicksFromItsList()
{
    QmlFixture ui(R"(
        property int picked: -1
        FluComboBox { id: box; x: 50; y: 100; textRole: "display"
            model: [{ display: "简体中文", code: "zh_CN" }, { display: "English", code: "en" }]
            onActivated: index => picked = index })");
    ui.click(ui.item(QStringLiteral("box")));
    QTRY_VERIFY(ui.visibleItem("text", QStringLiteral("English")));
    const QQuickItem *list = ui.item(QStringLiteral("box.popup.background"));
    QTRY_COMPARE(list->mapToScene({}), QPointF(50, 100 + 32 + 1));
    QCOMPARE(list->width(), 140.0);
    ui.click(ui.visibleItem("text", QStringLiteral("English")));
    QTRY_COMPARE(ui.eval(QStringLiteral("picked")).toInt(), 1);
    QCOMPARE(ui.eval(QStringLiteral("box.displayText")).toString(), QStringLiteral("English"));
}

void TestFields::comboBoxLeavesTheFocusAlone()
{
    QmlFixture ui(R"(
        FluTextBox { id: first; focus: true }
        FluComboBox { id: box; y: 100; model: 3 })");
    QVERIFY(ui.eval(QStringLiteral("first.activeFocus")).toBool());
    ui.click(ui.item(QStringLiteral("box")));
    ui.eval(QStringLiteral("box.popup.close()"));
    QTRY_VERIFY(ui.eval(QStringLiteral("first.activeFocus")).toBool());
    ui.press(Qt::Key_Tab);
    QVERIFY(ui.eval(QStringLiteral("box.activeFocus")).toBool());
}

void TestFields::comboBoxListFitsTheWindow()
{
    QmlFixture ui("FluComboBox { id: box; y: 500; model: 200 }");
    ui.click(ui.item(QStringLiteral("box")));
    const QQuickItem *list = ui.item(QStringLiteral("box.popup.background"));
    QTRY_VERIFY(list->height() > 0 && list->isVisible());
    QTRY_VERIFY(list->mapToScene({ 0, 0 }).y() >= 0);
    QTRY_VERIFY(list->mapToScene({ 0, list->height() }).y() <= 600);
}

void TestFields::disabledFollowsTheProperty()
{
    for (const char *type : { "FluButton", "FluIconButton", "FluTextBox", "FluComboBox" }) {
        QmlFixture ui(QByteArray(type) + " { id: control; disabled: true }");
        QVERIFY2(!ui.eval(QStringLiteral("control.enabled")).toBool(), type);
        ui.eval(QStringLiteral("control.disabled = false"));
        QVERIFY2(ui.eval(QStringLiteral("control.enabled")).toBool(), type);
    }
}

QTEST_MAIN(TestFields)
#include "tst_fields.moc"
