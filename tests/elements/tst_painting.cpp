#include "elements/cloneelement.h"
#include "tests/elements/samples.h"

#include <QFontMetrics>
#include <QTest>

#include <cmath>

namespace
{
QStringList logged;

void collect(QtMsgType, const QMessageLogContext &, const QString &message)
{
    logged.append(message);
}

QColor pixel(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y);
}
} // namespace

class TestPainting : public QObject
{
    Q_OBJECT

private slots:
    void opacityReplacesAlpha_data();
    void opacityReplacesAlpha();
    void outlinesAreNotFilled_data();
    void outlinesAreNotFilled();
    void erasersClearAndRestoreTheMode();
    void textsAreOpaqueAndKeepTheirLines();
    void textsFollowTheirFields();
    void textsTellTheLogWhatTheyPaint();
    void earlierMarksLeaveNoTrace_data();
    void earlierMarksLeaveNoTrace();
    void largeTextsLookTheSameAfterAnyOtherText();
};

void TestPainting::opacityReplacesAlpha_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<int>("alpha");
    QTest::newRow("opaque keeps the colour's alpha") << 1.0 << 102;
    QTest::newRow("nearly opaque too") << 0.99 << 102;
    QTest::newRow("just below") << 0.98 << 250;
    QTest::newRow("highlighter") << 0.4 << 102;
    QTest::newRow("nothing") << 0.0 << 0;
    QTest::newRow("less than nothing") << -3.0 << 0;
    QTest::newRow("not a number") << double(NAN) << 102;
}

void TestPainting::opacityReplacesAlpha()
{
    QFETCH(double, opacity);
    QFETCH(int, alpha);
    const samples::Pen pen{ QColor(0, 0, 255, 102), 10, opacity };
    for (const DrawingElement::Kind kind : { DrawingElement::Freehand, DrawingElement::Line }) {
        const ElementPtr mark = samples::make(kind, QPoint(10, 10), QPoint(90, 10), pen);
        const QImage image = samples::painted(*mark, QSize(100, 20));
        QVERIFY(std::abs(pixel(image, 50, 10).alpha() - alpha) <= 1);
    }
}

void TestPainting::outlinesAreNotFilled_data()
{
    QTest::addColumn<DrawingElement::Kind>("kind");
    QTest::newRow("rectangle") << DrawingElement::Rectangle;
    QTest::newRow("circle") << DrawingElement::Circle;
    QTest::newRow("number") << DrawingElement::NumberedCircle;
}

void TestPainting::outlinesAreNotFilled()
{
    QFETCH(DrawingElement::Kind, kind);
    QImage image = samples::blank(QSize(100, 100));
    QPainter painter(&image);
    painter.setBrush(Qt::green);
    samples::make(kind, QPoint(20, 20), QPoint(80, 80), { Qt::red, 2, 1.0 })->paint(&painter);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QCOMPARE(pixel(image, x, y).green(), 0);
    }
    // Nothing between the outline and what is in the middle of it.
    QCOMPARE(pixel(image, kind == DrawingElement::NumberedCircle ? 41 : 30, 50).alpha(), 0);
}

void TestPainting::erasersClearAndRestoreTheMode()
{
    QImage image = samples::blank(QSize(100, 20));
    image.fill(Qt::blue);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    const ElementPtr stroke =
        samples::freehand({ QPoint(20, 10), QPoint(80, 10) }, { QColor(1, 2, 3, 4), 10, 0.1 });
    stroke->isEraser = true;
    stroke->paint(&painter);
    QCOMPARE(painter.compositionMode(), QPainter::CompositionMode_SourceAtop);
    painter.end();
    QCOMPARE(pixel(image, 50, 10).alpha(), 0);
    QCOMPARE(pixel(image, 50, 2), QColor(Qt::blue));

    const ElementPtr line = samples::make(DrawingElement::Line, QPoint(20, 10), QPoint(80, 10), {});
    line->isEraser = true;
    QCOMPARE(pixel(samples::painted(*line, image.size()), 50, 10), QColor(Qt::red));
}

