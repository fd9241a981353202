#include "capture/capturetexts.h"
#include "capture/videocaptureobject.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QMetaMethod>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <csignal>

#include <sys/resource.h>

using namespace CaptureTexts;

namespace
{

QStringList s_log;

void keepLog(QtMsgType, const QMessageLogContext &, const QString &text)
{
    s_log << text;
}

bool logHolds(const char *text)
{
    return !s_log.filter(QString::fromLatin1(text)).isEmpty();
}

/// A crash is told as an error and as the end of the process.
QStringList crashEvents()
{
    return { "started", QString("error: ") + kErrorProcess + "Process crashed", "stopped",
        "stopped", QString("error: ") + kErrorCrash };
}

} // namespace

/// The recordings run a real child process; see fakerecorder.cpp for its ways to misbehave.
class TestVideoCaptureObject : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void presentsItsMethodsInOrder();
    void startsAndStops();
    void passesScaledAreaAndOptionsOn();
    void refusesSecondStart();
    void stopsOnlyOnce();
    void stopWithoutRecordingIsQuiet();
    void recordsAgain();
    void recorderThatIgnoresTheRequestIsKilled();
    void recorderThatEndsByItself_data();
    void recorderThatEndsByItself();
    void recorderThatIsNotReadyYet();
    void recorderThatCannotStart();
    void createsTheOutputFolder();
    void folderThatCannotBeCreated();
    void tellsWhatTheRecorderSays();
    void takesNoMemoryForALineWithoutEnd();
    void tellsUncodedLastWords();
    void killsTheRecorderWhenDestroyed();

