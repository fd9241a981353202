<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="zh_CN">
<context>
    <name>AboutWindow</name>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>版本 %1 · 界面 %2</source>
        <translation>Version %1 · Interface %2</translation>
    </message>
    <message>
        <source>第三方组件及许可</source>
        <translation>Third-party components and licences</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>CaptureNotice</name>
    <message>
        <source>打开文件夹</source>
        <translation>Open folder</translation>
    </message>
</context>
<context>
    <name>CaptureOutcome</name>
    <message>
        <source>截图失败</source>
        <translation>Screenshot failed</translation>
    </message>
    <message>
        <source>截图已保存</source>
        <translation>Screenshot saved</translation>
    </message>
</context>
<context>
    <name>CloseButton</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>CommandClient</name>
    <message>
        <source>正在运行的程序没有回应。请退出后重新启动它</source>
        <translation>The running program does not answer. Please quit it and start it again</translation>
    </message>
    <message>
        <source>程序没有运行，这里也没有可以显示它的桌面。请先在桌面上启动它</source>
        <translation>The program is not running, and there is no desktop here to show it on. Please start it on a desktop first</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>开始绘制</source>
        <translation>Start drawing</translation>
    </message>
    <message>
        <source>停止绘制，把鼠标还给桌面</source>
        <translation>Stop drawing and give the desktop its pointer back</translation>
    </message>
    <message>
        <source>在绘制和鼠标之间切换</source>
        <translation>Switch between drawing and the pointer</translation>
    </message>
    <message>
        <source>用画笔绘制</source>
        <translation>Draw with the pen</translation>
    </message>
    <message>
        <source>用荧光笔绘制</source>
        <translation>Draw with the highlighter</translation>
    </message>
    <message>
        <source>在点击处输入文字</source>
        <translation>Write text where you click</translation>
    </message>
    <message>
        <source>绘制直线</source>
        <translation>Draw lines</translation>
    </message>
    <message>
        <source>绘制圆形</source>
        <translation>Draw circles</translation>
    </message>
    <message>
        <source>绘制矩形</source>
        <translation>Draw rectangles</translation>
    </message>
    <message>
        <source>绘制箭头</source>
        <translation>Draw arrows</translation>
    </message>
    <message>
        <source>放置编号</source>
        <translation>Place numbers</translation>
    </message>
    <message>
        <source>使用橡皮擦</source>
        <translation>Use the eraser</translation>
    </message>
    <message>
        <source>撤销上一步</source>
        <translation>Take back the last step</translation>
    </message>
    <message>
        <source>恢复撤销的一步</source>
        <translation>Do again what was taken back</translation>
    </message>
    <message>
        <source>清除所有标记</source>
        <translation>Clear all marks</translation>
    </message>
    <message>
        <source>隐藏标记，不会丢失；再次绘制时重新显示</source>
        <translation>Hide the marks without losing them; drawing shows them again</translation>
    </message>
    <message>
        <source>显示标记</source>
        <translation>Show the marks</translation>
    </message>
    <message>
        <source>截取整个屏幕，保存到指定文件或截图文件夹，并输出文件路径</source>
        <translation>Capture the whole screen into the file, or into the folder for captures, and print the path</translation>
    </message>
    <message>
        <source>开始录制整个屏幕</source>
        <translation>Start to record the whole screen</translation>
    </message>
    <message>
        <source>结束录制，并输出录像的路径</source>
        <translation>End the recording and print the path of the video</translation>
    </message>
    <message>
        <source>把标记保存为图片，并输出文件路径</source>
        <translation>Save the marks as a picture and print the path</translation>
    </message>
    <message>
        <source>打开设置</source>
        <translation>Open the settings</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Quit the program</translation>
    </message>
    <message>
        <source>没有系统托盘也启动；通过面板的菜单退出</source>
        <translation>Start even without a notification area; leave with the palette&apos;s menu</translation>
    </message>
    <message>
        <source>显示此说明</source>
        <translation>Show this help</translation>
    </message>
    <message>
        <source>显示版本号</source>
        <translation>Show the version</translation>
    </message>
    <message>
        <source>%1 后面缺少文件名</source>
        <translation>%1 needs the name of a file</translation>
    </message>
    <message>
        <source>多余的参数：%1</source>
        <translation>One word too many: %1</translation>
    </message>
    <message>
        <source>无法识别的参数：%1。--help 列出所有参数</source>
        <translation>Unknown argument: %1. --help lists them all</translation>
    </message>
    <message>
        <source>%1：屏幕标注笔。下列命令交给正在运行的程序依次执行；程序没有运行时先启动它。</source>
        <translation>%1, a pen for the whole screen. The commands below are carried out in order by the running program, which is started first where none runs.</translation>
    </message>
