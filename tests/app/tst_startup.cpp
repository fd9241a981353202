#include "app/startup.h"

#include "platform/windowsystem.h"
#include "settings/settingsstore.h"
#include "settings/translation.h"
#include "tests/settings/throwawaystore.h"

#include <QLocale>
#include <QQmlContext>
#include <QQmlEngine>

/// The system's language is Japanese; see the test's environment.
class TestStartup : public QObject
{
    Q_OBJECT

public:
    static void initMain() { ThrowawayStore::use(); }

private slots:
    void init();
    void theLanguageIsStoredOrTheSystemsOrChinese();
    void theDocumentsLearnWhoTheyBelongTo();
    void theWindowSystemWithPositionsIsPreferred();
};

void TestStartup::init()
{
    ThrowawayStore::clear();
    QDir(translationsDirectory()).removeRecursively();
}

void TestStartup::theLanguageIsStoredOrTheSystemsOrChinese()
{
    QCOMPARE(QLocale::system().name(), "ja_JP");
    QCOMPARE(Startup::chooseLanguage(), "zh_CN");

    QDir().mkpath(translationsDirectory());
    QFile catalogue(translationsDirectory() + "/app_ja_JP.qm");
    QVERIFY(catalogue.open(QIODevice::WriteOnly));
    QCOMPARE(Startup::chooseLanguage(), "ja_JP");

    QCOMPARE(SettingsStore::write("appLanguage", "xx"), QSettings::NoError);
    QCOMPARE(Startup::chooseLanguage(), "xx");
}

void TestStartup::theDocumentsLearnWhoTheyBelongTo()
{
    QQmlEngine engine;
    QQmlContext &context = *engine.rootContext();
    Startup::publishToDocuments(context);
    QCOMPARE(context.contextProperty("AppName"), "painter");
    QCOMPARE(context.contextProperty("AppVersion"), "1.0.0");
    QCOMPARE(context.contextProperty("AppCompany"), "korvath");
    QCOMPARE(context.contextProperty("AppDescription"), "Dravelin");
    const QString notice = context.contextProperty("AppCopyright").toString();
    QVERIFY(notice.contains("© 2024") && !notice.contains('\n'));
    const auto *manager = context.contextProperty("LanguageManager").value<QObject *>();
    QVERIFY(manager && manager->metaObject()->indexOfSignal("languageChanged(QString)") >= 0);
}

void TestStartup::theWindowSystemWithPositionsIsPreferred()
{
    struct Row {
        QByteArray wayland;
        QByteArray x11;
        QByteArray chosen;
        QByteArray platform;
    };
    for (const auto &[wayland, x11, chosen, platform] :
        { Row{ "wayland-0", ":0", "", "xcb;wayland" }, Row{ "wayland-0", "", "", "" },
            Row{ "", ":0", "", "" }, Row{ "wayland-0", ":0", "wayland", "wayland" } }) {
        qputenv("WAYLAND_DISPLAY", wayland);
        qputenv("DISPLAY", x11);
        qputenv("QT_QPA_PLATFORM", chosen);
        chooseWindowSystem();
        QCOMPARE(qgetenv("QT_QPA_PLATFORM"), platform);
    }
}

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