void TestPainting::textsAreOpaqueAndKeepTheirLines()
{
    const QString block = QString(QChar(0x2588));
    TextElement element(
        QPoint(10, 10), block + QStringLiteral("\n\n") + block, 20, Qt::red, 50, 0.5);
    const QFontMetrics metrics((QFont(QStringLiteral("Arial"), 20)));
    const int lineHeight = metrics.height();
    QCOMPARE(element.boundingRect(),
        QRect(5, 5, metrics.horizontalAdvance(block) + 10, 3 * lineHeight + 10));

    const QImage image = samples::painted(element, QSize(60, 4 * lineHeight));
    const int middle = lineHeight / 2;
    QCOMPARE(pixel(image, 16, 10 + middle), QColor(Qt::red));
    QCOMPARE(pixel(image, 16, 10 + lineHeight + middle).alpha(), 0);
    QCOMPARE(pixel(image, 16, 10 + 2 * lineHeight + middle), QColor(Qt::red));

    QVERIFY(element.contains(QPoint(4, 4 + 3 * lineHeight), 1));
    QVERIFY(!element.contains(QPoint(3, 40), 1));
}

void TestPainting::textsFollowTheirFields()
{
    TextElement element(QPoint(5, 5), QStringLiteral("a"), 20, Qt::red, 5, 1.0);
    const int width = element.boundingRect().width();
    element.text = QStringLiteral("aaa");
    const int threeWide = element.boundingRect().width();
    QVERIFY(threeWide > 2 * (width - 10));
    element.fontSize = 40;
    QVERIFY(element.boundingRect().width() > 3 * threeWide / 2);
    QVERIFY(element.paintedRect().height() > 40);
}

void TestPainting::textsTellTheLogWhatTheyPaint()
{
    const QString text = QString::fromUtf8("第一\n\n") + QString(60, QLatin1Char('x'));
    const TextElement element(QPoint(3, 4), text, 20, Qt::red, 5, 1.0);
    const TextElement empty(QPoint(3, 4), QString(), 20, Qt::red, 5, 1.0);
    const QFontMetrics metrics((QFont(QStringLiteral("Arial"), 20)));
    logged.clear();
    const QtMessageHandler before = qInstallMessageHandler(collect);
    samples::painted(element, QSize(50, 50));
    samples::painted(empty, QSize(50, 50));
    qInstallMessageHandler(before);

    const auto at = [&](int line) {
        return QStringLiteral("  绘制行%1在位置y=%2")
            .arg(line)
            .arg(4 + metrics.ascent() + line * metrics.height());
    };
    const QStringList expected{
        QStringLiteral("绘制文本元素，ID: \"%1\" ，文本行数: 2").arg(element.id),
        QStringLiteral("文本内容预览: \"第一\\n\\n%1\"").arg(QString(46, QLatin1Char('x'))),
        QStringLiteral("文本分割后的行数: 3 ，各行长度:   行0:2字符,  行1:0字符,  行2:60字符"),
        at(0), at(1), at(2),
        QStringLiteral("文本绘制完成，总行数: 3 ，总高度: %1").arg(3 * metrics.height())
    };
    QCOMPARE(logged, expected);
}

void TestPainting::earlierMarksLeaveNoTrace_data()
{
    QTest::addColumn<DrawingElement::Kind>("kind");
    for (const DrawingElement::Kind kind : samples::kAllKinds)
        QTest::addRow("%s", samples::nameOf(kind)) << kind;
}

void TestPainting::earlierMarksLeaveNoTrace()
{
    QFETCH(DrawingElement::Kind, kind);
    const QSize size(120, 100);
    const ElementPtr mark = samples::make(kind, QPoint(20, 20), QPoint(90, 70), {});
    for (const DrawingElement::Kind earlier : samples::kAllKinds) {
        // The canvas resets the brush before every mark.
        QImage image = samples::blank(size);
        QPainter painter(&image);
        const samples::Pen pen{ Qt::green, 30, 0.2 };
        samples::make(earlier, QPoint(20, 20), QPoint(90, 70), pen)->paint(&painter);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(image.rect(), Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.setBrush(QColor(Qt::transparent));
        mark->paint(&painter);
        painter.end();
        QCOMPARE(image, samples::painted(*mark, size));
    }
}

void TestPainting::largeTextsLookTheSameAfterAnyOtherText()
{
    const samples::Pen pen{ Qt::blue, 4, 1.0 };
    const ElementPtr large = samples::make(DrawingElement::Text, QPoint(-3864, -54), {}, pen,
        QStringLiteral("word ").repeated(60), 80);
    const QSize size(96, 64);
    const QImage picture = samples::painted(*large, size);
    for (int fontSize = 8; fontSize < 20; ++fontSize) {
        samples::painted(*samples::make(DrawingElement::Text, QPoint(2, 8), {}, pen,
                             QStringLiteral("xyz%1").arg(fontSize), fontSize),
            size);
        QCOMPARE(samples::painted(*large, size), picture);
        QCOMPARE(samples::painted(*copyOf(large.get()), size), picture);
    }
}

QTEST_MAIN(TestPainting)
#include "tst_painting.moc"
