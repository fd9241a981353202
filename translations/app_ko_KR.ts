<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
<context>
    <name>AboutWindow</name>
    <message>
        <source>关于</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>版本 %1 · 界面 %2</source>
        <translation>버전 %1 · 화면 %2</translation>
    </message>
    <message>
        <source>第三方组件及许可</source>
        <translation>타사 구성 요소 및 라이선스</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>도움말</translation>
    </message>
</context>
<context>
    <name>CaptureNotice</name>
    <message>
        <source>打开文件夹</source>
        <translation>폴더 열기</translation>
    </message>
</context>
<context>
    <name>CaptureOutcome</name>
    <message>
        <source>截图失败</source>
        <translation>스크린샷 실패</translation>
    </message>
    <message>
        <source>截图已保存</source>
        <translation>스크린샷이 저장되었습니다</translation>
    </message>
</context>
<context>
    <name>CloseButton</name>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>CommandClient</name>
    <message>
        <source>正在运行的程序没有回应。请退出后重新启动它</source>
        <translation>실행 중인 프로그램이 응답하지 않습니다. 종료한 뒤 다시 시작하세요</translation>
    </message>
    <message>
        <source>程序没有运行，这里也没有可以显示它的桌面。请先在桌面上启动它</source>
        <translation>프로그램이 실행 중이 아니며 여기에는 표시할 데스크톱이 없습니다. 먼저 데스크톱에서 시작하세요</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>开始绘制</source>
        <translation>그리기 시작</translation>
    </message>
    <message>
        <source>停止绘制，把鼠标还给桌面</source>
        <translation>그리기를 멈추고 포인터를 바탕 화면에 돌려주기</translation>
    </message>
    <message>
        <source>在绘制和鼠标之间切换</source>
        <translation>그리기와 포인터 전환</translation>
    </message>
    <message>
        <source>用画笔绘制</source>
        <translation>펜으로 그리기</translation>
    </message>
    <message>
        <source>用荧光笔绘制</source>
        <translation>형광펜으로 그리기</translation>
    </message>
    <message>
        <source>在点击处输入文字</source>
        <translation>클릭한 곳에 글자 입력</translation>
    </message>
    <message>
        <source>绘制直线</source>
        <translation>직선 그리기</translation>
    </message>
    <message>
        <source>绘制圆形</source>
        <translation>원 그리기</translation>
    </message>
    <message>
        <source>绘制矩形</source>
        <translation>사각형 그리기</translation>
    </message>
    <message>
        <source>绘制箭头</source>
        <translation>화살표 그리기</translation>
    </message>
    <message>
        <source>放置编号</source>
        <translation>번호 놓기</translation>
    </message>
    <message>
        <source>使用橡皮擦</source>
        <translation>지우개 사용</translation>
    </message>
    <message>
        <source>撤销上一步</source>
        <translation>마지막 작업 취소</translation>
    </message>
    <message>
        <source>恢复撤销的一步</source>
        <translation>취소한 작업 다시 하기</translation>
    </message>
    <message>
        <source>清除所有标记</source>
        <translation>모든 표시 지우기</translation>
    </message>
    <message>
        <source>隐藏标记，不会丢失；再次绘制时重新显示</source>
        <translation>표시를 잃지 않고 숨기기; 다시 그리면 나타남</translation>
    </message>
    <message>
        <source>显示标记</source>
        <translation>표시 보이기</translation>
    </message>
    <message>
        <source>截取整个屏幕，保存到指定文件或截图文件夹，并输出文件路径</source>
        <translation>전체 화면을 지정한 파일이나 캡처 폴더에 저장하고 경로를 출력</translation>
    </message>
    <message>
        <source>开始录制整个屏幕</source>
        <translation>전체 화면 녹화 시작</translation>
    </message>
    <message>
        <source>结束录制，并输出录像的路径</source>
        <translation>녹화를 끝내고 동영상의 경로를 출력</translation>
    </message>
    <message>
        <source>把标记保存为图片，并输出文件路径</source>
        <translation>표시를 그림으로 저장하고 경로를 출력</translation>
    </message>
    <message>
        <source>打开设置</source>
        <translation>설정 열기</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>프로그램 종료</translation>
    </message>
    <message>
        <source>没有系统托盘也启动；通过面板的菜单退出</source>
        <translation>알림 영역이 없어도 시작; 종료는 팔레트 메뉴에서</translation>
    </message>
    <message>
        <source>显示此说明</source>
        <translation>이 설명 표시</translation>
    </message>
    <message>
        <source>显示版本号</source>
        <translation>버전 표시</translation>
    </message>
    <message>
        <source>%1 后面缺少文件名</source>
        <translation>%1 뒤에 파일 이름이 필요합니다</translation>
    </message>
    <message>
        <source>多余的参数：%1</source>
        <translation>불필요한 인수: %1</translation>
    </message>
    <message>
        <source>无法识别的参数：%1。--help 列出所有参数</source>
        <translation>알 수 없는 인수: %1. --help로 모두 볼 수 있습니다</translation>
    </message>
    <message>
        <source>%1：屏幕标注笔。下列命令交给正在运行的程序依次执行；程序没有运行时先启动它。</source>
        <translation>%1: 화면 전체에 쓰는 펜. 아래 명령은 실행 중인 프로그램이 차례로 수행하며, 실행 중이 아니면 먼저 시작합니다.</translation>
    </message>
