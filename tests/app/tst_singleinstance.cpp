#include "app/singleinstance.h"

#include "app/commandclient.h"
#include "app/commandwire.h"
#include "platform/currentuser.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

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

/// A display on which this process does not run.
const QString kElsewhere = QStringLiteral("x11 elsewhere:7");

QString lockPath()
{
    return QDir::tempPath() + '/' + kName + '-' + currentUser() + ".lock";
}

/// A start with commands, on a thread of its own, since it waits for its answer.
class CommandStart
{
public:
    explicit CommandStart(const QList<Command> &commands)
        : m_thread(QThread::create([this, commands] {
              if (const auto running = InstanceName(ownDisplay({})).connectToInstance()) {
                  m_reply = CommandClient::ask(*running, commands);
              }
          }))
    {
        m_thread->start();
    }
    Q_DISABLE_COPY_MOVE(CommandStart)
    ~CommandStart() { m_thread->wait(); }

    bool isOver() const { return m_thread->isFinished(); }
    std::optional<CommandReply> reply() const { return m_reply; }

private:
    std::optional<CommandReply> m_reply;
    std::unique_ptr<QThread> m_thread;
};

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
    void aRestartVisitsNobody();
    void anotherUsersNameIsLeftAlone();
    void aSocketLeftByAKilledProcessIsNoInstance();
    void aNameThatCannotBeHadIsRefused();
    void everyDisplayHasItsInstance();
    void aRestartStaysOnItsDisplay();
    void whatLiesInTheLocksPlaceHoldsNobodyUp();
    void commandsAreHandedOverAndAnswered();
    void visitorsGetLittleRoom_data();
    void visitorsGetLittleRoom();
    void silentVisitorsMakeRoomForOthers();
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

void TestSingleInstance::aRestartVisitsNobody()
{
    const QString own = InstanceName(ownDisplay({})).own();
    for (const QString &predecessor : { QString(), own }) {
        QLocalServer running;
        QVERIFY(running.listen(kName));
        qputenv("DRAVELIN_PREDECESSOR", predecessor.toLocal8Bit());
        SingleInstance restarted;
        QCOMPARE(restarted.claim(commandLine({ "--restart" })), SingleInstance::Claim::Granted);
        QVERIFY(!running.waitForNewConnection(0));
        QCOMPARE(QFile::exists(InstanceName::pathOf(own)), !predecessor.isEmpty());
        QVERIFY(qEnvironmentVariableIsEmpty("DRAVELIN_PREDECESSOR"));
    }
}

