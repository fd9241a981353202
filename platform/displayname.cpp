#include "platform/displayname.h"

namespace
{

/// The value of a switch that is written with one or two dashes, its value behind it or behind "=";
/// the last one counts.
QString switchValue(const QStringList &arguments, QLatin1String name)
{
    QString value;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        QStringView argument = arguments[i];
        if (!argument.startsWith(u'-')) {
            continue;
        }
        argument = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
        if (argument == name && i + 1 < arguments.size()) {
            value = arguments[++i];
        } else if (argument.startsWith(name) && argument.mid(name.size()).startsWith(u'=')) {
            value = argument.mid(name.size() + 1).toString();
        }
    }
    return value;
}

/// The server without the number of its screen: one palette serves them all.
QString xServer(const QString &display)
{
    const qsizetype colon = display.lastIndexOf(u':');
    if (colon < 0) {
        return display;
    }
    const QString host = display.left(colon);
    const bool isLocal = host == QLatin1String("unix") || host.endsWith(QLatin1String("/unix"));
    return (isLocal ? QString() : host) + display.mid(colon).section(u'.', 0, 0);
}

QString waylandSession(const EnvironmentLookup &variable)
{
    QString name = variable("WAYLAND_DISPLAY");
    if (name.isEmpty()) {
        name = QStringLiteral("wayland-0");
    }
    return name.startsWith(u'/') ? name : variable("XDG_RUNTIME_DIR") + u'/' + name;
}

/// The first platform that is asked for, without its parameters.
QString wantedPlatform(const QStringList &arguments, const EnvironmentLookup &variable)
{
    const QString named = switchValue(arguments, QLatin1String("platform"));
    const QString list = named.isEmpty() ? variable("QT_QPA_PLATFORM") : named;
    return list.section(u';', 0, 0).section(u':', 0, 0);
}

} // namespace

QString displayName(const QStringList &arguments, const EnvironmentLookup &variable)
{
    const QString platform = wantedPlatform(arguments, variable);
    const QString named = switchValue(arguments, QLatin1String("display"));
    const QString x11 = xServer(named.isEmpty() ? variable("DISPLAY") : named);
    if (platform == QLatin1String("xcb") || (platform.isEmpty() && !x11.isEmpty())) {
        return x11.isEmpty() ? QString() : QLatin1String("x11 ") + x11;
    }
    if (platform.startsWith(QLatin1String("wayland"))
        || (platform.isEmpty() && !variable("WAYLAND_DISPLAY").isEmpty())) {
        return QLatin1String("wayland ") + waylandSession(variable);
    }
    return platform;
}