</context>
<context>
    <name>CommandStart</name>
    <message>
        <source>程序无法启动（%1）。不带命令启动它可以看到原因</source>
        <translation>The program cannot be started (%1). Start it without a command to see why</translation>
    </message>
</context>
<context>
    <name>DragHandle</name>
    <message>
        <source>移动工具栏</source>
        <translation>Move the toolbar</translation>
    </message>
</context>
<context>
    <name>FluInfoBarItem</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>FluShortcutPicker</name>
    <message>
        <source>Conflict</source>
        <translation>Conflict</translation>
    </message>
</context>
<context>
    <name>FluTextBox</name>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
</context>
<context>
    <name>FluTextMenu</name>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select all</translation>
    </message>
</context>
<context>
    <name>FolderChoice</name>
    <message>
        <source>截图路径</source>
        <translation>Save folder</translation>
    </message>
    <message>
        <source>截图保存路径</source>
        <translation>Folder for screenshots and videos</translation>
    </message>
    <message>
        <source>浏览</source>
        <translation>Browse</translation>
    </message>
</context>
<context>
    <name>HelpDesk</name>
    <message>
        <source>页面无法写入用户文件夹，请检查磁盘空间和文件夹权限</source>
        <translation>The page cannot be written to your home folder. Check the disk space and the folder&apos;s permissions.</translation>
    </message>
    <message>
        <source>系统没有可用的浏览器，页面在 %1</source>
        <translation>No browser could be started. The page is at %1</translation>
    </message>
    <message>
        <source>程序里没有 %1 的许可证，请重新安装</source>
        <translation>The program lacks the licence %1. Please install it again.</translation>
    </message>
