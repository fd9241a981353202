#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <vector>

/// An X server without a screen, ended with this object.
class XServer
{
public:
    ~XServer();

    /// Returns whether it runs.
    bool start(int width, int height);
    QString display() const { return m_display; }

private:
    QProcess m_process;
    QString m_display;
};

/// A sound server with one output that nobody hears, "speaker", ended with this object.
class SoundServer
{
public:
    ~SoundServer();

    /// Which default source there is: none, one that hears what is played to the output "room", or
    /// one that hears what is written to `microphonePipe`, 16 bit, one channel, 48000 a second.
    enum class Microphone { None, Room, Pipe };

    /// Returns whether it answers.
    bool start(Microphone microphone);
    QString microphonePipe() const { return m_folder.filePath("microphone"); }
    /// The value of PULSE_SERVER for its clients.
    QString address() const;
    /// Plays a tone until this object ends; returns once it can be heard.
    bool play(const QString &sink, int hertz);
    void kill();

private:
    bool isHeard(const QString &sink) const;
    QProcessEnvironment environment() const;

    QTemporaryDir m_folder;
    QProcess m_server;
    std::vector<std::unique_ptr<QProcess>> m_players;
};
