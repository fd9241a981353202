<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="zh_CN">
<context>
    <name>PictureExport</name>
    <message>
        <source>画布上没有内容，无需保存</source>
        <translation>画布上没有内容，无需保存</translation>
    </message>
    <message>
        <source>无法写入 %1：%2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>ScreenCapture</name>
    <message>
        <source>没有设置截图文件夹，请在设置中选择</source>
        <translation>没有设置截图文件夹，请在设置中选择</translation>
    </message>
    <message>
        <source>无法创建截图文件夹 %1，请在设置中另选一个</source>
        <translation>无法创建截图文件夹 %1，请在设置中另选一个</translation>
    </message>
    <message>
        <source>找不到显示器，无法截图</source>
        <translation>找不到显示器，无法截图</translation>
    </message>
    <message>
        <source>截图无法保存到 %1，请检查文件夹权限和磁盘空间</source>
        <translation>截图无法保存到 %1，请检查文件夹权限和磁盘空间</translation>
    </message>
    <message>
        <source>选择的区域太小，请重新选择</source>
        <translation>选择的区域太小，请重新选择</translation>
    </message>
    <message>
        <source>选择的区域超出主屏幕，请重新选择</source>
        <translation>选择的区域超出主屏幕，请重新选择</translation>
    </message>
    <message>
        <source>系统不允许读取屏幕，无法截图</source>
        <translation>系统不允许读取屏幕，无法截图</translation>
    </message>
</context>
<context>
    <name>SettingsClazz</name>
    <message>
        <source>选择保存目录</source>
        <translation>选择保存目录</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>显示</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>桌面没有系统托盘，程序无法运行。请启用面板的通知区域后重试。</source>
        <translation>桌面没有系统托盘，程序无法运行。请启用面板的通知区域后重试。</translation>
    </message>
</context>
<context>
    <name>painter</name>
    <message>
        <source>主窗口</source>
        <translation>主窗口</translation>
    </message>
</context>
</TS>