</context>
<context>
    <name>CommandStart</name>
    <message>
        <source>程序无法启动（%1）。不带命令启动它可以看到原因</source>
        <translation>프로그램을 시작할 수 없습니다(%1). 명령 없이 시작하면 원인을 볼 수 있습니다</translation>
    </message>
</context>
<context>
    <name>DragHandle</name>
    <message>
        <source>移动工具栏</source>
        <translation>도구 모음 이동</translation>
    </message>
</context>
<context>
    <name>FluInfoBarItem</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>FluShortcutPicker</name>
    <message>
        <source>Conflict</source>
        <translation>충돌</translation>
    </message>
</context>
<context>
    <name>FluTextBox</name>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
</context>
<context>
    <name>FluTextMenu</name>
    <message>
        <source>Cut</source>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
</context>
<context>
    <name>FolderChoice</name>
    <message>
        <source>截图路径</source>
        <translation>저장 폴더</translation>
    </message>
    <message>
        <source>截图保存路径</source>
        <translation>스크린샷 저장 폴더</translation>
    </message>
    <message>
        <source>浏览</source>
        <translation>찾아보기</translation>
    </message>
</context>
<context>
    <name>HelpDesk</name>
    <message>
        <source>页面无法写入用户文件夹，请检查磁盘空间和文件夹权限</source>
        <translation>페이지를 사용자 폴더에 쓸 수 없습니다. 디스크 공간과 폴더 권한을 확인하세요.</translation>
    </message>
    <message>
        <source>系统没有可用的浏览器，页面在 %1</source>
        <translation>사용할 수 있는 브라우저가 없습니다. 페이지 위치: %1</translation>
    </message>
    <message>
        <source>程序里没有 %1 的许可证，请重新安装</source>
        <translation>프로그램에 %1 라이선스가 없습니다. 다시 설치하세요.</translation>
    </message>
</context>
<context>
    <name>HelpPage</name>
    <message>
        <source>zh-CN</source>
        <extracomment>The tag of the language that this catalogue is in, such as en-US.</extracomment>
        <translation>ko-KR</translation>
    </message>
    <message>
        <source>这组键同时做几件事，可在设置里改</source>
        <translation>여러 기능이 함께 동작하는 키입니다. 설정에서 바꿀 수 있습니다</translation>
    </message>
    <message>
        <source>脚本也能使用画笔，%1 列出全部选项。</source>
        <translation>스크립트에서도 쓸 수 있습니다. %1 명령이 모든 옵션을 보여 줍니다.</translation>
    </message>
    <message>
        <source>Dravelin 帮助</source>
        <translation>Dravelin 도움말</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>도구</translation>
    </message>
    <message>
        <source>热键，随处可用</source>
        <translation>어디서나 쓰는 단축키</translation>
    </message>
    <message>
        <source>绘制时</source>
        <translation>그리는 동안</translation>
    </message>
    <message>
        <source>命令行</source>
        <translation>명령줄</translation>
    </message>
    <message>
        <source>屏幕上的画笔：所有工具和热键</source>
        <translation>화면 위의 펜: 모든 도구와 단축키</translation>
    </message>
