#include "recorder/recordingrequest.h"

#include <array>

namespace
{

constexpr qsizetype kArgumentCount = 6;
constexpr qsizetype kOutput = 4;
constexpr qsizetype kAudio = 5;

struct AudioOption {
    QLatin1StringView name;
    bool microphone;
    bool systemSound;
};

constexpr std::array kAudioOptions{
    AudioOption{ QLatin1StringView(), true, true },
    AudioOption{ QLatin1StringView("--no-mic"), false, true },
    AudioOption{ QLatin1StringView("--no-system-audio"), true, false },
    AudioOption{ QLatin1StringView("--no-audio"), false, false },
};

bool readNumbers(const QStringList &arguments, std::array<int, kOutput> *numbers, QString *reason)
{
    for (qsizetype i = 0; i < kOutput; ++i) {
        bool ok = false;
        (*numbers)[static_cast<size_t>(i)] = arguments.at(i).toInt(&ok);
        if (!ok) {
            *reason = QStringLiteral("\"%1\" is not a whole number").arg(arguments.at(i));
            return false;
        }
    }
    return true;
}

} // namespace

bool RecordingRequest::parse(
    const QStringList &arguments, RecordingRequest *request, QString *reason)
{
    if (arguments.size() != kArgumentCount) {
        *reason =
            QStringLiteral("six arguments are needed: x y width height output-path audio-option");
        return false;
    }
    std::array<int, kOutput> numbers{};
    if (!readNumbers(arguments, &numbers, reason))
        return false;
    if (arguments.at(kOutput).isEmpty()) {
        *reason = QStringLiteral("the output path is empty");
        return false;
    }
    for (const AudioOption &option : kAudioOptions) {
        if (arguments.at(kAudio) != option.name)
            continue;
        *request = { QRect(numbers[0], numbers[1], numbers[2], numbers[3]), arguments.at(kOutput),
            option.microphone, option.systemSound };
        return true;
    }
    *reason = QStringLiteral("\"%1\" is not an audio option").arg(arguments.at(kAudio));
    return false;
}
