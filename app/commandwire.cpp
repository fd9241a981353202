#include "app/commandwire.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{

constexpr int kFormat = 1;
/// More is no line that a person wrote.
constexpr qsizetype kMaxCommands = 100;
constexpr QLatin1String kFormatKey("format");
constexpr QLatin1String kCommandsKey("commands");
constexpr QLatin1String kVerbKey("verb");
constexpr QLatin1String kFileKey("file");
constexpr QLatin1String kDoneKey("done");
constexpr QLatin1String kOutputsKey("outputs");
constexpr QLatin1String kMessageKey("message");

QByteArray lineOf(QJsonObject object)
{
    object.insert(kFormatKey, kFormat);
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<QJsonObject> objectIn(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    return object.value(kFormatKey).toInt() == kFormat ? std::optional(object) : std::nullopt;
}

std::optional<Command> commandIn(const QJsonObject &object)
{
    const auto name = verbCalled(object.value(kVerbKey).toString());
    if (!name) {
        return std::nullopt;
    }
    const QString file = object.value(kFileKey).toString();
    const bool fits = file.isEmpty() ? name->file != VerbName::File::Required
                                     : name->file != VerbName::File::None;
    return fits ? std::optional(Command{ name->verb, file }) : std::nullopt;
}

} // namespace

QByteArray CommandWire::request(const QList<Command> &commands)
{
    QJsonArray list;
    for (const Command &command : commands) {
        QJsonObject object{ { kVerbKey, QLatin1String(nameOf(command.verb).option) } };
        if (!command.file.isEmpty()) {
            object.insert(kFileKey, command.file);
        }
        list << object;
    }
    return kRequestMark + lineOf({ { kCommandsKey, list } });
}

QByteArray CommandWire::nothing()
{
    return { "\0\n", 2 };
}

QByteArray CommandWire::reply(const CommandReply &reply)
{
    return lineOf(
        { { kDoneKey, reply.done }, { kOutputsKey, QJsonArray::fromStringList(reply.outputs) },
            { kMessageKey, reply.message } });
}

std::optional<QList<Command>> CommandWire::readRequest(const QByteArray &line)
{
    if (!line.startsWith(kRequestMark)) {
        return std::nullopt;
    }
    const auto object = objectIn(line.mid(1));
    if (!object) {
        return std::nullopt;
    }
    const QJsonArray list = object->value(kCommandsKey).toArray();
    if (list.isEmpty() || list.size() > kMaxCommands) {
        return std::nullopt;
    }
    QList<Command> commands;
    for (const auto &value : list) {
        const auto command = commandIn(value.toObject());
        if (!command) {
            return std::nullopt;
        }
        commands << *command;
    }
    return commands;
}

std::optional<CommandReply> CommandWire::readReply(const QByteArray &line)
{
    const auto object = objectIn(line);
    if (!object || !object->value(kDoneKey).isBool()) {
        return std::nullopt;
    }
    CommandReply reply{ object->value(kDoneKey).toBool(), {},
        object->value(kMessageKey).toString() };
    const QJsonArray outputs = object->value(kOutputsKey).toArray();
    for (const auto &output : outputs) {
        reply.outputs << output.toString();
    }
    return reply;
}
