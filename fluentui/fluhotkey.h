#pragma once

#include "platform/globalhotkeys.h"

#include <QtQml/qqmlregistration.h>

/// A system-wide hot key for QML. An empty `sequence` releases the key; of several chords only the
/// first counts. `isRegistered` says whether the desktop gave the keys.
class FluHotkey : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString sequence READ sequence WRITE setSequence NOTIFY sequenceChanged FINAL)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    Q_PROPERTY(bool isRegistered READ isRegistered NOTIFY isRegisteredChanged FINAL)

public:
    explicit FluHotkey(QObject *parent = nullptr);

    [[nodiscard]] QString sequence() const { return m_sequence; }
    /// Releases the former keys, announces the new text, then takes the new keys.
    void setSequence(const QString &sequence);

    /// A free label.
    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name);

    [[nodiscard]] bool isRegistered() const { return m_isRegistered; }

Q_SIGNALS:
    void sequenceChanged();
    void nameChanged();
    void isRegisteredChanged();
    /// Once for each physical press, from the event loop.
    void activated();

private:
    void setRegistered(bool registered);

    GlobalHotKey m_hotKey;
    QString m_sequence;
    QString m_name;
    bool m_isRegistered = false;
};
