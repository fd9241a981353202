#include "help/helpsheet.h"

#include <QCoreApplication>

#include <array>

namespace
{

/// The sheet's own texts.
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(HelpSheet)
};

/// A name that the interface has already, in the translation that it shows.
QString nameOf(const char *context, const char *text)
{
    return QCoreApplication::translate(context, text);
}

HelpSheet::Choice row(const char *picture, const char *name)
{
    return { QLatin1String(picture), nameOf("ToolNames", name) };
}

/// Pictures of a period carry their number of seconds.
HelpSheet::Choice period(const char *family, int seconds)
{
    return { QLatin1String(family) + QString::number(seconds), Texts::tr("%1 秒").arg(seconds) };
}

HelpSheet::Choice button(const char *picture, const QString &name)
{
    return { QLatin1String(picture), name };
}

HelpSheet::Choice sheetButton(const char *picture, const char *name)
{
    return button(picture, nameOf("PaletteSheet", name));
}

/// What the palette itself is handled with.
QList<HelpSheet::Tool> palette()
{
    return {
        { button("logo", nameOf("DragHandle", QT_TRANSLATE_NOOP("DragHandle", "移动工具栏"))),
            Texts::tr("按住拖动，或用方向键移动"), {} },
        { sheetButton("down", QT_TRANSLATE_NOOP("PaletteSheet", "收起")),
            Texts::tr("只留下这两个按钮，再次点击展开"), {}, true },
        { button("off", Texts::tr("画笔与鼠标")),
            Texts::tr("开始绘制，或把鼠标还给桌面；标记会保留"), {} },
    };
}

QList<HelpSheet::Tool> drawing()
{
    return {
        { button("pen", Texts::tr("书写")), Texts::tr("按住并拖动；文字在点击处输入"),
            { row("pen", QT_TRANSLATE_NOOP("ToolNames", "画笔")),
                row("ygpen", QT_TRANSLATE_NOOP("ToolNames", "荧光笔")),
                row("text", QT_TRANSLATE_NOOP("ToolNames", "文字")) } },
        { button("line", Texts::tr("形状")), Texts::tr("从一角拖到另一角；每点一下，编号加一"),
            { row("line", QT_TRANSLATE_NOOP("ToolNames", "直线")),
                row("circle", QT_TRANSLATE_NOOP("ToolNames", "圆形")),
                row("jiantou", QT_TRANSLATE_NOOP("ToolNames", "箭头")),
                row("rect", QT_TRANSLATE_NOOP("ToolNames", "矩形")),
                row("munber", QT_TRANSLATE_NOOP("ToolNames", "编号")) } },
        { sheetButton("erase", QT_TRANSLATE_NOOP("PaletteSheet", "橡皮擦")),
            Texts::tr("划过的标记整个擦除；再次点击结束"), {} },
        { button("chexiao", Texts::tr("撤销与恢复")), Texts::tr("点击执行按钮上显示的一步"),
            { row("chexiao", QT_TRANSLATE_NOOP("ToolNames", "撤销")),
                row("fanhui", QT_TRANSLATE_NOOP("ToolNames", "恢复")) } },
        { sheetButton("clear", QT_TRANSLATE_NOOP("PaletteSheet", "清除画布")),
            Texts::tr("删除所有标记和背景图片，无法撤销"), {} },
        { sheetButton("whiteBorad", QT_TRANSLATE_NOOP("PaletteSheet", "画板")),
            Texts::tr("标记后面的底色或图片"),
            { row("draw", QT_TRANSLATE_NOOP("ToolNames", "透明画板")),
                row("whiteBorad", QT_TRANSLATE_NOOP("ToolNames", "白板")),
                row("blackBoard", QT_TRANSLATE_NOOP("ToolNames", "黑板")),
                row("tuku", QT_TRANSLATE_NOOP("ToolNames", "图片背景")) } },
    };
}

QList<HelpSheet::Tool> capturing()
{
    return {
        { sheetButton("screen", QT_TRANSLATE_NOOP("PaletteSheet", "截屏")),
            Texts::tr("选一个区域，存为图片并复制到剪贴板"), {} },
        { sheetButton("record", QT_TRANSLATE_NOOP("PaletteSheet", "录屏")),
            Texts::tr("选区域和声音，录成视频；再次点击停止"), {} },
    };
}

