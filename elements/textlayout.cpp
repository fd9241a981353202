#include "elements/textlayout.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace
{
// Qt has no font of size 0, and the rasterizer no glyphs of unlimited size.
constexpr int kSmallestPointSize = 1;
constexpr int kLargestPointSize = 10000;
// The text engine counts in 26.6 fixed point and wraps around at 2^25 pixels. A run of this length
// at this distance stays far below that, also when the painter magnifies.
constexpr int kTextRangePx = 1 << 21;
// What the text engine takes for a run grows with the square of the marks stacked on one letter:
// in a long line, those that nobody could tell apart any more are left out.
constexpr qsizetype kLongestRun = 4096;
constexpr qsizetype kLongestCluster = 64;
// Antialiasing and hinting go beyond the measured ink by a pixel or two, in large sizes by more.
constexpr double kInkMarginPx = 2.0;
constexpr double kInkMarginShare = 0.1;
} // namespace

QFont elementFont(int pointSize)
{
    const QString family = QStringLiteral("Arial");
    QFont font(family, std::clamp(pointSize, kSmallestPointSize, kLargestPointSize));
    // Where another family stands in for it, that one has to come before the families that only
    // add Chinese: in a list, the stand-in would be looked for last.
    static const QString standIn = QFontInfo(QFont(family)).family();
    font.setFamilies(
        { family, standIn, QStringLiteral("Microsoft YaHei"), QStringLiteral("Noto Sans CJK SC") });
    return font;
}

bool isWithinTextRange(const QPointF &origin)
{
    return std::abs(origin.x()) <= kTextRangePx && std::abs(origin.y()) <= kTextRangePx;
}

TextLayout::TextLayout(const QString &text, int fontSize)
    : m_text(text), m_fontSize(fontSize), m_font(elementFont(fontSize)),
      m_lines(text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n')))
{
    const QFontMetrics metrics(m_font);
    m_ascent = metrics.ascent();
    m_lineHeight = metrics.height();
    double baseline = m_ascent;
    for (const QString &line : std::as_const(m_lines)) {
        measure(line, metrics, baseline);
        baseline += m_lineHeight;
    }
    const double margin = kInkMarginPx + kInkMarginShare * m_lineHeight;
    m_inkRect.adjust(-margin, -margin, margin, margin);
}

bool TextLayout::isOf(const QString &text, int fontSize) const
{
    return fontSize == m_fontSize && text == m_text;
}

void TextLayout::drawLine(QPainter *painter, const QString &line, const QPointF &baseline) const
{
    const QFontMetrics metrics(m_font);
    QPointF origin = baseline;
    const QStringList runs = runsOf(line);
    for (const QString &run : runs) {
        if (isWithinTextRange(origin))
            drawRun(painter, run, origin);
        if (runs.size() > 1)
            origin.rx() += metrics.horizontalAdvance(run);
    }
}

void TextLayout::drawRun(QPainter *painter, const QString &run, const QPointF &origin) const
{
    if (!GlyphOutlines::areDrawn(m_font, *painter)) {
        painter->drawText(origin, run);
        return;
    }
    std::shared_ptr<const GlyphOutlines> &outlines = m_outlines[run];
    if (!outlines)
        outlines = std::make_shared<const GlyphOutlines>(run, m_font);
    outlines->draw(painter, origin);
}

void TextLayout::measure(const QString &line, const QFontMetrics &metrics, double baseline)
{
    qint64 advance = 0;
    for (const QString &run : runsOf(line)) {
        const int width = metrics.horizontalAdvance(run);
        // The outlines tell where stacked marks end, which the metrics do not know; the metrics
        // tell the size of glyphs without outlines.
        QPainterPath outlines;
        outlines.addText(QPointF(), m_font, run);
        QRectF ink(0, -m_ascent, width, m_lineHeight);
        ink |= QRectF(metrics.boundingRect(run)) | outlines.controlPointRect();
        m_inkRect |= ink.translated(static_cast<double>(advance), baseline);
        advance += width;
    }
    m_blockWidth = std::max(m_blockWidth, advance);
}

QStringList TextLayout::runsOf(const QString &line) const
{
    const qsizetype longest =
        std::clamp<qsizetype>(kTextRangePx / std::max(1, m_lineHeight), 1, kLongestRun);
    if (line.size() <= longest)
        return { line };
    QStringList runs;
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, line);
    for (qsizetype from = 0; from < line.size();) {
        boundaries.setPosition(from);
        const qsizetype clusterEnd = boundaries.toNextBoundary();
        if (clusterEnd > from + kLongestCluster) {
            runs.append(line.mid(from, kLongestCluster));
            from = clusterEnd;
            continue;
        }
        boundaries.setPosition(std::min(from + longest, line.size()));
        qsizetype to = boundaries.position();
        if (!boundaries.isAtBoundary())
            to = boundaries.toPreviousBoundary();
        if (to <= from)
            to = std::max(clusterEnd, from + 1);
        runs.append(line.mid(from, to - from));
        from = to;
    }
    return runs;
}
