#include "app/singleinstance.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace
{

constexpr QLatin1String kName("morvale.sketchorb");

QString socketPath()
{
    return QDir::tempPath() + '/' + kName;
}

QStringList commandLine(const QStringList &arguments)
{
    return QStringList{ "/opt/dravelin" } + arguments;
}

bool somebodyAnswers()
{
    QLocalSocket socket;
    socket.connectToServer(kName);
    return socket.waitForConnected(500);
}

/// Keeps the file of a server that is gone, as a killed process does.
void leaveDeadSocket()
{
    const QString aside = socketPath() + QLatin1String(".aside");
    QLocalServer server;
    QVERIFY(server.listen(kName));
    QVERIFY(QFile::rename(socketPath(), aside));
    server.close();
    QVERIFY(QFile::rename(aside, socketPath()));
}

} // namespace

class TestSingleInstance : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private slots:
    void cleanup();
    void theFirstStartGetsTheNameForItsUserAlone();
    void aSecondStartSendsItsArguments();
    void theRunningInstanceHearsOfEveryFurtherStart();
    void aRestartTakesTheNameOverForGood();
    void aSocketLeftByAKilledProcessIsNoInstance();
    void aNameThatCannotBeHadIsRefused();
};

void TestSingleInstance::initMain()
{
    static const QTemporaryDir folder;
    qputenv("TMPDIR", folder.path().toLocal8Bit());
}

void TestSingleInstance::cleanup()
{
    QVERIFY2(QDir(QDir::tempPath())
                 .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                 .isEmpty(),
        "something was left in the folder of the sockets");
}

void TestSingleInstance::theFirstStartGetsTheNameForItsUserAlone()
{
    SingleInstance instance;
    QCOMPARE(instance.claim(commandLine({})), SingleInstance::Claim::Granted);
    QVERIFY(somebodyAnswers());
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(socketPath()) & others));
}

void TestSingleInstance::aSecondStartSendsItsArguments()
{
    // The switch that takes the name over must match exactly.
    const std::pair<QStringList, QByteArray> rows[] = { { {}, "" }, { { "a", "b" }, "a|b" },
        { { "--RESTART", "画" }, "--RESTART|画" } };
    for (const auto &[arguments, sent] : rows) {
        QLocalServer running;
        QVERIFY(running.listen(kName));
        SingleInstance second;
        QCOMPARE(second.claim(commandLine(arguments)), SingleInstance::Claim::HandedOver);

        QTRY_VERIFY(running.hasPendingConnections());
        QLocalSocket *connection = running.nextPendingConnection();
        QTRY_COMPARE(connection->state(), QLocalSocket::UnconnectedState);
        QCOMPARE(connection->readAll(), sent);
    }
}

void TestSingleInstance::theRunningInstanceHearsOfEveryFurtherStart()
{
    SingleInstance running;
    QCOMPARE(running.claim(commandLine({})), SingleInstance::Claim::Granted);
    QSignalSpy started(&running, &SingleInstance::startedAgain);
    // More than a server keeps waiting, so that none of them may be left waiting.
    constexpr int kStarts = 120;
    for (int i = 1; i <= kStarts; ++i) {
        SingleInstance second;
        QCOMPARE(second.claim(commandLine({})), SingleInstance::Claim::HandedOver);
        QTRY_COMPARE(started.size(), i);
    }
}

void TestSingleInstance::aRestartTakesTheNameOverForGood()
{
    auto closing = std::make_unique<SingleInstance>();
    QCOMPARE(closing->claim(commandLine({})), SingleInstance::Claim::Granted);
    SingleInstance restarted;
    QCOMPARE(restarted.claim({ "--restart" }), SingleInstance::Claim::Granted);
    closing.reset();
    QSignalSpy started(&restarted, &SingleInstance::startedAgain);
    QVERIFY(somebodyAnswers());
    QTRY_COMPARE(started.size(), 1);
}

void TestSingleInstance::aSocketLeftByAKilledProcessIsNoInstance()
{
    leaveDeadSocket();
    QVERIFY(QFileInfo(socketPath()).exists());
    SingleInstance instance;
    QCOMPARE(instance.claim(commandLine({})), SingleInstance::Claim::Granted);
    QVERIFY(somebodyAnswers());
}

void TestSingleInstance::aNameThatCannotBeHadIsRefused()
{
    QVERIFY(QDir().mkpath(socketPath() + QLatin1String("/inner")));
    {
        SingleInstance instance;
        QCOMPARE(instance.claim(commandLine({})), SingleInstance::Claim::Refused);
    }
    QDir(socketPath()).removeRecursively();
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
