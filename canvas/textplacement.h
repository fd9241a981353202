#pragma once

#include <QPoint>
#include <QString>

class CanvasDocument;

/// Places text that somebody typed.
class TextPlacement
{
public:
    explicit TextPlacement(CanvasDocument &document) : m_document(document) { }

    /// Places `text` unchanged with its top-left corner at `pos` (canvas coordinates), `fontSize`
    /// in points, and announces it. Empty text is ignored.
    void place(const QString &text, const QPoint &pos, int fontSize);
    /// Places `text` after preparing its lines; does not announce it. Blank text and the text
    /// box's placeholder are ignored.
    void placePrepared(const QString &text, const QPoint &pos, int fontSize);

private:
    /// Adds the element and returns its id.
    QString add(const QString &text, const QPoint &pos, int fontSize);

    CanvasDocument &m_document;
};

/// Line ends become line feeds; without any, a typed backslash-n does; without those, long lines
/// break after the first white space from the 30th character on.
[[nodiscard]] QString prepareText(const QString &rawText);
