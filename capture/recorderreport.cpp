#include "capture/recorderreport.h"

#include "recorder/recorderprotocol.h"
#include "recorder/videocontent.h"

RecorderReport::RecorderReport(QProcess *process, QObject *parent)
    : QObject(parent), m_process(process)
{
    connect(process, &QProcess::readyReadStandardOutput, this, &RecorderReport::readOutput);
    connect(process, &QProcess::readyReadStandardError, this, &RecorderReport::readErrors);
    connect(process, &QProcess::finished, this, &RecorderReport::onProcessFinished);
}

void RecorderReport::clear()
{
    m_output.takeRest();
    m_errors.takeRest();
    m_unexplained.clear();
    m_errorTold = false;
    m_filePath.clear();
}

QString RecorderReport::savedFile() const
{
    return VideoContent::holdsPictures(m_filePath) ? m_filePath : QString();
}

void RecorderReport::readOutput()
{
    m_output.add(m_process->readAllStandardOutput(), [this](const QString &line) {
        if (line.startsWith(RecorderProtocol::kFilePrefix)) {
            m_filePath = line.mid(RecorderProtocol::kFilePrefix.size());
            emit begun();
        }
    });
}

void RecorderReport::readErrors()
{
    m_errors.add(
        m_process->readAllStandardError(), [this](const QString &line) { takeErrorLine(line); });
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
    emit error(code, text);
}

/// A recorder that fails without a word meant for us, say because a library is missing, has left
/// the reason in somebody else's words: better those than silence. A crash is told elsewhere.
void RecorderReport::onProcessFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    const QString rest = m_errors.takeRest();
    if (!rest.isEmpty())
        takeErrorLine(rest);
    const bool failed = exitStatus == QProcess::NormalExit && exitCode != 0;
    if (failed && !m_errorTold)
        emit error(QString(), m_unexplained);
}
