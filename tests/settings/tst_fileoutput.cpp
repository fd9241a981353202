#include "settings/fileoutput.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

namespace
{

QString inApplicationDirectory(const QString &name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
}

} // namespace

class TestFileOutput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void payloadsAreDecoded_data();
    void payloadsAreDecoded();
    void anExistingFileIsReplaced();
    void failuresAreLogged();
    void aFullDiskIsNoticed();
};

void TestFileOutput::init()
{
    QDir(inApplicationDirectory(QStringLiteral("update"))).removeRecursively();
}

void TestFileOutput::payloadsAreDecoded_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("base64") << QByteArray("aGVsbG8=") << QByteArray("hello");
    QTest::newRow("data URL") << QByteArray("data:image/png;base64,aGVsbG8=")
                              << QByteArray("hello");
    QTest::newRow("data URL without a type") << QByteArray("data:,aGVsbG8=") << QByteArray("hello");
    QTest::newRow("plain text is decoded all the same")
        << QByteArray("abcd") << QByteArray::fromBase64("abcd");
    QTest::newRow("nothing") << QByteArray() << QByteArray();
}

void TestFileOutput::payloadsAreDecoded()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, bytes);
    const QString name = QStringLiteral("update/深/new.png");
    QVERIFY(FileOutput::saveBesideExecutable(data, name));
    QFile file(inApplicationDirectory(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);
}

void TestFileOutput::anExistingFileIsReplaced()
{
    const QString name = QStringLiteral("update/new.bin");
    QVERIFY(FileOutput::saveBesideExecutable(QByteArray("a longer text").toBase64(), name));
    QVERIFY(FileOutput::saveBesideExecutable(QByteArray("short").toBase64(), name));
    QCOMPARE(QFileInfo(inApplicationDirectory(name)).size(), 5);
}

void TestFileOutput::failuresAreLogged()
{
    QTest::ignoreMessage(QtWarningMsg, "Invalid data URL format");
    QVERIFY(!FileOutput::saveBesideExecutable("data:image/png;base64", QStringLiteral("a.png")));

    QVERIFY(FileOutput::saveBesideExecutable("YQ==", QStringLiteral("update/file")));
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression(QStringLiteral("^Failed to create directory: .*update/file/sub\"$")));
    QVERIFY(!FileOutput::saveBesideExecutable("YQ==", QStringLiteral("update/file/sub/new")));

    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression(
            QStringLiteral("^Cannot open file for writing: .*update\" , error: \".+\"$")));
    QVERIFY(!FileOutput::saveBesideExecutable("YQ==", QStringLiteral("update")));
}

void TestFileOutput::aFullDiskIsNoticed()
{
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        QSKIP("this system has no device that is always full");
    }
    QVERIFY(FileOutput::saveBesideExecutable("", QStringLiteral("update/other")));
    QVERIFY(QFile::link(
        QStringLiteral("/dev/full"), inApplicationDirectory(QStringLiteral("update/full"))));
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression(
            QStringLiteral("^Failed to write complete data to file: .*update/full\"$")));
    QVERIFY(!FileOutput::saveBesideExecutable("YQ==", QStringLiteral("update/full")));
}

QTEST_GUILESS_MAIN(TestFileOutput)
#include "tst_fileoutput.moc"
