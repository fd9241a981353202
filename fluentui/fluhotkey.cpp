#include "fluentui/fluhotkey.h"

#include <QDebug>
#include <QKeySequence>

#include <optional>

namespace
{

std::optional<QKeyCombination> firstChord(const QString &text)
{
    const QKeySequence sequence(text, QKeySequence::PortableText);
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        return std::nullopt;
    if (sequence.count() > 1)
        qWarning().noquote() << "Hot key" << text << "has several chords, only the first counts";
    return sequence[0];
}

} // namespace

FluHotkey::FluHotkey(QObject *parent) : QObject(parent)
{
    connect(&m_hotKey, &GlobalHotKey::activated, this, &FluHotkey::activated);
    connect(&m_hotKey, &GlobalHotKey::registeredChanged, this, &FluHotkey::setRegistered);
}

void FluHotkey::setSequence(const QString &sequence)
{
    if (m_sequence == sequence)
        return;
    m_sequence = sequence;
    m_hotKey.unbind();
    setRegistered(false);
    Q_EMIT sequenceChanged();
    // A receiver may have set another sequence, which is bound by now.
    if (m_sequence != sequence)
        return;
    if (const std::optional<QKeyCombination> keys = firstChord(sequence))
        setRegistered(m_hotKey.bind(*keys));
}

void FluHotkey::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    Q_EMIT nameChanged();
}

void FluHotkey::setRegistered(bool registered)
{
    if (m_isRegistered == registered)
        return;
    m_isRegistered = registered;
    Q_EMIT isRegisteredChanged();
}
