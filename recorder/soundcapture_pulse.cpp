#include "recorder/soundcapture.h"

#include "recorder/notes.h"
#include "recorder/pulseserver.h"
#include "recorder/recorderprotocol.h"
#include "recorder/soundmixer.h"

#include <QIODevice>
#include <QTimer>

#include <vector>

using namespace RecorderProtocol;

namespace
{

constexpr int kPumpIntervalMs = 20;
/// How long the mix waits for sound on its way, so that what sounded together stays together.
constexpr int64_t kMixDelayFrames = SoundMixer::kRate / 5;

using Clock = PulseStream::Clock;

int64_t framesOf(Clock::duration time)
{
    using Frames = std::chrono::duration<int64_t, std::ratio<1, SoundMixer::kRate>>;
    return std::chrono::floor<Frames>(time).count();
}

/// Records from the sound server and writes the mix, in step with the wall clock, to FFmpeg.
class PulseCapture final : public SoundCapture
{
public:
    explicit PulseCapture(std::unique_ptr<PulseServer> server) : m_server(std::move(server))
    {
        m_pump.setTimerType(Qt::PreciseTimer);
        m_pump.setInterval(kPumpIntervalMs);
        QObject::connect(&m_pump, &QTimer::timeout, [this] { write(kMixDelayFrames); });
    }

    void addSource(const QByteArray &name, QLatin1StringView code, const QString &lostText)
    {
        m_sources.push_back({ m_server->record(name), m_mixer.addSource(), code, lostText });
    }

    bool hasSources() const { return !m_sources.empty(); }

    QVector<SoundInput> inputs() const override
    {
        const QString format = QStringLiteral("-f s16le -ar %1 -ac %2")
                                   .arg(SoundMixer::kRate)
                                   .arg(SoundMixer::kChannels);
        return { { format.split(u' '), QStringLiteral("pipe:0") } };
    }

    void begin(QIODevice *encoder) override
    {
        m_encoder = encoder;
        m_zero = Clock::now();
        m_pump.start();
    }

    void end() override
    {
        if (!m_pump.isActive())
            return;
        m_pump.stop();
        write(0);
    }

private:
    struct Source {
        std::unique_ptr<PulseStream> stream;
        size_t mixerSource;
        QLatin1StringView code;
        QString lostText;
    };

    /// The mix up to `delayFrames` ago.
    void write(int64_t delayFrames)
    {
        m_server->dispatch();
        for (Source &source : m_sources)
            read(source);
        m_encoder->write(m_mixer.takeUntil(framesOf(Clock::now() - m_zero) - delayFrames));
    }

    void read(Source &source)
    {
        if (!source.stream)
            return;
        if (source.stream->hasFailed()) {
            source.stream.reset();
            Notes::warning(source.code, source.lostText);
            return;
        }
        source.stream->readAll([&](Clock::time_point sounded, std::span<const int16_t> samples) {
            m_mixer.add(source.mixerSource, framesOf(sounded - m_zero), samples);
        });
    }

    std::unique_ptr<PulseServer> m_server; ///< outlives the streams
    std::vector<Source> m_sources;
    SoundMixer m_mixer;
    QTimer m_pump;
    Clock::time_point m_zero;
    QIODevice *m_encoder = nullptr;
};

} // namespace

std::unique_ptr<SoundCapture> SoundCapture::open(bool microphone, bool systemSound)
{
    if (!microphone && !systemSound)
        return nullptr;
    auto server = std::make_unique<PulseServer>();
    if (!server->connect()) {
        Notes::warning(Code::kNoSoundServer,
            QStringLiteral("No sound server answers (%1); the recording is silent.")
                .arg(server->errorText()));
        return nullptr;
    }
    const PulseServer::Sources sources = server->defaultSources();
    auto capture = std::make_unique<PulseCapture>(std::move(server));
    if (systemSound && sources.monitor.isEmpty())
        Notes::warning(Code::kNoSystemSound,
            QStringLiteral("There is no sound output whose sound could be recorded."));
    else if (systemSound)
        capture->addSource(sources.monitor, Code::kNoSystemSound,
            QStringLiteral("The system sound was lost; the recording goes on."));
    if (microphone && sources.microphone.isEmpty())
        Notes::warning(Code::kNoMicrophone, QStringLiteral("There is no microphone."));
    else if (microphone)
        capture->addSource(sources.microphone, Code::kNoMicrophone,
            QStringLiteral("The microphone was lost; the recording goes on."));
    if (!capture->hasSources())
        return nullptr;
    return capture;
}