</context>
<context>
    <name>HelpSheet</name>
    <message>
        <source>%1 秒</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>按住拖动，或用方向键移动</source>
        <translation>누른 채 끌거나 방향키로 옮깁니다</translation>
    </message>
    <message>
        <source>只留下这两个按钮，再次点击展开</source>
        <translation>이 두 단추만 남기고, 다시 누르면 펼칩니다</translation>
    </message>
    <message>
        <source>画笔与鼠标</source>
        <translation>펜과 마우스</translation>
    </message>
    <message>
        <source>开始绘制，或把鼠标还给桌面；标记会保留</source>
        <translation>그리기를 시작하거나 마우스를 바탕 화면에 돌려줍니다. 그린 것은 남습니다</translation>
    </message>
    <message>
        <source>书写</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>按住并拖动；文字在点击处输入</source>
        <translation>누른 채 끌어서 그리고, 텍스트는 누른 자리에 입력합니다</translation>
    </message>
    <message>
        <source>形状</source>
        <translation>도형</translation>
    </message>
    <message>
        <source>从一角拖到另一角；每点一下，编号加一</source>
        <translation>끝에서 끝까지 끌고, 번호는 누를 때마다 하나씩 커집니다</translation>
    </message>
    <message>
        <source>划过的标记整个擦除；再次点击结束</source>
        <translation>닿는 표시를 통째로 지웁니다. 다시 누르면 끝납니다</translation>
    </message>
    <message>
        <source>撤销与恢复</source>
        <translation>실행 취소와 다시 실행</translation>
    </message>
    <message>
        <source>点击执行按钮上显示的一步</source>
        <translation>누르면 단추에 보이는 동작을 합니다</translation>
    </message>
    <message>
        <source>删除所有标记和背景图片，无法撤销</source>
        <translation>모든 표시와 배경 그림을 지웁니다. 되돌릴 수 없습니다</translation>
    </message>
    <message>
        <source>标记后面的底色或图片</source>
        <translation>표시 뒤의 색이나 그림</translation>
    </message>
    <message>
        <source>选一个区域，存为图片并复制到剪贴板</source>
        <translation>영역을 골라 그림으로 저장하고 클립보드에 복사합니다</translation>
    </message>
    <message>
        <source>选区域和声音，录成视频；再次点击停止</source>
        <translation>영역과 소리를 골라 녹화합니다. 다시 누르면 멈춥니다</translation>
    </message>
    <message>
        <source>之后所画标记的颜色</source>
        <translation>앞으로 그릴 것의 색</translation>
    </message>
    <message>
        <source>之后所画标记的粗细</source>
        <translation>앞으로 그릴 것의 굵기</translation>
    </message>
    <message>
        <source>每隔一段时间，最早的一笔淡出</source>
        <translation>일정 시간마다 가장 오래된 것이 사라집니다</translation>
    </message>
    <message>
        <source>最新的一笔忽明忽暗，引人注意</source>
        <translation>가장 새로운 것이 깜박여 눈길을 끕니다</translation>
    </message>
    <message>
        <source>语言、热键和保存文件夹在设置里</source>
        <translation>언어, 단축키, 저장 폴더는 설정에 있습니다</translation>
    </message>
    <message>
        <source>Shift+拖动</source>
        <translation>Shift+끌기</translation>
    </message>
    <message>
        <source>直线沿 45° 方向，矩形成正方形</source>
        <translation>직선은 45° 단위로, 사각형은 정사각형으로</translation>
    </message>
    <message>
        <source>单击标记</source>
        <translation>표시 누르기</translation>
    </message>
    <message>
        <source>选中它：拖动以移动，拉手柄以缩放</source>
        <translation>선택합니다. 끌면 옮기고, 조절점을 당기면 크기가 바뀝니다</translation>
    </message>
    <message>
        <source>右键单击</source>
        <translation>오른쪽 단추</translation>
    </message>
    <message>
        <source>删除指针下的标记</source>
        <translation>포인터 아래의 표시를 지웁니다</translation>
    </message>
    <message>
        <source>取消选中，或放弃正在输入的文字</source>
        <translation>선택을 풀거나 입력 중인 텍스트를 버립니다</translation>
    </message>
    <message>
        <source>单击别处</source>
        <translation>다른 곳 누르기</translation>
    </message>
    <message>
        <source>完成正在输入的文字</source>
        <translation>입력 중인 텍스트를 마칩니다</translation>
    </message>
    <message>
        <source>Ctrl+滚轮</source>
        <translation>Ctrl+휠</translation>
    </message>
    <message>
        <source>缩放文字或背景图片</source>
        <translation>텍스트나 배경 그림의 크기를 바꿉니다</translation>
    </message>
    <message>
        <source>Ctrl+拖动</source>
        <translation>Ctrl+끌기</translation>
    </message>
    <message>
        <source>移动背景图片</source>
        <translation>배경 그림을 옮깁니다</translation>
    </message>
    <message>
        <source>把画面存为图片</source>
        <translation>그린 것을 그림으로 저장합니다</translation>
    </message>
</context>
<context>
    <name>HotkeyPicker</name>
    <message>
        <source>按下键盘用于改变热键</source>
        <translation>새 단축키를 누르세요</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>重制</source>
        <translation>초기화</translation>
    </message>
