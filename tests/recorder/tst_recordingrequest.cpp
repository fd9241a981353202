#include "recorder/capturearea.h"
#include "recorder/recordingrequest.h"

#include <QTest>

class TestRecordingRequest : public QObject
{
    Q_OBJECT

private slots:
    void readsAudioOptions_data();
    void readsAudioOptions();
    void refusesWrongCalls_data();
    void refusesWrongCalls();
    void makesTheAreaEncodable_data();
    void makesTheAreaEncodable();
};

void TestRecordingRequest::readsAudioOptions_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("microphone");
    QTest::addColumn<bool>("systemSound");
    QTest::newRow("both") << "" << true << true;
    QTest::newRow("system") << "--no-mic" << false << true;
    QTest::newRow("microphone") << "--no-system-audio" << true << false;
    QTest::newRow("none") << "--no-audio" << false << false;
}

void TestRecordingRequest::readsAudioOptions()
{
    QFETCH(QString, option);
    RecordingRequest request;
    QString reason;
    const QStringList arguments{ "-3", "4", "500", "600", "录像/", option };
    QVERIFY2(RecordingRequest::parse(arguments, &request, &reason), qPrintable(reason));
    QCOMPARE(request.areaPx, QRect(-3, 4, 500, 600));
    QCOMPARE(request.output, "录像/");
    QTEST(request.microphone, "microphone");
    QTEST(request.systemSound, "systemSound");
}

void TestRecordingRequest::refusesWrongCalls_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("expected");
    QTest::newRow("five") << "1,2,3,4,out/"
                          << "six arguments";
    QTest::newRow("seven") << "1,2,3,4,out/,,x"
                           << "six arguments";
    QTest::newRow("fraction") << "1,2.5,3,4,out/,"
                              << "\"2.5\"";
    QTest::newRow("no path") << "1,2,3,4,,"
                             << "path is empty";
    QTest::newRow("audio") << "1,2,3,4,out/,--no-sound"
                           << "\"--no-sound\"";
}

void TestRecordingRequest::refusesWrongCalls()
{
    QFETCH(QString, arguments);
    RecordingRequest request;
    QString reason;
    QVERIFY(!RecordingRequest::parse(arguments.split(u','), &request, &reason));
    QFETCH(QString, expected);
    QVERIFY2(reason.contains(expected), qPrintable(reason));
}

void TestRecordingRequest::makesTheAreaEncodable_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QRect>("area");
    QTest::newRow("even") << QRect(10, 20, 640, 480) << QRect(10, 20, 640, 480);
    QTest::newRow("odd") << QRect(11, 21, 641, 481) << QRect(11, 21, 640, 480);
    QTest::newRow("past the edges") << QRect(-5, 700, 101, 300) << QRect(0, 700, 96, 100);
    QTest::newRow("smallest") << QRect(0, 0, 2, 3) << QRect(0, 0, 2, 2);
    QTest::newRow("too narrow") << QRect(0, 0, 1, 300) << QRect();
    QTest::newRow("elsewhere") << QRect(1280, 0, 100, 100) << QRect();
    QTest::newRow("negative") << QRect(100, 100, -50, 20) << QRect();
}

void TestRecordingRequest::makesTheAreaEncodable()
{
    QFETCH(QRect, wanted);
    QTEST(encodableArea(wanted, QRect(0, 0, 1280, 800)), "area");
}

QTEST_GUILESS_MAIN(TestRecordingRequest)
#include "tst_recordingrequest.moc"
