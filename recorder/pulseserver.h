#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>

struct pa_context;
struct pa_mainloop;
struct pa_operation;
struct pa_stream;

/// A recording stream of a sound server: 16 bit, in the mixer's rate and channels.
class PulseStream
{
public:
    using Clock = std::chrono::steady_clock;
    /// Takes samples and the moment at which their first frame sounded, or is going to: what an
    /// output plays can be had before it is heard.
    using Consumer =
        std::function<void(Clock::time_point sounded, std::span<const int16_t> samples)>;

    PulseStream(pa_context *context, const QByteArray &source);
    ~PulseStream();
    PulseStream(const PulseStream &) = delete;
    PulseStream &operator=(const PulseStream &) = delete;

    /// True once the device or the server is gone.
    bool hasFailed() const;
    /// Hands out everything that has arrived, once it is known when it sounded.
    void readAll(const Consumer &consume);

private:
    void askForTiming();
    void takeTiming();

    pa_stream *m_stream;
    pa_operation *m_question = nullptr; ///< a timing question without an answer
    Clock::time_point m_asked;
    std::deque<Clock::time_point> m_beginnings; ///< the latest estimates of `m_beginning`
    std::optional<Clock::time_point> m_beginning; ///< when the stream's very first frame sounded
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