</context>
<context>
    <name>LanguageChoice</name>
    <message>
        <source>语言设置</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>적용</translation>
    </message>
</context>
<context>
    <name>OverlayDialogs</name>
    <message>
        <source>请选择一个文件</source>
        <translation>파일을 선택하세요</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>OverlayWindow</name>
    <message>
        <source>图片已保存</source>
        <translation>그림을 저장했습니다</translation>
    </message>
    <message>
        <source>图片未能保存</source>
        <translation>그림을 저장하지 못했습니다</translation>
    </message>
    <message>
        <source>绘制窗口</source>
        <translation>그리기 창</translation>
    </message>
    <message>
        <source>桌面没有运行合成器：您将在静止的屏幕画面上绘制</source>
        <translation>컴포지터가 실행되고 있지 않아 정지된 화면 위에 그립니다</translation>
    </message>
    <message>
        <source>Ctrl+鼠标滚轮:缩放图片</source>
        <translation>Ctrl+휠: 그림 크기 조절</translation>
    </message>
    <message>
        <source>Ctrl+鼠标移动:拖动图片</source>
        <translation>Ctrl+끌기: 그림 이동</translation>
    </message>
    <message>
        <source>无法打开图片</source>
        <translation>그림을 열 수 없습니다</translation>
    </message>
    <message>
        <source>创建文本输入框失败，请确认TextEditBox.qml文件存在</source>
        <translation>텍스트 입력란을 만들 수 없습니다. TextEditBox.qml 파일이 있는지 확인하세요.</translation>
    </message>
</context>
<context>
    <name>PaletteButton</name>
    <message>
        <source>按左右方向键打开选项</source>
        <translation>왼쪽/오른쪽 화살표 키로 선택 항목 열기</translation>
    </message>
</context>
<context>
    <name>PaletteHotkeys</name>
    <message>
        <source>截屏</source>
        <translation>스크린샷</translation>
    </message>
    <message>
        <source>确认变换</source>
        <translation>변형 확인</translation>
    </message>
    <message>
        <source>橡皮擦</source>
        <translation>지우개</translation>
    </message>
    <message>
        <source>画笔</source>
        <translation>펜</translation>
    </message>
    <message>
        <source>退出绘制模式</source>
        <translation>그리기 모드 종료</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>清除画布</source>
        <translation>모두 지우기</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>直线模式</source>
        <translation>직선 모드</translation>
    </message>
    <message>
        <source>圆形模式</source>
        <translation>원 모드</translation>
    </message>
    <message>
        <source>矩形模式</source>
        <translation>사각형 모드</translation>
    </message>
    <message>
        <source>箭头模式</source>
        <translation>화살표 모드</translation>
    </message>
</context>
<context>
    <name>PaletteSheet</name>
    <message>
        <source>展开</source>
        <translation>펼치기</translation>
    </message>
    <message>
        <source>收起</source>
        <translation>접기</translation>
    </message>
    <message>
        <source>鼠标</source>
        <translation>마우스</translation>
    </message>
    <message>
        <source>画笔</source>
        <translation>펜</translation>
    </message>
    <message>
        <source>橡皮擦</source>
        <translation>지우개</translation>
    </message>
    <message>
        <source>清除画布</source>
        <translation>모두 지우기</translation>
    </message>
    <message>
        <source>画板</source>
        <translation>보드</translation>
    </message>
    <message>
        <source>截屏</source>
        <translation>스크린샷</translation>
    </message>
    <message>
        <source>录屏</source>
        <translation>화면 녹화</translation>
    </message>
    <message>
        <source>停止录屏</source>
        <translation>녹화 중지</translation>
    </message>
    <message>
        <source>画笔颜色</source>
        <translation>펜 색상</translation>
    </message>
    <message>
        <source>画笔粗细</source>
        <translation>펜 굵기</translation>
    </message>
    <message>
        <source>自动消失</source>
        <translation>자동으로 사라지기</translation>
    </message>
    <message>
        <source>呼吸效果</source>
        <translation>숨쉬기 효과</translation>
    </message>
    <message>
        <source>菜单</source>
        <translation>메뉴</translation>
    </message>
</context>
<context>
    <name>PaletteWindows</name>
    <message>
        <source>帮助无法打开</source>
        <translation>도움말을 열 수 없습니다</translation>
    </message>
    <message>
        <source>许可证无法打开</source>
        <translation>라이선스를 열 수 없습니다</translation>
    </message>