</context>
<context>
    <name>HelpPage</name>
    <message>
        <source>zh-CN</source>
        <extracomment>The tag of the language that this catalogue is in, such as en-US.</extracomment>
        <translation>en-GB</translation>
    </message>
    <message>
        <source>这组键同时做几件事，可在设置里改</source>
        <translation>These keys do several things at once; change them in the settings</translation>
    </message>
    <message>
        <source>脚本也能使用画笔，%1 列出全部选项。</source>
        <translation>Scripts can use the pen, too: %1 lists every option.</translation>
    </message>
    <message>
        <source>Dravelin 帮助</source>
        <translation>Dravelin help</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>热键，随处可用</source>
        <translation>Keys that work anywhere</translation>
    </message>
    <message>
        <source>绘制时</source>
        <translation>While drawing</translation>
    </message>
    <message>
        <source>命令行</source>
        <translation>Command line</translation>
    </message>
    <message>
        <source>屏幕上的画笔：所有工具和热键</source>
        <translation>A pen for your whole screen: all tools and keys</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>按住拖动，或用方向键移动</source>
        <translation>Hold and drag, or use the arrow keys</translation>
    </message>
    <message>
        <source>只留下这两个按钮，再次点击展开</source>
        <translation>Leaves only these two buttons; click again to unfold</translation>
    </message>
    <message>
        <source>画笔与鼠标</source>
        <translation>Pen and mouse</translation>
    </message>
    <message>
        <source>开始绘制，或把鼠标还给桌面；标记会保留</source>
        <translation>Draw, or give the desktop its pointer back; marks stay</translation>
    </message>
    <message>
        <source>书写</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>按住并拖动；文字在点击处输入</source>
        <translation>Hold and drag; text goes where you click</translation>
    </message>
    <message>
        <source>形状</source>
        <translation>Shapes</translation>
    </message>
    <message>
        <source>从一角拖到另一角；每点一下，编号加一</source>
        <translation>Drag from end to end; each click places the next number</translation>
    </message>
    <message>
        <source>划过的标记整个擦除；再次点击结束</source>
        <translation>Erases every mark it touches; click again to end</translation>
    </message>
    <message>
        <source>撤销与恢复</source>
        <translation>Undo and redo</translation>
    </message>
    <message>
        <source>点击执行按钮上显示的一步</source>
        <translation>A click does what the button shows</translation>
    </message>
    <message>
        <source>删除所有标记和背景图片，无法撤销</source>
        <translation>Removes all marks and the picture; cannot be undone</translation>
    </message>
    <message>
        <source>标记后面的底色或图片</source>
        <translation>Colour or picture behind the marks</translation>
    </message>
    <message>
        <source>选一个区域，存为图片并复制到剪贴板</source>
        <translation>Choose a region; it is saved and copied to the clipboard</translation>
    </message>
    <message>
        <source>选区域和声音，录成视频；再次点击停止</source>
        <translation>Choose region and sound, record a video; click again to stop</translation>
    </message>
    <message>
        <source>之后所画标记的颜色</source>
        <translation>Colour of what you draw from now on</translation>
    </message>
    <message>
        <source>之后所画标记的粗细</source>
        <translation>Width of what you draw from now on</translation>
    </message>
    <message>
        <source>每隔一段时间，最早的一笔淡出</source>
        <translation>The oldest mark fades away, one at a time</translation>
    </message>
    <message>
        <source>最新的一笔忽明忽暗，引人注意</source>
        <translation>The newest mark pulses to draw the eye</translation>
    </message>
    <message>
        <source>语言、热键和保存文件夹在设置里</source>
        <translation>Language, keys and folder are in the setup</translation>
    </message>
    <message>
        <source>Shift+拖动</source>
        <translation>Shift+drag</translation>
    </message>
    <message>
        <source>直线沿 45° 方向，矩形成正方形</source>
        <translation>Lines in steps of 45°, rectangles square</translation>
    </message>
    <message>
        <source>单击标记</source>
        <translation>Click a mark</translation>
    </message>
    <message>
        <source>选中它：拖动以移动，拉手柄以缩放</source>
        <translation>Selects it: drag to move, pull a handle to scale</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>Right click</translation>
    </message>
    <message>
        <source>删除指针下的标记</source>
        <translation>Deletes the mark under the pointer</translation>
    </message>
    <message>
        <source>取消选中，或放弃正在输入的文字</source>
        <translation>Deselects, or drops the text you are typing</translation>
    </message>
    <message>
        <source>单击别处</source>
        <translation>Click elsewhere</translation>
    </message>
    <message>
        <source>完成正在输入的文字</source>
        <translation>Finishes the text you are typing</translation>
    </message>
    <message>
        <source>Ctrl+滚轮</source>
        <translation>Ctrl+wheel</translation>
    </message>
    <message>
        <source>缩放文字或背景图片</source>
        <translation>Scales text or the background picture</translation>
    </message>
    <message>
        <source>Ctrl+拖动</source>
        <translation>Ctrl+drag</translation>
    </message>
    <message>
        <source>移动背景图片</source>
        <translation>Moves the background picture</translation>
    </message>
    <message>
        <source>把画面存为图片</source>
        <translation>Saves the drawing as a picture</translation>
    </message>
</context>
<context>
    <name>HotkeyPicker</name>
    <message>
        <source>按下键盘用于改变热键</source>
        <translation>Press the new keys</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>重制</source>
        <translation>Reset</translation>
    </message>
</context>
<context>
    <name>LanguageChoice</name>
    <message>
        <source>语言设置</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Apply</translation>
    </message>
