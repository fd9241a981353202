#pragma once

#include "capture/linebuffer.h"

#include <QObject>
#include <QProcess>
#include <QString>
#include <QtQmlIntegration>

/// What the recorder says about the recording in hand: which file it writes, and what went wrong.
///
/// It only listens; whether a recording runs is `VideoCaptureObject`'s to say.
class RecorderReport : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    /// Listens to the process's output; the process outlives this object.
    RecorderReport(QProcess *process, QObject *parent);

    /// Absolute path of the video file; empty unless there is one by now that holds pictures.
    Q_INVOKABLE QString savedFile() const;

    /// Forgets the last recording.
    void clear();

signals:
    /// The recorder has begun its file.
    void begun();
    /// Something was lost but the recording goes on. `code` is one of `RecorderProtocol::Code`.
    void warning(const QString &code, const QString &text);
    /// The recording fails for this reason. `code` is empty when a failed recorder left nothing but
    /// a line in somebody's words, or not even that.
    void error(const QString &code, const QString &text);

private:
    void readOutput();
    void readErrors();
    void takeErrorLine(const QString &line);
    void onProcessFinished(int exitCode, QProcess::ExitStatus exitStatus);

    QProcess *m_process;
    LineBuffer m_output;
    LineBuffer m_errors;
    QString m_unexplained; ///< the latest error line without a code
    bool m_errorTold = false;
    QString m_filePath; ///< of the file that the recorder has begun
};
