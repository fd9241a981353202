#pragma once

#include <QLoggingCategory>
#include <QStringList>

/// Keeps what is logged while it lives, instead of showing it. At most one at a time.
class LogRecorder
{
public:
    LogRecorder() : m_previous(qInstallMessageHandler(&record)) { s_lines.clear(); }
    ~LogRecorder() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(LogRecorder)

    /// The line that logging a text and an id gives.
    [[nodiscard]] static QString line(const char *text, const QString &id)
    {
        return QStringLiteral("%1 \"%2\"").arg(QString::fromUtf8(text), id);
    }
    [[nodiscard]] static QStringList take() { return std::exchange(s_lines, {}); }

private:
    static void record(QtMsgType, const QMessageLogContext &, const QString &line)
    {
        s_lines.append(line);
    }

    inline static QStringList s_lines;
    QtMessageHandler m_previous;
};
