#pragma once

#include <QObject>
#include <QProcess>
#include <QString>
#include <QTimer>
#include <QtQmlIntegration>

#include "capture/recorderreport.h"

class QRect;

/// Starts, stops and supervises the recorder, a program of its own that writes a rectangle of the
/// screen to a video file.
///
/// A recording ends in two stages: the recorder is asked to finish, and killed when it has not
/// done so in time. Lives on the GUI thread; starting blocks it until the recorder runs, for five
/// seconds at most.
class VideoCaptureObject : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// What the recorder says while it works.
    Q_PROPERTY(RecorderReport *report READ report CONSTANT FINAL)

public:
    explicit VideoCaptureObject(QObject *parent = nullptr);
    ~VideoCaptureObject() override;

signals:
    void recordingStarted();
    /// The recording has ended, however it did. A recorder that crashes is reported twice: with the
    /// error and with the end of its process.
    void recordingStopped();
    void recordingError(const QString &errorMessage);

private slots:
    void onProcessStarted();
    void onProcessFinished(int exitCode, QProcess::ExitStatus exitStatus);
    void onProcessError(QProcess::ProcessError error);
    void onKillProcessTimerTimeout();

public:
    /// Records a rectangle given in the primary screen's logical pixels. `outputPath` is a file, or
    /// a folder that ends in "/" (created when missing) in which the recorder picks the name.
    /// Returns whether the recorder runs; every failure is also told by `recordingError`.
    Q_INVOKABLE bool startRecording(
        int x, int y, int width, int height, const QString &outputPath, const QString &audioOption);
    /// Asks the recorder to finish and returns at once; `recordingStopped` follows.
    Q_INVOKABLE void stopRecording();
    Q_INVOKABLE bool isRecording() const;

    RecorderReport *report() const { return m_report; }

private:
    bool ensureOutputDirectory();
    bool launch(const QRect &physicalArea, const QString &audioOption);
    bool isIdle() const { return !m_recording && !m_stopping; }
    void setIdle();
    void becomeIdle();

    bool m_recording = false;
    QProcess *m_process;
    QString m_outputPath;
    QTimer *m_killTimer; ///< runs only while a polite stop is pending
    bool m_stopping = false;
    RecorderReport *m_report;
};
