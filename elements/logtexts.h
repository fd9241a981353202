#pragma once

/// What the elements write to the debug log.
namespace logtexts
{
inline constexpr char kPaintingText[] = "绘制文本元素，ID:";
inline constexpr char kLineFeeds[] = "，文本行数:";
inline constexpr char kPreview[] = "文本内容预览:";
inline constexpr char kSplitLines[] = "文本分割后的行数:";
inline constexpr char kLineLengths[] = "，各行长度:";
inline constexpr char kLengthOfLine[] = "  行";
inline constexpr char kCharacters[] = "字符";
inline constexpr char kPaintingLine[] = "  绘制行";
inline constexpr char kAtHeight[] = "在位置y=";
inline constexpr char kPaintedText[] = "文本绘制完成，总行数:";
inline constexpr char kBlockHeight[] = "，总高度:";
} // namespace logtexts
