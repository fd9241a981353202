#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <functional>

/// Makes lines of a stream that arrives in pieces. A line longer than `kMaxBytes` is cut there, so
/// that a stream without line ends takes no memory.
class LineBuffer
{
public:
    static constexpr qsizetype kMaxBytes = 64 * 1024;

    /// Hands out each line that is complete now, decoded and trimmed; empty ones are left out.
    void add(QByteArrayView piece, const std::function<void(const QString &)> &consume);
    /// The line whose end has not come; forgets it.
    QString takeRest();

private:
    void keep(QByteArrayView part);

    QByteArray m_pending;
};