private:
    bool start(const char *mode, const QString &audioOption = QString());
    QStringList recorderArguments() const;
    QString argumentsFile() const { return m_folder->path() + "/out/arguments"; }
    qint64 recorderPid() const { return m_capture->findChild<QProcess *>()->processId(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<VideoCaptureObject> m_capture;
    QStringList m_events; ///< "started", "stopped" and "error: <message>" in order of arrival
};

void TestVideoCaptureObject::init()
{
    s_log.clear();
    m_events.clear();
    qInstallMessageHandler(keepLog);
    m_folder = std::make_unique<QTemporaryDir>();
    m_capture = std::make_unique<VideoCaptureObject>();
    connect(m_capture.get(), &VideoCaptureObject::recordingStarted, this,
        [this] { m_events << "started"; });
    connect(m_capture.get(), &VideoCaptureObject::recordingStopped, this, [this] {
        QVERIFY(!m_capture->isRecording());
        m_events << "stopped";
    });
    connect(m_capture.get(), &VideoCaptureObject::recordingError, this,
        [this](const QString &message) { m_events << "error: " + message; });
}

void TestVideoCaptureObject::cleanup()
{
    m_capture.reset();
    qInstallMessageHandler(nullptr);
}

/// Starts a recorder of the given kind and waits until it has read its arguments.
bool TestVideoCaptureObject::start(const char *mode, const QString &audioOption)
{
    qputenv("FAKE_RECORDER", mode);
    const QString folder = m_folder->path() + "/out/";
    return m_capture->startRecording(101, 0, 201, 3, folder, audioOption)
        && QTest::qWaitFor([this] { return QFile::exists(argumentsFile()); });
}

QStringList TestVideoCaptureObject::recorderArguments() const
{
    QFile file(argumentsFile());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    lines.removeLast();
    return lines;
}

void TestVideoCaptureObject::presentsItsMethodsInOrder()
{
    const QMetaObject &meta = VideoCaptureObject::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    const QStringList expected{
        "recordingStarted()",
        "recordingStopped()",
        "recordingError(QString)",
        "onProcessStarted()",
        "onProcessFinished(int,QProcess::ExitStatus)",
        "onProcessError(QProcess::ProcessError)",
        "onKillProcessTimerTimeout()",
        "startRecording(int,int,int,int,QString,QString)",
        "stopRecording()",
        "isRecording()",
    };
    QCOMPARE(methods, expected);
}

void TestVideoCaptureObject::startsAndStops()
{
    QVERIFY(!m_capture->isRecording());
    QVERIFY(start("stops"));
    QCOMPARE(m_events, QStringList{ "started" });
    QVERIFY(m_capture->isRecording());

    m_capture->stopRecording();
    QVERIFY(m_capture->isRecording());
    QTRY_COMPARE(m_events, QStringList({ "started", "stopped" }));
    QVERIFY(logHolds(kStopping));
    QVERIFY(logHolds("Process finished. Exit code:  0 , Exit status:  QProcess::NormalExit"));
    QVERIFY(logHolds(kFinishedInTime));
}

void TestVideoCaptureObject::passesScaledAreaAndOptionsOn()
{
    QVERIFY(start("stops"));
    QStringList expected{ "152", "0", "302", "5", m_folder->path() + "/out/", QString() };
    QCOMPARE(recorderArguments(), expected);
    QVERIFY(logHolds("Screen devicePixelRatio: 1.5"));
    QVERIFY(logHolds("Original coordinates: 101 0 201 3"));
    QVERIFY(logHolds("Physical coordinates: 152 0 302 5"));
    m_capture->stopRecording();
    QTRY_VERIFY(!m_capture->isRecording());

    QVERIFY(QFile::remove(argumentsFile()));
    QVERIFY(start("stops", "--no-mic"));
    expected.last() = "--no-mic";
    QCOMPARE(recorderArguments(), expected);
}

void TestVideoCaptureObject::refusesSecondStart()
{
    QVERIFY(start("stops"));
    const qint64 pid = recorderPid();
    QVERIFY(!m_capture->startRecording(0, 0, 10, 10, m_folder->path() + '/', QString()));
    QVERIFY(logHolds(kAlreadyRecording));
    QCOMPARE(recorderPid(), pid);
    QVERIFY(m_capture->isRecording());

    m_capture->stopRecording();
    s_log.clear();
    QVERIFY(!m_capture->startRecording(0, 0, 10, 10, m_folder->path() + '/', QString()));
    QVERIFY(logHolds(kAlreadyRecording));
}

void TestVideoCaptureObject::stopsOnlyOnce()
{
    QVERIFY(start("ignores"));
    m_capture->stopRecording();
    const auto *timer = m_capture->findChild<QTimer *>();
    const int timerId = timer->timerId();
    m_capture->stopRecording();
    QVERIFY(logHolds(kAlreadyStopping));
    QCOMPARE(timer->timerId(), timerId);
    QCOMPARE(s_log.filter(QString::fromLatin1(kStopping)).size(), 1);
}

void TestVideoCaptureObject::stopWithoutRecordingIsQuiet()
{
    m_capture->stopRecording();
    QVERIFY(logHolds(kNotRecording));
    QVERIFY(m_events.isEmpty());
}

void TestVideoCaptureObject::recordsAgain()
{
    for (int round = 0; round < 2; ++round) {
        m_events.clear();
        QVERIFY(start("stops"));
        m_capture->stopRecording();
        QTRY_COMPARE(m_events.value(1), "stopped");
        QVERIFY(QFile::remove(argumentsFile()));
    }
}

void TestVideoCaptureObject::recorderThatIgnoresTheRequestIsKilled()
{
    QVERIFY(start("ignores"));
    QElapsedTimer patience;
    patience.start();
    m_capture->stopRecording();
    const QString crash = QString("error: ") + kErrorCrash;
    QTRY_COMPARE_WITH_TIMEOUT(m_events.last(), crash, 10000);
    QVERIFY(patience.elapsed() >= 4000);
    QCOMPARE(m_events, crashEvents());
    QVERIFY(logHolds(kStopTimedOut));
    QVERIFY(logHolds(kKilling));
    QVERIFY(!logHolds(kFinishedInTime));
}

void TestVideoCaptureObject::recorderThatEndsByItself_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QStringList>("events");

    const QString started = "started";
    const QString stopped = "stopped";
    QTest::newRow("exits") << QByteArray("exits") << QStringList{ started, stopped };
    QTest::newRow("fails") << QByteArray("explains") << QStringList{ started, stopped };
    QTest::newRow("crashes") << QByteArray("crashes") << crashEvents();
}

void TestVideoCaptureObject::recorderThatEndsByItself()
{
    QFETCH(QByteArray, mode);
    QFETCH(QStringList, events);
    QVERIFY(start(mode));
    QTRY_COMPARE(m_events, events);
    m_capture->stopRecording();
    QVERIFY(logHolds(kNotRecording));
}

void TestVideoCaptureObject::recorderThatIsNotReadyYet()
{
    // Its handler is not in place when the request arrives, so the request ends it.
    QVERIFY(start("unprepared"));
    m_capture->stopRecording();
    QTRY_COMPARE(m_events, crashEvents());
    QVERIFY(!m_capture->isRecording());
    QVERIFY(QFile::remove(argumentsFile()));
    QVERIFY(start("stops"));
}

