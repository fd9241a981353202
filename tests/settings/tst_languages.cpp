#include "settings/languagemanager.h"
#include "settings/settingsclazz.h"
#include "settings/translation.h"
#include "tests/settings/throwawaystore.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTranslator>

namespace
{

QString sourceText()
{
    return QString::fromUtf8("退出");
}

QVariantMap entry(const char *code, const char *name)
{
    return { { QStringLiteral("code"), QString::fromUtf8(code) },
        { QStringLiteral("name"), QString::fromUtf8(name) } };
}

} // namespace

/// The catalogues of the program lie in the resources; each test decides what lies beside the
/// executable.
class TestLanguages : public QObject
{
    Q_OBJECT

public:
    static void initMain() { ThrowawayStore::use(); }

private slots:
    void init();
    void choosingALanguageAnnouncesAndAppliesIt();
    void aCatalogueOnlyInTheResourcesIsListedButNotLoaded();
    void eachCatalogueIsListedOnce();
    void aTerritoryFallsBackToItsLanguage();
    void loadingReplacesTheFormerCatalogue();
    void theLanguageIsChineseWhenNothingIsStored();
    void theMissingFolderIsCreated();
};

namespace
{

void layBesideExecutable(const QString &code, const QString &as)
{
    QDir().mkpath(translationsDirectory());
    QVERIFY(QFile::copy(QStringLiteral(":/translations/app_%1.qm").arg(code),
        QStringLiteral("%1/app_%2.qm").arg(translationsDirectory(), as)));
}

} // namespace

void TestLanguages::init()
{
    ThrowawayStore::clear();
    QDir(translationsDirectory()).removeRecursively();
    loadTranslation(qApp, QStringLiteral("none"));
}

void TestLanguages::choosingALanguageAnnouncesAndAppliesIt()
{
    layBesideExecutable(QStringLiteral("en_US"), QStringLiteral("en_US"));
    SettingsClazz settings;
    QSignalSpy changed(&settings, &SettingsClazz::settingsChanged);
    QSignalSpy announced(LanguageManager::instance(), &LanguageManager::languageChanged);
    QVERIFY(settings.setLanguage(QStringLiteral("en_US")));
    QCOMPARE(changed.size(), 2);
    QCOMPARE(announced.size(), 1);
    QCOMPARE(announced.first().first().toString(), QStringLiteral("en_US"));
    QCOMPARE(settings.getTranslation(sourceText()), QStringLiteral("Exit"));
    QCOMPARE(settings.getTranslation(QStringLiteral("未知")), QStringLiteral("未知"));
    QCOMPARE(settings.getCurrentLanguage(), QStringLiteral("en_US"));

    QVERIFY(settings.reloadTranslations());
    QCOMPARE(announced.size(), 2);
    QCOMPARE(changed.size(), 2);
}

void TestLanguages::aCatalogueOnlyInTheResourcesIsListedButNotLoaded()
{
    SettingsClazz settings;
    QVERIFY(settings.getAvailableLanguages().contains(entry("ja_JP", "日本語")));
    QSignalSpy announced(LanguageManager::instance(), &LanguageManager::languageChanged);
    QVERIFY(settings.setLanguage(QStringLiteral("ja_JP")));
    QCOMPARE(announced.size(), 0);
    QCOMPARE(settings.getTranslation(sourceText()), sourceText());
}

void TestLanguages::eachCatalogueIsListedOnce()
{
    layBesideExecutable(QStringLiteral("ko_KR"), QStringLiteral("ko_KR"));
    layBesideExecutable(QStringLiteral("ko_KR"), QStringLiteral("xx"));
    const QVariantList languages = SettingsClazz().getAvailableLanguages();
    QCOMPARE(languages.size(), 6);
    QCOMPARE(languages.count(entry("ko_KR", "한국어")), 1);
    QCOMPARE(languages.last().toMap(), entry("xx", "xx"));
    QVERIFY(languages.contains(entry("zh_CN", "简体中文")));
}

void TestLanguages::aTerritoryFallsBackToItsLanguage()
{
    layBesideExecutable(QStringLiteral("en_US"), QStringLiteral("en"));
    loadTranslation(qApp, QStringLiteral("en_AU"));
    QCOMPARE(SettingsClazz().getTranslation(sourceText()), QStringLiteral("Exit"));
}

void TestLanguages::loadingReplacesTheFormerCatalogue()
{
    layBesideExecutable(QStringLiteral("en_US"), QStringLiteral("en_US"));
    layBesideExecutable(QStringLiteral("ja_JP"), QStringLiteral("ja_JP"));
    for (const char *code : { "en_US", "ja_JP", "en_US", "nosuch" }) {
        loadTranslation(qApp, QLatin1String(code));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), 0);
    QCOMPARE(SettingsClazz().getTranslation(sourceText()), sourceText());
}

void TestLanguages::theLanguageIsChineseWhenNothingIsStored()
{
    SettingsClazz settings;
    QCOMPARE(settings.getCurrentLanguage(), QStringLiteral("zh_CN"));
    QCOMPARE(settings.getCurrentLanguageName(), QStringLiteral("简体中文"));
    QVERIFY(settings.addSetting(QStringLiteral("appLanguage"), QStringLiteral("xx")));
    QCOMPARE(settings.getCurrentLanguageName(), QStringLiteral("xx"));
}

void TestLanguages::theMissingFolderIsCreated()
{
    QDir(translationsDirectory()).removeRecursively();
    QTest::ignoreMessage(QtDebugMsg, "Translations directory does not exist!");
    loadTranslation(qApp, QStringLiteral("en_US"));
    QVERIFY(QDir(translationsDirectory()).exists());
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
