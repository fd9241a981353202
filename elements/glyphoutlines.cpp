#include "elements/glyphoutlines.h"

#include <QFontInfo>
#include <QHash>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <cmath>

namespace
{
/// Up to this size Qt keeps glyphs as pictures, and paints the same ones at every time.
constexpr double kLargestKeptGlyphPx = 64.0;
constexpr double kUnlimitedWidth = 1 << 24;
/// Antialiasing touches the pixels beside an outline.
constexpr double kAntialiasingPx = 1.0;

QRectF shownArea(const QPainter &painter)
{
    const QPaintDevice *device = painter.device();
    const QRectF pixels(0, 0, device->width(), device->height());
    return painter.combinedTransform().inverted().mapRect(pixels).adjusted(
        -kAntialiasingPx, -kAntialiasingPx, kAntialiasingPx, kAntialiasingPx);
}
} // namespace

GlyphOutlines::GlyphOutlines(const QString &run, const QFont &font)
{
    QTextLayout layout(run, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight); // as painters do
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid()) {
        line.setLineWidth(kUnlimitedWidth);
        line.setPosition(QPointF(0, -line.ascent()));
    }
    layout.endLayout();
    for (const QGlyphRun &glyphs : layout.glyphRuns())
        addRun(glyphs);
}

bool GlyphOutlines::areDrawn(const QFont &font, const QPainter &painter)
{
    const double magnification = std::sqrt(std::abs(painter.combinedTransform().determinant()));
    return QFontInfo(font).pixelSize() * magnification > kLargestKeptGlyphPx;
}

void GlyphOutlines::addRun(const QGlyphRun &run)
{
    const QRawFont font = run.rawFont();
    const QList<quint32> indexes = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    QHash<quint32, std::size_t> known;
    bool hasInk = false;
    const std::size_t before = m_glyphs.size();
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        auto place = known.find(indexes.at(i));
        if (place == known.end()) {
            place = known.insert(indexes.at(i), m_outlines.size());
            m_outlines.push_back(font.pathForGlyph(indexes.at(i)));
            m_outlines.back().setFillRule(Qt::WindingFill);
            hasInk |= !m_outlines.back().isEmpty();
        }
        m_glyphs.push_back({ place.value(), positions.at(i) });
    }
    if (hasInk)
        return;
    m_glyphs.resize(before);
    m_pictures.append(run);
}

void GlyphOutlines::draw(QPainter *painter, const QPointF &baseline) const
{
    const QRectF shown = shownArea(*painter);
    const QPen pen = painter->pen();
    painter->setRenderHint(QPainter::Antialiasing);
    for (const Glyph &glyph : m_glyphs) {
        const QPainterPath &outline = m_outlines[glyph.outline];
        const QPointF origin = baseline + glyph.position;
        if (outline.controlPointRect().translated(origin).intersects(shown))
            painter->fillPath(outline.translated(origin), pen.brush());
    }
    for (const QGlyphRun &run : m_pictures)
        painter->drawGlyphRun(baseline, run);
}
