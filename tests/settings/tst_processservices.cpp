#include "settings/processservices.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace
{

QString besideExecutable(const char *name)
{
    return QCoreApplication::applicationDirPath() + '/' + QLatin1String(name);
}

/// True when `action` asked the running application to quit.
template <typename Action> bool quitsThroughEventLoop(Action action)
{
    QTimer stays;
    QObject::connect(&stays, &QTimer::timeout, &stays, [] { QCoreApplication::exit(1); });
    stays.start(500);
    QTimer::singleShot(0, &stays, action);
    return QCoreApplication::exec() == 0;
}

} // namespace

class TestProcessServices : public QObject
{
    Q_OBJECT

private slots:
    void aMissingProgramKeepsThisOneRunning();
    void aProgramIsStartedAndThisOneQuits();
};

void TestProcessServices::aMissingProgramKeepsThisOneRunning()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^无法找到可执行文件: .*nosuch\"$"));
    QVERIFY(!quitsThroughEventLoop([] { ProcessServices::startAndQuit("nosuch"); }));
}

void TestProcessServices::aProgramIsStartedAndThisOneQuits()
{
    const QString marker = besideExecutable("started by the test");
    QFile::remove(marker);
    QFile program(besideExecutable("update program"));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\n: > \"$(dirname \"$0\")/started by the test\"\n");
    program.close();
    const auto start = [] { ProcessServices::startAndQuit("update program"); };
    QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(quitsThroughEventLoop(start));
    QTRY_VERIFY(QFile::exists(marker));
    // One that cannot run makes this one quit all the same.
    QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(quitsThroughEventLoop(start));
}

QTEST_GUILESS_MAIN(TestProcessServices)
#include "tst_processservices.moc"
