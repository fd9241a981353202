#include "app/interfacelanguage.h"

#include "settings/languagemanager.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QScopedValueRollback>

namespace
{

/// In the order of `m_textsOfQt`.
constexpr std::array<const char *, 2> kCataloguesOfQt{ "qtbase", "qtdeclarative" };

} // namespace

InterfaceLanguage::InterfaceLanguage()
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(LanguageManager::instance(), &LanguageManager::languageChanged, this,
        [this](const QString &language) {
            m_languageOfQt = language;
            loadTextsOfQt();
        });
}

InterfaceLanguage::~InterfaceLanguage()
{
    // The translators leave with this object, and no text is renewed on the way out.
    QCoreApplication::instance()->removeEventFilter(this);
}

bool InterfaceLanguage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance()
        && !m_loading) {
        // Whatever is in effect now, the manager names it afterwards, or never when it failed.
        m_languageOfQt.clear();
        renewSoon();
    }
    return QObject::eventFilter(watched, event);
}

void InterfaceLanguage::renewSoon()
{
    if (m_renewing) {
        return;
    }
    m_renewing = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_renewing = false;
            if (m_languageOfQt.isEmpty()) {
                loadTextsOfQt();
            }
            emit textsChanged();
        },
        Qt::QueuedConnection);
}

void InterfaceLanguage::loadTextsOfQt()
{
    const QScopedValueRollback loading(m_loading, true);
    const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (std::size_t i = 0; i < m_textsOfQt.size(); ++i) {
        QTranslator &translator = m_textsOfQt.at(i);
        QCoreApplication::removeTranslator(&translator);
        if (!m_languageOfQt.isEmpty()
            && translator.load(QLocale(m_languageOfQt), QLatin1String(kCataloguesOfQt.at(i)),
                QStringLiteral("_"), directory)) {
            QCoreApplication::installTranslator(&translator);
        }
    }
}
