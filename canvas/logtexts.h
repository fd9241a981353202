#pragma once

/// The canvas's lines on the debug log: people and tools read them, so they stay as they are.
namespace CanvasLog
{

// The canvas item
inline constexpr auto kCreated = "Create MyPainter";
inline constexpr auto kOpacitySet = "透明度已设置为:";
inline constexpr auto kElementAdded = "发送元素添加信号，ID:";
inline constexpr auto kClearStarted = "开始清除所有内容";
inline constexpr auto kClearDone = "清除完成，所有内容已删除，历史记录已清空";

// Saving the picture
inline constexpr auto kImageSaved = "Image saved to:";
inline constexpr auto kImageNotSaved = "Failed to save image";

// Text and numbered circles
inline constexpr auto kTextAdded = "发送文本添加信号，ID:";
inline constexpr auto kRawText = "接收到的原始文本:";
inline constexpr auto kRawLength = "原始文本长度:";
inline constexpr auto kLineCount = "行数:";
inline constexpr auto kLineFeeds = "换行符数量:";
inline constexpr auto kCarriageReturns = "回车符数量:";
inline constexpr auto kLineFeedsAfterEscapes = "处理转义序列后，换行符数量:";
inline constexpr auto kLineFeedsAfterBreaks = "强制换行后，换行符数量:";
inline constexpr auto kPreparedLines = "处理后的文本行数:";
inline constexpr auto kContent = "内容:";
inline constexpr auto kNumberAdded = "发送编号圆圈添加信号，ID:";

// History
inline constexpr auto kNothingToUndo = "没有可撤销的操作";
inline constexpr auto kUndo = "执行撤销操作";
inline constexpr auto kUndoAdd = "撤销添加操作，移除元素 ID:";
inline constexpr auto kUndoRemoval = "撤销删除/擦除操作，恢复元素 ID:";
inline constexpr auto kRestoreSkipped = "元素已在列表中，跳过恢复操作";
inline constexpr auto kUndoEraserGroup = "撤销橡皮擦组操作 ID:";
inline constexpr auto kGroupRestore = "  恢复被擦除的元素 ID:";
inline constexpr auto kGroupRestoreSkipped = "  元素已在列表中，跳过恢复操作";
inline constexpr auto kUndoModify = "撤销修改操作，恢复元素 ID:";
inline constexpr auto kUndoTransform = "撤销变换操作，恢复元素到变换前状态 ID:";
inline constexpr auto kTransformUndone = "已恢复变换前状态，元素 ID:";
inline constexpr auto kNothingToRedo = "没有可重做的操作";
inline constexpr auto kRedo = "执行重做操作";
inline constexpr auto kRedoAdd = "重做添加操作，添加元素 ID:";
inline constexpr auto kAddSkipped = "元素已在列表中，跳过添加操作";
inline constexpr auto kRedoRemoval = "重做删除/擦除操作，移除元素 ID:";
inline constexpr auto kRedoEraserGroup = "重做橡皮擦组操作 ID:";
inline constexpr auto kGroupRemove = "  移除被擦除的元素 ID:";
inline constexpr auto kGroupElementMissing = "  元素未找到，可能已被移除 ID:";
inline constexpr auto kRedoModify = "重做修改操作，应用变换到元素 ID:";
inline constexpr auto kRedoTransform = "重做变换操作，恢复元素到变换后状态 ID:";
inline constexpr auto kTransformRedone = "已恢复变换后状态，元素 ID:";

// Eraser
inline constexpr auto kEraseStarted = "开始新的擦除操作";
inline constexpr auto kErased = "擦除元素 ID:";
inline constexpr auto kEraseKnown = "元素已存在于撤销/重做栈中，跳过添加到撤销栈";

// Selection and transforms
inline constexpr auto kSelected = "选中元素:";
inline constexpr auto kSelectById = "尝试选择元素，ID:";
inline constexpr auto kElementCount = "，元素总数:";
inline constexpr auto kIdNotFound = "未找到ID为";
inline constexpr auto kSelectedById = "通过ID选中元素:";
inline constexpr auto kElementKind = "，元素类型:";
inline constexpr auto kNothingToSelect = "没有可选择的元素";
inline constexpr auto kSelectedLast = "强制选择最后一个元素，ID:";
inline constexpr auto kSelectionCleared = "清除选择";
inline constexpr auto kNothingSelected = "没有选中的元素";
inline constexpr auto kTranslated = "平移元素";
inline constexpr auto kOffset = "偏移量:";
inline constexpr auto kBadFactor = "缩放因子必须大于0";
inline constexpr auto kScaled = "缩放元素";
inline constexpr auto kFactor = "缩放因子:";
inline constexpr auto kFactorX = "缩放因子X:";
inline constexpr auto kFactorY = "缩放因子Y:";
inline constexpr auto kRotated = "旋转元素";
inline constexpr auto kBadAngle = "旋转角度无效";
inline constexpr auto kUndoNote = "（简化撤销：撤销时将恢复变换前状态）";
inline constexpr auto kBatchNeedsSelection = "没有选中的元素，无法开始批处理变换";
inline constexpr auto kBatchRunning = "已经在批处理变换模式中";
inline constexpr auto kBatchStarted = "开始批处理变换，保存初始状态，元素 ID:";
inline constexpr auto kBatchMissing = "未在批处理变换模式中，或缺少必要数据";
inline constexpr auto kBatchUnchanged = "批处理变换结束，但元素未发生变化，元素 ID:";
inline constexpr auto kBatchEnded = "结束批处理变换，创建撤销记录，元素 ID:";

// Effects
inline constexpr auto kFadeStarted = "执行渐变撤销操作, 固定渐变时间 =";
inline constexpr auto kMilliseconds = "ms";
inline constexpr auto kFadeSteps = "开始渐变消失，总步数:";
inline constexpr auto kFadeOpacity = "原始透明度:";
inline constexpr auto kFadeDone = "渐变消失完成，移除元素";
inline constexpr auto kBreathRefused = "检测到undoGradient可能在同一元素上运行，不启动呼吸效果";
inline constexpr auto kBreathStarted = "启动呼吸效果，周期:";
inline constexpr auto kBreathTarget = "ms, 目标元素索引:";
inline constexpr auto kBreathMoved = "检测到新元素，更新呼吸目标索引:";
inline constexpr auto kBreathRestored = "，恢复前一个元素透明度:";

} // namespace CanvasLog
