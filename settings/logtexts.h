#pragma once

/// The texts of this folder's log lines; the values named in the code follow each on the stream.
namespace LogTexts
{

inline constexpr char kSettingsCreated[] = "setting cpp";

// Loading all settings.
inline constexpr char kApplicationDirectory[] = "应用目录路径:";
inline constexpr char kLoadingSettings[] = "开始加载所有设置...";
inline constexpr char kFoundSettings[] = "发现";
inline constexpr char kFoundSettingsUnit[] = "个设置项:";
inline constexpr char kLoadedSetting[] = "加载设置:";
inline constexpr char kLoadedSettingValue[] = "值:";
inline constexpr char kDefaultSavePath[] = "设置默认屏幕保存路径:";
inline constexpr char kDefaultShortcut[] = "设置默认快捷键:";
inline constexpr char kSettingsLoaded[] = "所有设置加载完成，结果:";

// Screen capture.
inline constexpr char kInvalidSize[] = "无效的宽度或高度：";
inline constexpr char kInvalidSavePath[] = "无效的截图保存路径";
inline constexpr char kCannotCreateSavePath[] = "无法创建截图保存目录：";
inline constexpr char kNoPrimaryScreen[] = "无法获取主屏幕";
inline constexpr char kCapturingRegion[] = "截图 - 直接使用传入坐标:";
inline constexpr char kRegionOutsideScreen[] = "指定的区域超出屏幕范围：";
inline constexpr char kEmptyCapture[] = "截图失败：返回空图像";
inline constexpr char kCaptureSaved[] = "截图已保存到：";
inline constexpr char kCaptureNotSaved[] = "截图保存失败：";
inline constexpr char kCaptureOnClipboard[] = "截图已复制到剪贴板";
inline constexpr char kNoClipboard[] = "无法获取剪贴板对象";

// Writing files.
inline constexpr char kSavingFile[] = "Saving file to:";
inline constexpr char kCannotCreateDirectory[] = "Failed to create directory:";
inline constexpr char kInvalidDataUrl[] = "Invalid data URL format";
inline constexpr char kCannotOpenFile[] = "Cannot open file for writing:";
inline constexpr char kCannotOpenFileError[] = ", error:";
inline constexpr char kFileSaved[] = "File saved successfully:";
inline constexpr char kFileIncomplete[] = "Failed to write complete data to file:";

// Choosing the capture directory.
inline constexpr char kNoWidgetApplication[] = "无法获取QApplication实例";
inline constexpr char kDirectoryChosen[] = "已选择并保存目录路径:";
inline constexpr char kDirectoryCancelled[] = "用户取消选择目录";

// The deployment file.
inline constexpr char kBrokenIniFile[] = "The deployment file is damaged; what could be read is "
                                         "kept, and a copy of the file as it was lies at:";
inline constexpr char kBrokenIniFileNotCopied[] = "The deployment file is damaged and could not be "
                                                  "copied aside, so it is left as it is:";

// Processes.
inline constexpr char kRestarting[] = "正在重启应用程序...";
inline constexpr char kStartingInstance[] = "启动新实例:";
inline constexpr char kInstanceStarted[] = "新实例已启动，即将退出当前实例";
inline constexpr char kInstanceNotStarted[] = "无法启动新实例:";
inline constexpr char kErrorCode[] = "Error code:";
inline constexpr char kErrorString[] = "Error string:";
inline constexpr char kStartingProgram[] = "尝试启动程序:";
inline constexpr char kProgramMissing[] = "无法找到可执行文件:";

// Languages.
inline constexpr char kLanguageManagerCreated[] = "LanguageManager created";
inline constexpr char kLanguageManagerDestroyed[] = "LanguageManager destroyed";
inline constexpr char kEmittingLanguageChanged[] = "Emitting languageChanged signal with language:";
inline constexpr char kLookingForTranslation[] = "Looking for translation:";
inline constexpr char kLookingIn[] = "in";
inline constexpr char kNoTranslationsDirectory[] = "Translations directory does not exist!";
inline constexpr char kTranslationLoaded[] = "Translation loaded successfully:";
inline constexpr char kTranslationNotLoaded[] = "Failed to load translation:";
inline constexpr char kListingLanguages[] = "查找可用语言文件...";
inline constexpr char kLanguagesInResources[] = "资源中发现的语言文件:";
inline constexpr char kLanguagesInDirectory[] = "应用程序目录中发现的语言文件:";
inline constexpr char kLanguagesDirectory[] = "路径:";
inline constexpr char kNoLanguages[] = "未找到语言文件，添加默认语言";
inline constexpr char kFoundLanguages[] = "找到";
inline constexpr char kFoundLanguagesUnit[] = "种语言";

} // namespace LogTexts
