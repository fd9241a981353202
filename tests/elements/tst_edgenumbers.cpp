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
    void everyKindSurvives();
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

void transformAndUse(DrawingElement &element)
{
    useEverything(element);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double factor : { 1e-9, 1e9, -1e9, nan, std::numeric_limits<double>::infinity() }) {
        const ElementPtr copy = copyOf(&element);
        copy->scale(factor, QPoint(3, -kFar));
        useEverything(*copy);
        copy->scaleAxes(1.0, factor, QPoint(kFar, 3));
        copy->rotate(factor, QPoint(-kFar, -kFar));
        copy->move(QPoint(kFar, -kFar));
        useEverything(*copy);
    }
}
} // namespace

void TestEdgeNumbers::everyKindSurvives()
{
    constexpr int kMost = std::numeric_limits<int>::max();
    for (const DrawingElement::Kind kind : samples::kAllKinds) {
        for (const int width : { -1, 0, 1, 500, kMost }) {
            for (const int coordinate : { 20, 40000, kFar, kMost }) {
                const samples::Pen pen{ QColor(Qt::blue), width, 0.4 };
                for (const int fontSize :
                    kind == DrawingElement::Text ? QList<int>{ 0, 500 } : QList<int>{ 20 })
                    transformAndUse(*samples::make(kind, QPoint(-coordinate, -coordinate),
                        QPoint(coordinate, coordinate), pen, "W\nfj", fontSize));
            }
        }
    }
}

void TestEdgeNumbers::longTexts()
{
    constexpr int kCharacters = 100000;
    const auto repeated = [](const char *utf8) {
        const QString piece = QString::fromUtf8(utf8);
        return piece.repeated(kCharacters / piece.size());
    };
    // Drawn one by one, marks stacked on one letter would take minutes.
    const QString stacked = 'a' + QString(kCharacters, QChar(0x301));
    const QString brokenSurrogates(kCharacters, QChar(0xD83D));
    for (const QString &text : { repeated("W"), repeated("\n"), repeated("word "),
             repeated("abc سلام 12 "), repeated("👩‍👩‍👧‍👦"), repeated("标"),
             repeated("\t\r\u2028\u202E\uFFFC\u200D"), stacked, brokenSurrogates }) {
        for (const int fontSize : { 20, 500 }) {
            TextElement element(QPoint(5, 5), text, fontSize, Qt::black, 5, 1.0);
            useEverything(element);
            QVERIFY(element.boundingRect().width() > 0);
        }
    }
}

QTEST_MAIN(TestEdgeNumbers)
#include "tst_edgenumbers.moc"
