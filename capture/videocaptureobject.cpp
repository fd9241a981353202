#include "capture/videocaptureobject.h"

#include "capture/capturetexts.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRect>
#include <QScreen>

namespace
{

constexpr char kRecorderPath[] = "/thirdparty/capture/obs/recorder.exe";
constexpr int kStartTimeoutMs = 5000;
constexpr int kStopTimeoutMs = 4000;
constexpr int kDestructionTimeoutMs = 1000;

/// Scales each value on its own, halves away from zero.
QRect physicalArea(const QRect &logical)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal ratio = screen ? screen->devicePixelRatio() : 1.0;
    const QRect physical(qRound(logical.x() * ratio), qRound(logical.y() * ratio),
        qRound(logical.width() * ratio), qRound(logical.height() * ratio));
    qDebug() << CaptureTexts::kScreenRatio << ratio;
    qDebug() << CaptureTexts::kLogicalArea << logical.x() << logical.y() << logical.width()
             << logical.height();
    qDebug() << CaptureTexts::kPhysicalArea << physical.x() << physical.y() << physical.width()
             << physical.height();
    return physical;
}

} // namespace

VideoCaptureObject::VideoCaptureObject(QObject *parent)
    : QObject(parent), m_process(new QProcess(this)), m_killTimer(new QTimer(this)),
      m_report(new RecorderReport(m_process, this))
{
    qDebug() << CaptureTexts::kConstructed;
    connect(m_process, &QProcess::started, this, &VideoCaptureObject::onProcessStarted);
    connect(m_process, &QProcess::finished, this, &VideoCaptureObject::onProcessFinished);
    connect(m_process, &QProcess::errorOccurred, this, &VideoCaptureObject::onProcessError);
    m_killTimer->setSingleShot(true);
    m_killTimer->setTimerType(Qt::PreciseTimer);
    connect(m_killTimer, &QTimer::timeout, this, &VideoCaptureObject::onKillProcessTimerTimeout);
}

VideoCaptureObject::~VideoCaptureObject()
{
    qDebug() << CaptureTexts::kDestroyed;
    m_killTimer->stop();
    if (m_process->state() == QProcess::NotRunning)
        return;
    qDebug() << CaptureTexts::kDestroyedWhileRunning;
    // Nobody is told of an end that this object does not outlive.
    m_process->disconnect();
    m_process->kill();
    m_process->waitForFinished(kDestructionTimeoutMs);
}

bool VideoCaptureObject::startRecording(
    int x, int y, int width, int height, const QString &outputPath, const QString &audioOption)
{
    if (!isIdle()) {
        qDebug() << CaptureTexts::kAlreadyRecording;
        return false;
    }
    m_killTimer->stop();
    m_report->clear(); // before anything can fail
    m_outputPath = outputPath;
    if (!ensureOutputDirectory())
        return false;
    return launch(physicalArea(QRect(x, y, width, height)), audioOption);
}

bool VideoCaptureObject::ensureOutputDirectory()
{
    const QDir directory = QFileInfo(m_outputPath).absoluteDir();
    if (directory.exists())
        return true;
    const QString path = directory.absolutePath();
    qDebug() << CaptureTexts::kDirectoryMissing << path;
    if (directory.mkpath(path)) {
        qDebug() << CaptureTexts::kDirectoryCreated << path;
        return true;
    }
    qDebug() << CaptureTexts::kDirectoryFailed << path;
    emit recordingError(CaptureTexts::kErrorDirectory + path);
    return false;
}

bool VideoCaptureObject::launch(const QRect &area, const QString &audioOption)
{
    const QString program = QCoreApplication::applicationDirPath() + kRecorderPath;
    const QStringList arguments{
        QString::number(area.x()),
        QString::number(area.y()),
        QString::number(area.width()),
        QString::number(area.height()),
        m_outputPath,
        audioOption,
    };
    qDebug() << CaptureTexts::kStarting << program << arguments;
    m_process->start(program, arguments);
    if (m_process->waitForStarted(kStartTimeoutMs))
        return true;
    // The process's own error notification has told this already. Both reports stay: the listener
    // of the notification and the caller who waits for a result are not always the same.
    qDebug() << CaptureTexts::kStartFailed << m_process->errorString();
    emit recordingError(CaptureTexts::kErrorStart + m_process->errorString());
    return false;
}

void VideoCaptureObject::stopRecording()
{
    if (isIdle()) {
        qDebug() << CaptureTexts::kNotRecording;
        return;
    }
    if ((m_stopping || !m_recording) && m_killTimer->isActive()) {
        qDebug() << CaptureTexts::kAlreadyStopping;
        return;
    }
    if (m_process->state() != QProcess::NotRunning) {
        qDebug() << CaptureTexts::kStopping;
        m_stopping = true;
        m_process->terminate();
        m_killTimer->start(kStopTimeoutMs);
        return;
    }
    qDebug() << CaptureTexts::kNothingToStop;
    m_killTimer->stop();
    becomeIdle();
}

bool VideoCaptureObject::isRecording() const
{
    return m_recording;
}

void VideoCaptureObject::onProcessStarted()
{
    qDebug() << CaptureTexts::kStarted;
    m_recording = true;
    m_stopping = false;
    m_killTimer->stop();
    emit recordingStarted();
}

void VideoCaptureObject::onProcessFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    qDebug() << CaptureTexts::kFinished << exitCode << CaptureTexts::kFinishedStatus << exitStatus;
    if (m_killTimer->isActive()) {
        m_killTimer->stop();
        qDebug() << CaptureTexts::kFinishedInTime;
    }
    // A crash has ended the recording already, as an error; its end is told all the same, as the
    // last report on every recorder that ran.
    setIdle();
    emit recordingStopped();
    if (exitStatus == QProcess::CrashExit)
        emit recordingError(CaptureTexts::kErrorCrash);
}

void VideoCaptureObject::onProcessError(QProcess::ProcessError error)
{
    qDebug() << CaptureTexts::kProcessError << error << m_process->errorString();
    m_killTimer->stop();
    if (error == QProcess::FailedToStart) {
        setIdle();
        emit recordingError(CaptureTexts::kErrorStart + m_process->errorString());
        return;
    }
    if (isIdle())
        return;
    setIdle();
    emit recordingError(CaptureTexts::kErrorProcess + m_process->errorString());
    emit recordingStopped();
}

void VideoCaptureObject::onKillProcessTimerTimeout()
{
    qDebug() << CaptureTexts::kStopTimedOut;
    if (m_process->state() != QProcess::NotRunning) {
        qDebug() << CaptureTexts::kKilling;
        m_process->kill();
        return;
    }
    qDebug() << CaptureTexts::kStoppedBeforeKill;
    becomeIdle();
}

void VideoCaptureObject::setIdle()
{
    m_recording = false;
    m_stopping = false;
}

void VideoCaptureObject::becomeIdle()
{
    if (isIdle())
        return;
    setIdle();
    emit recordingStopped();
}
