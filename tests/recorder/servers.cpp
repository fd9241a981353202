#include "tests/recorder/servers.h"

#include <QFile>
#include <QTest>
#include <QtMath>

namespace
{

constexpr int kRate = 48000;
constexpr int kToneSeconds = 120;

void end(QProcess &process)
{
    process.kill();
    process.waitForFinished();
}

QByteArray tone(int hertz)
{
    QByteArray samples;
    samples.reserve(kRate * kToneSeconds * 2);
    for (int i = 0; i < kRate * kToneSeconds; ++i) {
        const auto value = static_cast<qint16>(8000 * qSin(2 * M_PI * hertz * i / kRate));
        samples.append(reinterpret_cast<const char *>(&value), sizeof(value));
    }
    return samples;
}

} // namespace

XServer::~XServer()
{
    end(m_process);
}

bool XServer::start(int width, int height)
{
    m_process.start("Xvfb",
        { "-displayfd", "1", "-screen", "0", QString("%1x%2x24").arg(width).arg(height),
            "-nolisten", "tcp", "-noreset" });
    // It names the display that it has found free.
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead())
            return false;
    }
    m_display = ':' + m_process.readLine().trimmed();
    return true;
}

SoundServer::~SoundServer()
{
    for (const auto &player : m_players)
        end(*player);
    end(m_server);
}

QString SoundServer::address() const
{
    return "unix:" + m_folder.path() + "/socket";
}

QProcessEnvironment SoundServer::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PULSE_RUNTIME_PATH", m_folder.path());
    environment.insert("PULSE_SERVER", address());
    environment.insert("HOME", m_folder.path());
    return environment;
}

bool SoundServer::start(Microphone microphone)
{
    QStringList arguments{ "-n", "--daemonize=no", "--exit-idle-time=-1", "--log-level=error" };
    const auto load = [&](const QString &module) { arguments << "-L" << module; };
    load("module-null-sink sink_name=speaker");
    if (microphone == Microphone::Room) {
        load("module-null-sink sink_name=room");
        load("module-remap-source source_name=microphone master=room.monitor");
    } else if (microphone == Microphone::Pipe) {
        load("module-pipe-source source_name=microphone channels=1 format=s16le rate=48000 file="
            + microphonePipe());
    }
    load("module-native-protocol-unix auth-anonymous=1 socket=" + m_folder.path() + "/socket");

    QProcessEnvironment server = environment();
    // Set, it would make the server believe that another one is in charge.
    server.remove("PULSE_SERVER");
    m_server.setProcessEnvironment(server);
    m_server.start("pulseaudio", arguments);
    const auto ask = [this](const QStringList &question) {
        QProcess pactl;
        pactl.setProcessEnvironment(environment());
        pactl.start("pactl", question);
        return pactl.waitForFinished() && pactl.exitCode() == 0;
    };
    return QTest::qWaitFor([&] {
        return ask({ "set-default-sink", "speaker" });
    }) && (microphone == Microphone::None || ask({ "set-default-source", "microphone" }));
}

bool SoundServer::play(const QString &sink, int hertz)
{
    const QString path = m_folder.path() + "/" + sink + ".raw";
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(tone(hertz)) < 0)
        return false;
    file.close();
    auto &player = *m_players.emplace_back(std::make_unique<QProcess>());
    player.setProcessEnvironment(environment());
    player.start("paplay",
        { "--raw", "--format=s16le", QString("--rate=%1").arg(kRate), "--channels=1",
            "--latency-msec=50", "--device=" + sink, path });
    return player.waitForStarted() && isHeard(sink);
}

bool SoundServer::isHeard(const QString &sink) const
{
    QProcess listener;
    listener.setProcessEnvironment(environment());
    listener.start("parec", { "--latency-msec=20", "--device=" + sink + ".monitor" });
    const bool heard = QTest::qWaitFor(
        [&] {
            const QByteArray samples = listener.readAllStandardOutput();
            return std::any_of(samples.begin(), samples.end(), [](char c) { return c != 0; });
        },
        20000);
    end(listener);
    return heard;
}

void SoundServer::kill()
{
    end(m_server);
}
