#include "capture/recorderreport.h"

#include "recorder/recorderprotocol.h"

#include <QFile>

namespace
{

/// Moves every complete line from `pending` to the caller, one at a time.
template <typename Consumer> void takeLines(QByteArray &pending, Consumer consume)
{
    for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
        const QString line = QString::fromUtf8(pending.left(end)).trimmed();
        pending.remove(0, end + 1);
        if (!line.isEmpty())
            consume(line);
    }
}

} // namespace

RecorderReport::RecorderReport(QProcess *process, QObject *parent)
    : QObject(parent), m_process(process)
{
    connect(process, &QProcess::readyReadStandardOutput, this, &RecorderReport::readOutput);
    connect(process, &QProcess::readyReadStandardError, this, &RecorderReport::readErrors);
    connect(process, &QProcess::finished, this, &RecorderReport::onProcessFinished);
}

void RecorderReport::clear()
{
    m_pendingOutput.clear();
    m_pendingErrors.clear();
    m_unexplained.clear();
    m_errorTold = false;
    setFilePath(QString());
}

void RecorderReport::readOutput()
{
    m_pendingOutput += m_process->readAllStandardOutput();
    takeLines(m_pendingOutput, [this](const QString &line) {
        if (line.startsWith(RecorderProtocol::kFilePrefix))
            setFilePath(line.mid(RecorderProtocol::kFilePrefix.size()));
    });
}

void RecorderReport::readErrors()
{
    m_pendingErrors += m_process->readAllStandardError();
    takeLines(m_pendingErrors, [this](const QString &line) { takeErrorLine(line); });
}

void RecorderReport::takeErrorLine(const QString &line)
{
    const bool isWarning = line.startsWith(RecorderProtocol::kWarningPrefix);
    const bool isError = line.startsWith(RecorderProtocol::kErrorPrefix);
    const qsizetype codeEnd = line.indexOf(RecorderProtocol::kCodeEnd);
    if ((!isWarning && !isError) || codeEnd < 0) {
        m_unexplained = line;
        return;
    }
    const qsizetype codeStart = line.indexOf(u'[') + 1;
    const QString code = line.mid(codeStart, codeEnd - codeStart);
    const QString text = line.mid(codeEnd + RecorderProtocol::kCodeEnd.size());
    if (isWarning) {
        emit warning(code, text);
        return;
    }
    m_errorTold = true;
    // The recorder removes a file that has come to nothing.
    if (!QFile::exists(m_filePath))
        setFilePath(QString());
    emit error(code, text);
}

/// A recorder that fails without a word meant for us, say because a library is missing, has left
/// the reason in somebody else's words: better those than silence.
void RecorderReport::onProcessFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    const bool failed = exitStatus == QProcess::CrashExit || exitCode != 0;
    if (failed && !m_errorTold && !m_unexplained.isEmpty())
        emit error(QString(), m_unexplained);
}

void RecorderReport::setFilePath(const QString &path)
{
    if (m_filePath == path)
        return;
    m_filePath = path;
    emit filePathChanged();
}