</context>
<context>
    <name>PenColorDialog</name>
    <message>
        <source>画笔颜色</source>
        <translation>펜 색상</translation>
    </message>
    <message>
        <source>颜色代码</source>
        <translation>색상 코드</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>查找位置：</source>
        <translation>찾는 위치:</translation>
    </message>
    <message>
        <source>文件名：</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>文件类型：</source>
        <translation>파일 형식:</translation>
    </message>
</context>
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
    <message>
        <source>不支持“%1”格式，请用 .png 或 .jpg</source>
        <translation>“%1” 형식은 지원하지 않습니다. .png 또는 .jpg를 사용하세요</translation>
    </message>
    <message>
        <source>程序文件夹不可写入，也找不到用户文件夹 (HOME)</source>
        <translation>프로그램 폴더에 쓸 수 없고 홈 폴더(HOME)도 찾을 수 없습니다</translation>
    </message>
</context>
<context>
    <name>RecorderMessages</name>
    <message>
        <source>选择的区域太小，请重新选择</source>
        <translation>영역이 너무 작습니다. 다시 선택하세요</translation>
    </message>
    <message>
        <source>找不到可以录制的屏幕</source>
        <translation>녹화할 수 있는 화면이 없습니다</translation>
    </message>
    <message>
        <source>无法写入录像文件，请在设置中另选文件夹</source>
        <translation>동영상을 쓸 수 없습니다. 설정에서 다른 폴더를 선택하세요</translation>
    </message>
    <message>
        <source>录制时间太短，没有内容</source>
        <translation>녹화 시간이 너무 짧아 내용이 없습니다</translation>
    </message>
    <message>
        <source>无法创建文件夹 %1，请在设置中另选一个</source>
        <translation>폴더 %1을(를) 만들 수 없습니다. 설정에서 다른 폴더를 선택하세요</translation>
    </message>
    <message>
        <source>没有声音</source>
        <translation>소리 없음</translation>
    </message>
    <message>
        <source>没有麦克风</source>
        <translation>마이크 없음</translation>
    </message>
    <message>
        <source>没有系统声音</source>
        <translation>시스템 소리 없음</translation>
    </message>
    <message>
        <source>无法启动录制程序，请重新安装本程序</source>
        <translation>녹화 프로그램을 시작할 수 없습니다. 이 프로그램을 다시 설치하세요</translation>
    </message>
    <message>
        <source>录制程序意外结束</source>
        <translation>녹화 프로그램이 예기치 않게 종료되었습니다</translation>
    </message>
    <message>
        <source>录制程序意外结束，没有录下内容，请重新录制</source>
        <translation>녹화 프로그램이 예기치 않게 종료되어 녹화된 내용이 없습니다. 다시 녹화하세요</translation>
    </message>
    <message>
        <source>已录制的部分没有丢失</source>
        <translation>녹화된 부분은 저장되어 있습니다</translation>
    </message>
    <message>
        <source>没有找到 FFmpeg。请安装软件包 ffmpeg，或把它所在的文件夹加入 PATH，然后再录制</source>
        <translation>FFmpeg를 찾을 수 없습니다. ffmpeg 패키지를 설치하거나 해당 폴더를 PATH에 추가한 후 녹화하세요</translation>
    </message>
    <message>
        <source>这个 FFmpeg 不能编码 H.264 视频，请安装完整的 FFmpeg</source>
        <translation>이 FFmpeg는 H.264 동영상을 인코딩할 수 없습니다. 전체 기능을 갖춘 FFmpeg를 설치하세요</translation>
    </message>
    <message>
        <source>FFmpeg 没有按时结束，录像可能缺少最后一刻</source>
        <translation>FFmpeg가 제시간에 끝나지 않았습니다. 동영상의 마지막 순간이 빠졌을 수 있습니다</translation>
    </message>
    <message>
        <source>FFmpeg 意外结束，请重新录制</source>
        <translation>FFmpeg가 예기치 않게 종료되었습니다. 다시 녹화하세요</translation>
    </message>
    <message>
        <source>FFmpeg 出错，录制中断。它的说明：%1</source>
        <translation>FFmpeg 오류로 녹화가 중단되었습니다. FFmpeg 메시지: %1</translation>
    </message>
    <message>
        <source>磁盘已满，请清理后再录制</source>
        <translation>디스크가 가득 찼습니다. 공간을 확보한 후 다시 녹화하세요</translation>
    </message>
    <message>
        <source>录制程序出错，请重新安装本程序。它的说明：%1</source>
        <translation>녹화 프로그램에서 오류가 발생했습니다. 이 프로그램을 다시 설치하세요. 메시지: %1</translation>
    </message>
    <message>
        <source>无</source>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>RecordingIndicator</name>
    <message>
        <source>● 录制中</source>
        <translation>● 녹화 중</translation>
    </message>
