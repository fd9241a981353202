#include "elements/textelement.h"

#include "elements/geometry.h"
#include "elements/logtexts.h"

#include <QLoggingCategory>
#include <QPainter>

namespace
{
constexpr qint64 kFrameMarginPx = 5;
constexpr qsizetype kPreviewLength = 50;

/// The log shows these lines without a category, like all others; yet when they are switched off,
/// their texts need not be made up.
const QLoggingCategory &lcText()
{
    return *QLoggingCategory::defaultCategory();
}

QStringList lineLengths(const QStringList &lines)
{
    QStringList items;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        items.append(QString::fromUtf8(logtexts::kLengthOfLine) + QString::number(i)
            + QLatin1Char(':') + QString::number(lines.at(i).size())
            + QString::fromUtf8(logtexts::kCharacters));
    }
    return items;
}
} // namespace

TextElement::TextElement(const QPoint &topLeft, const QString &content, int pointSize,
    const QColor &penColor, int width, double penOpacity)
    : AnchoredElement(Text, penColor, width, penOpacity), position(topLeft), text(content),
      fontSize(pointSize)
{
}

void TextElement::paint(QPainter *painter) const
{
    if (text.isEmpty())
        return;
    qCDebug(lcText) << logtexts::kPaintingText << id << logtexts::kLineFeeds
                    << text.count(QLatin1Char('\n'));
    // The debug stream itself writes a line feed as "\n".
    qCDebug(lcText) << logtexts::kPreview << text.left(kPreviewLength);

    const TextLayout &block = layout();
    painter->setPen(QPen(color));
    painter->setFont(block.font());
    qCDebug(lcText).noquote() << logtexts::kSplitLines << block.lines().size()
                              << logtexts::kLineLengths
                              << lineLengths(block.lines()).join(QLatin1Char(','));
    drawLines(painter, block);
    qCDebug(lcText) << logtexts::kPaintedText << block.lines().size() << logtexts::kBlockHeight
                    << block.blockHeight();
}

void TextElement::drawLines(QPainter *painter, const TextLayout &block) const
{
    qint64 y = qint64(position.y()) + block.ascent();
    for (qsizetype i = 0; i < block.lines().size(); ++i) {
        block.drawLine(painter, block.lines().at(i), QPointF(position.x(), static_cast<double>(y)));
        qCDebug(lcText).nospace() << logtexts::kPaintingLine << i << logtexts::kAtHeight << y;
        y += block.lineHeight();
    }
}

bool TextElement::contains(const QPoint &point, int tolerance) const
{
    const QRect area = geometry::grown(boundingRect(), tolerance);
    // A tolerance far below zero turns the rectangle inside out, where contains() still finds
    // points.
    return area.isValid() && area.contains(point);
}

QRect TextElement::boundingRect() const
{
    const TextLayout &block = layout();
    return geometry::saturatedRect(qint64(position.x()) - kFrameMarginPx,
        qint64(position.y()) - kFrameMarginPx, block.blockWidth() + 2 * kFrameMarginPx,
        block.blockHeight() + 2 * kFrameMarginPx);
}

QRect TextElement::paintedRect() const
{
    if (text.isEmpty())
        return {};
    return geometry::enclosingRect(layout().inkRect().translated(position), 0.0);
}

void TextElement::scaleLength(double factor)
{
    fontSize = geometry::scaledLength(fontSize, factor);
}

const TextLayout &TextElement::layout() const
{
    if (!m_layout || !m_layout->isOf(text, fontSize))
        m_layout = std::make_shared<const TextLayout>(text, fontSize);
    return *m_layout;
}
