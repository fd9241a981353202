#include "tests/recorder/backdrop.h"
#include "tests/recorder/beacon.h"
#include "tests/recorder/servers.h"
#include "tests/recorder/videofacts.h"

#include <QColor>
#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace
{

constexpr int kToneHertz = 1000;
constexpr int kRoomHertz = 440;

/// A running recorder and what it has said.
class Recorder
{
public:
    explicit Recorder(const QStringList &arguments, const QProcessEnvironment &environment,
        const QStringList &wrapper = {})
    {
        process.setProcessEnvironment(environment);
        QStringList command = wrapper;
        command << RECORDER_PROGRAM << arguments;
        process.start(command.takeFirst(), command);
    }

    /// Waits until it has taken a file's name.
    QString file()
    {
        if (!m_file.isEmpty())
            return m_file;
        while (!process.canReadLine() && process.waitForReadyRead()) { }
        m_file =
            QString::fromUtf8(process.readLine()).trimmed().remove(QRegularExpression("^file: "));
        return m_file;
    }

    /// Returns how long it took to end, in milliseconds.
    qint64 end(int signal)
    {
        QElapsedTimer timer;
        timer.start();
        ::kill(static_cast<pid_t>(process.processId()), signal);
        process.waitForFinished();
        return timer.elapsed();
    }

    QByteArray notes() { return process.readAllStandardError(); }

    /// The processes that it started.
    QList<pid_t> children() const
    {
        const QString pid = QString::number(process.processId());
        QFile list("/proc/" + pid + "/task/" + pid + "/children");
        QList<pid_t> pids;
        if (list.open(QIODevice::ReadOnly)) {
            for (const QByteArray &child : list.readAll().split(' ')) {
                if (!child.isEmpty())
                    pids << child.toInt();
            }
        }
        return pids;
    }

    QProcess process;

private:
    QString m_file;
};

} // namespace

/// The program itself, on a screen and with sounds that the test makes.
class TestRecorder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void hearsTheChosenSources_data();
    void hearsTheChosenSources();
    void keepsSoundAndPictureTogether_data();
    void keepsSoundAndPictureTogether();
    void showsTrueColours_data();
    void showsTrueColours();
    void losesAtMostASecondWhenKilled_data();
    void losesAtMostASecondWhenKilled();
    void recordsOnWhenTheSoundServerEnds();
    void keepsWhatAFullDiskHolds();
    void tellsWhyItCannotRecord_data();
    void tellsWhyItCannotRecord();
    void leavesNothingWhenStoppedAtOnce();
    void neverOverwrites();

private:
    QProcessEnvironment environment() const;
    QStringList arguments(const QString &audioOption) const
    {
        return { "100", "50", "641", "481", m_folder->path() + '/', audioOption };
    }

    XServer m_screen;
    SoundServer m_speaker; ///< plays a tone, has no microphone
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestRecorder::initTestCase()
{
    QVERIFY(m_screen.start(1280, 800));
    QVERIFY(m_speaker.start(SoundServer::Microphone::None));
    QVERIFY(m_speaker.play("speaker", kToneHertz));
}

void TestRecorder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QProcessEnvironment TestRecorder::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", m_screen.display());
    environment.insert("PULSE_SERVER", m_speaker.address());
    return environment;
}

void TestRecorder::hearsTheChosenSources_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("hearsSystem");
    QTest::addColumn<bool>("hearsMicrophone");
    QTest::newRow("both") << "" << true << true;
    QTest::newRow("system") << "--no-mic" << true << false;
    QTest::newRow("microphone") << "--no-system-audio" << false << true;
}

void TestRecorder::hearsTheChosenSources()
{
    QFETCH(QString, option);
    QFETCH(bool, hearsSystem);
    QFETCH(bool, hearsMicrophone);
    SoundServer server;
    QVERIFY(server.start(SoundServer::Microphone::Room));
    QVERIFY(server.play("speaker", kToneHertz));
    QVERIFY(server.play("room", kRoomHertz));
    QProcessEnvironment own = environment();
    own.insert("PULSE_SERVER", server.address());

    Recorder recorder(arguments(option), own);
    const QString path = recorder.file();
    QTest::qWait(2500);
    recorder.end(SIGTERM);
    QCOMPARE(recorder.notes(), QByteArray());
    const double system = VideoFacts::toneShare(path, kToneHertz);
    const double microphone = VideoFacts::toneShare(path, kRoomHertz);
    QVERIFY2(hearsSystem ? system > 0.2 : system < 0.01, qPrintable(QString::number(system)));
    QVERIFY2(hearsMicrophone ? microphone > 0.2 : microphone < 0.01,
        qPrintable(QString::number(microphone)));
}

