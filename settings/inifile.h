#pragma once

#include <QString>

#include <optional>

/// An INI file that is read and written by group and key, opened afresh by every operation.
class IniFile
{
public:
    explicit IniFile(QString path);

    /// Nothing when the file, the group or the key is missing.
    [[nodiscard]] std::optional<QString> value(const QString &group, const QString &key) const;

    /// Creates the file when it is absent. A file that is not well-formed is first copied aside,
    /// since writing keeps only what could be read. An unwritable folder or a full disk changes
    /// nothing.
    void setValue(const QString &group, const QString &key, const QString &value) const;

private:
    [[nodiscard]] bool isDamaged() const;
    [[nodiscard]] bool copyAside() const;

    QString m_path;
};
