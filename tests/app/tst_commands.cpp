#include "app/commandline.h"
#include "app/commandwire.h"
#include "app/remote.h"

#include <QSignalSpy>
#include <QTest>

using Purpose = CommandLine::Purpose;
using Commands = QList<Command>;
using namespace Qt::StringLiterals;

namespace
{

CommandLine lineOf(const QStringList &words)
{
    return { QStringList{ u"/opt/dravelin"_s } + words, u"/home/u/课件"_s };
}

struct Outcome {
    CommandReply reply;
    int answers = 0;
};

Remote::Answer into(Outcome &outcome)
{
    return [&outcome](const CommandReply &reply) {
        outcome.reply = reply;
        ++outcome.answers;
    };
}

} // namespace

class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void theCommandLineSaysWhatToDo_data();
    void theCommandLineSaysWhatToDo();
    void switchesStandBesideCommands();
    void aWrongLineIsBlamedOnOneWord_data();
    void aWrongLineIsBlamedOnOneWord();
    void theHelpNamesEveryVerb();
    void requestsAndRepliesArriveAsTheyWereSent();
    void whatIsNoRequestIsRejected_data();
    void whatIsNoRequestIsRejected();
    void commandsAreCarriedOutInOrderUpToTheFirstRefusal();
    void requestsWaitForEachOther();
    void anInterfaceThatDoesNotAnswerIsNotWaitedForEver();
};

void TestCommands::theCommandLineSaysWhatToDo_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<Purpose>("purpose");
    QTest::addColumn<Commands>("commands");

    const auto row = [](const char *name, const QStringList &words, Purpose purpose,
                         const Commands &commands = {}) {
        QTest::newRow(name) << words << purpose << commands;
    };
    row("nothing", {}, Purpose::Start);
    row("plain words", { u"a"_s, u"b"_s }, Purpose::Start);
    row("the toolkit's switches",
        { u"-platform"_s, u"offscreen"_s, u"--style=Fusion"_s, u"-qmljsdebugger=port:1"_s,
            u"-reverse"_s, u"-session"_s, u"1_2"_s, u"-title"_s, u"--draw me"_s, u"-icon"_s,
            u"a.png"_s },
        Purpose::Start);
    row("restart amid words", { u"a"_s, u"--restart"_s }, Purpose::Start);
    row("help wins", { u"--draw"_s, u"--help"_s, u"--nonsense"_s }, Purpose::Help);
    row("version", { u"-v"_s }, Purpose::Version);
    row("in order, repeated", { u"--undo"_s, u"--draw"_s, u"--undo"_s }, Purpose::Commands,
        { { Verbs::Undo, {} }, { Verbs::Draw, {} }, { Verbs::Undo, {} } });
    row("files below the caller's folder",
        { u"--export"_s, u"a/../图.png"_s, u"--export=/tmp/b.png"_s }, Purpose::Commands,
        { { Verbs::Export, u"/home/u/课件/图.png"_s }, { Verbs::Export, u"/tmp/b.png"_s } });
    row("a capture with and without a file",
        { u"--capture"_s, u"--pen"_s, u"--capture"_s, u"x.jpg"_s, u"--capture"_s },
        Purpose::Commands,
        { { Verbs::Capture, {} }, { Verbs::Pen, {} }, { Verbs::Capture, u"/home/u/课件/x.jpg"_s },
            { Verbs::Capture, {} } });
}

void TestCommands::theCommandLineSaysWhatToDo()
{
    QFETCH(QStringList, words);
    QFETCH(Purpose, purpose);
    QFETCH(Commands, commands);
    const CommandLine line = lineOf(words);
    QCOMPARE(line.purpose(), purpose);
    QCOMPARE(line.commands(), commands);
}

void TestCommands::switchesStandBesideCommands()
{
    const CommandLine line = lineOf({ u"--without-tray"_s, u"--draw"_s, u"--restart"_s });
    QVERIFY(line.withoutTray() && line.isRestart());
    QCOMPARE(line.purpose(), Purpose::Commands);
    QVERIFY(!lineOf({ u"--draw"_s }).withoutTray() && !lineOf({}).isRestart());
    // What is left for the program itself, when it has to be started for the commands.
    QCOMPARE(lineOf({ u"--without-tray"_s, u"--export"_s, u"a"_s, u"-style"_s, u"Fusion"_s,
                        u"-capture"_s, u"b"_s, u"--capture"_s, u"--export=c"_s })
                 .switches(),
        (QStringList{ u"--without-tray"_s, u"-style"_s, u"Fusion"_s }));
}

void TestCommands::aWrongLineIsBlamedOnOneWord_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("blamed");

    QTest::newRow("unknown") << QStringList{ u"--frob"_s } << u"--frob"_s;
    QTest::newRow("the case counts") << QStringList{ u"--Draw"_s } << u"--Draw"_s;
    QTest::newRow("a restart with one dash") << QStringList{ u"-restart"_s } << u"-restart"_s;
    QTest::newRow("of several lines") << QStringList{ u"--a\nb"_s } << u"--a b"_s;
    QTest::newRow("no file") << QStringList{ u"--draw"_s, u"--export"_s } << u"--export"_s;
    QTest::newRow("an empty file") << QStringList{ u"--export"_s, QString() } << u"--export"_s;
    QTest::newRow("a word too many") << QStringList{ u"--draw"_s, u"now"_s } << u"now"_s;
    QTest::newRow("a value too many")
        << QStringList{ u"--draw=now"_s, u"--undo"_s } << u"--draw=now"_s;
}

