#include "qmlfixture.h"

#include "fluentui/fluenticons.h"
#include "fluentui/fluiconcatalogue.h"

#include <QMetaEnum>
#include <QRegularExpression>
#include <QtQml/qqmlfile.h>

class TestFluIconButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyIconHasADrawing();
    void drawsTheIconInItsColour();
    void keepsItsSizeWithoutAnIcon();
    void colourFollowsTheState();
    void clicksTakeNoFocus();
    void explainsItself();

private:
    static int countPixels(const QImage &image, QColor color);
};

int TestFluIconButton::countPixels(const QImage &image, QColor color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

void TestFluIconButton::everyIconHasADrawing()
{
    const FluIconCatalogue catalogue;
    const auto icons = QMetaEnum::fromType<FluentIcons::Type>();
    QVERIFY(icons.keyCount() > 0);
    for (int i = 0; i < icons.keyCount(); ++i) {
        const QImage picture(QQmlFile::urlToLocalFileOrQrc(catalogue.url(icons.value(i))));
        QVERIFY2(!picture.isNull(), icons.key(i));
    }
    QVERIFY(catalogue.url(0).isEmpty());
    QVERIFY(catalogue.url(0xe000).isEmpty());
}

void TestFluIconButton::drawsTheIconInItsColour()
{
    QmlFixture ui(
        R"(FluIconButton { id: button; iconSource: FluentIcons.StatusErrorFull; iconColor: "#12ab34" })");
    const QColor tint(0x12, 0xab, 0x34);
    QTRY_VERIFY(countPixels(ui.window()->grabWindow(), tint) > 100);
    ui.eval("button.iconColor = '#0000ff'");
    QTRY_COMPARE(countPixels(ui.window()->grabWindow(), tint), 0);
    QVERIFY(countPixels(ui.window()->grabWindow(), Qt::blue) > 100);
}

void TestFluIconButton::keepsItsSizeWithoutAnIcon()
{
    QmlFixture ui(R"(
        FluIconButton { id: empty }
        FluIconButton { id: small; iconSize: 8; padding: 2 }
        FluIconButton { id: unknown; iconSource: 1 })");
    QCOMPARE(ui.item("empty")->size(), QSizeF(36, 36));
    QCOMPARE(ui.item("small")->size(), QSizeF(30, 30));
    QCOMPARE(ui.item("unknown")->size(), QSizeF(36, 36));
}

void TestFluIconButton::colourFollowsTheState()
{
    QmlFixture ui(R"(FluIconButton { id: button; x: 100; y: 100
        normalColor: "#010101"; hoverColor: "gray"; pressedColor: "#030303"; disableColor: "#040404" })");
    const auto color = [&ui] { return ui.eval("button.color").value<QColor>(); };
    const QPoint center = QmlFixture::center(ui.item("button"));
    QTest::mouseMove(ui.window(), QPoint(5, 5));
    QTRY_COMPARE(color(), QColor(1, 1, 1));
    QTest::mouseMove(ui.window(), center);
    QTRY_COMPARE(color(), QColor("gray"));
    QTest::mousePress(ui.window(), Qt::LeftButton, Qt::NoModifier, center);
    QCOMPARE(color(), QColor(3, 3, 3));
    QTest::mouseRelease(ui.window(), Qt::LeftButton, Qt::NoModifier, center);
    ui.eval("button.disabled = true");
    QCOMPARE(color(), QColor(4, 4, 4));
}

void TestFluIconButton::clicksTakeNoFocus()
{
    QmlFixture ui(R"(
        property int clicks: 0
        FluTextBox { id: box; focus: true }
        FluIconButton { id: button; y: 100; onClicked: ++clicks })");
    ui.click("button");
    QCOMPARE(ui.number("clicks"), 1);
    QVERIFY(ui.holds("box.activeFocus"));
    ui.press(Qt::Key_Tab);
    QVERIFY(ui.holds("button.activeFocus"));
    ui.press(Qt::Key_Space);
    QCOMPARE(ui.number("clicks"), 2);
}

void TestFluIconButton::explainsItself()
{
    QmlFixture ui(R"(FluIconButton { id: button; x: 100; y: 100; text: "Close" })");
    QVERIFY(!ui.visibleItem("text", "Close")->property("delay").isValid());
    QTest::mouseMove(ui.window(), QmlFixture::center(ui.item("button")));
    // The button itself has the text too; the tip's label is the one in the overlay.
    const auto tip = [&ui]() -> QQuickItem * {
        QQuickItem *overlay = ui.window()->contentItem()->childItems().constLast();
        return overlay->inherits("QQuickOverlay") && !overlay->childItems().isEmpty()
            ? overlay->childItems().constFirst()
            : nullptr;
    };
    QTRY_VERIFY(tip() && tip()->isVisible());
    QTest::mouseMove(ui.window(), QPoint(5, 5));
    QTRY_VERIFY(!tip() || !tip()->isVisible());
}

QTEST_MAIN(TestFluIconButton)
#include "tst_fluiconbutton.moc"
