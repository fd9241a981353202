#include "recorder/dshowdevices.h"
#include "recorder/encoderfailure.h"
#include "recorder/ffmpegcommand.h"
#include "recorder/recorderprotocol.h"

#include <QTest>

using namespace RecorderProtocol;

/// What is said to FFmpeg, and what is read from its answers.
class TestFfmpegCommand : public QObject
{
    Q_OBJECT

private slots:
    void grabsTheAreaFromTheDisplay();
    void leavesTheSoundTrackOut();
    void mixesSeveralSounds();
    void grabsFromTheWindowsDesktop();
    void sparesTheProcessorOnLargeScreens();
    void explainsFailures_data();
    void explainsFailures();
    void readsTheWindowsDeviceList();

private:
    static FfmpegCommand command(qsizetype sounds)
    {
        FfmpegCommand command;
        command.display = ":7";
        command.areaPx = QRect(10, 20, 640, 480);
        command.epochSeconds = 1700000000.25;
        command.outputPath = "/v/my video.mp4";
        for (qsizetype i = 0; i < sounds; ++i)
            command.sound.append({ { "-f", "dshow" }, QString("audio=Mic %1").arg(i) });
        return command;
    }

    /// What follows each occurrence of `option`.
    static QStringList valuesOf(const QStringList &arguments, const QString &option)
    {
        QStringList values;
        for (qsizetype i = 0; i + 1 < arguments.size(); ++i) {
            if (arguments.at(i) == option)
                values << arguments.at(i + 1);
        }
        return values;
    }
};

void TestFfmpegCommand::grabsTheAreaFromTheDisplay()
{
    const QStringList arguments = command(1).arguments();
    QCOMPARE(valuesOf(arguments, "-video_size"), QStringList{ "640x480" });
    QCOMPARE(valuesOf(arguments, "-grab_x"), QStringList{ "10" });
    QCOMPARE(valuesOf(arguments, "-grab_y"), QStringList{ "20" });
    QCOMPARE(valuesOf(arguments, "-i"), QStringList({ ":7", "audio=Mic 0" }));
    QCOMPARE(valuesOf(arguments, "-itsoffset"), QStringList{ "-1700000000.250000" });
    QCOMPARE(valuesOf(arguments, "-flush_packets"), QStringList{ "1" });
    QCOMPARE(arguments.last(), "/v/my video.mp4");
    QVERIFY(arguments.indexOf("-itsoffset") < arguments.indexOf(":7"));
    QVERIFY(arguments.contains("-nostdin"));
}

void TestFfmpegCommand::leavesTheSoundTrackOut()
{
    const QStringList arguments = command(0).arguments();
    QCOMPARE(valuesOf(arguments, "-map"), QStringList{ "[v]" });
    QVERIFY(!arguments.contains("-c:a"));
    QVERIFY(!valuesOf(arguments, "-filter_complex").first().contains(":a]"));
}

void TestFfmpegCommand::mixesSeveralSounds()
{
    const QStringList arguments = command(2).arguments();
    QCOMPARE(valuesOf(arguments, "-map"), QStringList({ "[v]", "[a]" }));
    const QString graph = valuesOf(arguments, "-filter_complex").first();
    QVERIFY2(graph.contains("[1:a]"), qPrintable(graph));
    QVERIFY2(graph.contains("[2:a]"), qPrintable(graph));
    QVERIFY2(graph.contains("[s1][s2]amix=inputs=2"), qPrintable(graph));
}

void TestFfmpegCommand::grabsFromTheWindowsDesktop()
{
    FfmpegCommand windows = command(1);
    windows.grabber = ScreenGrabber::Gdi;
    const QStringList arguments = windows.arguments();
    QCOMPARE(valuesOf(arguments, "-f").first(), "gdigrab");
    QCOMPARE(valuesOf(arguments, "-offset_x"), QStringList{ "10" });
    QCOMPARE(valuesOf(arguments, "-i"), QStringList({ "desktop", "audio=Mic 0" }));
    QVERIFY(!arguments.contains("-copyts"));
    // It is ended through its keyboard there.
    QVERIFY(!arguments.contains("-nostdin"));
}

void TestFfmpegCommand::sparesTheProcessorOnLargeScreens()
{
    FfmpegCommand large = command(0);
    QCOMPARE(valuesOf(large.arguments(), "-preset"), QStringList{ "veryfast" });
    large.areaPx = QRect(0, 0, 3840, 2160);
    QCOMPARE(valuesOf(large.arguments(), "-preset"), QStringList{ "ultrafast" });
}

void TestFfmpegCommand::explainsFailures_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("part");
    QTest::newRow("full disk") << QByteArray(
        "av_interleaved_write_frame(): No space left on device\nConversion failed!\n")
                               << QString(Code::kDiskFull) << "Free some space in /v";
    QTest::newRow("no display") << QByteArray(
        "[x11grab @ 0x1] Cannot open display :7, error 1.\n:7: I/O error\n")
                                << QString(Code::kNoScreen) << "display";
    QTest::newRow("no H.264") << QByteArray("first\nUnknown encoder 'libx264'\n\n")
                              << QString(Code::kEncoderLacking) << "H.264";
    QTest::newRow("other") << QByteArray("first\nSomething broke\n\n")
                           << QString(Code::kEncoderFailed) << "FFmpeg failed: Something broke";
    QTest::newRow("silent") << QByteArray() << QString(Code::kEncoderEnded) << "without saying why";
}

void TestFfmpegCommand::explainsFailures()
{
    QFETCH(QByteArray, words);
    QFETCH(QString, code);
    QFETCH(QString, part);
    const EncoderFailure failure = EncoderFailure::fromWords(words, "/v/clip.mp4");
    QCOMPARE(failure.code, code);
    QVERIFY2(failure.text.contains(part), qPrintable(failure.text));
    // It is at closing that a disk may say that nothing of it was kept.
    QVERIFY(EncoderFailure::tellsFailedWrite("Error closing file /v/clip.mp4: Input/output error"));
    QVERIFY(!EncoderFailure::tellsFailedWrite("[x11grab] Something broke"));
}

void TestFfmpegCommand::readsTheWindowsDeviceList()
{
    const DshowDevices devices =
        DshowDevices::fromListing("[dshow @ 01] \"HD Webcam\" (video)\n"
                                  "[dshow @ 01]   Alternative name \"@device_pnp_1\"\n"
                                  "[dshow @ 01] \"立体声混音 (Realtek)\" (audio)\n"
                                  "[dshow @ 01]   Alternative name \"@device_cm_1\"\n"
                                  "[dshow @ 01] \"麦克风 (USB)\" (audio)\n"
                                  "[dshow @ 01] \"Line In (Realtek)\" (audio)\n");
    QCOMPARE(devices.microphone, "麦克风 (USB)");
    QCOMPARE(devices.systemSound, "立体声混音 (Realtek)");
    QVERIFY(DshowDevices::fromListing("dummy: Immediate exit requested").microphone.isEmpty());
}

QTEST_GUILESS_MAIN(TestFfmpegCommand)
#include "tst_ffmpegcommand.moc"