</context>
<context>
    <name>OverlayDialogs</name>
    <message>
        <source>请选择一个文件</source>
        <translation>Choose a file</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>OverlayWindow</name>
    <message>
        <source>图片已保存</source>
        <translation>Picture saved</translation>
    </message>
    <message>
        <source>图片未能保存</source>
        <translation>The picture could not be saved</translation>
    </message>
    <message>
        <source>绘制窗口</source>
        <translation>Drawing window</translation>
    </message>
    <message>
        <source>桌面没有运行合成器：您将在静止的屏幕画面上绘制</source>
        <translation>No compositor is running: you draw on a still picture of the screen</translation>
    </message>
    <message>
        <source>Ctrl+鼠标滚轮:缩放图片</source>
        <translation>Ctrl+wheel: scale the picture</translation>
    </message>
    <message>
        <source>Ctrl+鼠标移动:拖动图片</source>
        <translation>Ctrl+drag: move the picture</translation>
    </message>
    <message>
        <source>无法打开图片</source>
        <translation>The picture cannot be opened</translation>
    </message>
    <message>
        <source>创建文本输入框失败，请确认TextEditBox.qml文件存在</source>
        <translation>The text editor could not be created. Make sure that TextEditBox.qml exists.</translation>
    </message>
</context>
<context>
    <name>PaletteButton</name>
    <message>
        <source>按左右方向键打开选项</source>
        <translation>Press Left or Right to open the choices</translation>
    </message>
</context>
<context>
    <name>PaletteHotkeys</name>
    <message>
        <source>截屏</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>确认变换</source>
        <translation>Confirm the change</translation>
    </message>
    <message>
        <source>橡皮擦</source>
        <translation>Eraser</translation>
    </message>
    <message>
        <source>画笔</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>退出绘制模式</source>
        <translation>Leave drawing mode</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>清除画布</source>
        <translation>Clear the canvas</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>直线模式</source>
        <translation>Line mode</translation>
    </message>
    <message>
        <source>圆形模式</source>
        <translation>Circle mode</translation>
    </message>
    <message>
        <source>矩形模式</source>
        <translation>Rectangle mode</translation>
    </message>
    <message>
        <source>箭头模式</source>
        <translation>Arrow mode</translation>
    </message>
</context>
<context>
    <name>PaletteSheet</name>
    <message>
        <source>展开</source>
        <translation>Expand</translation>
    </message>
    <message>
        <source>收起</source>
        <translation>Collapse</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>画笔</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>橡皮擦</source>
        <translation>Eraser</translation>
    </message>
    <message>
        <source>清除画布</source>
        <translation>Clear the canvas</translation>
    </message>
    <message>
        <source>画板</source>
        <translation>Board</translation>
    </message>
    <message>
        <source>截屏</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>录屏</source>
        <translation>Record the screen</translation>
    </message>
    <message>
        <source>停止录屏</source>
        <translation>Stop recording</translation>
    </message>
    <message>
        <source>画笔颜色</source>
        <translation>Pen colour</translation>
    </message>
    <message>
        <source>画笔粗细</source>
        <translation>Pen thickness</translation>
    </message>
    <message>
        <source>自动消失</source>
        <translation>Fade out</translation>
    </message>
    <message>
        <source>呼吸效果</source>
        <translation>Breathing effect</translation>
    </message>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>PaletteWindows</name>
    <message>
        <source>帮助无法打开</source>
        <translation>Help cannot be opened</translation>
    </message>
    <message>
        <source>许可证无法打开</source>
        <translation>The licence cannot be opened</translation>
    </message>
</context>
<context>
    <name>PenColorDialog</name>
    <message>
        <source>画笔颜色</source>
        <translation>Pen colour</translation>
    </message>
    <message>
        <source>颜色代码</source>
        <translation>Colour code</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>查找位置：</source>
        <translation>Look in:</translation>
    </message>
    <message>
        <source>文件名：</source>
        <translation>File name:</translation>
    </message>
    <message>
        <source>文件类型：</source>
        <translation>File type:</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>画布上没有内容，无需保存</source>
        <translation>There is nothing on the canvas to save.</translation>
    </message>
    <message>
        <source>无法写入 %1：%2</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>不支持“%1”格式，请用 .png 或 .jpg</source>
        <translation>The format “%1” is not supported; use .png or .jpg.</translation>
    </message>
    <message>
        <source>程序文件夹不可写入，也找不到用户文件夹 (HOME)</source>
        <translation>The program&apos;s folder cannot be written, and there is no home folder (HOME).</translation>
    </message>
