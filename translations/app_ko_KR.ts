<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
<context>
    <name>PictureExport</name>
    <message>
        <source>画布上没有内容，无需保存</source>
        <translation>캔버스에 저장할 내용이 없습니다.</translation>
    </message>
    <message>
        <source>无法写入 %1：%2</source>
        <translation>%1 에 쓸 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>ScreenCapture</name>
    <message>
        <source>没有设置截图文件夹，请在设置中选择</source>
        <translation>스크린샷 폴더가 지정되지 않았습니다. 설정에서 선택하세요.</translation>
    </message>
    <message>
        <source>无法创建截图文件夹 %1，请在设置中另选一个</source>
        <translation>스크린샷 폴더 %1 을(를) 만들 수 없습니다. 설정에서 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>找不到显示器，无法截图</source>
        <translation>화면을 찾을 수 없어 스크린샷을 찍지 못했습니다.</translation>
    </message>
    <message>
        <source>截图无法保存到 %1，请检查文件夹权限和磁盘空间</source>
        <translation>스크린샷을 %1 에 저장할 수 없습니다. 폴더 권한과 디스크 여유 공간을 확인하세요.</translation>
    </message>
    <message>
        <source>选择的区域太小，请重新选择</source>
        <translation>선택한 영역이 너무 작습니다. 다시 선택하세요.</translation>
    </message>
    <message>
        <source>选择的区域超出主屏幕，请重新选择</source>
        <translation>선택한 영역이 주 화면을 벗어났습니다. 다시 선택하세요.</translation>
    </message>
    <message>
        <source>系统不允许读取屏幕，无法截图</source>
        <translation>시스템에서 화면 읽기를 허용하지 않아 스크린샷을 찍지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>SettingsClazz</name>
    <message>
        <source>选择保存目录</source>
        <translation>저장 폴더 선택</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>显示</source>
        <translation>보이기</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>숨기기</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>桌面没有系统托盘，程序无法运行。请启用面板的通知区域后重试。</source>
        <translation>데스크톱에 시스템 트레이가 없어 실행할 수 없습니다. 패널의 알림 영역을 켠 뒤 다시 실행하세요.</translation>
    </message>
</context>
<context>
    <name>painter</name>
    <message>
        <source>主窗口</source>
        <translation>기본 창</translation>
    </message>
</context>
</TS>
