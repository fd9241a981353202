#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

struct pa_context;
struct pa_mainloop;
struct pa_operation;
struct pa_stream;

/// A recording stream of a sound server: 16 bit, in the mixer's rate and channels.
class PulseStream
{
public:
    /// Takes samples that sounded `ageUs` microseconds ago, counted at their first frame.
    using Consumer = std::function<void(int64_t ageUs, std::span<const int16_t> samples)>;

    PulseStream(pa_context *context, const QByteArray &source);
    ~PulseStream();
    PulseStream(const PulseStream &) = delete;
    PulseStream &operator=(const PulseStream &) = delete;

    /// True once the device or the server is gone.
    bool hasFailed() const;
    /// Hands out everything that has arrived.
    void readAll(const Consumer &consume);

private:
    int64_t ageUs(size_t pendingBytes) const;

    pa_stream *m_stream;
};

/// A connection to the user's sound server, PulseAudio or one that speaks its protocol.
/// It works only while `dispatch` is called; no thread of its own runs.
class PulseServer
{
public:
    struct Sources {
        QByteArray microphone; ///< the default source, empty when that is no microphone
        QByteArray monitor; ///< what the default output plays, empty without an output
    };

    PulseServer();
    ~PulseServer();
    PulseServer(const PulseServer &) = delete;
    PulseServer &operator=(const PulseServer &) = delete;

    /// Returns whether the server answered in time.
    bool connect();
    QString errorText() const;
    /// Asks for the sources that are the defaults now.
    Sources defaultSources();
    std::unique_ptr<PulseStream> record(const QByteArray &source);

    /// Handles what has arrived, without waiting.
    void dispatch();

private:
    bool waitFor(const std::function<bool()> &done);
    void finish(pa_operation *operation);

    pa_mainloop *m_loop;
    pa_context *m_context;
    QDeadlineTimer m_deadline; ///< for all questions together
};
