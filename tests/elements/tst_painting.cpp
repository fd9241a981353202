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
    void opacityReplacesAlpha();
    void erasersClearAndRestoreTheMode();
    void textsAreOpaqueAndKeepTheirLines();
    void textsFollowTheirFields();
    void textsTellTheLogWhatTheyPaint();
    void largeTextsLookTheSameAfterAnyOtherText();
};

void TestPainting::opacityReplacesAlpha()
{
    // From 0.99 on the colour keeps its own alpha.
    const std::pair<double, int> rows[] = { { 1.0, 102 }, { 0.99, 102 }, { 0.98, 250 },
        { 0.4, 102 }, { 0.0, 0 }, { -3.0, 0 }, { double(NAN), 102 } };
    for (const auto &[opacity, alpha] : rows) {
        const samples::Pen pen{ QColor(0, 0, 255, 102), 10, opacity };
        for (const DrawingElement::Kind kind : { DrawingElement::Freehand, DrawingElement::Line }) {
            const ElementPtr mark = samples::make(kind, QPoint(10, 10), QPoint(90, 10), pen);
            const QImage image = samples::painted(*mark, QSize(100, 20));
            QVERIFY(std::abs(pixel(image, 50, 10).alpha() - alpha) <= 1);
        }
    }
}

void TestPainting::erasersClearAndRestoreTheMode()
{
    const ElementPtr stroke =
        samples::freehand({ { 10, 10 }, { 90, 10 }, { 90, 90 }, { 10, 90 } }, { Qt::red, 8, 0.1 });
    stroke->isEraser = true;
    QImage image = samples::blank(QSize(100, 100));
    image.fill(Qt::blue);
    QPainter painter(&image);
    painter.setBrush(QColor(Qt::transparent));
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    stroke->paint(&painter);
    QCOMPARE(painter.compositionMode(), QPainter::CompositionMode_SourceAtop);
    painter.end();
    QCOMPARE(pixel(image, 50, 10).alpha(), 0);
    QCOMPARE(pixel(image, 60, 40), QColor(Qt::blue)); // what it goes around stays

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
