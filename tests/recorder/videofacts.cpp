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
