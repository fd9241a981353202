#include "canvas/textplacement.h"

#include "canvas/canvasdocument.h"
#include "canvas/canvasevents.h"
#include "canvas/logtexts.h"
#include "elements/textelement.h"

#include <QDebug>

namespace
{

const QString kPlaceholder = QStringLiteral("添加文字...");
const QString kTypedLineFeed = QStringLiteral("\\n");
constexpr QChar kLineFeed = u'\n';
constexpr int kBreakAfter = 30;
constexpr int kPreviewLength = 20;

qsizetype lineCount(const QString &text)
{
    return text.count(kLineFeed) + 1;
}

QString breakLongLine(const QString &text)
{
    QString broken;
    broken.reserve(text.size() + text.size() / kBreakAfter);
    int lineLength = 0;
    for (const QChar character : text) {
        broken.append(character);
        ++lineLength;
        if (lineLength >= kBreakAfter && character.isSpace()) {
            broken.append(kLineFeed);
            lineLength = 0;
        }
    }
    return broken;
}

QString preview(const QString &text)
{
    return text.size() > kPreviewLength ? text.left(kPreviewLength) + QStringLiteral("...") : text;
}

} // namespace

QString prepareText(const QString &rawText)
{
    QString text = rawText;
    text.replace(QStringLiteral("\r\n"), QString(kLineFeed));
    if (!text.contains(kLineFeed) && rawText.contains(kTypedLineFeed)) {
        text.replace(kTypedLineFeed, QString(kLineFeed));
        qDebug() << CanvasLog::kLineFeedsAfterEscapes << text.count(kLineFeed);
    }
    if (!text.contains(kLineFeed)) {
        text = breakLongLine(text);
        qDebug() << CanvasLog::kLineFeedsAfterBreaks << text.count(kLineFeed);
    }
    qDebug() << CanvasLog::kPreparedLines << lineCount(text);
    return text;
}

void TextPlacement::place(const QString &text, const QPoint &pos, int fontSize)
{
    if (text.isEmpty())
        return;
    const QString id = add(text, pos, fontSize);
    qDebug() << CanvasLog::kTextAdded << id;
    m_document.events.elementCompleted(id);
}

void TextPlacement::placePrepared(const QString &text, const QPoint &pos, int fontSize)
{
    if (text.trimmed().isEmpty() || text == kPlaceholder)
        return;
    qDebug() << CanvasLog::kRawText << text;
    qDebug() << CanvasLog::kRawLength << text.size() << CanvasLog::kLineCount << lineCount(text);
    qDebug() << CanvasLog::kLineFeeds << text.count(kLineFeed) << CanvasLog::kCarriageReturns
             << text.count(u'\r');
    const QString prepared = prepareText(text);
    const QString id = add(prepared, pos, fontSize);
    qDebug() << CanvasLog::kTextAdded << id << CanvasLog::kContent << preview(prepared)
             << CanvasLog::kLineCount << lineCount(prepared);
}

QString TextPlacement::add(const QString &text, const QPoint &pos, int fontSize)
{
    const auto &[color, size, opacity] = m_document.pen;
    auto element = std::make_unique<TextElement>(pos, text, fontSize, color, size, opacity);
    const QString id = element->id;
    m_document.addElement(std::move(element));
    return id;
}
