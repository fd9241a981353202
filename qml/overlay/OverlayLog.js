.pragma library

// What the drawing overlay writes to the log; tools that read logs know these texts.
const elementAdded = "收到元素添加信号，ID:"
const editorLeft = "检测到点击文本框外部，提交内容并销毁"
const editorDone = "已完成当前文本编辑"
const editorGone = "文本编辑框已被销毁"
const editorReplaced = "检测到已存在的编辑框，正在销毁..."
const editorFailed = "创建文本输入框失败:"
const elementDeleted = "Element deleted"
const escapePressed = "Escape键按下，取消变换并隐藏控制点"
const selectingLast = "测试选择最后一个元素"
const pictureSize = "图片尺寸:"
