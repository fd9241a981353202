#pragma once

#include <QObject>

/// Tells the interface that another language is in effect. One instance for the whole process,
/// which outlives every window and is not freed.
class LanguageManager : public QObject
{
    Q_OBJECT

public:
    ~LanguageManager() override;

    /// Created on the first call.
    [[nodiscard]] static LanguageManager *instance();

    void emitLanguageChanged(const QString &language);

signals:
    void languageChanged(const QString &language);

private:
    LanguageManager();

    static LanguageManager *s_instance;
};
