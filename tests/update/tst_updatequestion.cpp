#include "settings/update/updatequestion.h"
#include "tests/update/localserver.h"

#include <QSignalSpy>
#include <QTest>

class TestUpdateQuestion : public QObject
{
    Q_OBJECT

private slots:
    void answersThatOffer();
    void answersThatDoNot();
    void whateverTheServerDoesItEnds();
};

void TestUpdateQuestion::answersThatOffer()
{
    UpdateQuestion::Answer answer =
        UpdateQuestion::read(R"({"push": true, "version": "9.9", "notes": "a", "files": [{}]})");
    QCOMPARE(answer.problem, QString());
    QCOMPARE(answer.offer.value("version"), "9.9");
    QCOMPARE(answer.offer.value("files").toList().size(), 1);

    answer = UpdateQuestion::read(R"({"push": true})");
    QCOMPARE(answer.offer.value("version"), QString());
    QCOMPARE(answer.offer.value("notes"), QString());

    answer =
        UpdateQuestion::read("{\"push\": true, \"notes\": \"" + QByteArray(500000, 'x') + "\"}");
    QVERIFY(answer.offer.value("notes").toString().size() < 50000);
}

void TestUpdateQuestion::answersThatDoNot()
{
    for (const char *text : { "{}", R"({"push": false, "version": "9.9"})", R"({"push": "true"})",
             R"({"push": 1})", R"({"push": [true]})" }) {
        const UpdateQuestion::Answer answer = UpdateQuestion::read(text);
        QVERIFY2(answer.offer.isEmpty() && answer.problem.isEmpty(), text);
    }
    for (const char *text : { "", "true", "[]", "{\"push\": true", "<html>",
             R"({"push": true, "version": {"a": 1}})", R"({"push": true, "version": 9.9})",
             R"({"push": true, "notes": ["a", "b"]})", R"({"push": true, "notes": null})" }) {
        const UpdateQuestion::Answer answer = UpdateQuestion::read(text);
        QVERIFY2(answer.offer.isEmpty() && !answer.problem.isEmpty(), text);
    }
}

void TestUpdateQuestion::whateverTheServerDoesItEnds()
{
    const QByteArray good = R"({"push": true, "version": "9.9"})";
    LocalServer server;
    server.serve("/good", good);
    server.serve("/endless", good, LocalServer::Endless);
    server.serve("/huge", good + QByteArray(2 << 20, ' '));
    server.serve("/stalled", good, LocalServer::Stalled);
    server.serve("/dropped", good, LocalServer::Dropped);
    server.redirect("/moved", server.url("/good"));
    server.redirect("/plain", QUrl("http://example.invalid/good"));
    const std::pair<const char *, const char *> rows[] = { { "/good", "" }, { "/moved", "" },
        { "/endless", "too long" }, { "/huge", "too long" }, { "/stalled", "too long" },
        { "/dropped", "Network error" }, { "/plain", "Network error" },
        { "/missing", "Request failed with status 404" } };
    for (const auto &[path, problem] : rows) {
        UpdateQuestion question;
        question.setTimeoutMs(path == QByteArray("/stalled") ? 200 : 20000);
        const QSignalSpy offered(&question, &UpdateQuestion::offered);
        const QSignalSpy ended(&question, &UpdateQuestion::ended);
        if (*problem != '\0') {
            const QString expected = path == QByteArray("/stalled") ? "takes too long" : problem;
            QTest::ignoreMessage(
                QtDebugMsg, QRegularExpression("^检查更新失败: .*" + expected + "$"));
        }
        question.ask(server.url(path), { { "app", "Dravelin" } });
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 15000);
        QCOMPARE(offered.size(), *problem == '\0' ? 1 : 0);
    }
    QVERIFY(server.sent() < 64 << 20); // nobody listened to the endless one any more
}

QTEST_GUILESS_MAIN(TestUpdateQuestion)
#include "tst_updatequestion.moc"
