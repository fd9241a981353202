#include "tests/elements/samples.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QTest>

#include <algorithm>

// The sheets in tests/elements/golden/ show every kind of mark, a column per transform and a row
// per pen. After a wanted change of the looks, write them anew and look at them:
//   DRAVELIN_UPDATE_GOLDENS=1 ctest -R tst_goldens

namespace
{
constexpr QSize kCell(120, 104);
// Renderers round the coverage of an edge differently. A mark that moves by a pixel changes whole
// rows of edge pixels by far more than this.
constexpr int kChannelTolerance = 40;
constexpr int kPixelsTolerated = 24;

struct Transform {
    const char *name;
    void (*apply)(DrawingElement &);
};
const Transform kColumns[] = {
    { "as drawn", [](DrawingElement &) {} },
    { "moved", [](DrawingElement &e) { e.move(QPoint(13, -9)); } },
    { "scaled", [](DrawingElement &e) { e.scale(1.3, e.boundingRect().center()); } },
    { "scaled by axis",
        [](DrawingElement &e) { e.scaleAxes(0.6, 1.5, e.boundingRect().center()); } },
    { "rotated", [](DrawingElement &e) { e.rotate(30, e.boundingRect().center()); } },
};
const samples::Pen kRows[] = { { QColor(QStringLiteral("#d81b60")), 4, 1.0 },
    { QColor(QStringLiteral("#1e88e5")), 16, 0.4 } };

QRect cellAt(int row, int column)
{
    return { QPoint(column * kCell.width(), row * kCell.height()), kCell };
}

QImage cellPicture(DrawingElement::Kind kind, int row, int column)
{
    const ElementPtr mark = samples::make(kind, QPoint(32, 32), QPoint(88, 72), kRows[row]);
    kColumns[column].apply(*mark);
    return samples::painted(*mark, kCell);
}

QImage sheetOf(DrawingElement::Kind kind)
{
    QImage sheet = samples::blank(
        QSize(kCell.width() * int(std::size(kColumns)), kCell.height() * int(std::size(kRows))));
    QPainter painter(&sheet);
    for (int row = 0; row < int(std::size(kRows)); ++row) {
        for (int column = 0; column < int(std::size(kColumns)); ++column)
            painter.drawImage(cellAt(row, column), cellPicture(kind, row, column));
    }
    return sheet;
}

int differingPixels(const QImage &picture, const QImage &golden)
{
    const QImage a = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = golden.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (qsizetype i = 0; i < a.bytesPerLine(); i += 4) {
            const auto differs = [&](qsizetype channel) {
                return std::abs(a.constScanLine(y)[i + channel] - b.constScanLine(y)[i + channel])
                    > kChannelTolerance;
            };
            count += differs(0) || differs(1) || differs(2) || differs(3) ? 1 : 0;
        }
    }
    return count;
}

QString goldenPath(DrawingElement::Kind kind)
{
    return QStringLiteral(DRAVELIN_TEST_DIR "/golden/%1.png")
        .arg(QLatin1String(samples::nameOf(kind)));
}

} // namespace

class TestGoldens : public QObject
{
    Q_OBJECT

private slots:
    void fontsArePresent();
    void sheets_data();
    void sheets();
};

void TestGoldens::fontsArePresent()
{
    const QString family = QFontInfo(QFont(QStringLiteral("Arial"))).family();
    QVERIFY2(family == QLatin1String("Liberation Sans"),
        qPrintable(
            QStringLiteral("The sheets of text were painted in Liberation Sans, but \"Arial\" "
                           "gives \"%1\" here. Install fonts-liberation and run the test "
                           "through ctest, which selects tests/fonts.conf.")
                .arg(family)));
    QVERIFY2(QFontDatabase::hasFamily(QStringLiteral("Noto Sans CJK SC")),
        "No Noto Sans CJK SC for the Chinese text. Install fonts-noto-cjk.");
}

void TestGoldens::sheets_data()
{
    QTest::addColumn<DrawingElement::Kind>("kind");
    for (const DrawingElement::Kind kind : samples::kAllKinds)
        QTest::newRow(samples::nameOf(kind)) << kind;
}

void TestGoldens::sheets()
{
    QFETCH(DrawingElement::Kind, kind);
    const QImage sheet = sheetOf(kind);
    const QString path = goldenPath(kind);
    if (qEnvironmentVariableIsSet("DRAVELIN_UPDATE_GOLDENS")) {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()) && sheet.save(path));
        QSKIP("written anew");
    }
    const QImage golden(path);
    QVERIFY2(golden.size() == sheet.size(), qPrintable(path + QStringLiteral(" does not fit")));
    for (int row = 0; row < int(std::size(kRows)); ++row) {
        for (int column = 0; column < int(std::size(kColumns)); ++column) {
            const QRect cell = cellAt(row, column);
            const int count = differingPixels(sheet.copy(cell), golden.copy(cell));
            if (count <= kPixelsTolerated)
                continue;
            const QString actual = QDir::current().filePath(
                QStringLiteral("actual_%1.png").arg(QLatin1String(samples::nameOf(kind))));
            sheet.save(actual);
            const QString report =
                QStringLiteral("%1, row %2: %3 pixels differ; compare %4 with %5")
                    .arg(QLatin1String(kColumns[column].name))
                    .arg(row + 1)
                    .arg(count)
                    .arg(actual, path);
            QFAIL(qPrintable(report));
        }
    }
}

QTEST_MAIN(TestGoldens)
#include "tst_goldens.moc"
