#pragma once

#include <QDateTime>
#include <QString>

/// The file that a recording goes to. Its name is taken on disk the moment it is chosen, so that
/// nothing that exists is ever overwritten, not even by a second recorder of the same second.
class VideoFile
{
public:
    /// `output` is a folder (ends in a separator, or exists as one), in which a name is made from
    /// `now`, or a file; folders are created. A name that is in use gets a number.
    /// Returns false and says why when nothing can be written there.
    bool reserve(const QString &output, const QDateTime &now, QString *reason);

    /// Absolute.
    QString path() const { return m_path; }
    /// Whether it holds no picture; a mere header does not count.
    bool isEmpty() const;
    /// Removes the file when there is nothing in it to lose.
    void discardIfEmpty() const;

private:
    QString m_path;
};
