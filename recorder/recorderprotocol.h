#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

/// What the recorder says to the program that started it, one line each:
/// - on standard output "file: <path>" once the video file exists,
/// - on standard error "warning[<code>]: <text>" or "error[<code>]: <text>".
///
/// The text is for people at a terminal. The code is stable, so that the user interface can say
/// the same in the user's language.
namespace RecorderProtocol
{

inline constexpr QLatin1StringView kFilePrefix("file: ");
inline constexpr QLatin1StringView kWarningPrefix("warning[");
inline constexpr QLatin1StringView kErrorPrefix("error[");
inline constexpr QLatin1StringView kCodeEnd("]: ");

namespace Code
{
inline constexpr QLatin1StringView kUsage("usage");
inline constexpr QLatin1StringView kRegionTooSmall("region-too-small");
inline constexpr QLatin1StringView kNoScreen("no-screen");
inline constexpr QLatin1StringView kNoEncoder("no-encoder");
inline constexpr QLatin1StringView kCannotWrite("cannot-write");
inline constexpr QLatin1StringView kDiskFull("disk-full");
inline constexpr QLatin1StringView kEncoderLacking("encoder-lacking");
inline constexpr QLatin1StringView kEncoderFailed("encoder-failed");
inline constexpr QLatin1StringView kEncoderEnded("encoder-ended");
inline constexpr QLatin1StringView kEncoderHung("encoder-hung");
inline constexpr QLatin1StringView kNothingRecorded("nothing-recorded");
inline constexpr QLatin1StringView kNoSoundServer("no-sound-server");
inline constexpr QLatin1StringView kNoMicrophone("no-microphone");
inline constexpr QLatin1StringView kNoSystemSound("no-system-sound");
} // namespace Code

} // namespace RecorderProtocol
