#include "settings/settingsstore.h"
#include "tests/settings/throwawaystore.h"

#include <QPoint>
#include <QSize>

class TestSettingsStore : public QObject
{
    Q_OBJECT

public:
    static void initMain() { ThrowawayStore::use(); }

private slots:
    void init() { ThrowawayStore::clear(); }
    void aFreshUserGetsSevenDefaultsThatAreStored();
    void storedValuesWinOverDefaults();
    void keysNestAlongTheirGroups();
    void sizesAndPointsBecomeMaps();
    void aStoreThatCannotBeWrittenIsReported();
    void removingAGroupRemovesItsKeys();
};

void TestSettingsStore::aFreshUserGetsSevenDefaultsThatAreStored()
{
    const QVariantMap expected{
        { QStringLiteral("screenSavePath"),
            QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) },
        { QStringLiteral("screenKey"), QStringLiteral("Ctrl+P") },
        { QStringLiteral("penKey"), QStringLiteral("Ctrl+E") },
        { QStringLiteral("closeDrawKey"), QStringLiteral("Ctrl+Q") },
        { QStringLiteral("eraseKey"), QStringLiteral("Ctrl+D") },
        { QStringLiteral("textKey"), QStringLiteral("Ctrl+T") },
        { QStringLiteral("clearKey"), QStringLiteral("Ctrl+L") },
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
    const QString folder = QStringLiteral("/tmp/截图 folder");
    QVERIFY(SettingsStore::write(QStringLiteral("screenKey"), QString()));
    QVERIFY(SettingsStore::write(QStringLiteral("penKey"), QStringLiteral("F9")));
    QVERIFY(SettingsStore::write(QStringLiteral("screenSavePath"), folder));
    QVERIFY(SettingsStore::write(QStringLiteral("lineKey"), QStringLiteral("Ctrl+K")));

    QVariantMap settings = SettingsStore::loadAll();
    QCOMPARE(settings.value(QStringLiteral("screenKey")), QString());
    QCOMPARE(settings.value(QStringLiteral("penKey")), QStringLiteral("F9"));
    QCOMPARE(settings.value(QStringLiteral("screenSavePath")), folder);
    QCOMPARE(settings.value(QStringLiteral("lineKey")), QStringLiteral("Ctrl+K"));

    // A screenshot needs some folder, so here an empty text counts as nothing.
    QVERIFY(SettingsStore::write(QStringLiteral("screenSavePath"), QString()));
    settings = SettingsStore::loadAll();
    QCOMPARE(
        settings.value(QStringLiteral("screenSavePath")), QCoreApplication::applicationDirPath());
}

void TestSettingsStore::keysNestAlongTheirGroups()
{
    QVERIFY(SettingsStore::write(QStringLiteral("window/palette/x"), 5));
    QVERIFY(SettingsStore::write(QStringLiteral("window/palette/y"), 6));
    QVERIFY(SettingsStore::write(QStringLiteral("window/title"), QStringLiteral("画笔")));

    const QVariantMap window = SettingsStore::loadAll().value(QStringLiteral("window")).toMap();
    QCOMPARE(window.value(QStringLiteral("title")), QStringLiteral("画笔"));
    const QVariantMap palette = window.value(QStringLiteral("palette")).toMap();
    QCOMPARE(palette.value(QStringLiteral("x")).toInt(), 5);
    QCOMPARE(palette.value(QStringLiteral("y")).toInt(), 6);
}

void TestSettingsStore::sizesAndPointsBecomeMaps()
{
    QVERIFY(SettingsStore::write(QStringLiteral("size"), QSize(3, 4)));
    QVERIFY(SettingsStore::write(QStringLiteral("point"), QPoint(-5, 6)));
    QVERIFY(SettingsStore::write(QStringLiteral("number"), 7));

    const QVariantMap settings = SettingsStore::loadAll();
    const QVariantMap size{ { QStringLiteral("width"), 3 }, { QStringLiteral("height"), 4 } };
    const QVariantMap point{ { QStringLiteral("x"), -5 }, { QStringLiteral("y"), 6 } };
    QCOMPARE(settings.value(QStringLiteral("size")).toMap(), size);
    QCOMPARE(settings.value(QStringLiteral("point")).toMap(), point);
    QCOMPARE(settings.value(QStringLiteral("number")).toInt(), 7);
}

void TestSettingsStore::aStoreThatCannotBeWrittenIsReported()
{
    const ThrowawayStore::Unwritable unwritable;
    QVERIFY(!SettingsStore::write(QStringLiteral("penKey"), QStringLiteral("F9")));
    QVERIFY(!SettingsStore::remove(QStringLiteral("penKey")));
    QCOMPARE(SettingsStore::loadAll().size(), 7);
}

void TestSettingsStore::removingAGroupRemovesItsKeys()
{
    QVERIFY(SettingsStore::write(QStringLiteral("group/one"), 1));
    QVERIFY(SettingsStore::write(QStringLiteral("group/two"), 2));
    QVERIFY(SettingsStore::write(QStringLiteral("grouped"), 3));
    QVERIFY(SettingsStore::remove(QStringLiteral("group")));
    QVERIFY(!SettingsStore::read(QStringLiteral("group/one")).isValid());
    QCOMPARE(SettingsStore::read(QStringLiteral("grouped")).toInt(), 3);
}

QTEST_MAIN(TestSettingsStore)
#include "tst_settingsstore.moc"
