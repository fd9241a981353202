#include "app/startup.h"

#include "app/identity.h"
#include "app/logtexts.h"
#include "settings/languagemanager.h"
#include "settings/settingskeys.h"
#include "settings/settingsstore.h"
#include "settings/translation.h"

#include <QDebug>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QLocale>
#include <QQmlContext>
#include <QSurfaceFormat>

#include <openssl/ssl.h>

namespace
{

constexpr int kAlphaBits = 8;

} // namespace

namespace Startup
{

void initialiseOpenSsl()
{
    OPENSSL_init_ssl(0, nullptr);
    OPENSSL_init_ssl(OPENSSL_INIT_LOAD_SSL_STRINGS | OPENSSL_INIT_LOAD_CRYPTO_STRINGS, nullptr);
    OPENSSL_init_crypto(OPENSSL_INIT_ADD_ALL_CIPHERS | OPENSSL_INIT_ADD_ALL_DIGESTS, nullptr);
    qDebug() << StartupLogTexts::kOpenSslVersion << OPENSSL_VERSION_TEXT;
}

void requestTranslucentWindows()
{
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setAlphaBufferSize(kAlphaBits);
    QSurfaceFormat::setDefaultFormat(format);
}

void setIdentity()
{
    QCoreApplication::setApplicationName(QLatin1String(Identity::kApplicationName));
    QCoreApplication::setApplicationVersion(QLatin1String(Identity::kVersion));
    QCoreApplication::setOrganizationName(QLatin1String(Identity::kOrganization));
    QGuiApplication::setDesktopFileName(QLatin1String(Identity::kDesktopEntry));
    QGuiApplication::setWindowIcon(QIcon(QLatin1String(Identity::kIcon)));
}

QString chooseLanguage()
{
    QString language = QLocale::system().name();
    if (!QFileInfo::exists(
            translationsDirectory() + QLatin1String("/app_") + language + QLatin1String(".qm"))) {
        language = QLatin1String(SettingsKeys::kDefaultLanguage);
    }
    const QVariant stored = SettingsStore::read(QLatin1String(SettingsKeys::kAppLanguage));
    return stored.isValid() ? stored.toString() : language;
}

void publishToDocuments(QQmlContext &rootContext)
{
    rootContext.setContextProperty(
        QStringLiteral("AppName"), QLatin1String(Identity::kApplicationName));
    rootContext.setContextProperty(QStringLiteral("AppVersion"), QLatin1String(Identity::kVersion));
    rootContext.setContextProperty(
        QStringLiteral("AppCompany"), QLatin1String(Identity::kOrganization));
    rootContext.setContextProperty(
        QStringLiteral("AppDescription"), QLatin1String(Identity::kDisplayName));
    rootContext.setContextProperty(
        QStringLiteral("AppCopyright"), QString::fromUtf8(Identity::kRightsNotice));
    rootContext.setContextProperty(QStringLiteral("LanguageManager"), LanguageManager::instance());
}

} // namespace Startup
