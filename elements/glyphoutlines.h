#pragma once

#include <QGlyphRun>
#include <QList>
#include <QPainterPath>
#include <QPointF>

#include <vector>

class QFont;
class QPainter;

/// The glyphs of one run of large text, as outlines that stay the same.
///
/// Qt draws glyphs above a certain size as outlines that it hints anew at every drawing. What comes
/// out depends on the text that was hinted before, so the same text looks different, by fractions
/// of a pixel, from one repaint to the next. Outlines that are kept do not.
class GlyphOutlines
{
public:
    GlyphOutlines(const QString &run, const QFont &font);

    /// Whether Qt would draw glyphs of this font as outlines, as the painter magnifies them.
    [[nodiscard]] static bool areDrawn(const QFont &font, const QPainter &painter);

    /// Draws the run with its baseline starting at `baseline`, in the colour of the painter's pen.
    /// Glyphs that the painter's device does not show are left out.
    void draw(QPainter *painter, const QPointF &baseline) const;

private:
    struct Glyph {
        std::size_t outline; ///< index into `m_outlines`
        QPointF position; ///< from the start of the baseline
    };

    void addRun(const QGlyphRun &run);

    std::vector<QPainterPath> m_outlines; ///< one for each kind of glyph
    std::vector<Glyph> m_glyphs;
    QList<QGlyphRun> m_pictures; ///< of fonts that have pictures instead of outlines
};
