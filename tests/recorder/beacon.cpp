#include "tests/recorder/beacon.h"

#include "tests/recorder/backdrop.h"

#include <QElapsedTimer>

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace
{

constexpr int64_t kRate = 48000;
constexpr pa_sample_spec kFormat{ PA_SAMPLE_S16NE, kRate, 1 };
/// No multiple of a picture, so that flashes fall on every part of one.
constexpr int64_t kPeriod = kRate * 3700 / 10000;
constexpr int64_t kClick = kRate / 100;
/// A flash later than this is left out.
constexpr int64_t kPunctual = kRate * 3 / 1000;
/// As much as players of music take, 0.2 s: the output then plays far ahead until somebody listens.
constexpr uint32_t kLatency = kRate * 2 / 5;
constexpr auto kTick = 500us;

std::vector<int16_t> samples(int64_t from, int64_t count)
{
    std::vector<int16_t> block(static_cast<size_t>(std::max<int64_t>(count, 0)));
    for (size_t i = 0; i < block.size(); ++i) {
        const int64_t at = (from + static_cast<int64_t>(i)) % kPeriod;
        if (at < kClick)
            block[i] = static_cast<int16_t>(
                24000 * std::sin(2 * M_PI * 2000 * (static_cast<double>(at) + 6) / kRate));
    }
    return block;
}

/// Lets the clicks sound, and knows how many samples have sounded by now.
class Sound
{
public:
    virtual ~Sound() = default;
    virtual std::optional<int64_t> advance() = 0;
};

/// Plays them to the speaker. When a sample sounds is reckoned from the server's own account of
/// what the output has played.
class Player final : public Sound
{
public:
    explicit Player(const QByteArray &address)
        : m_loop(pa_mainloop_new()),
          m_context(pa_context_new(pa_mainloop_get_api(m_loop), "beacon"))
    {
        pa_context_connect(m_context, address.constData(), PA_CONTEXT_NOAUTOSPAWN, nullptr);
    }

    ~Player() override
    {
        if (m_stream) {
            pa_stream_disconnect(m_stream);
            pa_stream_unref(m_stream);
        }
        pa_context_disconnect(m_context);
        pa_context_unref(m_context);
        pa_mainloop_free(m_loop);
    }

    std::optional<int64_t> advance() override
    {
        while (pa_mainloop_iterate(m_loop, 0, nullptr) > 0) { }
        if (!m_stream && pa_context_get_state(m_context) == PA_CONTEXT_READY)
            open();
        if (!m_stream || pa_stream_get_state(m_stream) != PA_STREAM_READY)
            return std::nullopt;
        write();
        if (!m_asking) {
            m_asking = true;
            pa_operation_unref(pa_stream_update_timing_info(m_stream, &Player::onTiming, this));
        }
        if (!m_isTimed)
            return std::nullopt;
        return m_played + (wallClockUs() - m_playedAt) * kRate / 1'000'000;
    }

private:
    static int64_t wallClockUs()
    {
        timeval now{};
        pa_gettimeofday(&now);
        return static_cast<int64_t>(pa_timeval_load(&now));
    }

    void open()
    {
        m_stream = pa_stream_new(m_context, "clicks", &kFormat, nullptr);
        pa_buffer_attr buffer{ UINT32_MAX, kLatency, UINT32_MAX, UINT32_MAX, UINT32_MAX };
        pa_stream_connect_playback(
            m_stream, "speaker", &buffer, PA_STREAM_ADJUST_LATENCY, nullptr, nullptr);
    }

    void write()
    {
        const auto room = static_cast<int64_t>(pa_stream_writable_size(m_stream) / 2);
        const std::vector<int16_t> block = samples(m_written, room);
        if (!block.empty())
            pa_stream_write(m_stream, block.data(), block.size() * 2, nullptr, 0, PA_SEEK_RELATIVE);
        m_written += room;
    }

    static void onTiming(pa_stream *stream, int, void *self)
    {
        auto *player = static_cast<Player *>(self);
        player->m_asking = false;
        const pa_timing_info *info = pa_stream_get_timing_info(stream);
        if (!info || info->read_index_corrupt || !info->playing)
            return;
        player->m_isTimed = true;
        player->m_played =
            info->read_index / 2 - static_cast<int64_t>(info->sink_usec) * kRate / 1'000'000;
        player->m_playedAt = static_cast<int64_t>(pa_timeval_load(&info->timestamp));
    }

    pa_mainloop *m_loop;
    pa_context *m_context;
    pa_stream *m_stream = nullptr;
    bool m_asking = false;
    bool m_isTimed = false;
    int64_t m_written = 0;
    int64_t m_played = 0; ///< samples that had sounded at `m_playedAt`
    int64_t m_playedAt = 0; ///< microseconds of the wall clock
};

/// Feeds the pipe of a microphone, which hears each sample when it is written.
class Voice final : public Sound
{
public:
    explicit Voice(const QByteArray &pipe) : m_pipe(::open(pipe.constData(), O_WRONLY | O_NONBLOCK))
    {
        m_clock.start();
    }

    ~Voice() override { ::close(m_pipe); }

    std::optional<int64_t> advance() override
    {
        const int64_t now = m_clock.nsecsElapsed() * (kRate / 1000) / 1'000'000;
        const std::vector<int16_t> block = samples(m_written, now - m_written);
        if (!block.empty() && ::write(m_pipe, block.data(), block.size() * 2) < 0)
            return std::nullopt;
        m_written = now;
        return now;
    }

private:
    QElapsedTimer m_clock;
    int m_pipe;
    int64_t m_written = 0;
};

} // namespace

Beacon::Beacon(const XServer &screen, const SoundServer &sound, Ear ear)
    : m_thread(&Beacon::run, this, screen.display().toUtf8(), sound.address().toUtf8(),
        ear == Ear::Microphone ? sound.microphonePipe().toUtf8() : QByteArray())
{
}

Beacon::~Beacon()
{
    m_stop = true;
    m_thread.join();
}

void Beacon::run(const QByteArray &display, const QByteArray &address, const QByteArray &pipe)
{
    constexpr QRgb kDark = qRgb(0, 0, 0);
    constexpr QRgb kBright = qRgb(255, 255, 255);
    Backdrop lamp(display, kDark);
    std::unique_ptr<Sound> sound;
    if (pipe.isEmpty())
        sound = std::make_unique<Player>(address);
    else
        sound = std::make_unique<Voice>(pipe);
    int64_t next = kPeriod;
    while (!m_stop) {
        const int64_t now = sound->advance().value_or(0);
        if (now >= next) {
            if (now < next + kPunctual)
                lamp.setColour(++m_flashes % 2 ? kBright : kDark);
            next = (now / kPeriod + 1) * kPeriod;
        }
        std::this_thread::sleep_for(kTick);
    }
}
