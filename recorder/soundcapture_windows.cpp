#include "recorder/soundcapture.h"

#include "recorder/dshowdevices.h"
#include "recorder/notes.h"
#include "recorder/recorderprotocol.h"

#include <QProcess>

using namespace RecorderProtocol;

namespace
{

constexpr int kListingTimeoutMs = 3000;

/// FFmpeg opens the devices itself.
class DshowCapture final : public SoundCapture
{
public:
    void addDevice(const QString &name)
    {
        m_inputs.append({ { QStringLiteral("-f"), QStringLiteral("dshow") },
            QStringLiteral("audio=%1").arg(name) });
    }

    QVector<SoundInput> inputs() const override { return m_inputs; }
    void begin(QIODevice *) override { }
    void end() override { }

private:
    QVector<SoundInput> m_inputs;
};

DshowDevices listDevices()
{
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
        QStringLiteral("-hide_banner -list_devices true -f dshow -i dummy").split(u' '));
    ffmpeg.waitForFinished(kListingTimeoutMs);
    return DshowDevices::fromListing(ffmpeg.readAllStandardError());
}

} // namespace

std::unique_ptr<SoundCapture> SoundCapture::open(bool microphone, bool systemSound)
{
    if (!microphone && !systemSound)
        return nullptr;
    const DshowDevices devices = listDevices();
    auto capture = std::make_unique<DshowCapture>();
    if (systemSound && devices.systemSound.isEmpty())
        Notes::warning(Code::kNoSystemSound,
            QStringLiteral("No device records what the system plays; enable \"Stereo "
                           "Mix\" in the sound settings."));
    else if (systemSound)
        capture->addDevice(devices.systemSound);
    if (microphone && devices.microphone.isEmpty())
        Notes::warning(Code::kNoMicrophone, QStringLiteral("There is no microphone."));
    else if (microphone)
        capture->addDevice(devices.microphone);
    if (capture->inputs().isEmpty())
        return nullptr;
    return capture;
}
