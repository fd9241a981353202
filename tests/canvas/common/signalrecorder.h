#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>

/// The names of the signals that an object of this class emits, in their order.
class SignalRecorder : public QObject
{
    Q_OBJECT

public:
    SignalRecorder(const QObject &sender, const QMetaObject &senderClass)
    {
        const QMetaMethod slot =
            staticMetaObject.method(staticMetaObject.indexOfSlot("recordSignal()"));
        for (int i = senderClass.methodOffset(); i < senderClass.methodCount(); ++i) {
            if (senderClass.method(i).methodType() == QMetaMethod::Signal)
                connect(&sender, senderClass.method(i), this, slot);
        }
    }

    [[nodiscard]] QStringList take() { return std::exchange(m_names, {}); }

private slots:
    void recordSignal()
    {
        const QMetaMethod signal = sender()->metaObject()->method(senderSignalIndex());
        m_names.append(QString::fromLatin1(signal.name()));
    }

private:
    QStringList m_names;
};
