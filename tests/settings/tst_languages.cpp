#include "settings/languagemanager.h"
#include "settings/settingsclazz.h"
#include "settings/translation.h"
#include "tests/settings/throwawaystore.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTranslator>

namespace
{

const QString kSourceText = "退出";

QVariantMap entry(const char *code, const char *name)
{
    return { { "code", code }, { "name", name } };
}

void layBesideExecutable(const QString &code, const QString &as)
{
    QVERIFY(QFile::copy(QStringLiteral(":/translations/app_%1.qm").arg(code),
        QStringLiteral("%1/app_%2.qm").arg(translationsDirectory(), as)));
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
};

void TestLanguages::init()
{
    ThrowawayStore::clear();
    QDir(translationsDirectory()).removeRecursively();
    QTest::ignoreMessage(QtDebugMsg, "Translations directory does not exist!");
    loadTranslation(qApp, "none");
    QVERIFY(QDir(translationsDirectory()).exists());
}

void TestLanguages::choosingALanguageAnnouncesAndAppliesIt()
{
    layBesideExecutable("en_US", "en_US");
    SettingsClazz settings;
    QSignalSpy changed(&settings, &SettingsClazz::settingsChanged);
    QSignalSpy announced(LanguageManager::instance(), &LanguageManager::languageChanged);
    QVERIFY(settings.setLanguage("en_US"));
    QCOMPARE(changed.size(), 2);
    QCOMPARE(announced.size(), 1);
    QCOMPARE(announced.first().first().toString(), "en_US");
    QCOMPARE(settings.getTranslation(kSourceText), "Exit");
    QCOMPARE(settings.getTranslation("未知"), "未知");
    QCOMPARE(settings.getCurrentLanguage(), "en_US");

    QVERIFY(settings.reloadTranslations());
    QCOMPARE(announced.size(), 2);
    QCOMPARE(changed.size(), 2);
}

void TestLanguages::aCatalogueOnlyInTheResourcesIsListedButNotLoaded()
{
    SettingsClazz settings;
    QVERIFY(settings.getAvailableLanguages().contains(entry("ja_JP", "日本語")));
    QSignalSpy announced(LanguageManager::instance(), &LanguageManager::languageChanged);
    QVERIFY(settings.setLanguage("ja_JP"));
    QCOMPARE(announced.size(), 0);
    QCOMPARE(settings.getTranslation(kSourceText), kSourceText);
}

void TestLanguages::eachCatalogueIsListedOnce()
{
    layBesideExecutable("ko_KR", "ko_KR");
    layBesideExecutable("ko_KR", "xx");
    const QVariantList languages = SettingsClazz().getAvailableLanguages();
    QCOMPARE(languages.size(), 6);
    QCOMPARE(languages.count(entry("ko_KR", "한국어")), 1);
    QCOMPARE(languages.last().toMap(), entry("xx", "xx"));
    QVERIFY(languages.contains(entry("zh_CN", "简体中文")));
}

void TestLanguages::aTerritoryFallsBackToItsLanguage()
{
    layBesideExecutable("en_US", "en");
    loadTranslation(qApp, "en_AU");
    QCOMPARE(SettingsClazz().getTranslation(kSourceText), "Exit");
}

void TestLanguages::loadingReplacesTheFormerCatalogue()
{
    layBesideExecutable("en_US", "en_US");
    layBesideExecutable("ja_JP", "ja_JP");
    for (const char *code : { "en_US", "ja_JP", "en_US", "nosuch" }) {
        loadTranslation(qApp, QLatin1String(code));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), 0);
    QCOMPARE(SettingsClazz().getTranslation(kSourceText), kSourceText);
}

void TestLanguages::theLanguageIsChineseWhenNothingIsStored()
{
    SettingsClazz settings;
    QCOMPARE(settings.getCurrentLanguage(), "zh_CN");
    QCOMPARE(settings.getCurrentLanguageName(), "简体中文");
    QVERIFY(settings.addSetting("appLanguage", "xx"));
    QCOMPARE(settings.getCurrentLanguageName(), "xx");
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
