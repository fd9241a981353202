#include "settings/languagecatalogues.h"

#include "settings/logtexts.h"
#include "settings/settingskeys.h"
#include "settings/translation.h"

#include <QDebug>
#include <QDir>
#include <QHash>
#include <QLocale>
#include <QStringList>

namespace
{

constexpr int kPrefixLength = 4; // "app_"
constexpr int kSuffixLength = 3; // ".qm"

QStringList catalogueFilesIn(const QString &directory)
{
    return QDir(directory).entryList({ QStringLiteral("app_*.qm") }, QDir::Files, QDir::Unsorted);
}

QString fallbackName(const QString &code)
{
    static const QHash<QString, QString> names{
        { QStringLiteral("zh_CN"), QStringLiteral("简体中文") },
        { QStringLiteral("en"), QStringLiteral("English") },
        { QStringLiteral("ja"), QStringLiteral("日本語") },
        { QStringLiteral("ko"), QStringLiteral("한국어") },
    };
    return names.value(code, code);
}

QVariantMap entry(const QString &code, const QString &name)
{
    return { { QStringLiteral("code"), code }, { QStringLiteral("name"), name } };
}

QStringList catalogueFiles()
{
    const QString directory = translationsDirectory();
    QStringList files = catalogueFilesIn(QStringLiteral(":/translations"));
    qDebug() << LogTexts::kLanguagesInResources << files;
    const QStringList besideExecutable = catalogueFilesIn(directory);
    qDebug() << LogTexts::kLanguagesInDirectory << besideExecutable << LogTexts::kLanguagesDirectory
             << directory;
    files << besideExecutable;
    files.removeDuplicates();
    return files;
}

} // namespace

namespace LanguageCatalogues
{

QString displayName(const QString &code)
{
    const QString name = QLocale(code).nativeLanguageName();
    return name.isEmpty() ? fallbackName(code) : name;
}

QVariantList available()
{
    qDebug() << LogTexts::kListingLanguages;
    QVariantList languages;
    for (const QString &file : catalogueFiles()) {
        const QString code = file.mid(kPrefixLength, file.size() - kPrefixLength - kSuffixLength);
        languages << entry(code, displayName(code));
    }
    if (languages.isEmpty()) {
        qDebug() << LogTexts::kNoLanguages;
        const QString chinese = QLatin1String(SettingsKeys::kDefaultLanguage);
        const QString english = QStringLiteral("en");
        return { entry(chinese, fallbackName(chinese)), entry(english, fallbackName(english)) };
    }
    qDebug() << LogTexts::kFoundLanguages << languages.size() << LogTexts::kFoundLanguagesUnit;
    return languages;
}

} // namespace LanguageCatalogues
