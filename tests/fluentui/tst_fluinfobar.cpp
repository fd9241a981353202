#include "qmlfixture.h"

#include <QRegularExpression>

class TestFluInfoBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stacksBarsDownwards();
    void repeatedMessageTakesItsBarAgain();
    void closesByItself();
    void lastingBarHasAButton();
    void clearsAllAtOnce();
    void letsClicksThrough();
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
    ui.eval("one = bars.showSuccess('saved', 0); two = bars.showError('no', 0, 'more');"
            "three = bars.showInfo('x', 0)");
    const auto edges = [&ui](const char *name) {
        const QQuickItem *bar = ui.item(name);
        return bar->mapRectToScene(QRectF(0, 0, bar->width(), bar->height()));
    };
    QTRY_COMPARE(edges("one").top(), 50.0);
    QTRY_COMPARE(edges("two").top(), edges("one").bottom() + 20);
    QTRY_COMPARE(edges("three").top(), edges("two").bottom() + 20);
    for (const char *name : { "one", "two", "three" })
        QVERIFY(qAbs(edges(name).center().x() - 300) <= 0.5);

    ui.eval("two.close()");
    QTRY_COMPARE(edges("three").top(), edges("one").bottom() + 20);
}

void TestFluInfoBar::repeatedMessageTakesItsBarAgain()
{
    QmlFixture ui(kInfoBar);
    ui.eval("one = bars.showWarning('a', 60000, 'm')");
    QVERIFY(ui.holds("bars.showWarning('a', 0, 'm') === one && one.duration === 0"));
    QVERIFY(ui.holds("bars.showInfo('a', 0, 'm') !== one"));
    // Only the newest bar counts.
    QVERIFY(ui.holds("bars.showWarning('a', 0, 'm') !== one"));
}

void TestFluInfoBar::closesByItself()
{
    QmlFixture ui(kInfoBar);
    ui.eval("one = bars.showInfo('brief', 30); two = bars.showInfo('lasting', 0)");
    QVERIFY(ui.visibleItem("text", "brief"));
    QTRY_VERIFY(!ui.visibleItem("text", "brief"));
    QVERIFY(ui.visibleItem("text", "lasting"));
    // A new bar after the last one has gone.
    ui.eval("two.duration = 1; two.restart()");
    QTRY_VERIFY(!ui.visibleItem("text", "lasting"));
    ui.eval("one = bars.showInfo('again', 0)");
    QVERIFY(ui.visibleItem("text", "again"));
}

void TestFluInfoBar::lastingBarHasAButton()
{
    QmlFixture ui(kInfoBar);
    ui.eval("one = bars.showInfo('brief', 60000)");
    QVERIFY(!ui.visibleItem("contentDescription", "Close"));
    ui.eval("two = bars.showInfo('lasting', -1)");
    QTRY_VERIFY(ui.visibleItem("contentDescription", "Close"));
    ui.click(ui.visibleItem("contentDescription", "Close"));
    QTRY_VERIFY(!ui.visibleItem("text", "lasting"));
    QVERIFY(ui.visibleItem("text", "brief"));
}

void TestFluInfoBar::clearsAllAtOnce()
{
    QmlFixture ui(kInfoBar);
    ui.eval("bars.showInfo('a', 0); bars.showInfo('b', 60000)");
    QVERIFY(ui.holds("bars.clearAllInfo()"));
    QTRY_VERIFY(!ui.visibleItem("text", "a"));
    QVERIFY(!ui.visibleItem("text", "b"));
    QVERIFY(ui.holds("bars.clearAllInfo()"));
}

void TestFluInfoBar::letsClicksThrough()
{
    QmlFixture ui(kInfoBar
        + "property int clicks: 0; MouseArea { anchors.fill: parent; onClicked: ++clicks }");
    ui.eval("one = bars.showInfo('message', 60000)");
    QTRY_VERIFY(ui.item("one")->width() > 50);
    ui.click("one");
    QTRY_COMPARE(ui.number("clicks"), 1);
}

void TestFluInfoBar::wrapsLongTexts()
{
    QmlFixture ui(kInfoBar);
    const QString longText = QString("many words ").repeated(20);
    ui.eval(QString("one = bars.showInfo('%1', 0, '%1 more')").arg(longText));
    const QQuickItem *bar = ui.item("one");
    QTRY_VERIFY(bar->height() > 100);
    QVERIFY(bar->width() > 300 && bar->width() < 400);
}

void TestFluInfoBar::complainsWithoutAWindow()
{
    QmlFixture ui("FluInfoBar { id: bars }");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("root must be an item in a window"));
    QVERIFY(ui.holds("bars.showInfo('lost') === null"));
}

QTEST_MAIN(TestFluInfoBar)
#include "tst_fluinfobar.moc"