</context>
<context>
    <name>Remote</name>
    <message>
        <source>命令没有在规定时间内完成</source>
        <translation>명령이 제시간에 끝나지 않았습니다</translation>
    </message>
</context>
<context>
    <name>RemoteControl</name>
    <message>
        <source>无法打开绘制窗口</source>
        <translation>그리기 창을 열 수 없습니다</translation>
    </message>
    <message>
        <source>没有可以撤销的操作</source>
        <translation>취소할 작업이 없습니다</translation>
    </message>
    <message>
        <source>没有可以恢复的操作</source>
        <translation>다시 할 작업이 없습니다</translation>
    </message>
    <message>
        <source>画布上没有标记，没有保存图片</source>
        <translation>표시가 없어 그림을 저장하지 않았습니다</translation>
    </message>
    <message>
        <source>无法打开设置窗口</source>
        <translation>설정을 열 수 없습니다</translation>
    </message>
    <message>
        <source>已经在录制</source>
        <translation>이미 녹화 중입니다</translation>
    </message>
    <message>
        <source>没有正在进行的录制</source>
        <translation>진행 중인 녹화가 없습니다</translation>
    </message>
    <message>
        <source>录制没有开始</source>
        <translation>녹화가 시작되지 않았습니다</translation>
    </message>
    <message>
        <source>没有录制到内容</source>
        <translation>녹화된 내용이 없습니다</translation>
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
    <message>
        <source>截图无法保存到 %1：%2</source>
        <translation>스크린샷을 %1에 저장할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>不支持“%1”格式，请用 .png 或 .jpg</source>
        <translation>“%1” 형식은 지원하지 않습니다. .png 또는 .jpg를 사용하세요</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>截图</source>
        <translation>스크린샷</translation>
    </message>
    <message>
        <source>打开目录</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>SelectionFrame</name>
    <message>
        <source>按ESC键隐藏控制点</source>
        <translation>Esc 키로 조절점 숨기기</translation>
    </message>
    <message>
        <source>拖动可移动元素</source>
        <translation>끌어서 이동</translation>
    </message>
</context>
<context>
    <name>SettingsClazz</name>
    <message>
        <source>选择保存目录</source>
        <translation>저장 폴더 선택</translation>
    </message>
    <message>
        <source>无法写入 %1，请检查磁盘空间和文件夹的权限</source>
        <translation>%1에 쓸 수 없습니다. 디스크 공간과 폴더 권한을 확인하세요</translation>
    </message>
</context>
<context>
    <name>TextEditBox</name>
    <message>
        <source>Ctrl+滚轮调整字体|Ctrl+Enter换行|ESC:取消</source>
        <translation>Ctrl+휠: 글꼴 크기 | Ctrl+Enter: 줄바꿈 | Esc: 취소</translation>
    </message>
</context>
<context>
    <name>ToolController</name>
    <message>
        <source>Shit+绘制:绘制90°,45°,180°直线</source>
        <translation>Shift+그리기: 90°, 45°, 180° 직선</translation>
    </message>
    <message>
        <source>Shit+绘制:绘制正方形</source>
        <translation>Shift+그리기: 정사각형</translation>
    </message>
</context>
<context>
    <name>ToolNames</name>
    <message>
        <source>关于</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>画笔</source>
        <translation>펜</translation>
    </message>
    <message>
        <source>荧光笔</source>
        <translation>형광펜</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>직선</translation>
    </message>
    <message>
        <source>圆形</source>
        <translation>원</translation>
    </message>
    <message>
        <source>箭头</source>
        <translation>화살표</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>사각형</translation>
    </message>
    <message>
        <source>编号</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>恢复</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>透明画板</source>
        <translation>투명 보드</translation>
    </message>
    <message>
        <source>白板</source>
        <translation>화이트보드</translation>
    </message>
    <message>
        <source>黑板</source>
        <translation>칠판</translation>
    </message>
    <message>
        <source>图片背景</source>
        <translation>배경 그림</translation>
    </message>
    <message>
        <source>细</source>
        <translation>가늘게</translation>
    </message>
    <message>
        <source>中</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>粗</source>
        <translation>굵게</translation>
    </message>
    <message>
        <source>特粗</source>
        <translation>아주 굵게</translation>
    </message>
    <message>
        <source>不自动消失</source>
        <translation>사라지지 않음</translation>
    </message>
    <message>
        <source>不呼吸</source>
        <translation>숨쉬기 없음</translation>
    </message>
    <message>
        <source>每 %1 秒消失一笔</source>
        <translation>%1초마다 하나씩 사라짐</translation>
    </message>
    <message>
        <source>呼吸 %1 秒</source>
        <translation>%1초 동안 숨쉬기</translation>
    </message>
