#include "recorder/pulseserver.h"

#include "recorder/soundmixer.h"

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <utility>
#include <vector>

using std::chrono::microseconds;

namespace
{

constexpr char kClientName[] = "Dravelin";
/// A server that takes longer to answer is as good as none: people wait for their recording.
constexpr int kAnswerTimeoutMs = 1500;
constexpr uint32_t kFragmentMs = 20;
constexpr pa_sample_spec kFormat{ PA_SAMPLE_S16NE, SoundMixer::kRate, SoundMixer::kChannels };

/// How often a stream's timing is asked for, and how many answers are weighed: a busy server gives
/// a wrong one now and then, and a device that changes its pace must be followed at once.
constexpr auto kTimingInterval = std::chrono::milliseconds(100);
constexpr size_t kTimingAnswers = 5;

struct Defaults {
    QByteArray source;
    QByteArray sink;
};

} // namespace

PulseStream::PulseStream(pa_context *context, const QByteArray &source)
    : m_stream(pa_stream_new(context, "Screen recording", &kFormat, nullptr))
{
    pa_buffer_attr buffer{};
    buffer.maxlength = UINT32_MAX;
    buffer.fragsize = static_cast<uint32_t>(pa_usec_to_bytes(kFragmentMs * 1000ULL, &kFormat));
    pa_stream_connect_record(m_stream, source.constData(), &buffer, PA_STREAM_ADJUST_LATENCY);
}

PulseStream::~PulseStream()
{
    if (m_question) {
        pa_operation_cancel(m_question);
        pa_operation_unref(m_question);
    }
    pa_stream_disconnect(m_stream);
    pa_stream_unref(m_stream);
}

bool PulseStream::hasFailed() const
{
    return !PA_STREAM_IS_GOOD(pa_stream_get_state(m_stream));
}

void PulseStream::readAll(const Consumer &consume)
{
    if (pa_stream_get_state(m_stream) != PA_STREAM_READY)
        return;
    askForTiming();
    if (!m_beginning)
        return;
    while (const size_t pending = pa_stream_readable_size(m_stream)) {
        const void *data = nullptr;
        size_t bytes = 0;
        if (pending == static_cast<size_t>(-1) || pa_stream_peek(m_stream, &data, &bytes) < 0
            || bytes == 0)
            return;
        const auto index = static_cast<uint64_t>(pa_stream_get_timing_info(m_stream)->read_index);
        const microseconds since(pa_bytes_to_usec(index, &kFormat));
        if (data) // else a hole, which is silence
            consume(*m_beginning + since,
                { static_cast<const int16_t *>(data), bytes / sizeof(int16_t) });
        pa_stream_drop(m_stream);
    }
}

void PulseStream::askForTiming()
{
    const Clock::time_point now = Clock::now();
    if (m_question || now - m_asked < kTimingInterval)
        return;
    m_asked = now;
    m_question = pa_stream_update_timing_info(
        m_stream,
        [](pa_stream *, int succeeded, void *self) {
            auto *stream = static_cast<PulseStream *>(self);
            pa_operation_unref(std::exchange(stream->m_question, nullptr));
            if (succeeded)
                stream->takeTiming();
        },
        this);
}

/// The library's own estimate of a latency is smoothed over seconds, and wrong until then whenever
/// another program has made the output play far ahead. The server's plain answers are exact.
void PulseStream::takeTiming()
{
    const pa_timing_info *info = pa_stream_get_timing_info(m_stream);
    if (!info || info->write_index_corrupt || info->read_index_corrupt)
        return;
    const Clock::time_point now = Clock::now();
    const Clock::time_point answered = now - microseconds(pa_timeval_age(&info->timestamp));
    // What was in the stream then, what the device had heard beyond it, and how far ahead of its
    // sounding an output's monitor gets it.
    const auto streamed =
        static_cast<int64_t>(pa_bytes_to_usec(static_cast<uint64_t>(info->write_index), &kFormat));
    const microseconds heard(
        streamed + static_cast<int64_t>(info->source_usec) - static_cast<int64_t>(info->sink_usec));
    m_beginnings.push_back(answered - heard);
    if (m_beginnings.size() > kTimingAnswers)
        m_beginnings.pop_front();
    std::vector<Clock::time_point> sorted(m_beginnings.begin(), m_beginnings.end());
    const auto middle = sorted.begin() + static_cast<ptrdiff_t>(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    m_beginning = *middle;
}

PulseServer::PulseServer()
    : m_loop(pa_mainloop_new()), m_context(pa_context_new(pa_mainloop_get_api(m_loop), kClientName))
{
}

PulseServer::~PulseServer()
{
    pa_context_disconnect(m_context);
    pa_context_unref(m_context);
    pa_mainloop_free(m_loop);
}

bool PulseServer::connect()
{
    m_deadline.setRemainingTime(kAnswerTimeoutMs);
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0)
        return false;
    return waitFor([this] { return pa_context_get_state(m_context) == PA_CONTEXT_READY; });
}

QString PulseServer::errorText() const
{
    const int error = pa_context_errno(m_context);
    return QString::fromUtf8(pa_strerror(error == PA_OK ? PA_ERR_TIMEOUT : error));
}

PulseServer::Sources PulseServer::defaultSources()
{
    Defaults defaults;
    finish(pa_context_get_server_info(
        m_context,
        [](pa_context *, const pa_server_info *info, void *result) {
            if (info)
                *static_cast<Defaults *>(
                    result) = { info->default_source_name, info->default_sink_name };
        },
        &defaults));

    Sources sources;
    if (!defaults.sink.isEmpty())
        finish(pa_context_get_sink_info_by_name(
            m_context, defaults.sink.constData(),
            [](pa_context *, const pa_sink_info *info, int, void *result) {
                if (info)
                    *static_cast<QByteArray *>(result) = info->monitor_source_name;
            },
            &sources.monitor));
    // Without a microphone, servers name an output's monitor as the default source.
    if (!defaults.source.isEmpty())
        finish(pa_context_get_source_info_by_name(
            m_context, defaults.source.constData(),
            [](pa_context *, const pa_source_info *info, int, void *result) {
                if (info && info->monitor_of_sink == PA_INVALID_INDEX)
                    *static_cast<QByteArray *>(result) = info->name;
            },
            &sources.microphone));
    return sources;
}

std::unique_ptr<PulseStream> PulseServer::record(const QByteArray &source)
{
    return std::make_unique<PulseStream>(m_context, source);
}

void PulseServer::dispatch()
{
    while (pa_mainloop_iterate(m_loop, 0, nullptr) > 0) { }
}

/// Waits for an answer; one that does not come in time is cancelled and leaves its result alone.
void PulseServer::finish(pa_operation *operation)
{
    if (!operation)
        return;
    if (!waitFor([&] { return pa_operation_get_state(operation) != PA_OPERATION_RUNNING; }))
        pa_operation_cancel(operation);
    pa_operation_unref(operation);
}

bool PulseServer::waitFor(const std::function<bool()> &done)
{
    while (!done()) {
        if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context)) || m_deadline.hasExpired())
            return false;
        const auto remainingUs = static_cast<int>(m_deadline.remainingTime() * 1000);
        if (pa_mainloop_prepare(m_loop, remainingUs) < 0 || pa_mainloop_poll(m_loop) < 0
            || pa_mainloop_dispatch(m_loop) < 0)
            return false;
    }
    return true;
}
