#include "elements/cloneelement.h"
#include "tests/elements/samples.h"

#include <QLoggingCategory>
#include <QTest>

#include <limits>

namespace
{
constexpr int kFar = 1 << 30;
}

/// Numbers that no sane drawing has must end in a picture or in nothing, under the sanitizers.
class TestEdgeNumbers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyKindSurvives_data();
    void everyKindSurvives();
    void longTexts_data();
    void longTexts();
};

void TestEdgeNumbers::initTestCase()
{
    // A hundred thousand log lines would only slow the test down.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

namespace
{
void useEverything(DrawingElement &element)
{
    const QPoint corners[] = { QPoint(), QPoint(kFar, kFar), QPoint(-kFar, kFar),
        QPoint(std::numeric_limits<int>::max(), std::numeric_limits<int>::min()) };
    samples::painted(element, QSize(640, 480));
    for (const QPoint &corner : corners) {
        for (const int tolerance : { 0, 10, kFar, -kFar })
            element.contains(corner, tolerance);
    }
    QVERIFY(element.paintedRect().height() >= 0);
    element.boundingRect();
    QVERIFY(element.paintedRect().center().x() >= -kFar * 2);
}
} // namespace

void TestEdgeNumbers::everyKindSurvives_data()
{
    QTest::addColumn<DrawingElement::Kind>("kind");
    QTest::addColumn<int>("coordinate");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("fontSize");
    for (const DrawingElement::Kind kind : samples::kAllKinds) {
        for (const int width : { -1, 0, 1, 500, std::numeric_limits<int>::max() }) {
            for (const int coordinate : { 20, 40000, kFar, std::numeric_limits<int>::max() }) {
                for (const int fontSize : { 0, 500 }) {
                    if (kind != DrawingElement::Text && fontSize)
                        continue;
                    QTest::addRow("%s, width %d, at %d, size %d", samples::nameOf(kind), width,
                        coordinate, fontSize)
                        << kind << coordinate << width << fontSize;
                }
            }
        }
    }
}

void TestEdgeNumbers::everyKindSurvives()
{
    QFETCH(DrawingElement::Kind, kind);
    QFETCH(int, coordinate);
    QFETCH(int, width);
    QFETCH(int, fontSize);
    const samples::Pen pen{ QColor(Qt::blue), width, 0.4 };
    const ElementPtr element = samples::make(kind, QPoint(-coordinate, -coordinate),
        QPoint(coordinate, coordinate), pen, QStringLiteral("W\nfj"), fontSize);
    useEverything(*element);

    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double factor : { 1e-9, 1e9, -1e9, nan, std::numeric_limits<double>::infinity() }) {
        const ElementPtr copy = copyOf(element.get());
        copy->scale(factor, QPoint(3, -kFar));
        useEverything(*copy);
        copy->scaleAxes(1.0, factor, QPoint(kFar, 3));
        copy->rotate(factor, QPoint(-kFar, -kFar));
        copy->move(QPoint(kFar, -kFar));
        useEverything(*copy);
    }
}

void TestEdgeNumbers::longTexts_data()
{
    QTest::addColumn<QString>("text");
    constexpr int kCharacters = 100000;
    const QString arabicInLatin = QString::fromUtf8("abc سلام 12 ");
    const QString family = QString::fromUtf8("👩‍👩‍👧‍👦");
    QTest::newRow("one line") << QString(kCharacters, QLatin1Char('W'));
    QTest::newRow("lines only") << QString(kCharacters, QLatin1Char('\n'));
    QTest::newRow("words") << QStringLiteral("word ").repeated(kCharacters / 5);
    QTest::newRow("bidirectional") << arabicInLatin.repeated(kCharacters / arabicInLatin.size());
    // Marks stacked on one letter cost the text engine a thousand times what letters cost.
    QTest::newRow("combining") << QLatin1Char('a') + QString(kCharacters / 20, QChar(0x301));
    QTest::newRow("emoji") << family.repeated(kCharacters / family.size());
    QTest::newRow("chinese") << QString(kCharacters, QChar(0x6807));
    QTest::newRow("broken surrogates") << QString(kCharacters, QChar(0xD83D));
    QTest::newRow("controls")
        << QString::fromUtf8("\t\r\u2028\u202E\uFFFC\u200D").repeated(kCharacters / 6);
}

void TestEdgeNumbers::longTexts()
{
    QFETCH(QString, text);
    for (const int fontSize : { 20, 500 }) {
        TextElement element(QPoint(5, 5), text, fontSize, Qt::black, 5, 1.0);
        useEverything(element);
        QVERIFY(element.boundingRect().width() > 0);
    }
}

QTEST_MAIN(TestEdgeNumbers)
#include "tst_edgenumbers.moc"