</context>
<context>
    <name>UpdateDownloader</name>
    <message>
        <source>“%1”的下载地址不安全：只允许 HTTPS。</source>
        <translation>“%1”의 다운로드 주소가 안전하지 않습니다. HTTPS만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>“%1”过大。</source>
        <translation>“%1” 파일이 너무 큽니다.</translation>
    </message>
    <message>
        <source>“%1”下载失败：%2</source>
        <translation>“%1”을(를) 다운로드하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>“%1”与校验值不符，已丢弃。</source>
        <translation>“%1”이(가) 체크섬과 일치하지 않아 삭제했습니다.</translation>
    </message>
    <message>
        <source>找不到更新程序“%1”。</source>
        <translation>업데이트 프로그램 “%1”을(를) 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>更新程序“%1”无法运行。</source>
        <translation>업데이트 프로그램 “%1”을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>下载时间过长。</source>
        <translation>다운로드가 너무 오래 걸렸습니다.</translation>
    </message>
    <message>
        <source>本程序由系统的软件包管理器安装，请用它来更新。</source>
        <translation>이 프로그램은 시스템의 패키지 관리자가 설치했습니다. 그곳에서 업데이트하세요.</translation>
    </message>
    <message>
        <source>程序文件夹 %1 不可写入，无法更新。请用有写入权限的账户运行本程序。</source>
        <translation>프로그램 폴더 %1에 쓸 수 없어 업데이트할 수 없습니다. 쓰기 권한이 있는 계정으로 실행하세요.</translation>
    </message>
    <message>
        <source>无法写入“%1”：%2。</source>
        <translation>“%1”에 쓸 수 없습니다: %2.</translation>
    </message>
</context>
<context>
    <name>UpdateInstaller</name>
    <message>
        <source>%1。已替换的文件无法恢复，请重新安装本程序。</source>
        <translation>%1. 바뀐 파일을 되돌릴 수 없습니다. 프로그램을 다시 설치하세요.</translation>
    </message>
    <message>
        <source>%1。没有更改任何文件。</source>
        <translation>%1. 변경된 파일은 없습니다.</translation>
    </message>
    <message>
        <source>无法安装“%1”：%2</source>
        <translation>“%1”을(를) 설치할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>这个位置上已有一个文件夹</source>
        <translation>그 자리에 폴더가 있습니다</translation>
    </message>
    <message>
        <source>“%1”不是文件夹</source>
        <translation>“%1”은(는) 폴더가 아닙니다</translation>
    </message>
    <message>
        <source>它会离开程序文件夹</source>
        <translation>프로그램 폴더를 벗어납니다</translation>
    </message>
    <message>
        <source>无法设置文件权限</source>
        <translation>파일 권한을 설정할 수 없습니다</translation>
    </message>
    <message>
        <source>无法写入程序文件夹：%1</source>
        <translation>프로그램 폴더에 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>无法写入程序文件夹</source>
        <translation>프로그램 폴더에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>另一个正在运行的本程序也在更新。</source>
        <translation>실행 중인 다른 프로그램도 업데이트하고 있습니다.</translation>
    </message>
    <message>
        <source>无法写入程序文件夹 %1。</source>
        <translation>프로그램 폴더 %1에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>上一次更新没有完成，也无法恢复。请重新安装本程序。</source>
        <translation>지난 업데이트가 끝나지 않았고 되돌릴 수도 없습니다. 프로그램을 다시 설치하세요.</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>软件更新</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
    <message>
        <source>发现新版本 %1</source>
        <translation>새 버전 %1 이(가) 있습니다</translation>
    </message>
    <message>
        <source>当前版本 %1</source>
        <translation>현재 버전: %1</translation>
    </message>
    <message>
        <source>正在安装…</source>
        <translation>설치 중…</translation>
    </message>
    <message>
        <source>正在下载… %1%</source>
        <translation>다운로드 중… %1%</translation>
    </message>
    <message>
        <source>已取消下载，没有更改任何文件。</source>
        <translation>다운로드를 취소했습니다. 변경된 파일은 없습니다.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>以后再说</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>立即更新</source>
        <translation>지금 업데이트</translation>
    </message>
    <message>
        <source>知道了</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>更新服务没有提供任何文件。</source>
        <translation>업데이트 서비스에서 제공한 파일이 없습니다.</translation>
    </message>
    <message>
        <source>文件名“%1”不允许使用：它会离开程序文件夹。</source>
        <translation>파일 이름 “%1”은(는) 사용할 수 없습니다. 프로그램 폴더를 벗어납니다.</translation>
    </message>
    <message>
        <source>“%1”的下载地址不安全：只允许 HTTPS。</source>
        <translation>“%1”의 다운로드 주소가 안전하지 않습니다. HTTPS만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>“%1”没有有效的 SHA-256 校验值。</source>
        <translation>“%1”에 올바른 SHA-256 체크섬이 없습니다.</translation>
    </message>
    <message>
        <source>文件名“%1”不允许使用：它由更新程序自己使用。</source>
        <translation>파일 이름 “%1”은(는) 사용할 수 없습니다. 업데이트 자체가 사용합니다.</translation>
    </message>
    <message>
        <source>“%1”的大小无效。</source>
        <translation>“%1”의 크기가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>更新过大。</source>
        <translation>업데이트가 너무 큽니다.</translation>
    </message>
    <message>
        <source>更新中“%1”出现了两次。</source>
        <translation>업데이트에 “%1”이(가) 두 번 들어 있습니다.</translation>
    </message>
