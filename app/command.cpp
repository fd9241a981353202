#include "app/command.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace
{

using enum VerbName::File;

constexpr std::array kNames{
    VerbName{ Verbs::Draw, "draw", None, QT_TRANSLATE_NOOP("CommandLine", "开始绘制") },
    VerbName{ Verbs::PassThrough, "pass-through", None,
        QT_TRANSLATE_NOOP("CommandLine", "停止绘制，把鼠标还给桌面") },
    VerbName{
        Verbs::Toggle, "toggle", None, QT_TRANSLATE_NOOP("CommandLine", "在绘制和鼠标之间切换") },
    VerbName{ Verbs::Pen, "pen", None, QT_TRANSLATE_NOOP("CommandLine", "用画笔绘制") },
    VerbName{
        Verbs::Highlighter, "highlighter", None, QT_TRANSLATE_NOOP("CommandLine", "用荧光笔绘制") },
    VerbName{ Verbs::Text, "text", None, QT_TRANSLATE_NOOP("CommandLine", "在点击处输入文字") },
    VerbName{ Verbs::Line, "line", None, QT_TRANSLATE_NOOP("CommandLine", "绘制直线") },
    VerbName{ Verbs::Circle, "circle", None, QT_TRANSLATE_NOOP("CommandLine", "绘制圆形") },
    VerbName{ Verbs::Rectangle, "rectangle", None, QT_TRANSLATE_NOOP("CommandLine", "绘制矩形") },
    VerbName{ Verbs::Arrow, "arrow", None, QT_TRANSLATE_NOOP("CommandLine", "绘制箭头") },
    VerbName{ Verbs::Number, "number", None, QT_TRANSLATE_NOOP("CommandLine", "放置编号") },
    VerbName{ Verbs::Eraser, "eraser", None, QT_TRANSLATE_NOOP("CommandLine", "使用橡皮擦") },
    VerbName{ Verbs::Undo, "undo", None, QT_TRANSLATE_NOOP("CommandLine", "撤销上一步") },
    VerbName{ Verbs::Redo, "redo", None, QT_TRANSLATE_NOOP("CommandLine", "恢复撤销的一步") },
    VerbName{ Verbs::Clear, "clear", None, QT_TRANSLATE_NOOP("CommandLine", "清除所有标记") },
    VerbName{ Verbs::HideMarks, "hide-marks", None,
        QT_TRANSLATE_NOOP("CommandLine", "隐藏标记，不会丢失；再次绘制时重新显示") },
    VerbName{ Verbs::ShowMarks, "show-marks", None, QT_TRANSLATE_NOOP("CommandLine", "显示标记") },
    VerbName{ Verbs::Capture, "capture", Optional,
        QT_TRANSLATE_NOOP(
            "CommandLine", "截取整个屏幕，保存到指定文件或截图文件夹，并输出文件路径") },
    VerbName{ Verbs::RecordStart, "record-start", None,
        QT_TRANSLATE_NOOP("CommandLine", "开始录制整个屏幕") },
    VerbName{ Verbs::RecordStop, "record-stop", None,
        QT_TRANSLATE_NOOP("CommandLine", "结束录制，并输出录像的路径") },
    VerbName{ Verbs::Export, "export", Required,
        QT_TRANSLATE_NOOP("CommandLine", "把标记保存为图片，并输出文件路径") },
    VerbName{ Verbs::Settings, "settings", None, QT_TRANSLATE_NOOP("CommandLine", "打开设置") },
    VerbName{ Verbs::Quit, "quit", None, QT_TRANSLATE_NOOP("CommandLine", "退出程序") },
};

} // namespace

std::span<const VerbName> verbNames()
{
    return kNames;
}

const VerbName &nameOf(Verbs::Verb verb)
{
    return *std::ranges::find(kNames, verb, &VerbName::verb);
}

std::optional<VerbName> verbCalled(const QString &option)
{
    const auto *const found = std::ranges::find_if(
        kNames, [&option](const VerbName &name) { return option == QLatin1String(name.option); });
    return found == kNames.end() ? std::nullopt : std::optional(*found);
}
