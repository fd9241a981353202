#include "qmlfixture.h"

#include <QRegularExpression>

class TestFluInfoBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void stacksBarsDownwards();
    void repeatedMessageTakesItsBarAgain();
    void closesByItself();
    void lastingBarHasAButton();
    void clearsAllAtOnce();
    void letsClicksThrough();
    void showsOwnComponents();
    void wrapsLongTexts();
    void complainsWithoutAWindow();
};

namespace
{

const QByteArray kInfoBar = R"(
    property var one
    property var two
    property var three
    Item { id: area; x: 100; width: 400; height: 600 }
    FluInfoBar { id: bars; root: area; layoutY: 50 }
)";

} // namespace

void TestFluInfoBar::stacksBarsDownwards()
{
    QmlFixture ui(kInfoBar);
    ui.eval(
        QStringLiteral("one = bars.showSuccess('saved', 0); two = bars.showError('no', 0, 'more');"
                       "three = bars.showInfo('x', 0)"));
    const auto edges = [&ui](const char *name) {
        const QQuickItem *bar = ui.item(QString::fromLatin1(name));
        return bar->mapRectToScene(QRectF(0, 0, bar->width(), bar->height()));
    };
    QTRY_COMPARE(edges("one").top(), 50.0);
    QTRY_COMPARE(edges("two").top(), edges("one").bottom() + 20);
    QTRY_COMPARE(edges("three").top(), edges("two").bottom() + 20);
    for (const char *name : { "one", "two", "three" })
        QVERIFY(qAbs(edges(name).center().x() - 300) <= 0.5);

    ui.eval(QStringLiteral("two.close()"));
    QTRY_COMPARE(edges("three").top(), edges("one").bottom() + 20);
}

void TestFluInfoBar::repeatedMessageTakesItsBarAgain()
{
    QmlFixture ui(kInfoBar);
    ui.eval(QStringLiteral("one = bars.showWarning('a', 60000, 'm')"));
    QVERIFY(ui.eval(QStringLiteral("bars.showWarning('a', 0, 'm') === one && one.duration === 0"))
                .toBool());
    QVERIFY(ui.eval(QStringLiteral("bars.showInfo('a', 0, 'm') !== one")).toBool());
    // Only the newest bar counts.
    QVERIFY(ui.eval(QStringLiteral("bars.showWarning('a', 0, 'm') !== one")).toBool());
}

void TestFluInfoBar::closesByItself()
{
    QmlFixture ui(kInfoBar);
    ui.eval(QStringLiteral("one = bars.showInfo('brief', 30); two = bars.showInfo('lasting', 0)"));
    QVERIFY(ui.visibleItem("text", QStringLiteral("brief")));
    QTRY_VERIFY(!ui.visibleItem("text", QStringLiteral("brief")));
    QVERIFY(ui.visibleItem("text", QStringLiteral("lasting")));
    // A new bar after the last one has gone.
    ui.eval(QStringLiteral("two.duration = 1; two.restart()"));
    QTRY_VERIFY(!ui.visibleItem("text", QStringLiteral("lasting")));
    ui.eval(QStringLiteral("one = bars.showInfo('again', 0)"));
    QVERIFY(ui.visibleItem("text", QStringLiteral("again")));
}

void TestFluInfoBar::lastingBarHasAButton()
{
    QmlFixture ui(kInfoBar);
    ui.eval(QStringLiteral("one = bars.showInfo('brief', 60000)"));
    QVERIFY(!ui.visibleItem("contentDescription", QStringLiteral("Close")));
    ui.eval(QStringLiteral("two = bars.showInfo('lasting', -1)"));
    QTRY_VERIFY(ui.visibleItem("contentDescription", QStringLiteral("Close")));
    ui.click(ui.visibleItem("contentDescription", QStringLiteral("Close")));
    QTRY_VERIFY(!ui.visibleItem("text", QStringLiteral("lasting")));
    QVERIFY(ui.visibleItem("text", QStringLiteral("brief")));
}

void TestFluInfoBar::clearsAllAtOnce()
{
    QmlFixture ui(kInfoBar);
    ui.eval(QStringLiteral("bars.showInfo('a', 0); bars.showInfo('b', 60000)"));
    QVERIFY(ui.eval(QStringLiteral("bars.clearAllInfo()")).toBool());
    QTRY_VERIFY(!ui.visibleItem("text", QStringLiteral("a")));
    QVERIFY(!ui.visibleItem("text", QStringLiteral("b")));
    QVERIFY(ui.eval(QStringLiteral("bars.clearAllInfo()")).toBool());
}

void TestFluInfoBar::letsClicksThrough()
{
    QmlFixture ui(kInfoBar
        + "property int clicks: 0; MouseArea { anchors.fill: parent; onClicked: ++clicks }");
    ui.eval(QStringLiteral("one = bars.showInfo('message', 60000)"));
    QTRY_VERIFY(ui.item(QStringLiteral("one"))->width() > 50);
    ui.click(ui.item(QStringLiteral("one")));
    QTRY_COMPARE(ui.eval(QStringLiteral("clicks")).toInt(), 1);
}

void TestFluInfoBar::showsOwnComponents()
{
    QmlFixture ui(
        kInfoBar + "Component { id: own; Rectangle { objectName: 'own'; width: 77; height: 33 } }");
    ui.eval(QStringLiteral("one = bars.showCustom(own, 0)"));
    QVERIFY(ui.visibleItem("objectName", QStringLiteral("own")));
    QCOMPARE(ui.item(QStringLiteral("one"))->size(), QSizeF(77, 33));
}

void TestFluInfoBar::wrapsLongTexts()
{
    QmlFixture ui(kInfoBar);
    const QString longText = QStringLiteral("many words ").repeated(20);
    ui.eval(QStringLiteral("one = bars.showInfo('%1', 0, '%1 more')").arg(longText));
    const QQuickItem *bar = ui.item(QStringLiteral("one"));
    QTRY_VERIFY(bar->height() > 100);
    QVERIFY(bar->width() > 300 && bar->width() < 400);
}

void TestFluInfoBar::complainsWithoutAWindow()
{
    QmlFixture ui("FluInfoBar { id: bars }");
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("root must be an item in a window")));
    QVERIFY(ui.eval(QStringLiteral("bars.showInfo('lost') === null")).toBool());
}

QTEST_MAIN(TestFluInfoBar)
#include "tst_fluinfobar.moc"