void TestVideoCaptureObject::recorderThatCannotStart()
{
    const QString path =
        QCoreApplication::applicationDirPath() + "/thirdparty/capture/obs/recorder.exe";
    const QString aside = path + ".aside";
    QVERIFY(QFile::rename(path, aside));
    const bool started = start("stops");
    QVERIFY(QFile::rename(aside, path));

    QVERIFY(!started);
    QVERIFY(!m_capture->isRecording());
    QCOMPARE(m_events.size(), 2);
    QVERIFY(m_events.first().startsWith(QString("error: ") + kErrorStart));
    QCOMPARE(m_events.first(), m_events.last());
    QVERIFY(logHolds(kStartFailed));
    QVERIFY(start("stops"));
}

void TestVideoCaptureObject::createsTheOutputFolder()
{
    QVERIFY(start("stops"));
    QVERIFY(logHolds(kDirectoryMissing));
    QVERIFY(logHolds(kDirectoryCreated));
    QVERIFY(QDir(m_folder->path() + "/out").exists());
}

void TestVideoCaptureObject::folderThatCannotBeCreated()
{
    QFile obstacle(m_folder->path() + "/out");
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    QVERIFY(!start("stops"));
    QCOMPARE(m_events,
        QStringList{ "error: Failed to create output directory: " + m_folder->path() + "/out" });
    QVERIFY(logHolds(kDirectoryFailed));
    QVERIFY(!logHolds(kStarting));
}

void TestVideoCaptureObject::tellsWhatTheRecorderSays()
{
    connect(m_capture->report(), &RecorderReport::warning, this,
        [this](const QString &code, const QString &text) { m_events << code << text; });
    connect(m_capture->report(), &RecorderReport::error, this,
        [this](const QString &code, const QString &text) { m_events << code << text; });
    QVERIFY(start("explains"));
    const QStringList expected{ "started", "no-microphone", "There is no microphone.", "disk-full",
        "The disk is full.", "stopped" };
    QTRY_COMPARE(m_events, expected);
    QTRY_COMPARE(m_capture->report()->savedFile(), m_folder->path() + "/out/record.mp4");
    // A mere header is nothing that was saved.
    QFile file(m_capture->report()->savedFile());
    QVERIFY(file.resize(8));
    QVERIFY(m_capture->report()->savedFile().isEmpty());

    QVERIFY(QFile::remove(argumentsFile()));
    QVERIFY(start("stops"));
    QVERIFY(m_capture->report()->savedFile().isEmpty());
}

void TestVideoCaptureObject::takesNoMemoryForALineWithoutEnd()
{
    QString text;
    connect(m_capture->report(), &RecorderReport::error, this,
        [&](const QString &, const QString &words) { text = words; });
    const auto highWaterKiB = [] {
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    };
    const long before = highWaterKiB();
    QVERIFY(start("floods")); // 300 MiB each to both channels
    QTRY_COMPARE_WITH_TIMEOUT(m_events, QStringList({ "started", "stopped" }), 60000);
    QCOMPARE(text, QString(LineBuffer::kMaxBytes, 'x'));
    constexpr long kEnoughKiB = 400 * 1024; // a sanitizer keeps freed pieces for a while
    QVERIFY2(highWaterKiB() - before < kEnoughKiB, qPrintable(QString::number(highWaterKiB())));
}

void TestVideoCaptureObject::tellsUncodedLastWords()
{
    connect(m_capture->report(), &RecorderReport::error, this,
        [this](const QString &code, const QString &text) { m_events << code + '|' + text; });
    QVERIFY(start("babbles"));
    const QStringList expected{
        "started",
        "|recorder.exe: cannot open shared object file",
        "stopped",
    };
    QTRY_COMPARE(m_events, expected);
}

void TestVideoCaptureObject::killsTheRecorderWhenDestroyed()
{
    QVERIFY(start("ignores"));
    const auto pid = static_cast<pid_t>(recorderPid());
    QCOMPARE(::kill(pid, 0), 0);
    m_capture.reset();
    QVERIFY(logHolds(kDestroyedWhileRunning));
    QCOMPARE(::kill(pid, 0), -1);
    QCOMPARE(m_events, QStringList{ "started" });
}

int main(int argc, char **argv)
{
    // A fractional scale shows how coordinates are rounded.
    qputenv("QT_SCALE_FACTOR", "1.5");
    QGuiApplication application(argc, argv);
    TestVideoCaptureObject test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_videocaptureobject.moc"