void TestCommands::aWrongLineIsBlamedOnOneWord()
{
    QFETCH(QStringList, words);
    QFETCH(QString, blamed);
    const CommandLine line = lineOf(words);
    QCOMPARE(line.purpose(), Purpose::Wrong);
    QVERIFY2(line.fault().contains(blamed), qPrintable(line.fault()));
    QVERIFY(!line.fault().contains(u'\n'));
}

void TestCommands::theHelpNamesEveryVerb()
{
    const QString help = CommandLine::help();
    for (const VerbName &name : verbNames()) {
        QVERIFY2(help.contains(u"--"_s + QLatin1String(name.option)), name.option);
    }
    QVERIFY(help.contains(u"--capture [FILE]"_s) && help.contains(u"--without-tray"_s));
    QVERIFY(!help.contains(u"platform"_s));
}

void TestCommands::requestsAndRepliesArriveAsTheyWereSent()
{
    Commands commands;
    for (const VerbName &name : verbNames()) {
        commands << Command{ name.verb,
            name.file == VerbName::File::None ? QString() : u"/tmp/a\n\"|图"_s };
    }
    const QByteArray request = CommandWire::request(commands);
    QCOMPARE(request.count('\n'), 1);
    QCOMPARE(CommandWire::readRequest(request), commands);

    const CommandReply reply{ false, { u"/tmp/1"_s, u"/tmp/图\n"_s }, u"没有\n第二行"_s };
    QCOMPARE(CommandWire::reply(reply).count('\n'), 1);
    QCOMPARE(CommandWire::readReply(CommandWire::reply(reply)), reply);
}

void TestCommands::whatIsNoRequestIsRejected_data()
{
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char *name, const QByteArray &json) {
        QTest::newRow(name) << '\0' + json + '\n';
    };
    row("nothing", {});
    row("no JSON", "draw");
    row("no list", R"({"format":1,"commands":"draw"})");
    row("an empty list", R"({"format":1,"commands":[]})");
    row("another format", R"({"format":2,"commands":[{"verb":"draw"}]})");
    row("an unknown verb", R"({"format":1,"commands":[{"verb":"draw"},{"verb":"fly"}]})");
    row("an export without a file", R"({"format":1,"commands":[{"verb":"export"}]})");
    row("a drawing with a file", R"({"format":1,"commands":[{"verb":"draw","file":"/a"}]})");
    row("too many",
        R"({"format":1,"commands":[)" + QByteArray(R"({"verb":"undo"},)").repeated(200)
            + R"({"verb":"undo"}]})");
    QTest::newRow("no mark") << QByteArray(R"({"format":1,"commands":[{"verb":"draw"}]})");
}

void TestCommands::whatIsNoRequestIsRejected()
{
    QFETCH(QByteArray, line);
    QVERIFY(!CommandWire::readRequest(line));
}

void TestCommands::commandsAreCarriedOutInOrderUpToTheFirstRefusal()
{
    Remote remote(Remote::kTimeoutMs);
    QList<Verbs::Verb> asked;
    connect(
        &remote, &Remote::requested, this, [&](int ticket, Verbs::Verb verb, const QString &file) {
            asked << verb;
            if (verb == Verbs::Undo) {
                remote.refuse(ticket, u"nothing to undo"_s);
            }
            remote.succeed(ticket, file); // of no effect after a refusal
        });
    Outcome outcome;
    remote.submit({ { Verbs::Export, u"/a.png"_s }, { Verbs::Undo, {} }, { Verbs::Clear, {} } },
        into(outcome), this);
    QCOMPARE(outcome.answers, 1);
    QCOMPARE(outcome.reply, (CommandReply{ false, { u"/a.png"_s }, u"nothing to undo"_s }));
    QCOMPARE(asked, (QList<Verbs::Verb>{ Verbs::Export, Verbs::Undo }));
}

void TestCommands::requestsWaitForEachOther()
{
    Remote remote(Remote::kTimeoutMs);
    QSignalSpy requested(&remote, &Remote::requested);
    Outcome first;
    Outcome dropped;
    Outcome second;
    auto impatient = std::make_unique<QObject>();
    remote.submit({ { Verbs::RecordStop, {} } }, into(first), this);
    remote.submit({ { Verbs::Clear, {} } }, into(dropped), impatient.get());
    remote.submit({ { Verbs::Draw, {} } }, into(second), this);
    impatient.reset();
    QCOMPARE(requested.size(), 1);
    remote.succeed(requested[0][0].toInt(), u"/v.mp4"_s);
    QCOMPARE(first.reply, (CommandReply{ true, { u"/v.mp4"_s }, {} }));
    QTRY_COMPARE(requested.size(), 2);
    QCOMPARE(requested[1][1].value<Verbs::Verb>(), Verbs::Draw); // not what nobody waits for
    remote.refuse(requested[0][0].toInt(), u"late"_s);
    QCOMPARE(second.answers, 0);
    remote.succeed(requested[1][0].toInt());
    QVERIFY(second.reply.done);
    QCOMPARE(dropped.answers, 0);
}

void TestCommands::anInterfaceThatDoesNotAnswerIsNotWaitedForEver()
{
    Remote remote(1);
    QSignalSpy requested(&remote, &Remote::requested);
    QSignalSpy expired(&remote, &Remote::expired);
    Outcome outcome;
    remote.submit({ { Verbs::RecordStart, {} }, { Verbs::Draw, {} } }, into(outcome), this);
    QTRY_COMPARE(outcome.answers, 1);
    QCOMPARE(expired.size(), 1);
    QCOMPARE(expired[0][0], requested[0][0]);
    QVERIFY(!outcome.reply.done && !outcome.reply.message.isEmpty());
}

QTEST_GUILESS_MAIN(TestCommands)
#include "tst_commands.moc"