void TestRecorder::keepsSoundAndPictureTogether_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("isMicrophone");
    QTest::newRow("system") << "--no-mic" << false;
    QTest::newRow("microphone") << "--no-system-audio" << true;
}

void TestRecorder::keepsSoundAndPictureTogether()
{
    QFETCH(QString, option);
    QFETCH(bool, isMicrophone);
    SoundServer server;
    QVERIFY(server.start(SoundServer::Microphone::Pipe));
    const Beacon beacon(
        m_screen, server, isMicrophone ? Beacon::Ear::Microphone : Beacon::Ear::Speaker);
    QVERIFY(QTest::qWaitFor([&] { return beacon.flashes() > 0; }, 20000));
    QProcessEnvironment own = environment();
    own.insert("PULSE_SERVER", server.address());

    Recorder recorder(arguments(option), own);
    const QString path = recorder.file();
    const int enough = beacon.flashes() + 12;
    QVERIFY(QTest::qWaitFor([&] { return beacon.flashes() >= enough; }, 60000));
    recorder.end(SIGTERM);
    QCOMPARE(recorder.notes(), QByteArray());

    // One picture, and a little for a machine that shows a flash late.
    constexpr double kApart = 1.0 / 30 + 0.005;
    int seen = 0;
    int apart = 0;
    QString table;
    for (const auto &[seconds, soundLate] : VideoFacts::flashesAndClicks(path)) {
        table += QString(" %1 s: %2").arg(seconds, 0, 'f', 2).arg(soundLate, 0, 'f', 3);
        seen += seconds >= 1;
        apart += seconds >= 1 && std::abs(soundLate) > kApart;
    }
    QVERIFY2(seen >= 6, qPrintable(table));
    // A picture that was taken late says nothing about the sound; a wrong clock shifts them all.
    QVERIFY2(apart <= seen / 6, qPrintable(table));
}

void TestRecorder::showsTrueColours_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::newRow("red") << QColor(220, 30, 20);
    QTest::newRow("green") << QColor(20, 200, 60);
    QTest::newRow("white") << QColor(255, 255, 255);
}

void TestRecorder::showsTrueColours()
{
    QFETCH(QColor, colour);
    const Backdrop backdrop(m_screen.display().toUtf8(), colour.rgb());
    // Killed, as then nobody completes the file.
    Recorder recorder(arguments("--no-audio"), environment());
    const QString path = recorder.file();
    QTRY_VERIFY(VideoFacts::of(path).plays);
    recorder.end(SIGKILL);
    QCOMPARE(VideoFacts::colourTags(path), QByteArray("tv,bt709,bt709,bt709"));
    const QColor shown = VideoFacts::colourAsBt709(path);
    const auto apart = [&](int (QColor::*part)() const) {
        return std::abs((shown.*part)() - (colour.*part)());
    };
    QVERIFY2(apart(&QColor::red) <= 4 && apart(&QColor::green) <= 4 && apart(&QColor::blue) <= 4,
        qPrintable(shown.name()));
}

void TestRecorder::losesAtMostASecondWhenKilled_data()
{
    QTest::addColumn<bool>("encoderToo");
    QTest::newRow("recorder") << false;
    QTest::newRow("recorder and encoder") << true;
}

void TestRecorder::losesAtMostASecondWhenKilled()
{
    QFETCH(bool, encoderToo);
    Recorder recorder(arguments("--no-mic"), environment());
    const QString path = recorder.file();
    QElapsedTimer wall;
    wall.start();
    QTest::qWait(3000);
    const QList<pid_t> encoders = recorder.children();
    QCOMPARE(encoders.size(), 1);
    const double seconds = static_cast<double>(wall.elapsed()) / 1000;
    if (encoderToo)
        ::kill(encoders.first(), SIGKILL);
    recorder.end(SIGKILL);
    QTRY_VERIFY(::kill(encoders.first(), 0) != 0);

    const VideoFacts facts = VideoFacts::of(path);
    QVERIFY(facts.plays);
    QVERIFY2(facts.seconds > seconds - 1, qPrintable(QString::number(facts.seconds)));
    // A busy machine tears small gaps; another sound, or noise, would be far below.
    QVERIFY(VideoFacts::toneShare(path, kToneHertz) > 0.7);
}

