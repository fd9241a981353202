#include "app/interfacelanguage.h"

#include "settings/languagemanager.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>

namespace
{

/// In the order of `m_textsOfQt`.
constexpr std::array<const char *, 2> kCataloguesOfQt{ "qtbase", "qtdeclarative" };

} // namespace

InterfaceLanguage::InterfaceLanguage()
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(LanguageManager::instance(), &LanguageManager::languageChanged, this,
        &InterfaceLanguage::loadTextsOfQt);
}

InterfaceLanguage::~InterfaceLanguage()
{
    // The translators leave with this object, and no text is renewed on the way out.
    QCoreApplication::instance()->removeEventFilter(this);
}

bool InterfaceLanguage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance()) {
        emit textsChanged();
    }
    return QObject::eventFilter(watched, event);
}

void InterfaceLanguage::loadTextsOfQt(const QString &language)
{
    const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (std::size_t i = 0; i < m_textsOfQt.size(); ++i) {
        QTranslator &translator = m_textsOfQt.at(i);
        QCoreApplication::removeTranslator(&translator);
        if (translator.load(QLocale(language), QLatin1String(kCataloguesOfQt.at(i)),
                QStringLiteral("_"), directory)) {
            QCoreApplication::installTranslator(&translator);
        }
    }
}
