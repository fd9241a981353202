#include "help/helppage.h"

#include "help/helpsheet.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QImage>

namespace
{

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(HelpPage)

public:
    /// The language of what the page says: it may be another than the one that was asked for.
    static QString language()
    {
        //: The tag of the language that this catalogue is in, such as en-US.
        return tr("zh-CN");
    }
};

QByteArray resource(const QString &name)
{
    QFile file(QLatin1String(":/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// In its natural size, but the largest rendering, since paper has more dots than a screen.
QString image(const QString &picture, const char *style = "")
{
    constexpr int kZoom = 3;
    const QByteArray data = resource(QLatin1String("icons/") + picture + QLatin1String("@3x.png"));
    return QStringLiteral(R"(<img class="%1" width="%2" alt="" src="data:image/png;base64,%3"/>)")
        .arg(QLatin1String(style))
        .arg(QImage::fromData(data).width() / kZoom)
        .arg(QLatin1String(data.toBase64()));
}

QString element(const char *tag, const QString &content)
{
    return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(tag), content);
}

QString page(const QString &title, const QString &body)
{
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n<meta charset=\"utf-8\"/>\n"
                          "<meta name=\"viewport\" content=\"width=device-width\"/>\n"
                          "<title>%2</title>\n<style>\n%3</style>\n</head>\n<body>\n%4</body>\n"
                          "</html>\n")
        .arg(Texts::language(), title.toHtmlEscaped(),
            QString::fromUtf8(resource(QStringLiteral("help/style.css"))), body);
}

QString choiceCell(const HelpSheet::Choice &choice)
{
    const QString picture = choice.picture.isEmpty() ? QString() : image(choice.picture);
    return element("li", picture + choice.name.toHtmlEscaped());
}

QString toolRow(const HelpSheet::Tool &tool)
{
    QString choices;
    for (const HelpSheet::Choice &choice : tool.choices) {
        choices += choiceCell(choice);
    }
    QString text = element("h3", tool.button.name.toHtmlEscaped());
    text += element("p", tool.use.toHtmlEscaped());
    if (!choices.isEmpty()) {
        text += element("ul", choices);
    }
    return QStringLiteral("<section>%1<div>%2</div></section>\n")
        .arg(image(tool.button.picture, tool.onAccent ? "accent" : ""), text);
}

QString keyRow(const HelpSheet::Entry &entry, bool shared)
{
    const QString mark = shared ? QStringLiteral("<sup>*</sup>") : QString();
    return element("tr",
               element("th", element("kbd", entry.keys.toHtmlEscaped()) + mark)
                   + element("td", entry.action.toHtmlEscaped()))
        + QLatin1Char('\n');
}

QString keyTable(const QList<HelpSheet::Entry> &entries)
{
    QHash<QString, int> uses;
    for (const HelpSheet::Entry &entry : entries) {
        ++uses[entry.keys];
    }
    QString rows;
    for (const HelpSheet::Entry &entry : entries) {
        rows += keyRow(entry, uses.value(entry.keys) > 1);
    }
    QString table = element("table", rows);
    if (uses.size() < entries.size()) {
        table += QStringLiteral("<p class=\"note\">* %1</p>\n")
                     .arg(Texts::tr("这组键同时做几件事，可在设置里改").toHtmlEscaped());
    }
    return table;
}

QString commandLine()
{
    return element("p",
        Texts::tr("脚本也能使用画笔，%1 列出全部选项。")
            .toHtmlEscaped()
            .arg(QStringLiteral("<code>dravelin --help</code>")));
}

QString heading(const QString &text)
{
    return element("h2", text.toHtmlEscaped());
}

} // namespace

namespace HelpPage
{

QString sheet(const QVariantMap &settings)
{
    QString toolRows;
    for (const HelpSheet::Tool &tool : HelpSheet::tools()) {
        toolRows += toolRow(tool);
    }
    const QString title = Texts::tr("Dravelin 帮助");
    const QString left = heading(Texts::tr("工具")) + toolRows;
    const QString right = heading(Texts::tr("热键，随处可用"))
        + keyTable(HelpSheet::hotKeys(settings)) + heading(Texts::tr("绘制时"))
        + keyTable(HelpSheet::gestures()) + heading(Texts::tr("命令行")) + commandLine();
    return page(title,
        QStringLiteral("<header>%1<h1>%2</h1><p>%3</p></header>\n"
                       "<main>\n<div class=\"tools\">%4</div>\n<div class=\"keys\">%5</div>\n"
                       "</main>\n")
            .arg(image(QStringLiteral("logo")), title.toHtmlEscaped(),
                Texts::tr("屏幕上的画笔：所有工具和热键").toHtmlEscaped(), left, right));
}

QString document(const QString &title, const QString &text)
{
    return page(title, element("pre", text.toHtmlEscaped()));
}

} // namespace HelpPage