void TestRecorder::recordsOnWhenTheSoundServerEnds()
{
    SoundServer server;
    QVERIFY(server.start(SoundServer::Microphone::Room));
    QVERIFY(server.play("speaker", kToneHertz));
    QProcessEnvironment own = environment();
    own.insert("PULSE_SERVER", server.address());
    Recorder recorder(arguments(""), own);
    const QString path = recorder.file();
    QTest::qWait(1500);
    server.kill();
    QTest::qWait(1500);
    QVERIFY(recorder.end(SIGTERM) < 1000);
    const QByteArray notes = recorder.notes();
    QVERIFY(notes.contains("warning[no-system-sound]: "));
    QVERIFY(notes.contains("warning[no-microphone]: "));
    QVERIFY(VideoFacts::of(path).seconds > 2.5);
    QVERIFY(VideoFacts::toneShare(path, kToneHertz) > 0.5);
}

void TestRecorder::keepsWhatAFullDiskHolds()
{
    // A disk of its own that a few seconds fill; it goes with the recorder, but what was on it is
    // copied aside first.
    const QString kept = m_folder->path() + ".mp4";
    constexpr char kOnSmallDisk[] =
        R"(mount -t tmpfs -o size=200k none "$0" && { "$@"; ended=$?; cp -f "$0"/*.mp4 "$0.mp4" 2>&-; exit $ended; })";
    const QStringList smallDisk{ "unshare", "--map-root-user", "--mount", "sh", "-c", kOnSmallDisk,
        m_folder->path() };
    if (QProcess::execute(smallDisk.first(), smallDisk.mid(1) << "true") != 0)
        QSKIP("this machine lets nobody mount a disk");
    Recorder recorder(arguments("--no-mic"), environment(), smallDisk);
    QVERIFY(recorder.process.waitForFinished());
    const QByteArray notes = recorder.notes();
    QVERIFY2(notes.startsWith("error[disk-full]: "), notes.constData());
    QCOMPARE(recorder.process.exitCode(), 1);
    const VideoFacts facts = VideoFacts::of(kept);
    QFile::remove(kept);
    QVERIFY(facts.plays);
    QVERIFY2(facts.seconds > 1, qPrintable(QString::number(facts.seconds)));
}

void TestRecorder::tellsWhyItCannotRecord_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("note");
    const QStringList good{ "0", "0", "100", "100", "OUT/", "--no-audio" };
    QTest::newRow("no FFmpeg") << "PATH"
                               << "/nowhere" << good << 1 << QByteArray("error[no-encoder]: ");
    QTest::newRow("no screen") << "DISPLAY"
                               << ":9999" << good << 1 << QByteArray("error[no-screen]: ");
    QTest::newRow("no folder") << "A"
                               << "B" << QStringList{ "0", "0", "100", "100", "/proc/none/", "" }
                               << 1 << QByteArray("error[cannot-write]: ");
    QTest::newRow("off the screen") << "A"
                                    << "B" << QStringList{ "1279", "0", "100", "100", "OUT/", "" }
                                    << 1 << QByteArray("error[region-too-small]: ");
    QTest::newRow("wrongly called")
        << "A"
        << "B" << QStringList{ "0", "0", "100" } << 2 << QByteArray("error[usage]: ");
}

void TestRecorder::tellsWhyItCannotRecord()
{
    QFETCH(QString, variable);
    QFETCH(QString, value);
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, note);
    QProcessEnvironment own = environment();
    own.insert(variable, value);
    arguments.replaceInStrings("OUT", m_folder->path());
    Recorder recorder(arguments, own);
    QVERIFY(recorder.process.waitForFinished());
    QTEST(recorder.process.exitCode(), "exitCode");
    const QByteArray notes = recorder.notes();
    QVERIFY2(notes.startsWith(note) && notes.count('\n') == 1, notes.constData());
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void TestRecorder::leavesNothingWhenStoppedAtOnce()
{
    Recorder recorder(arguments("--no-audio"), environment());
    QVERIFY(!recorder.file().isEmpty());
    recorder.end(SIGTERM);
    if (recorder.process.exitCode() == 0) // it was faster than we
        return;
    QVERIFY(recorder.notes().startsWith("error[nothing-recorded]: "));
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void TestRecorder::neverOverwrites()
{
    const QString path = m_folder->path() + "/lesson.mp4";
    QFile precious(path);
    QVERIFY(precious.open(QIODevice::WriteOnly));
    precious.write("precious");
    precious.close();
    Recorder recorder({ "0", "0", "100", "100", path, "--no-audio" }, environment());
    QCOMPARE(recorder.file(), m_folder->path() + "/lesson_2.mp4");
    QTRY_VERIFY(VideoFacts::of(recorder.file()).plays);
    recorder.end(SIGINT);
    QCOMPARE(recorder.process.exitCode(), 0);
    QVERIFY(precious.open(QIODevice::ReadOnly));
    QCOMPARE(precious.readAll(), QByteArray("precious"));
}

QTEST_GUILESS_MAIN(TestRecorder)
#include "tst_recorder.moc"
