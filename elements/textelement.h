#pragma once

#include "elements/anchoredelement.h"
#include "elements/textlayout.h"

#include <memory>

/// A block of one or more lines of text, separated by line feeds. Ignores opacity and pen width.
class TextElement : public AnchoredElement
{
public:
    TextElement(const QPoint &topLeft, const QString &content, int pointSize,
        const QColor &penColor, int width, double penOpacity);

    void paint(QPainter *painter) const override;
    bool contains(const QPoint &point, int tolerance) const override;
    QRect boundingRect() const override;
    QRect paintedRect() const override;
    /// Takes over what `other`, of the same text and size, has measured.
    void shareLayout(const TextElement &other) { m_layout = other.m_layout; }

    QPoint position; ///< top-left corner of the block
    QString text;
    int fontSize; ///< points

protected:
    QPoint &anchor() override { return position; }
    void scaleLength(double factor) override;

private:
    /// Measured when first asked for, and again whenever the text or its size has changed.
    const TextLayout &layout() const;
    void drawLines(QPainter *painter, const TextLayout &block) const;

    mutable std::shared_ptr<const TextLayout> m_layout;
};
