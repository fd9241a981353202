#pragma once

#include <QByteArray>
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
    /// Absolute path of the video file, empty until the recorder has begun one.
    Q_PROPERTY(QString filePath READ filePath NOTIFY filePathChanged FINAL)

public:
    /// Listens to the process's output; the process outlives this object.
    RecorderReport(QProcess *process, QObject *parent);

    QString filePath() const { return m_filePath; }

    /// Forgets the last recording.
    void clear();

signals:
    void filePathChanged();
    /// Something was lost but the recording goes on. `code` is one of `RecorderProtocol::Code`.
    void warning(const QString &code, const QString &text);
    /// The recording fails for this reason. `code` is empty when a failed recorder left nothing but
    /// a line in words of its own.
    void error(const QString &code, const QString &text);

private:
    void readOutput();
    void readErrors();
    void takeErrorLine(const QString &line);
    void onProcessFinished(int exitCode, QProcess::ExitStatus exitStatus);
    void setFilePath(const QString &path);

    QProcess *m_process;
    QByteArray m_pendingOutput; ///< an output line whose end has not arrived
    QByteArray m_pendingErrors;
    QString m_unexplained; ///< the latest error line without a code
    bool m_errorTold = false;
    QString m_filePath;
};
