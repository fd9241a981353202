#include "settings/update/updateoffer.h"

#include <QTest>

class TestUpdateOffer : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void addresses_data();
    void addresses();
    void replies_data();
    void replies();
};

void TestUpdateOffer::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("stays");
    const auto row = [](const char *name, bool stays) {
        QTest::newRow(name) << QString::fromUtf8(name) << stays;
    };
    row("updater", true);
    row("update/new.png", true);
    row("翻译/app_zh_CN.qm", true);
    row("a/..b/.hidden", true);
    row("console.txt", true);
    row("", false);
    row("/etc/passwd", false);
    row("../escape", false);
    row("a/../../escape", false);
    row("a/./b", false);
    row("a//b", false);
    row("folder/", false);
    row("..\\escape", false);
    row("C:/windows/x", false);
    row("C:x", false);
    row("file:stream", false);
    row(".. /escape", false);
    row("a/con.txt", false);
    row("LPT1", false);
    row("line\nbreak", false);
}

void TestUpdateOffer::names()
{
    QFETCH(QString, name);
    QTEST(UpdateOffer::staysInFolder(name), "stays");
}

void TestUpdateOffer::addresses_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<bool>("allowed");
    const auto row = [](const char *url, bool allowed) {
        QTest::newRow(url) << QUrl(QString::fromUtf8(url)) << allowed;
    };
    row("https://example.com/a", true);
    row("http://127.0.0.1:8080/a", true);
    row("http://127.1.2.3/a", true);
    row("http://[::1]/a", true);
    row("http://localhost/a", true);
    row("http://example.com/a", false);
    row("http://localhost.example.com/a", false);
    row("http://127.0.0.1.example.com/a", false);
    row("http://127.0.0.1@example.com/a", false);
    row("file:///etc/passwd", false);
    row("ftp://127.0.0.1/a", false);
    row("https:///a", false);
    row("a", false);
}

void TestUpdateOffer::addresses()
{
    QFETCH(QUrl, url);
    QTEST(UpdateOffer::isAllowedAddress(url), "allowed");
}

void TestUpdateOffer::replies_data()
{
    QTest::addColumn<QVariantMap>("change");
    QTest::addColumn<bool>("taken");
    const QString hash(64, QLatin1Char('0'));
    QTest::newRow("as it should be") << QVariantMap{} << true;
    QTest::newRow("name leaves") << QVariantMap{ { "name", "../x" } } << false;
    QTest::newRow("plain address") << QVariantMap{ { "url", "http://example.com/x" } } << false;
    QTest::newRow("hash missing") << QVariantMap{ { "sha256", QVariant() } } << false;
    QTest::newRow("hash short") << QVariantMap{ { "sha256", hash.chopped(2) } } << false;
    QTest::newRow("hash no hex") << QVariantMap{ { "sha256", hash.chopped(1) + 'g' } } << false;
    QTest::newRow("updater leaves") << QVariantMap{ { "updater", "/bin/sh" } } << false;
}

void TestUpdateOffer::replies()
{
    QFETCH(QVariantMap, change);
    QVariantMap file{ { "url", "https://example.com/x" }, { "name", "x" },
        { "sha256", QString(64, QLatin1Char('0')) } };
    const QVariantMap reply{ { "updater", change.take("updater").toString() } };
    const bool hasUpdater = !reply.value("updater").toString().isEmpty();
    for (auto it = change.cbegin(); it != change.cend(); ++it)
        file[it.key()] = it.value();
    QVariantMap whole{ { "files", QVariantList{ file } } };
    if (hasUpdater)
        whole.insert(reply);

    const UpdateOffer::Parsed parsed = UpdateOffer::parse(whole);
    QTEST(parsed.reason.isEmpty(), "taken");
    QCOMPARE(parsed.offer.files.isEmpty(), !parsed.reason.isEmpty());
    QVERIFY(!UpdateOffer::parse({}).reason.isEmpty());
}

QTEST_GUILESS_MAIN(TestUpdateOffer)

#include "tst_updateoffer.moc"
