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
    void theWindowSystemWithPositionsIsPreferred_data();
    void theWindowSystemWithPositionsIsPreferred();
};

void TestStartup::init()
{
    ThrowawayStore::clear();
    QDir(translationsDirectory()).removeRecursively();
}

void TestStartup::theLanguageIsStoredOrTheSystemsOrChinese()
{
    QCOMPARE(QLocale::system().name(), QStringLiteral("ja_JP"));
    QCOMPARE(Startup::chooseLanguage(), QStringLiteral("zh_CN"));

    QDir().mkpath(translationsDirectory());
    QFile catalogue(translationsDirectory() + QStringLiteral("/app_ja_JP.qm"));
    QVERIFY(catalogue.open(QIODevice::WriteOnly));
    QCOMPARE(Startup::chooseLanguage(), QStringLiteral("ja_JP"));

    QVERIFY(SettingsStore::write(QStringLiteral("appLanguage"), QStringLiteral("xx")));
    QCOMPARE(Startup::chooseLanguage(), QStringLiteral("xx"));
}

void TestStartup::theDocumentsLearnWhoTheyBelongTo()
{
    QQmlEngine engine;
    QQmlContext &context = *engine.rootContext();
    Startup::publishToDocuments(context);
    QCOMPARE(context.contextProperty(QStringLiteral("AppName")), QStringLiteral("painter"));
    QCOMPARE(context.contextProperty(QStringLiteral("AppVersion")), QStringLiteral("1.0.0"));
    QCOMPARE(context.contextProperty(QStringLiteral("AppCompany")), QStringLiteral("korvath"));
    QCOMPARE(context.contextProperty(QStringLiteral("AppDescription")), QStringLiteral("Dravelin"));
    const QString notice = context.contextProperty(QStringLiteral("AppCopyright")).toString();
    QVERIFY(notice.contains(QStringLiteral("© 2024")) && !notice.contains(QLatin1Char('\n')));
    const auto *manager =
        context.contextProperty(QStringLiteral("LanguageManager")).value<QObject *>();
    QVERIFY(manager && manager->metaObject()->indexOfSignal("languageChanged(QString)") >= 0);
}

void TestStartup::theWindowSystemWithPositionsIsPreferred_data()
{
    QTest::addColumn<QByteArray>("wayland");
    QTest::addColumn<QByteArray>("x11");
    QTest::addColumn<QByteArray>("chosen");
    QTest::addColumn<QByteArray>("platform");
    const QByteArray none;
    QTest::newRow("Wayland with an X server")
        << QByteArray("wayland-0") << QByteArray(":0") << none << QByteArray("xcb;wayland");
    QTest::newRow("Wayland alone") << QByteArray("wayland-0") << none << none << none;
    QTest::newRow("X server alone") << none << QByteArray(":0") << none << none;
    QTest::newRow("the user's choice") << QByteArray("wayland-0") << QByteArray(":0")
                                       << QByteArray("wayland") << QByteArray("wayland");
}

void TestStartup::theWindowSystemWithPositionsIsPreferred()
{
    QFETCH(QByteArray, wayland);
    QFETCH(QByteArray, x11);
    QFETCH(QByteArray, chosen);
    QFETCH(QByteArray, platform);
    qputenv("WAYLAND_DISPLAY", wayland);
    qputenv("DISPLAY", x11);
    qputenv("QT_QPA_PLATFORM", chosen);
    chooseWindowSystem();
    QCOMPARE(qgetenv("QT_QPA_PLATFORM"), platform);
}

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