</context>
<context>
    <name>RecorderMessages</name>
    <message>
        <source>选择的区域太小，请重新选择</source>
        <translation>The region is too small. Select a larger one</translation>
    </message>
    <message>
        <source>找不到可以录制的屏幕</source>
        <translation>There is no screen that can be recorded</translation>
    </message>
    <message>
        <source>无法写入录像文件，请在设置中另选文件夹</source>
        <translation>The video cannot be written. Choose another folder in the settings</translation>
    </message>
    <message>
        <source>录制时间太短，没有内容</source>
        <translation>The recording was too short to hold anything</translation>
    </message>
    <message>
        <source>无法创建文件夹 %1，请在设置中另选一个</source>
        <translation>The folder %1 cannot be created. Choose another one in the settings</translation>
    </message>
    <message>
        <source>没有声音</source>
        <translation>no sound</translation>
    </message>
    <message>
        <source>没有麦克风</source>
        <translation>no microphone</translation>
    </message>
    <message>
        <source>没有系统声音</source>
        <translation>no system sound</translation>
    </message>
    <message>
        <source>无法启动录制程序，请重新安装本程序</source>
        <translation>The recorder cannot be started. Install this program again</translation>
    </message>
    <message>
        <source>录制程序意外结束</source>
        <translation>The recorder ended unexpectedly</translation>
    </message>
    <message>
        <source>录制程序意外结束，没有录下内容，请重新录制</source>
        <translation>The recorder ended unexpectedly before anything was recorded. Record again</translation>
    </message>
    <message>
        <source>已录制的部分没有丢失</source>
        <translation>What was recorded is saved</translation>
    </message>
    <message>
        <source>没有找到 FFmpeg。请安装软件包 ffmpeg，或把它所在的文件夹加入 PATH，然后再录制</source>
        <translation>FFmpeg was not found. Install the package ffmpeg, or add its folder to the PATH, then record again</translation>
    </message>
    <message>
        <source>这个 FFmpeg 不能编码 H.264 视频，请安装完整的 FFmpeg</source>
        <translation>This FFmpeg cannot encode H.264 video. Install a complete FFmpeg</translation>
    </message>
    <message>
        <source>FFmpeg 没有按时结束，录像可能缺少最后一刻</source>
        <translation>FFmpeg did not finish in time. The last moment of the video may be missing</translation>
    </message>
    <message>
        <source>FFmpeg 意外结束，请重新录制</source>
        <translation>FFmpeg ended unexpectedly. Record again</translation>
    </message>
    <message>
        <source>FFmpeg 出错，录制中断。它的说明：%1</source>
        <translation>FFmpeg stopped with an error. It says: %1</translation>
    </message>
    <message>
        <source>磁盘已满，请清理后再录制</source>
        <translation>The disk is full. Free some space before you record again</translation>
    </message>
    <message>
        <source>录制程序出错，请重新安装本程序。它的说明：%1</source>
        <translation>The recorder failed. Install this program again. It says: %1</translation>
    </message>
    <message>
        <source>无</source>
        <translation>nothing</translation>
    </message>
</context>
<context>
    <name>RecordingIndicator</name>
    <message>
        <source>● 录制中</source>
        <translation>● Recording</translation>
    </message>
</context>
<context>
    <name>Remote</name>
    <message>
        <source>命令没有在规定时间内完成</source>
        <translation>The command was not finished in time</translation>
    </message>
</context>
<context>
    <name>RemoteControl</name>
    <message>
        <source>无法打开绘制窗口</source>
        <translation>The drawing window cannot be opened</translation>
    </message>
    <message>
        <source>没有可以撤销的操作</source>
        <translation>There is nothing to take back</translation>
    </message>
    <message>
        <source>没有可以恢复的操作</source>
        <translation>There is nothing to do again</translation>
    </message>
    <message>
        <source>画布上没有标记，没有保存图片</source>
        <translation>There are no marks; no picture was saved</translation>
    </message>
    <message>
        <source>无法打开设置窗口</source>
        <translation>The settings cannot be opened</translation>
    </message>
    <message>
        <source>已经在录制</source>
        <translation>A recording is running already</translation>
    </message>
    <message>
        <source>没有正在进行的录制</source>
        <translation>No recording is running</translation>
    </message>
    <message>
        <source>录制没有开始</source>
        <translation>The recording did not start</translation>
    </message>
    <message>
        <source>没有录制到内容</source>
        <translation>Nothing was recorded</translation>
    </message>
