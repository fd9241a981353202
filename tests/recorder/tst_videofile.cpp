#include "recorder/videofile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestVideoFile : public QObject
{
    Q_OBJECT

private slots:
    void namesTheFile_data();
    void namesTheFile();
    void neverTakesAnExistingName();
    void saysWhyItCannotWrite();
    void knowsAFileWithoutPictures();

private:
    const QDateTime m_now{ QDate(2025, 3, 3), QTime(14, 5, 9) };
};

void TestVideoFile::namesTheFile_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("path");
    QTest::newRow("new folder") << "a/b c/录像/"
                                << "a/b c/录像/record_20250303_140509.mp4";
    QTest::newRow("folder without slash") << ""
                                          << "record_20250303_140509.mp4";
    QTest::newRow("file") << "clip.mp4"
                          << "clip.mp4";
    QTest::newRow("file in new folder") << "x/clip"
                                        << "x/clip";
}

void TestVideoFile::namesTheFile()
{
    QFETCH(QString, output);
    QFETCH(QString, path);
    const QTemporaryDir folder;
    const QDir base(folder.path());
    VideoFile file;
    QString reason;
    const QString wanted = output.isEmpty() ? folder.path() : folder.path() + '/' + output;
    QVERIFY2(file.reserve(wanted, m_now, &reason), qPrintable(reason));
    QCOMPARE(base.relativeFilePath(file.path()), path);
    QVERIFY(QFile::exists(file.path()));
}

void TestVideoFile::neverTakesAnExistingName()
{
    const QTemporaryDir folder;
    QStringList names;
    for (const QString &output : { QString("/"), QString("/"), QString("/"), QString("/clip.a.mp4"),
             QString("/clip.a.mp4"), QString("/clip"), QString("/clip") }) {
        VideoFile file;
        QString reason;
        QVERIFY(file.reserve(folder.path() + output, m_now, &reason));
        names << QFileInfo(file.path()).fileName();
    }
    const QStringList expected{ "record_20250303_140509.mp4", "record_20250303_140509_2.mp4",
        "record_20250303_140509_3.mp4", "clip.a.mp4", "clip.a_2.mp4", "clip", "clip_2" };
    QCOMPARE(names, expected);
}

void TestVideoFile::saysWhyItCannotWrite()
{
    VideoFile file;
    QString reason;
    QVERIFY(!file.reserve("/proc/videos/", m_now, &reason));
    QVERIFY2(reason.contains("/proc/videos"), qPrintable(reason));
    QVERIFY(!file.reserve("/proc/", m_now, &reason));
    QVERIFY2(reason.contains("/proc/record_20250303_140509.mp4: "), qPrintable(reason));
}

void TestVideoFile::knowsAFileWithoutPictures()
{
    const QTemporaryDir folder;
    VideoFile file;
    QString reason;
    QVERIFY(file.reserve(folder.path() + '/', m_now, &reason));
    QFile content(file.path());
    QVERIFY(content.open(QIODevice::WriteOnly));
    QVERIFY(file.isEmpty());
    content.write(QByteArray(1200, 'h') + "moof");
    content.close();
    QVERIFY(!file.isEmpty());
    file.discardIfEmpty();
    QVERIFY(content.exists());
    QVERIFY(content.resize(1200));
    file.discardIfEmpty();
    QVERIFY(!content.exists());
}

QTEST_GUILESS_MAIN(TestVideoFile)
#include "tst_videofile.moc"
