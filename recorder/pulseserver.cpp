#include "recorder/pulseserver.h"

#include "recorder/soundmixer.h"

#include <pulse/pulseaudio.h>

namespace
{

constexpr char kClientName[] = "Dravelin";
/// A server that takes longer to answer is as good as none: people wait for their recording.
constexpr int kAnswerTimeoutMs = 1500;
constexpr uint32_t kFragmentMs = 20;
constexpr pa_sample_spec kFormat{ PA_SAMPLE_S16NE, SoundMixer::kRate, SoundMixer::kChannels };

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
    const auto flags = static_cast<pa_stream_flags_t>(
        PA_STREAM_ADJUST_LATENCY | PA_STREAM_AUTO_TIMING_UPDATE | PA_STREAM_INTERPOLATE_TIMING);
    pa_stream_connect_record(m_stream, source.constData(), &buffer, flags);
}

PulseStream::~PulseStream()
{
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
    while (const size_t pending = pa_stream_readable_size(m_stream)) {
        const void *data = nullptr;
        size_t bytes = 0;
        if (pending == static_cast<size_t>(-1) || pa_stream_peek(m_stream, &data, &bytes) < 0
            || bytes == 0)
            return;
        if (data) // else a hole, which is silence
            consume(
                ageUs(pending), { static_cast<const int16_t *>(data), bytes / sizeof(int16_t) });
        pa_stream_drop(m_stream);
    }
}

int64_t PulseStream::ageUs(size_t pendingBytes) const
{
    pa_usec_t latency = 0;
    int isNegative = 0;
    if (pa_stream_get_latency(m_stream, &latency, &isNegative) < 0) {
        // No timing from the server yet: the newest sample is assumed to be new.
        return static_cast<int64_t>(pa_bytes_to_usec(pendingBytes, &kFormat));
    }
    return isNegative ? -static_cast<int64_t>(latency) : static_cast<int64_t>(latency);
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