</context>
<context>
    <name>ScreenCapture</name>
    <message>
        <source>没有设置截图文件夹，请在设置中选择</source>
        <translation>No screenshot folder is set. Choose one in the settings.</translation>
    </message>
    <message>
        <source>无法创建截图文件夹 %1，请在设置中另选一个</source>
        <translation>The screenshot folder %1 cannot be created. Choose another one in the settings.</translation>
    </message>
    <message>
        <source>找不到显示器，无法截图</source>
        <translation>No screenshot: there is no screen.</translation>
    </message>
    <message>
        <source>截图无法保存到 %1，请检查文件夹权限和磁盘空间</source>
        <translation>The screenshot could not be saved in %1. Check the folder&apos;s permissions and the free disk space.</translation>
    </message>
    <message>
        <source>选择的区域太小，请重新选择</source>
        <translation>The selected area is too small. Select another one.</translation>
    </message>
    <message>
        <source>选择的区域超出主屏幕，请重新选择</source>
        <translation>The selected area reaches beyond the primary screen. Select another one.</translation>
    </message>
    <message>
        <source>系统不允许读取屏幕，无法截图</source>
        <translation>No screenshot: the system does not let programs read the screen.</translation>
    </message>
    <message>
        <source>截图无法保存到 %1：%2</source>
        <translation>The screenshot cannot be saved to %1: %2</translation>
    </message>
    <message>
        <source>不支持“%1”格式，请用 .png 或 .jpg</source>
        <translation>The format “%1” is not supported; use .png or .jpg.</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>截图</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>打开目录</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Done</translation>
    </message>
</context>
<context>
    <name>SelectionFrame</name>
    <message>
        <source>按ESC键隐藏控制点</source>
        <translation>Press Esc to hide the handles</translation>
    </message>
    <message>
        <source>拖动可移动元素</source>
        <translation>Drag to move the mark</translation>
    </message>
</context>
<context>
    <name>SettingsClazz</name>
    <message>
        <source>选择保存目录</source>
        <translation>Choose the folder for screenshots</translation>
    </message>
    <message>
        <source>无法写入 %1，请检查磁盘空间和文件夹的权限</source>
        <translation>%1 cannot be written. Check the disk space and the folder&apos;s permissions.</translation>
    </message>
</context>
<context>
    <name>TextEditBox</name>
    <message>
        <source>Ctrl+滚轮调整字体|Ctrl+Enter换行|ESC:取消</source>
        <translation>Ctrl+wheel: font size | Ctrl+Enter: new line | Esc: cancel</translation>
    </message>
</context>
<context>
    <name>ToolController</name>
    <message>
        <source>Shit+绘制:绘制90°,45°,180°直线</source>
        <translation>Shift+draw: lines at 90°, 45° and 180°</translation>
    </message>
    <message>
        <source>Shit+绘制:绘制正方形</source>
        <translation>Shift+draw: a square</translation>
    </message>
</context>
<context>
    <name>ToolNames</name>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Setup</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>画笔</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>荧光笔</source>
        <translation>Highlighter</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>圆形</source>
        <translation>Circle</translation>
    </message>
    <message>
        <source>箭头</source>
        <translation>Arrow</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>编号</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>透明画板</source>
        <translation>See-through board</translation>
    </message>
    <message>
        <source>白板</source>
        <translation>Whiteboard</translation>
    </message>
    <message>
        <source>黑板</source>
        <translation>Blackboard</translation>
    </message>
    <message>
        <source>图片背景</source>
        <translation>Picture background</translation>
    </message>
    <message>
        <source>细</source>
        <translation>Thin</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>粗</source>
        <translation>Thick</translation>
    </message>
    <message>
        <source>特粗</source>
        <translation>Extra thick</translation>
    </message>
    <message>
        <source>不自动消失</source>
        <translation>Marks stay</translation>
    </message>
    <message>
        <source>不呼吸</source>
        <translation>No breathing</translation>
    </message>
    <message>
        <source>每 %1 秒消失一笔</source>
        <translation>One mark fades every %1 s</translation>
    </message>
    <message>
        <source>呼吸 %1 秒</source>
        <translation>Breathe for %1 s</translation>
    </message>
