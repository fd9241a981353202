#include "app/commandline.h"

#include "app/identity.h"
#include "settings/processservices.h"

#include <QCommandLineParser>
#include <QDir>
#include <QHash>

#include <algorithm>
#include <iterator>

namespace
{

const QString kHelp = QStringLiteral("help");
const QString kVersion = QStringLiteral("version");

/// Switches of the toolkit, which its application object takes out of the command line. It has not
/// seen the line yet.
constexpr const char *kToolkitFlags[] = { "reverse", "widgetcount", "nograb", "dograb", "sync" };
constexpr const char *kToolkitValues[] = { "platform", "platformpluginpath", "platformtheme",
    "plugin", "qwindowgeometry", "qwindowtitle", "qwindowicon", "session", "style", "stylesheet",
    "qmljsdebugger", "display", "name", "title", "icon", "geometry", "visual" };

/// "--restart" without its dashes.
QString nameIn(const char *switchText)
{
    return QLatin1String(switchText + 2);
}

QCommandLineOption hidden(const QString &name, const QString &valueName = {})
{
    QCommandLineOption option(name, {}, valueName);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

QString described(const char *text)
{
    return QCoreApplication::translate("CommandLine", text);
}

QCommandLineOption optionFor(const VerbName &name)
{
    const bool takesFile = name.file != VerbName::File::None;
    return { QLatin1String(name.option), described(name.description),
        takesFile ? QStringLiteral("FILE") : QString() };
}

void addOptions(QCommandLineParser &parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const VerbName &name : verbNames()) {
        parser.addOption(optionFor(name));
    }
    parser.addOption({ nameIn(ProcessServices::kWithoutTraySwitch),
        CommandLine::tr("没有系统托盘也启动；通过面板的菜单退出") });
    parser.addOption({ { QStringLiteral("h"), kHelp }, CommandLine::tr("显示此说明") });
    parser.addOption({ { QStringLiteral("v"), kVersion }, CommandLine::tr("显示版本号") });
    parser.addOption(hidden(nameIn(ProcessServices::kRestartSwitch)));
    for (const char *flag : kToolkitFlags) {
        parser.addOption(hidden(QLatin1String(flag)));
    }
    for (const char *option : kToolkitValues) {
        parser.addOption(hidden(QLatin1String(option), QStringLiteral("value")));
    }
}

QString withoutDashes(const QString &argument)
{
    return argument.startsWith(u'-')
        ? argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1)
        : QString();
}

bool takesFile(const QString &argument)
{
    const auto verb = verbCalled(withoutDashes(argument));
    return verb && verb->file != VerbName::File::None;
}

/// The parser knows no value that may be left out: it is given an empty one.
QStringList withEveryValue(QStringList arguments)
{
    for (qsizetype i = 1; i < arguments.size() && arguments[i] != QLatin1String("--"); ++i) {
        const auto verb = verbCalled(withoutDashes(arguments[i]));
        if (!verb || verb->file == VerbName::File::None) {
            continue;
        }
        const bool hasValue = i + 1 < arguments.size()
            && (verb->file == VerbName::File::Required || !arguments[i + 1].startsWith(u'-'));
        if (hasValue || verb->file == VerbName::File::Optional) {
            arguments[i] += u'=' + (hasValue ? arguments.takeAt(i + 1) : QString());
        }
    }
    return arguments;
}

/// With or without its value.
bool isVerb(const QString &argument)
{
    return verbCalled(withoutDashes(argument.section(u'=', 0, 0))).has_value();
}

/// Of a line that the parser rejects without naming an unknown switch: the one whose value is
/// missing or one too many.
QString rejected(const QStringList &arguments)
{
    const auto valued = std::find_if(arguments.begin() + 1, arguments.end(),
        [](const QString &argument) { return argument.contains(u'=') && isVerb(argument); });
    return valued == arguments.end() ? arguments.last() : *valued;
}

} // namespace

CommandLine::CommandLine(const QStringList &arguments, const QString &folder)
{
    QCommandLineParser parser;
    addOptions(parser);
    const QStringList valued = withEveryValue(arguments);
    const bool isUnderstood = parser.parse(valued);
    std::ranges::copy_if(valued.begin() + 1, valued.end(), std::back_inserter(m_switches),
        [](const QString &argument) { return !isVerb(argument); });
    m_withoutTray = parser.isSet(nameIn(ProcessServices::kWithoutTraySwitch));
    m_isRestart = arguments.contains(QLatin1String(ProcessServices::kRestartSwitch));
    if (parser.isSet(kHelp) || parser.isSet(kVersion)) {
        m_purpose = parser.isSet(kHelp) ? Purpose::Help : Purpose::Version;
    } else if (parser.isSet(nameIn(ProcessServices::kRestartSwitch)) && !m_isRestart) {
        // To be written exactly; the parser is content with one dash.
        blame(Fault::Unknown, QLatin1String(ProcessServices::kRestartSwitch + 1));
    } else if (isUnderstood) {
        readCommands(parser, folder);
    } else {
        explainRejection(parser, arguments);
    }
}

void CommandLine::readCommands(const QCommandLineParser &parser, const QDir &folder)
{
    QHash<QString, qsizetype> filesUsed;
    const QStringList names = parser.optionNames();
    for (const QString &name : names) {
        const auto verb = verbCalled(name);
        if (!verb) {
            continue;
        }
        QString file;
        if (verb->file != VerbName::File::None) {
            file = parser.values(name).value(filesUsed[name]++);
        }
        if (file.isEmpty() && verb->file == VerbName::File::Required) {
            blame(Fault::NoFile, QLatin1String("--") + name);
            return;
        }
        if (!file.isEmpty()) {
            file = QDir::cleanPath(folder.absoluteFilePath(file));
        }
        m_commands << Command{ verb->verb, file };
    }
    if (m_commands.isEmpty()) {
        return;
    }
    m_purpose = Purpose::Commands;
    if (!parser.positionalArguments().isEmpty()) {
        blame(Fault::Surplus, parser.positionalArguments().first());
    }
}

void CommandLine::explainRejection(const QCommandLineParser &parser, const QStringList &arguments)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty()) {
        const QLatin1String dashes(unknown.first().size() > 1 ? "--" : "-");
        blame(Fault::Unknown, dashes + unknown.first());
    } else if (takesFile(arguments.last())) {
        blame(Fault::NoFile, arguments.last());
    } else {
        blame(Fault::Unknown, rejected(arguments));
    }
}

void CommandLine::blame(Fault fault, const QString &argument)
{
    m_purpose = Purpose::Wrong;
    m_fault = fault;
    m_blamed = argument.simplified();
}

QString CommandLine::fault() const
{
    switch (m_fault) {
    case Fault::NoFile:
        return tr("%1 后面缺少文件名").arg(m_blamed);
    case Fault::Surplus:
        return tr("多余的参数：%1").arg(m_blamed);
    case Fault::Unknown:
        break;
    }
    return tr("无法识别的参数：%1。--help 列出所有参数").arg(m_blamed);
}

QString CommandLine::help()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(
        tr("%1：屏幕标注笔。下列命令交给正在运行的程序依次执行；程序没有运行时先启动它。")
            .arg(QLatin1String(Identity::kDisplayName)));
    // The parser knows no value that may be left out.
    return parser.helpText().replace(
        QLatin1String("--capture <FILE>"), QLatin1String("--capture [FILE]"));
}
