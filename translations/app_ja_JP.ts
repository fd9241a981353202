<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="zh_CN">
<context>
    <name>PictureExport</name>
    <message>
        <source>画布上没有内容，无需保存</source>
        <translation>キャンバスに保存する内容がありません。</translation>
    </message>
    <message>
        <source>无法写入 %1：%2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>ScreenCapture</name>
    <message>
        <source>没有设置截图文件夹，请在设置中选择</source>
        <translation>スクリーンショットの保存先が設定されていません。設定で選択してください。</translation>
    </message>
    <message>
        <source>无法创建截图文件夹 %1，请在设置中另选一个</source>
        <translation>スクリーンショットの保存先 %1 を作成できません。設定で別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>找不到显示器，无法截图</source>
        <translation>画面が見つからないため、スクリーンショットを撮れません。</translation>
    </message>
    <message>
        <source>截图无法保存到 %1，请检查文件夹权限和磁盘空间</source>
        <translation>スクリーンショットを %1 に保存できません。フォルダーの権限とディスクの空き容量を確認してください。</translation>
    </message>
    <message>
        <source>选择的区域太小，请重新选择</source>
        <translation>選択範囲が小さすぎます。選択し直してください。</translation>
    </message>
    <message>
        <source>选择的区域超出主屏幕，请重新选择</source>
        <translation>選択範囲がメイン画面からはみ出しています。選択し直してください。</translation>
    </message>
    <message>
        <source>系统不允许读取屏幕，无法截图</source>
        <translation>システムが画面の読み取りを許可していないため、スクリーンショットを撮れません。</translation>
    </message>
</context>
<context>
    <name>SettingsClazz</name>
    <message>
        <source>选择保存目录</source>
        <translation>保存先フォルダーの選択</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>显示</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>桌面没有系统托盘，程序无法运行。请启用面板的通知区域后重试。</source>
        <translation>デスクトップにシステムトレイがないため、実行できません。パネルの通知領域を有効にしてから、もう一度起動してください。</translation>
    </message>
</context>
<context>
    <name>painter</name>
    <message>
        <source>主窗口</source>
        <translation>メインウィンドウ</translation>
    </message>
</context>
</TS>