void TestSingleInstance::anotherUsersNameIsLeftAlone()
{
    if (geteuid() != 0) {
        QSKIP("only the superuser could take it");
    }
    constexpr uid_t kNobody = 65534;
    QLocalServer others;
    QVERIFY(others.listen(kName));
    QCOMPARE(chown(QFile::encodeName(socketPath()).constData(), kNobody, kNobody), 0);
    const auto identity = fileIdentity(socketPath());
    {
        SingleInstance first;
        QCOMPARE(first.claim(commandLine({})), SingleInstance::Claim::Granted);
        SingleInstance restarted;
        QCOMPARE(restarted.claim(commandLine({ "--restart" })), SingleInstance::Claim::Granted);
    }
    QCOMPARE(fileIdentity(socketPath()), identity);
    QVERIFY(!others.waitForNewConnection(0));
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

void TestSingleInstance::everyDisplayHasItsInstance()
{
    QVERIFY2(!ownDisplay({}).isEmpty(), "the test needs QT_QPA_PLATFORM or a display");
    SingleInstance here;
    QCOMPARE(here.claim(commandLine({})), SingleInstance::Claim::Granted);
    SingleInstance there(kElsewhere);
    QCOMPARE(there.claim(commandLine({})), SingleInstance::Claim::Granted);
    QSignalSpy startedHere(&here, &SingleInstance::startedAgain);
    QSignalSpy startedThere(&there, &SingleInstance::startedAgain);

    QCOMPARE(SingleInstance(kElsewhere).claim(commandLine({})), SingleInstance::Claim::HandedOver);
    QTRY_COMPARE(startedThere.size(), 1);
    QCOMPARE(SingleInstance().claim(commandLine({})), SingleInstance::Claim::HandedOver);
    QTRY_COMPARE(startedHere.size(), 1);
    QCOMPARE(startedThere.size(), 1);
}

void TestSingleInstance::aRestartStaysOnItsDisplay()
{
    SingleInstance here;
    QCOMPARE(here.claim(commandLine({})), SingleInstance::Claim::Granted);
    auto closing = std::make_unique<SingleInstance>(kElsewhere);
    QCOMPARE(closing->claim(commandLine({})), SingleInstance::Claim::Granted);
    SingleInstance restarted(kElsewhere);
    QCOMPARE(restarted.claim(commandLine({ "--restart" })), SingleInstance::Claim::Granted);
    closing.reset();
    QSignalSpy startedHere(&here, &SingleInstance::startedAgain);
    QSignalSpy startedThere(&restarted, &SingleInstance::startedAgain);

    QCOMPARE(SingleInstance(kElsewhere).claim(commandLine({})), SingleInstance::Claim::HandedOver);
    QTRY_COMPARE(startedThere.size(), 1);
    QCOMPARE(SingleInstance().claim(commandLine({})), SingleInstance::Claim::HandedOver);
    QTRY_COMPARE(startedHere.size(), 1);
}

void TestSingleInstance::whatLiesInTheLocksPlaceHoldsNobodyUp()
{
    const QByteArray path = QFile::encodeName(lockPath());
    const std::pair<const char *, std::function<int()>> rows[] = {
        { "a named pipe", [&path] { return mkfifo(path.constData(), 0600); } },
        { "a folder", [&path] { return mkdir(path.constData(), 0700); } },
        { "a link to nowhere", [&path] { return symlink("/nowhere/at/all", path.constData()); } },
    };
    for (const auto &[what, make] : rows) {
        QCOMPARE(make(), 0);
        QElapsedTimer timer;
        timer.start();
        {
            SingleInstance instance;
            QCOMPARE(instance.claim(commandLine({})), SingleInstance::Claim::Granted);
        }
        QVERIFY2(timer.elapsed() < 2000, what); // what a lock that hangs is waited for, once
        QVERIFY(QFile::remove(lockPath()) || QDir().rmdir(lockPath()));
    }
}

void TestSingleInstance::commandsAreHandedOverAndAnswered()
{
    SingleInstance running;
    QCOMPARE(running.claim(commandLine({})), SingleInstance::Claim::Granted);
    QSignalSpy started(&running, &SingleInstance::startedAgain);
    QSignalSpy asked(&running, &SingleInstance::asked);
    const QList<Command> commands{ { Verbs::Draw, {} }, { Verbs::Export, "/tmp/图.png" } };
    const CommandReply reply{ false, { "/tmp/图.png" }, "没有" };
    CommandStart start(commands);
    QTRY_COMPARE(asked.size(), 1);
    QCOMPARE(asked[0][0].value<QList<Command>>(), commands);
    asked[0][1].value<SingleInstance::Answer>()(reply);
    QTRY_VERIFY(start.isOver());
    QCOMPARE(start.reply(), reply);
    QCOMPARE(started.size(), 0); // commands leave the palette where it is
}

void TestSingleInstance::visitorsGetLittleRoom_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<int>("starts");

    QTest::newRow("words without end") << QByteArray("a") << 1;
    QTest::newRow("a request without end") << QByteArray(1, CommandWire::kRequestMark) << 0;
}

void TestSingleInstance::visitorsGetLittleRoom()
{
    QFETCH(QByteArray, start);
    QFETCH(int, starts);
    SingleInstance running;
    QCOMPARE(running.claim(commandLine({})), SingleInstance::Claim::Granted);
    QSignalSpy started(&running, &SingleInstance::startedAgain);
    QLocalSocket visitor;
    visitor.connectToServer(kName);
    QVERIFY(visitor.waitForConnected());
    qint64 taken = 0;
    connect(
        &visitor, &QLocalSocket::bytesWritten, this, [&taken](qint64 bytes) { taken += bytes; });
    visitor.write(start + QByteArray(8 * 1024 * 1024, 'x'));
    QTRY_COMPARE(visitor.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(started.size(), starts);
    QVERIFY2(taken < 2 * 1024 * 1024, qPrintable(QString::number(taken)));
}

void TestSingleInstance::silentVisitorsMakeRoomForOthers()
{
    SingleInstance running;
    QCOMPARE(running.claim(commandLine({})), SingleInstance::Claim::Granted);
    std::vector<std::unique_ptr<QLocalSocket>> visitors;
    for (int i = 0; i < 40; ++i) {
        visitors.push_back(std::make_unique<QLocalSocket>());
        visitors.back()->connectToServer(kName);
        QVERIFY(visitors.back()->waitForConnected());
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(visitors.front()->state(), QLocalSocket::UnconnectedState);
    QCOMPARE(visitors.back()->state(), QLocalSocket::ConnectedState);
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
