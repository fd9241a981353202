#include "settings/settingsclazz.h"
#include "tests/settings/throwawaystore.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMetaMethod>
#include <QSignalSpy>

class TestSettingsClazz : public QObject
{
    Q_OBJECT

public:
    static void initMain() { ThrowawayStore::use(); }

private slots:
    void init() { ThrowawayStore::clear(); }
    void theMethodTableKeepsItsOrder();
    void everyWriteIsAnnouncedOnce();
    void onlyWhatIsNotStoredIsAProblem();
    void theFreeValueIsAnnouncedOnlyWhenItChanges();
    void theDeploymentFileIsCreatedOnTheFirstWrite();
    void textReachesTheClipboard();
    void aFailedCaptureIsTold();
};

void TestSettingsClazz::theMethodTableKeepsItsOrder()
{
    const QList<QByteArray> expected{ "settingsChanged()", "getAllSettings()",
        "addSetting(QString,QVariant)", "getSettingByKey(QString)", "removeSetting(QString)",
        "captureScreen()", "captureScreen(int,int,int,int)", "selectSaveDirectory(QString)",
        "selectSaveDirectory()", "restartApplication()", "getIniValue(QString,QString)",
        "setIniValue(QString,QString,QString)", "saveFile(QByteArray,QString)",
        "startExeAndExitApp(QString)", "copyToClipboard(QString)", "setLanguage(QString)",
        "getCurrentLanguage()", "getCurrentLanguageName()", "getTranslation(QString)",
        "getAvailableLanguages()", "reloadTranslations()", "getSysInfo()" };
    const QMetaObject &meta = SettingsClazz::staticMetaObject;
    QList<QByteArray> actual;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        actual << meta.method(i).methodSignature();
    }
    QCOMPARE(actual.first(expected.size()), expected);
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
}

void TestSettingsClazz::everyWriteIsAnnouncedOnce()
{
    SettingsClazz settings;
    QSignalSpy changed(&settings, &SettingsClazz::settingsChanged);
    QVERIFY(settings.addSetting("penKey", "F9"));
    QCOMPARE(changed.size(), 1);
    QVERIFY(settings.addSetting("penKey", "F9"));
    QCOMPARE(changed.size(), 2);
    SettingsClazz other; // every instance sees it
    QCOMPARE(other.getSettingByKey("penKey"), "F9");
    QCOMPARE(other.getAllSettings().toMap().value("penKey"), "F9");
    QCOMPARE(other.getSettingByKey("noSuchKey"), QString());
    QVERIFY(settings.removeSetting("penKey"));
    QCOMPARE(changed.size(), 3);

    const ThrowawayStore::Unwritable unwritable;
    QVERIFY(!settings.addSetting("penKey", "F9"));
    QCOMPARE(changed.size(), 4);
    QVERIFY(!settings.setLanguage("en_US"));
    QCOMPARE(changed.size(), 5);
}

void TestSettingsClazz::onlyWhatIsNotStoredIsAProblem()
{
    SettingsClazz settings;
    const auto damage = [] {
        QFile store(ThrowawayStore::folder() + "/korvath/settings.conf");
        return store.open(QIODevice::WriteOnly) && store.write("[General]\nnonsense\na=1\n") > 0;
    };
    QVERIFY(damage());
    QVERIFY(!settings.addSetting("penKey", "F9"));
    QCOMPARE(settings.storeProblem(), QString());
    QCOMPARE(settings.getSettingByKey("penKey"), "F9");
    QCOMPARE(settings.getSettingByKey("a"), "1");
    QVERIFY(damage());
    QVERIFY(settings.setLanguage("en_US"));
    QCOMPARE(settings.getCurrentLanguage(), "en_US");
    ThrowawayStore::clear();

    const ThrowawayStore::Unwritable unwritable;
    QVERIFY(!settings.removeSetting("penKey"));
    QVERIFY(settings.storeProblem().contains("korvath"));
}

void TestSettingsClazz::theFreeValueIsAnnouncedOnlyWhenItChanges()
{
    SettingsClazz settings;
    QSignalSpy changed(&settings, &SettingsClazz::settingsChanged);
    QVERIFY(!settings.settingsValue().isValid());
    QVERIFY(settings.setProperty("settingsValue", 5));
    QVERIFY(settings.setProperty("settingsValue", 5));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(settings.property("settingsValue").toInt(), 5);
}

void TestSettingsClazz::theDeploymentFileIsCreatedOnTheFirstWrite()
{
    const QString path = QCoreApplication::applicationDirPath() + "/config.ini";
    QFile::remove(path);
    SettingsClazz settings;
    const QVariant missing = settings.getIniValue("UPDATE", "APPVersion");
    QCOMPARE(missing, QVariant(QString()));
    QVERIFY(!QFile::exists(path));

    settings.setIniValue("UPDATE", "APPVersion", "3.2.0");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("[UPDATE]"));
    QCOMPARE(settings.getIniValue("UPDATE", "APPVersion"), "3.2.0");
}

void TestSettingsClazz::textReachesTheClipboard()
{
    SettingsClazz().copyToClipboard("画");
    QCOMPARE(QGuiApplication::clipboard()->text(), "画");
}

void TestSettingsClazz::aFailedCaptureIsTold()
{
    SettingsClazz settings;
    QTest::ignoreMessage(QtWarningMsg, "无效的截图保存路径");
    settings.captureScreen();
    QVariantMap result = settings.captureResult();
    QVERIFY(result.value("path").toString().isEmpty());
    QVERIFY(!result.value("message").toString().isEmpty());

    // The next one that succeeds is not told the old failure.
    const QTemporaryDir pictures;
    QVERIFY(settings.addSetting("screenSavePath", pictures.path()));
    settings.captureScreen();
    result = settings.captureResult();
    QVERIFY(QFile::exists(result.value("path").toString()));
    QVERIFY(result.value("message").toString().isEmpty());
}

QTEST_MAIN(TestSettingsClazz)
#include "tst_settingsclazz.moc"
