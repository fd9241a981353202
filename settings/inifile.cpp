#include "settings/inifile.h"

#include "platform/wholefile.h"
#include "settings/logtexts.h"
#include "settings/settingsfile.h"

#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QSettings>
#include <QStringDecoder>

#include <utility>

namespace
{

/// QSettings keeps a parsed file in memory and reports damage only to whoever happens to parse it,
/// so its answer depends on who asked before.
bool isWellFormed(const QString &text)
{
    bool continues = false;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QString content = line.trimmed();
        const bool isGroup = content.startsWith(QLatin1Char('['));
        const bool isComplete =
            isGroup ? content.contains(QLatin1Char(']')) : content.contains(QLatin1Char('='));
        const bool isComment =
            content.startsWith(QLatin1Char(';')) || content.startsWith(QLatin1Char('#'));
        if (!continues && !isComplete && !content.isEmpty() && !isComment) {
            return false;
        }
        continues = content.endsWith(QLatin1Char('\\'));
    }
    return true;
}

} // namespace

IniFile::IniFile(QString path) : m_path(std::move(path))
{
}

std::optional<QString> IniFile::value(const QString &group, const QString &key) const
{
    const QSettings file(m_path, QSettings::IniFormat);
    const QString path = group + QLatin1Char('/') + key;
    return file.contains(path) ? std::optional(file.value(path).toString()) : std::nullopt;
}

void IniFile::setValue(const QString &group, const QString &key, const QString &value) const
{
    const bool damaged = isDamaged();
    if (damaged && !copyAside()) {
        qWarning() << LogTexts::kBrokenIniFileNotCopied << m_path;
        return;
    }
    // An unchanged value in a sound file is not written again: a rewrite drops the comments of
    // whoever deployed the file.
    if (!damaged && this->value(group, key) == value) {
        return;
    }
    // Nobody is told: what is kept here is the program's own affair.
    static_cast<void>(
        SettingsFile::edit(QSettings(m_path, QSettings::IniFormat), [&](QSettings &file) {
            file.beginGroup(group);
            file.setValue(key, value);
            file.endGroup();
        }));
}

bool IniFile::isDamaged() const
{
    QFile raw(m_path);
    if (!raw.open(QIODevice::ReadOnly)) {
        return false;
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(raw.readAll());
    return decoder.hasError() || text.contains(QChar::Null) || !isWellFormed(text);
}

bool IniFile::copyAside() const
{
    const QString stamp =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss_zzz"));
    const QString copy = m_path + QLatin1String(".broken-") + stamp;
    if (!WholeFile::copy(m_path, copy)) {
        return false;
    }
    qWarning() << LogTexts::kBrokenIniFile << copy;
    return true;
}
