#include "settings/languagemanager.h"

#include "settings/logtexts.h"

#include <QDebug>

LanguageManager *LanguageManager::s_instance = nullptr;

LanguageManager::LanguageManager()
{
    qDebug() << LogTexts::kLanguageManagerCreated;
}

LanguageManager::~LanguageManager()
{
    qDebug() << LogTexts::kLanguageManagerDestroyed;
    s_instance = nullptr;
}

LanguageManager *LanguageManager::instance()
{
    if (!s_instance) {
        s_instance = new LanguageManager;
    }
    return s_instance;
}

void LanguageManager::emitLanguageChanged(const QString &language)
{
    qDebug() << LogTexts::kEmittingLanguageChanged << language;
    emit languageChanged(language);
}
