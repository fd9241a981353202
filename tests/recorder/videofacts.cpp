#include "tests/recorder/videofacts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtMath>

namespace
{

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60000);
    return process.readAllStandardOutput();
}

} // namespace

VideoFacts VideoFacts::of(const QString &path)
{
    const QByteArray json = outputOf("ffprobe",
        { "-v", "error", "-of", "json", "-count_frames", "-show_entries",
            "stream=codec_type,duration,nb_read_frames", path });
    VideoFacts facts;
    const QJsonArray streams = QJsonDocument::fromJson(json)["streams"].toArray();
    for (const QJsonValue stream : streams) {
        if (stream["codec_type"].toString() != "video")
            continue;
        facts.seconds = stream["duration"].toString().toDouble();
        facts.plays = stream["nb_read_frames"].toString().toInt() > 0;
    }
    return facts;
}

namespace
{

/// When each packet of a stream is shown or heard, in seconds.
std::vector<double> times(const QString &path, const QString &stream)
{
    const QByteArray answer = outputOf("ffprobe",
        { "-v", "error", "-select_streams", stream, "-show_entries", "packet=pts_time", "-of",
            "csv=p=0", path });
    std::vector<double> times;
    for (const QByteArray &line : answer.trimmed().split('\n'))
        times.push_back(line.trimmed().replace(',', "").toDouble());
    return times;
}

/// Seconds at which the picture turned bright or dark.
std::vector<double> flashes(const QString &path)
{
    const std::vector<double> shown = times(path, "v");
    const QByteArray levels = outputOf("ffmpeg",
        { "-v", "error", "-i", path, "-fps_mode", "passthrough", "-vf",
            "scale=1:1:flags=area,format=gray", "-f", "rawvideo", "-" });
    std::vector<double> moments;
    for (size_t i = 1; i < std::min(shown.size(), static_cast<size_t>(levels.size())); ++i) {
        const auto isBright = [&](size_t at) {
            return static_cast<uchar>(levels[static_cast<qsizetype>(at)]) > 127;
        };
        if (isBright(i) != isBright(i - 1))
            moments.push_back(shown[i]);
    }
    return moments;
}

/// Seconds at which a sound began after a silence.
std::vector<double> clicks(const QString &path)
{
    constexpr int kRate = 48000;
    constexpr float kLoud = 0.2F;
    constexpr qsizetype kSilence = kRate / 10;
    const QByteArray bytes = outputOf("ffmpeg",
        { "-v", "error", "-i", path, "-ac", "1", "-ar", QString::number(kRate), "-f", "f32le",
            "-" });
    const auto *samples = reinterpret_cast<const float *>(bytes.constData());
    const double start = times(path, "a").front();
    std::vector<double> moments;
    qsizetype lastLoud = -kSilence;
    for (qsizetype i = 0; i < bytes.size() / 4; ++i) {
        if (std::abs(samples[i]) < kLoud)
            continue;
        if (i - lastLoud > kSilence)
            moments.push_back(start + static_cast<double>(i) / kRate);
        lastLoud = i;
    }
    return moments;
}

} // namespace

QByteArray VideoFacts::colourTags(const QString &path)
{
    return outputOf("ffprobe",
        { "-v", "error", "-select_streams", "v", "-show_entries",
            "stream=color_range,color_space,color_transfer,color_primaries", "-of", "csv=p=0",
            path })
        .trimmed();
}

QColor VideoFacts::colourAsBt709(const QString &path)
{
    const QByteArray pixel = outputOf("ffmpeg",
        { "-v", "error", "-i", path, "-frames:v", "1", "-vf",
            "scale=in_color_matrix=bt709:in_range=tv,crop=1:1,format=rgb24", "-f", "rawvideo",
            "-" });
    if (pixel.size() != 3)
        return {};
    const auto part = [&](int at) { return static_cast<int>(static_cast<uchar>(pixel[at])); };
    return { part(0), part(1), part(2) };
}

std::vector<VideoFacts::Event> VideoFacts::flashesAndClicks(const QString &path)
{
    const std::vector<double> heard = clicks(path);
    std::vector<Event> events;
    for (const double seen : flashes(path)) {
        const auto nearest = std::min_element(heard.begin(), heard.end(),
            [&](double a, double b) { return std::abs(a - seen) < std::abs(b - seen); });
        if (nearest != heard.end())
            events.push_back({ seen, *nearest - seen });
    }
    return events;
}

double VideoFacts::toneShare(const QString &path, int hertz)
{
    constexpr int kRate = 48000;
    const QByteArray bytes = outputOf("ffmpeg",
        { "-v", "error", "-i", path, "-ac", "1", "-ar", QString::number(kRate), "-f", "f32le",
            "-" });
    const auto *samples = reinterpret_cast<const float *>(bytes.constData());
    const auto count = static_cast<int>(static_cast<size_t>(bytes.size()) / sizeof(float));
    // Blocks, so that a gap does not turn the tone's phase against itself.
    constexpr int kBlock = kRate / 10;
    double energy = 0;
    double atTone = 0;
    for (int start = 0; start + kBlock <= count; start += kBlock) {
        double real = 0;
        double imaginary = 0;
        for (int i = 0; i < kBlock; ++i) {
            const double sample = static_cast<double>(samples[start + i]);
            const double angle = 2 * M_PI * hertz * i / kRate;
            energy += sample * sample;
            real += sample * qCos(angle);
            imaginary += sample * qSin(angle);
        }
        atTone += (real * real + imaginary * imaginary) * 2 / kBlock;
    }
    return energy > 0 ? atTone / energy : 0;
}
