#pragma once

#include <QSize>
#include <QString>

class ElementList;

/// Saves the marks, without the screen beneath, on a transparent background. A picture is there
/// whole or not at all: a failure leaves nothing half and damages nothing older.
class PictureExport
{
public:
    explicit PictureExport(const ElementList &elements) : m_elements(elements) { }

    /// Writes the picture beside the executable; an older one of the same second is replaced. The
    /// outcome is only logged; without elements or without a size nothing happens.
    void saveBesideExecutable(const QSize &size) const;

    /// Writes what the screen shows beside the executable or, where that fails, into the user's
    /// pictures folder; never replaces a file. Returns the path, or an empty text: see `error()`.
    /// `size` is the canvas's in logical pixels, the picture has `ratio` pixels for each.
    QString save(const QSize &size, qreal ratio);
    /// Writes what the screen shows to the file at `path`, replacing an older one. The suffix tells
    /// the format, PNG without one; where a format knows no transparency, the background is white.
    /// False when that fails: see `error()`.
    [[nodiscard]] bool saveTo(const QString &path, const QSize &size, qreal ratio);
    /// Why the latest `save` or `saveTo` wrote nothing, for people.
    [[nodiscard]] QString error() const { return m_error; }

private:
    [[nodiscard]] bool canSave(const QSize &size);

    const ElementList &m_elements;
    QString m_error;
};