</context>
<context>
    <name>UpdateDownloader</name>
    <message>
        <source>“%1”的下载地址不安全：只允许 HTTPS。</source>
        <translation>The download address of “%1” is not safe: only HTTPS is allowed.</translation>
    </message>
    <message>
        <source>“%1”过大。</source>
        <translation>“%1” is too large.</translation>
    </message>
    <message>
        <source>“%1”下载失败：%2</source>
        <translation>“%1” could not be downloaded: %2</translation>
    </message>
    <message>
        <source>“%1”与校验值不符，已丢弃。</source>
        <translation>“%1” does not match its checksum and was discarded.</translation>
    </message>
    <message>
        <source>找不到更新程序“%1”。</source>
        <translation>The updater “%1” is missing.</translation>
    </message>
    <message>
        <source>更新程序“%1”无法运行。</source>
        <translation>The updater “%1” cannot be run.</translation>
    </message>
    <message>
        <source>下载时间过长。</source>
        <translation>The download took too long.</translation>
    </message>
    <message>
        <source>本程序由系统的软件包管理器安装，请用它来更新。</source>
        <translation>This program was installed by the system&apos;s package manager. Update it there.</translation>
    </message>
    <message>
        <source>程序文件夹 %1 不可写入，无法更新。请用有写入权限的账户运行本程序。</source>
        <translation>The program&apos;s folder %1 cannot be written, so there can be no update. Run the program with an account that may write there.</translation>
    </message>
    <message>
        <source>无法写入“%1”：%2。</source>
        <translation>“%1” cannot be written: %2.</translation>
    </message>
</context>
<context>
    <name>UpdateInstaller</name>
    <message>
        <source>%1。已替换的文件无法恢复，请重新安装本程序。</source>
        <translation>%1. Files that were replaced cannot be put back: install the program again.</translation>
    </message>
    <message>
        <source>%1。没有更改任何文件。</source>
        <translation>%1. No file was changed.</translation>
    </message>
    <message>
        <source>无法安装“%1”：%2</source>
        <translation>“%1” cannot be installed: %2</translation>
    </message>
    <message>
        <source>这个位置上已有一个文件夹</source>
        <translation>there is a folder in its place</translation>
    </message>
    <message>
        <source>“%1”不是文件夹</source>
        <translation>“%1” is not a folder</translation>
    </message>
    <message>
        <source>它会离开程序文件夹</source>
        <translation>it would leave the program&apos;s folder</translation>
    </message>
    <message>
        <source>无法设置文件权限</source>
        <translation>its permissions cannot be set</translation>
    </message>
    <message>
        <source>无法写入程序文件夹：%1</source>
        <translation>The program&apos;s folder cannot be written: %1</translation>
    </message>
    <message>
        <source>无法写入程序文件夹</source>
        <translation>The program&apos;s folder cannot be written</translation>
    </message>
    <message>
        <source>另一个正在运行的本程序也在更新。</source>
        <translation>Another running copy of this program is updating, too.</translation>
    </message>
    <message>
        <source>无法写入程序文件夹 %1。</source>
        <translation>The program&apos;s folder %1 cannot be written.</translation>
    </message>
    <message>
        <source>上一次更新没有完成，也无法恢复。请重新安装本程序。</source>
        <translation>The last update did not come to its end and cannot be taken back. Install the program again.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>软件更新</source>
        <translation>Software update</translation>
    </message>
    <message>
        <source>发现新版本 %1</source>
        <translation>Version %1 is available</translation>
    </message>
    <message>
        <source>当前版本 %1</source>
        <translation>You have version %1</translation>
    </message>
    <message>
        <source>正在安装…</source>
        <translation>Installing…</translation>
    </message>
    <message>
        <source>正在下载… %1%</source>
        <translation>Downloading… %1%</translation>
    </message>
    <message>
        <source>已取消下载，没有更改任何文件。</source>
        <translation>The download was cancelled. No file was changed.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>以后再说</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>Update now</translation>
    </message>
    <message>
        <source>知道了</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>更新服务没有提供任何文件。</source>
        <translation>The update service offered no files.</translation>
    </message>
    <message>
        <source>文件名“%1”不允许使用：它会离开程序文件夹。</source>
        <translation>The file name “%1” is not allowed: it leads out of the program&apos;s folder.</translation>
    </message>
    <message>
        <source>“%1”的下载地址不安全：只允许 HTTPS。</source>
        <translation>The download address of “%1” is not safe: only HTTPS is allowed.</translation>
    </message>
    <message>
        <source>“%1”没有有效的 SHA-256 校验值。</source>
        <translation>“%1” has no valid SHA-256 checksum.</translation>
    </message>
    <message>
        <source>文件名“%1”不允许使用：它由更新程序自己使用。</source>
        <translation>The file name “%1” is not allowed: the update itself uses it.</translation>
    </message>
    <message>
        <source>“%1”的大小无效。</source>
        <translation>The size of “%1” makes no sense.</translation>
    </message>
    <message>
        <source>更新过大。</source>
        <translation>The update is too large.</translation>
    </message>
    <message>
        <source>更新中“%1”出现了两次。</source>
        <translation>“%1” is in the update twice.</translation>
    </message>
