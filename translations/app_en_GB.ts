<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="zh_CN">
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
</context>
<context>
    <name>SettingsClazz</name>
    <message>
        <source>选择保存目录</source>
        <translation>Choose the folder for screenshots</translation>
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
        <source>桌面没有系统托盘，程序无法运行。请启用面板的通知区域后重试。</source>
        <translation>This desktop has no system tray, so Dravelin cannot run. Turn on the notification area of your panel and start it again.</translation>
    </message>
</context>
<context>
    <name>painter</name>
    <message>
        <source>主窗口</source>
        <translation>Main window</translation>
    </message>
</context>
</TS>
