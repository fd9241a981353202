#pragma once

#include "app/command.h"

#include <QByteArray>

/// How commands and what became of them travel between two starts of the program: a line of JSON
/// each. A request begins with a byte that no argument can hold, since plain arguments come over
/// the same socket.
namespace CommandWire
{

inline constexpr char kRequestMark = '\0';
/// Room for several paths of the greatest length; a longer request is not read.
inline constexpr qint64 kMaxRequestBytes = 64 * 1024;
inline constexpr qint64 kMaxReplyBytes = 64 * 1024;

[[nodiscard]] QByteArray request(const QList<Command> &commands);
/// From a visitor who only looks who is there.
[[nodiscard]] QByteArray nothing();
[[nodiscard]] QByteArray reply(const CommandReply &reply);

/// Nothing when the line is none, or of a version that knows more than this one.
[[nodiscard]] std::optional<QList<Command>> readRequest(const QByteArray &line);
[[nodiscard]] std::optional<CommandReply> readReply(const QByteArray &line);

} // namespace CommandWire
