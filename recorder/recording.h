#pragma once

#include "recorder/encoderfailure.h"
#include "recorder/recordingrequest.h"
#include "recorder/soundcapture.h"
#include "recorder/videofile.h"

#include <QObject>
#include <QProcess>
#include <QTimer>

#include <memory>

struct Desktop;

/// One recording, from the choice of its file until FFmpeg has closed it. Everything that goes
/// wrong is told on standard error.
class Recording : public QObject
{
    Q_OBJECT

public:
    explicit Recording(QObject *parent = nullptr);

    /// Returns whether FFmpeg was launched; `finished` follows then.
    bool start(const RecordingRequest &request);
    /// Finishes the file; any further call does nothing.
    void stop();

signals:
    /// `succeeded` is true when a stop was asked for and the file is whole.
    void finished(bool succeeded);

private:
    bool launch(const Desktop &desktop, const RecordingRequest &request, const QRect &areaPx);
    void endEncoder();
    void giveUp();
    void keepWords();
    EncoderFailure failureOf() const;
    void onEncoderError(QProcess::ProcessError error);
    void onEncoderFinished(int exitCode, QProcess::ExitStatus status);

    QProcess m_encoder;
    QByteArray m_words; ///< the last of what FFmpeg wrote to standard error
    VideoFile m_file;
    std::unique_ptr<SoundCapture> m_sound;
    QTimer m_patience; ///< how long FFmpeg may take to finish
    bool m_stopRequested = false;
    bool m_gaveUp = false; ///< FFmpeg had to be killed
};
