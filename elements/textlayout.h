#pragma once

#include "elements/glyphoutlines.h"

#include <QFont>
#include <QHash>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <memory>

class QFontMetrics;
class QPainter;

/// The family of all text on the canvas, followed by the families that draw Chinese where it
/// cannot.
[[nodiscard]] QFont elementFont(int pointSize);

/// Whether the text engine can count in pixels as far from the origin as this.
[[nodiscard]] bool isWithinTextRange(const QPointF &origin);

/// The lines of a text block, measured once in the font that they are drawn in.
/// Distances are pixels from the top left corner of the block. Copies of an element share one
/// layout, so that all of them look alike to the last bit.
class TextLayout
{
public:
    TextLayout(const QString &text, int fontSize);

    /// Whether this is the layout of that text in that size.
    [[nodiscard]] bool isOf(const QString &text, int fontSize) const;

    [[nodiscard]] const QFont &font() const { return m_font; }
    [[nodiscard]] const QStringList &lines() const { return m_lines; }
    [[nodiscard]] int ascent() const { return m_ascent; }
    [[nodiscard]] int lineHeight() const { return m_lineHeight; }
    [[nodiscard]] qint64 blockHeight() const { return qint64(m_lines.size()) * m_lineHeight; }
    /// The largest horizontal advance of any line.
    [[nodiscard]] qint64 blockWidth() const { return m_blockWidth; }
    /// Covers the ink of every glyph, wherever it hangs out of the block.
    [[nodiscard]] QRectF inkRect() const { return m_inkRect; }

    /// Draws a line with its baseline starting at `baseline`, in the font and pen of the painter.
    /// Nothing is drawn beyond the distance that the text engine can count in.
    void drawLine(QPainter *painter, const QString &line, const QPointF &baseline) const;

private:
    void measure(const QString &line, const QFontMetrics &metrics, double baseline);
    void drawRun(QPainter *painter, const QString &run, const QPointF &origin) const;
    /// The line in runs that are short enough for the text engine; nearly always the line itself.
    QStringList runsOf(const QString &line) const;

    QString m_text;
    int m_fontSize;
    QFont m_font;
    QStringList m_lines;
    int m_ascent = 0;
    int m_lineHeight = 0;
    qint64 m_blockWidth = 0;
    QRectF m_inkRect;
    /// Of the runs of large text that have been drawn.
    mutable QHash<QString, std::shared_ptr<const GlyphOutlines>> m_outlines;
};