</context>
<context>
    <name>VideoShot</name>
    <message>
        <source>麦克风+系统</source>
        <translation>Mic + system</translation>
    </message>
    <message>
        <source>仅系统音频</source>
        <translation>System only</translation>
    </message>
    <message>
        <source>仅麦克风</source>
        <translation>Mic only</translation>
    </message>
    <message>
        <source>关闭音频</source>
        <translation>No sound</translation>
    </message>
    <message>
        <source>录制失败</source>
        <translation>Recording failed</translation>
    </message>
    <message>
        <source>录像已保存</source>
        <translation>Video saved</translation>
    </message>
    <message>
        <source>录屏</source>
        <translation>Screen recording</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>Record</translation>
    </message>
</context>
<context>
    <name>Visitor</name>
    <message>
        <source>正在运行的程序不认识这个命令。请退出后重新启动它</source>
        <translation>The running program does not know this command. Please quit it and start it again</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>这不是一个文件</source>
        <translation>This is not a file</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>显示</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>桌面没有系统托盘，程序无法运行。请启用面板的通知区域，或用 --without-tray 启动。</source>
        <translation>This desktop has no system tray, so Dravelin cannot run. Turn on the notification area of your panel, or start it with --without-tray.</translation>
    </message>
    <message>
        <source>上一次更新没有完成，也无法恢复。请重新安装本程序。</source>
        <translation>The last update did not come to its end and cannot be taken back. Install the program again.</translation>
    </message>
</context>
<context>
    <name>painter</name>
    <message>
        <source>主窗口</source>
        <translation>Main window</translation>
    </message>
</context>
<context>
    <name>select</name>
    <message>
        <source>选项</source>
        <translation>Choices</translation>
    </message>
</context>
<context>
    <name>settings</name>
    <message>
        <source>截屏热键</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>画笔热键</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>关闭画笔</source>
        <translation>Stop drawing</translation>
    </message>
    <message>
        <source>橡皮擦</source>
        <translation>Eraser</translation>
    </message>
    <message>
        <source>添加文字</source>
        <translation>Add text</translation>
    </message>
    <message>
        <source>清除绘制</source>
        <translation>Clear drawing</translation>
    </message>
    <message>
        <source>直线绘制</source>
        <translation>Draw lines</translation>
    </message>
    <message>
        <source>圆形绘制</source>
        <translation>Draw circles</translation>
    </message>
    <message>
        <source>设置无法保存</source>
        <translation>The setting cannot be saved</translation>
    </message>
    <message>
        <source>选择的语言无效</source>
        <translation>The language is not valid</translation>
    </message>
    <message>
        <source>语言切换失败</source>
        <translation>The language cannot be changed</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
</context>
</TS>
