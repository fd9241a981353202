#include "platform/sideprocess.h"

#include <QTest>

#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/// Application-less: a copy of a process with threads would not be one that works.
class TestSideProcess : public QObject
{
    Q_OBJECT

private slots:
    void bringsTheWholeAnswer();
    void keepsWhatTheWorkDidToItself();
    void aCrashGivesNoAnswer();
    void aHangIsNotWaitedForLonger();
    void leavesNoProcessBehind();
};

namespace
{

constexpr int kPatienceMs = 30000;

void hang()
{
    while (true) {
        ::pause();
    }
}

} // namespace

void TestSideProcess::bringsTheWholeAnswer()
{
    // More than a pipe holds, and nothing at all.
    for (const QByteArray &answer : { QByteArray(1000000, 'x'), QByteArray() }) {
        const auto process = SideProcess::start([&answer] { return answer; });
        QVERIFY(process);
        QCOMPARE(process->result(kPatienceMs), answer);
    }
}

void TestSideProcess::keepsWhatTheWorkDidToItself()
{
    int value = 1;
    const auto process = SideProcess::start([&value] {
        value = 2;
        qputenv("DRAVELIN_TEST_SIDE", "set");
        qWarning("heard by nobody");
        return QByteArray::number(value);
    });
    QCOMPARE(process->result(kPatienceMs), "2");
    QCOMPARE(value, 1);
    QVERIFY(qEnvironmentVariableIsEmpty("DRAVELIN_TEST_SIDE"));
}

void TestSideProcess::aCrashGivesNoAnswer()
{
    for (const int signal : { SIGSEGV, SIGABRT, SIGKILL }) {
        const auto process = SideProcess::start([signal] {
            ::signal(signal, SIG_DFL); // a sanitizer would report it
            ::raise(signal);
            return QByteArray("survived");
        });
        QVERIFY(!process->result(kPatienceMs));
    }
}

void TestSideProcess::aHangIsNotWaitedForLonger()
{
    const auto process = SideProcess::start([] {
        hang();
        return QByteArray();
    });
    QVERIFY(!process->result(50));
}

void TestSideProcess::leavesNoProcessBehind()
{
    // One that is done, and one that never would be.
    (void)SideProcess::start([] { return QByteArray("done"); })->result(kPatienceMs);
    SideProcess::start([] {
        hang();
        return QByteArray();
    }).reset();
    errno = 0;
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
}

QTEST_APPLESS_MAIN(TestSideProcess)
#include "tst_sideprocess.moc"
