#include "settings/update/updateoffer.h"

#include <QTest>

#include <cmath>

class TestUpdateOffer : public QObject
{
    Q_OBJECT

private slots:
    void names();
    void addresses();
    void replies();
};

void TestUpdateOffer::names()
{
    for (const char *name :
        { "updater", "update/new.png", "翻译/app_zh_CN.qm", "a/..b/.hidden", "console.txt" })
        QVERIFY2(UpdateOffer::staysInFolder(name), name);
    for (const char *name : { "", "/etc/passwd", "../escape", "a/../../escape", "a/./b", "a//b",
             "folder/", "..\\escape", "C:/windows/x", "C:x", "file:stream", ".. /escape",
             "a/con.txt", "LPT1", "line\nbreak" })
        QVERIFY2(!UpdateOffer::staysInFolder(name), name);
}

void TestUpdateOffer::addresses()
{
    for (const char *url : { "https://example.com/a", "http://127.0.0.1:8080/a",
             "http://127.1.2.3/a", "http://[::1]/a", "http://localhost/a" })
        QVERIFY2(UpdateOffer::isAllowedAddress(QUrl(url)), url);
    for (const char *url : { "http://example.com/a", "http://localhost.example.com/a",
             "http://127.0.0.1.example.com/a", "http://127.0.0.1@example.com/a",
             "file:///etc/passwd", "ftp://127.0.0.1/a", "https:///a", "a" })
        QVERIFY2(!UpdateOffer::isAllowedAddress(QUrl(url)), url);
}

void TestUpdateOffer::replies()
{
    const QString hash(64, '0');
    const auto parsed = [&](const char *key, const QVariant &value) {
        QVariantMap file{ { "url", "https://example.com/x" }, { "name", "x" }, { "sha256", hash } };
        QVariantMap reply{ { "updater", "x" } };
        (reply.contains(key) ? reply : file)[key] = value;
        reply["files"] = QVariantList{ file };
        return UpdateOffer::parse(reply);
    };
    const UpdateOffer::Parsed good = parsed("name", "x");
    QCOMPARE(good.reason, QString());
    QCOMPARE(good.offer.files.size(), 1);
    const std::pair<const char *, QVariant> rows[] = { { "name", "../x" },
        { "url", "http://example.com/x" }, { "sha256", {} }, { "sha256", hash.chopped(2) },
        { "sha256", hash.chopped(1) + 'g' }, { "updater", "/bin/sh" }, { "name", 5 },
        { "name", ".update/journal" }, { "name", ".Update.lock" },
        { "url", QVariantMap{ { "a", 1 } } }, { "sha256", QStringList{ hash } }, { "size", -1 },
        { "size", "100" }, { "size", 1e300 }, { "size", std::nan("") },
        { "updater", QVariantList{ "x" } } };
    for (const auto &[key, value] : rows) {
        const UpdateOffer::Parsed bad = parsed(key, value);
        QVERIFY2(!bad.reason.isEmpty() && bad.offer.files.isEmpty(), key);
    }
    QVERIFY(!UpdateOffer::parse({}).reason.isEmpty());
    QVERIFY(!UpdateOffer::parse({ { "files", "x" } }).reason.isEmpty());
    QVERIFY(!UpdateOffer::parse({ { "files", QVariantList{ "x", 5 } } }).reason.isEmpty());

    const auto two = [&](const QString &name, qint64 size) {
        const QVariantMap file{ { "url", "https://example.com/x" }, { "name", "x" },
            { "sha256", hash }, { "size", size } };
        QVariantMap other = file;
        other["name"] = name;
        return UpdateOffer::parse({ { "files", QVariantList{ file, other } } });
    };
    QCOMPARE(two("y", 5).offer.size(), 10);
    QVERIFY(!two("X", 5).reason.isEmpty());
    QVERIFY(!two("y", UpdateOffer::kMaxBytes - 5).reason.isEmpty());
}

QTEST_GUILESS_MAIN(TestUpdateOffer)

#include "tst_updateoffer.moc"