QList<HelpSheet::Tool> looks()
{
    return {
        { sheetButton("color", QT_TRANSLATE_NOOP("PaletteSheet", "画笔颜色")),
            Texts::tr("之后所画标记的颜色"), {} },
        { sheetButton("b", QT_TRANSLATE_NOOP("PaletteSheet", "画笔粗细")),
            Texts::tr("之后所画标记的粗细"),
            { row("a", QT_TRANSLATE_NOOP("ToolNames", "细")),
                row("b", QT_TRANSLATE_NOOP("ToolNames", "中")),
                row("c", QT_TRANSLATE_NOOP("ToolNames", "粗")),
                row("d", QT_TRANSLATE_NOOP("ToolNames", "特粗")) } },
        { sheetButton("timer", QT_TRANSLATE_NOOP("PaletteSheet", "自动消失")),
            Texts::tr("每隔一段时间，最早的一笔淡出"),
            { row("timer", QT_TRANSLATE_NOOP("ToolNames", "不自动消失")), period("timer", 3),
                period("timer", 5), period("timer", 10), period("timer", 30) } },
        { sheetButton("re", QT_TRANSLATE_NOOP("PaletteSheet", "呼吸效果")),
            Texts::tr("最新的一笔忽明忽暗，引人注意"),
            { row("re", QT_TRANSLATE_NOOP("ToolNames", "不呼吸")), period("re", 3), period("re", 5),
                period("re", 10) } },
        { sheetButton("menue", QT_TRANSLATE_NOOP("PaletteSheet", "菜单")),
            Texts::tr("语言、热键和保存文件夹在设置里"),
            { row("", QT_TRANSLATE_NOOP("ToolNames", "关于")),
                row("", QT_TRANSLATE_NOOP("ToolNames", "帮助")),
                row("", QT_TRANSLATE_NOOP("ToolNames", "设置")),
                row("", QT_TRANSLATE_NOOP("ToolNames", "退出")) } },
    };
}

struct HotKey {
    const char *setting;
    const char *fallback;
    const char *action;
};

/// The palette's hot keys, in the order in which people meet them.
constexpr std::array<HotKey, 12> kHotKeys{ {
    { "penKey", "Ctrl+E", QT_TRANSLATE_NOOP("PaletteHotkeys", "画笔") },
    { "closeDrawKey", "Ctrl+Q", QT_TRANSLATE_NOOP("PaletteHotkeys", "退出绘制模式") },
    { "textKey", "Ctrl+T", QT_TRANSLATE_NOOP("PaletteHotkeys", "文字") },
    { "lineKey", "Ctrl+L", QT_TRANSLATE_NOOP("PaletteHotkeys", "直线模式") },
    { "circleKey", "Ctrl+O", QT_TRANSLATE_NOOP("PaletteHotkeys", "圆形模式") },
    { "rectangleKey", "Ctrl+R", QT_TRANSLATE_NOOP("PaletteHotkeys", "矩形模式") },
    { "arrowKey", "Ctrl+A", QT_TRANSLATE_NOOP("PaletteHotkeys", "箭头模式") },
    { "eraseKey", "Ctrl+D", QT_TRANSLATE_NOOP("PaletteHotkeys", "橡皮擦") },
    { "undoKey", "Ctrl+Z", QT_TRANSLATE_NOOP("PaletteHotkeys", "撤销") },
    { "redoKey", "Ctrl+Y", QT_TRANSLATE_NOOP("PaletteHotkeys", "恢复") },
    { "clearKey", "Ctrl+L", QT_TRANSLATE_NOOP("PaletteHotkeys", "清除画布") },
    { "screenKey", "Ctrl+P", QT_TRANSLATE_NOOP("PaletteHotkeys", "截屏") },
} };

} // namespace

namespace HelpSheet
{

QList<Tool> tools()
{
    return palette() + drawing() + capturing() + looks();
}

QList<Entry> hotKeys(const QVariantMap &settings)
{
    QList<Entry> entries;
    for (const HotKey &key : kHotKeys) {
        QString keys = settings.value(QLatin1String(key.setting)).toString();
        if (keys.isEmpty()) {
            keys = QLatin1String(key.fallback);
        }
        entries.append({ keys, nameOf("PaletteHotkeys", key.action) });
    }
    return entries;
}

QList<Entry> gestures()
{
    return {
        { Texts::tr("Shift+拖动"), Texts::tr("直线沿 45° 方向，矩形成正方形") },
        { Texts::tr("单击标记"), Texts::tr("选中它：拖动以移动，拉手柄以缩放") },
        { Texts::tr("右键单击"), Texts::tr("删除指针下的标记") },
        { QStringLiteral("Return"),
            nameOf("PaletteHotkeys", QT_TRANSLATE_NOOP("PaletteHotkeys", "确认变换")) },
        { QStringLiteral("Esc"), Texts::tr("取消选中，或放弃正在输入的文字") },
        { Texts::tr("单击别处"), Texts::tr("完成正在输入的文字") },
        { Texts::tr("Ctrl+滚轮"), Texts::tr("缩放文字或背景图片") },
        { Texts::tr("Ctrl+拖动"), Texts::tr("移动背景图片") },
        { QStringLiteral("Ctrl+S"), Texts::tr("把画面存为图片") },
    };
}

} // namespace HelpSheet
