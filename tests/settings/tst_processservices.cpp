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
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}

void write(const QString &path, const QByteArray &content, QFile::Permissions permissions)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QVERIFY(file.setPermissions(permissions));
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
    void aProgramThatCannotRunStillMakesThisOneQuit();
};

void TestProcessServices::aMissingProgramKeepsThisOneRunning()
{
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("^无法找到可执行文件: .*nosuch\"$")));
    QVERIFY(
        !quitsThroughEventLoop([] { ProcessServices::startAndQuit(QStringLiteral("nosuch")); }));
}

void TestProcessServices::aProgramIsStartedAndThisOneQuits()
{
    const QString marker = besideExecutable("started by the test");
    QFile::remove(marker);
    write(besideExecutable("update program"),
        "#!/bin/sh\n: > \"$(dirname \"$0\")/started by the test\"\n",
        QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    QVERIFY(quitsThroughEventLoop(
        [] { ProcessServices::startAndQuit(QStringLiteral("update program")); }));
    QTRY_VERIFY(QFile::exists(marker));
}

void TestProcessServices::aProgramThatCannotRunStillMakesThisOneQuit()
{
    write(besideExecutable("no program"), "text", QFile::ReadOwner | QFile::WriteOwner);
    QVERIFY(
        quitsThroughEventLoop([] { ProcessServices::startAndQuit(QStringLiteral("no program")); }));
}

QTEST_GUILESS_MAIN(TestProcessServices)
#include "tst_processservices.moc"
