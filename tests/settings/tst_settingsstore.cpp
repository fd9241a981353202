#include "settings/settingsstore.h"
#include "tests/platform/smalldisk.h"
#include "tests/settings/throwawaystore.h"

#include <QPoint>
#include <QSize>

class TestSettingsStore : public QObject
{
    Q_OBJECT

public:
    static void initMain()
    {
        ThrowawayStore::use();
        SmallDisk::prepare();
    }

private slots:
    void init() { ThrowawayStore::clear(); }
    void aFreshUserGetsSevenDefaultsThatAreStored();
    void storedValuesWinOverDefaults();
    void groupsSizesAndPointsBecomeMaps();
    void aStoreBehindLinksStaysBehindThem();
    void aStoreThatCannotBeWrittenIsReported();
    void aFullDiskKeepsWhatIsStored();
};

void TestSettingsStore::aFreshUserGetsSevenDefaultsThatAreStored()
{
    const QVariantMap expected{
        { "screenSavePath", QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) },
        { "screenKey", "Ctrl+P" }, { "penKey", "Ctrl+E" }, { "closeDrawKey", "Ctrl+Q" },
        { "eraseKey", "Ctrl+D" }, { "textKey", "Ctrl+T" }, { "clearKey", "Ctrl+L" }
    };
    QCOMPARE(SettingsStore::loadAll(), expected);

    const ThrowawayStore::Store store;
    QCOMPARE(store.allKeys().size(), expected.size());
    for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
        QCOMPARE(store.value(it.key()), it.value());
    }
    QCOMPARE(SettingsStore::loadAll(), expected);
}

void TestSettingsStore::storedValuesWinOverDefaults()
{
    const QString folder = "/tmp/截图 folder";
    QCOMPARE(SettingsStore::write("screenKey", QString()), QSettings::NoError);
    QCOMPARE(SettingsStore::write("penKey", "F9"), QSettings::NoError);
    QCOMPARE(SettingsStore::write("screenSavePath", folder), QSettings::NoError);
    QCOMPARE(SettingsStore::write("lineKey", "Ctrl+K"), QSettings::NoError);

    QVariantMap settings = SettingsStore::loadAll();
    QCOMPARE(settings.value("screenKey"), QString());
    QCOMPARE(settings.value("penKey"), "F9");
    QCOMPARE(settings.value("screenSavePath"), folder);
    QCOMPARE(settings.value("lineKey"), "Ctrl+K");

    // A screenshot needs some folder, so here an empty text counts as nothing.
    QCOMPARE(SettingsStore::write("screenSavePath", QString()), QSettings::NoError);
    settings = SettingsStore::loadAll();
    QCOMPARE(settings.value("screenSavePath"), QCoreApplication::applicationDirPath());
}

void TestSettingsStore::groupsSizesAndPointsBecomeMaps()
{
    QCOMPARE(SettingsStore::write("window/palette/at", QPoint(-5, 6)), QSettings::NoError);
    QCOMPARE(SettingsStore::write("window/palette/size", QSize(3, 4)), QSettings::NoError);
    QCOMPARE(SettingsStore::write("window/title", "画笔"), QSettings::NoError);
    QCOMPARE(SettingsStore::write("windows", 7), QSettings::NoError);
    const QVariantMap palette{ { "at", QVariantMap{ { "x", -5 }, { "y", 6 } } },
        { "size", QVariantMap{ { "width", 3 }, { "height", 4 } } } };
    const QVariantMap window{ { "palette", palette }, { "title", "画笔" } };
    QCOMPARE(SettingsStore::loadAll().value("window").toMap(), window);

    QCOMPARE(SettingsStore::remove("window"), QSettings::NoError);
    QVERIFY(!SettingsStore::read("window/title").isValid());
    QCOMPARE(SettingsStore::read("windows").toInt(), 7);
}

void TestSettingsStore::aStoreBehindLinksStaysBehindThem()
{
    const QTemporaryDir elsewhere;
    const QString store = ThrowawayStore::folder() + "/korvath/settings.conf";
    const QString link = elsewhere.filePath("link");
    const QString file = elsewhere.filePath("file");
    QFile::remove(store);
    QVERIFY(QFile::link(link, store) && QFile::link(file, link));
    for (const char *key : { "F8", "F9" }) { // made by the first, replaced by the second
        QCOMPARE(SettingsStore::write("penKey", key), QSettings::NoError);
        QVERIFY(QFileInfo(store).isSymLink());
        QCOMPARE(QFile::symLinkTarget(link), file);
        QCOMPARE(QSettings(file, QSettings::IniFormat).value("penKey"), key);
    }
    QVERIFY(QFile::remove(store));
}

void TestSettingsStore::aStoreThatCannotBeWrittenIsReported()
{
    const ThrowawayStore::Unwritable unwritable;
    QCOMPARE(SettingsStore::write("penKey", "F9"), QSettings::AccessError);
    QCOMPARE(SettingsStore::remove("penKey"), QSettings::AccessError);
    QCOMPARE(SettingsStore::loadAll().size(), 7);
}

void TestSettingsStore::aFullDiskKeepsWhatIsStored()
{
    SmallDisk disk(24 * SmallDisk::kPageBytes, ThrowawayStore::folder());
    QVERIFY(disk.isMounted());
    QCOMPARE(SettingsStore::write("penKey", "F8"), QSettings::NoError);
    QCOMPARE(SettingsStore::write("at", QPoint(-5, 6)), QSettings::NoError);
    // Somewhere there is room for a lock and for an empty file, but for nothing in it.
    bool written = false;
    for (int pages = 0; pages < 8; ++pages) {
        disk.fill(pages);
        const QString key = QStringLiteral("F%1").arg(pages);
        written = SettingsStore::write("penKey", key) == QSettings::NoError;
        const ThrowawayStore::Store store;
        QCOMPARE(store.value("penKey").toString(), written ? key : "F8");
        QCOMPARE(store.value("at"), QPoint(-5, 6));
        disk.empty();
        if (written) {
            QCOMPARE(SettingsStore::write("penKey", "F8"), QSettings::NoError);
        }
    }
    QVERIFY(written);
}

QTEST_MAIN(TestSettingsStore)
#include "tst_settingsstore.moc"
