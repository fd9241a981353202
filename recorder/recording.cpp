#include "recorder/recording.h"

#include "recorder/capturearea.h"
#include "recorder/childcontrol.h"
#include "recorder/desktop.h"
#include "recorder/ffmpegcommand.h"
#include "recorder/notes.h"
#include "recorder/recorderprotocol.h"

#include <QDateTime>
#include <QStandardPaths>

#include <chrono>

using namespace RecorderProtocol;

namespace
{

/// Less than the program that started the recorder waits before it kills it.
constexpr int kFinishTimeoutMs = 3000;
/// Lets FFmpeg take in the last sound, as it drops what waits when it is told to end.
constexpr int kSoundTailMs = 150;
/// The last of what FFmpeg says is kept; it may complain for hours.
constexpr qsizetype kKeptWords = 64 * 1024;
/// What FFmpeg ends with after a terminate signal.
constexpr int kTerminatedExitCode = 255;

} // namespace

Recording::Recording(QObject *parent) : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(kFinishTimeoutMs);
    connect(&m_patience, &QTimer::timeout, this, &Recording::giveUp);
    connect(&m_encoder, &QProcess::errorOccurred, this, &Recording::onEncoderError);
    connect(&m_encoder, &QProcess::finished, this, &Recording::onEncoderFinished);
    connect(&m_encoder, &QProcess::readyReadStandardError, this, &Recording::keepWords);
}

bool Recording::start(const RecordingRequest &request)
{
    const std::optional<Desktop> desktop = Desktop::current();
    if (!desktop) {
        Notes::error(Code::kNoScreen, QStringLiteral("There is no screen that can be recorded."));
        return false;
    }
    const QRect areaPx = encodableArea(request.areaPx, desktop->areaPx);
    if (areaPx.isEmpty()) {
        Notes::error(Code::kRegionTooSmall,
            QStringLiteral("The region holds no two by two pixels of the screen."));
        return false;
    }
    if (QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty()) {
        Notes::error(
            Code::kNoEncoder, QStringLiteral("FFmpeg is not installed, or not found on the PATH."));
        return false;
    }
    QString reason;
    if (!m_file.reserve(request.output, QDateTime::currentDateTime(), &reason)) {
        Notes::error(
            Code::kCannotWrite, QStringLiteral("The video cannot be written: %1.").arg(reason));
        return false;
    }
    return launch(*desktop, request, areaPx);
}

bool Recording::launch(const Desktop &desktop, const RecordingRequest &request, const QRect &areaPx)
{
    m_sound = SoundCapture::open(request.microphone, request.systemSound);
    FfmpegCommand command;
    command.grabber = desktop.grabber;
    command.display = desktop.display;
    command.areaPx = areaPx;
    command.outputPath = m_file.path();
    if (m_sound) {
        command.sound = m_sound->inputs();
        m_sound->begin(&m_encoder);
    }
    command.epochSeconds =
        std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
    ChildControl::prepare(&m_encoder);
    m_encoder.start(QStringLiteral("ffmpeg"), command.arguments());
    if (!m_encoder.waitForStarted())
        return false;
    ChildControl::adopt(&m_encoder);
    Notes::file(m_file.path());
    return true;
}

void Recording::stop()
{
    if (m_stopRequested)
        return;
    m_stopRequested = true;
    if (m_sound)
        m_sound->end();
    QTimer::singleShot(m_sound ? kSoundTailMs : 0, this, &Recording::endEncoder);
}

void Recording::endEncoder()
{
    ChildControl::requestEnd(&m_encoder);
    m_patience.start();
}

void Recording::giveUp()
{
    m_gaveUp = true;
    m_encoder.kill();
}

void Recording::onEncoderError(QProcess::ProcessError error)
{
    if (error != QProcess::FailedToStart)
        return;
    m_file.discardIfEmpty();
    Notes::error(Code::kNoEncoder,
        QStringLiteral("FFmpeg cannot be started: %1.").arg(m_encoder.errorString()));
}

void Recording::keepWords()
{
    m_words = (m_words + m_encoder.readAllStandardError()).right(kKeptWords);
}

void Recording::onEncoderFinished(int exitCode, QProcess::ExitStatus status)
{
    m_patience.stop();
    if (m_sound)
        m_sound->end();
    keepWords();
    const bool endedWell = status == QProcess::NormalExit
        && (exitCode == 0 || exitCode == kTerminatedExitCode)
        && !EncoderFailure::tellsFailedWrite(m_words);
    const bool succeeded = m_stopRequested && endedWell && !m_file.isEmpty();
    const EncoderFailure failure = succeeded ? EncoderFailure() : failureOf();
    m_file.discardIfEmpty(); // first, as whoever hears of the failure looks for the file
    if (!succeeded)
        Notes::error(failure.code, failure.text);
    emit finished(succeeded);
}

EncoderFailure Recording::failureOf() const
{
    if (m_gaveUp)
        return EncoderFailure::hung(m_file.path());
    // A request that comes this early can hit FFmpeg before it knows how to answer.
    if (m_stopRequested && m_words.isEmpty() && m_file.isEmpty())
        return { Code::kNothingRecorded,
            QStringLiteral("The recording was stopped before it had begun.") };
    return EncoderFailure::fromWords(m_words, m_file.path());
}