</context>
<context>
    <name>VideoShot</name>
    <message>
        <source>麦克风+系统</source>
        <translation>마이크+시스템</translation>
    </message>
    <message>
        <source>仅系统音频</source>
        <translation>시스템만</translation>
    </message>
    <message>
        <source>仅麦克风</source>
        <translation>마이크만</translation>
    </message>
    <message>
        <source>关闭音频</source>
        <translation>소리 끄기</translation>
    </message>
    <message>
        <source>录制失败</source>
        <translation>녹화 실패</translation>
    </message>
    <message>
        <source>录像已保存</source>
        <translation>동영상이 저장되었습니다</translation>
    </message>
    <message>
        <source>录屏</source>
        <translation>화면 녹화</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>停止录制</source>
        <translation>녹화 중지</translation>
    </message>
    <message>
        <source>开始录制</source>
        <translation>녹화 시작</translation>
    </message>
</context>
<context>
    <name>Visitor</name>
    <message>
        <source>正在运行的程序不认识这个命令。请退出后重新启动它</source>
        <translation>실행 중인 프로그램이 이 명령을 알지 못합니다. 종료한 뒤 다시 시작하세요</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>这不是一个文件</source>
        <translation>파일이 아닙니다</translation>
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
        <source>桌面没有系统托盘，程序无法运行。请启用面板的通知区域，或用 --without-tray 启动。</source>
        <translation>데스크톱에 시스템 트레이가 없어 실행할 수 없습니다. 패널의 알림 영역을 켜거나 --without-tray로 실행하세요.</translation>
    </message>
    <message>
        <source>上一次更新没有完成，也无法恢复。请重新安装本程序。</source>
        <translation>지난 업데이트가 끝나지 않았고 되돌릴 수도 없습니다. 프로그램을 다시 설치하세요.</translation>
    </message>
</context>
<context>
    <name>painter</name>
    <message>
        <source>主窗口</source>
        <translation>기본 창</translation>
    </message>
</context>
<context>
    <name>select</name>
    <message>
        <source>选项</source>
        <translation>선택 항목</translation>
    </message>
</context>
<context>
    <name>settings</name>
    <message>
        <source>截屏热键</source>
        <translation>스크린샷</translation>
    </message>
    <message>
        <source>画笔热键</source>
        <translation>펜</translation>
    </message>
    <message>
        <source>关闭画笔</source>
        <translation>그리기 종료</translation>
    </message>
    <message>
        <source>橡皮擦</source>
        <translation>지우개</translation>
    </message>
    <message>
        <source>添加文字</source>
        <translation>텍스트 추가</translation>
    </message>
    <message>
        <source>清除绘制</source>
        <translation>그림 지우기</translation>
    </message>
    <message>
        <source>直线绘制</source>
        <translation>직선 그리기</translation>
    </message>
    <message>
        <source>圆形绘制</source>
        <translation>원 그리기</translation>
    </message>
    <message>
        <source>设置无法保存</source>
        <translation>설정을 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>选择的语言无效</source>
        <translation>선택한 언어가 올바르지 않습니다</translation>
    </message>
    <message>
        <source>语言切换失败</source>
        <translation>언어를 변경할 수 없습니다</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>설정</translation>
    </message>
</context>
</TS>
