#include "settings/fileoutput.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

namespace
{

QString inApplicationDirectory(const QString &name)
{
    return QCoreApplication::applicationDirPath() + '/' + name;
}

} // namespace

class TestFileOutput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void payloadsAreDecoded();
    void failuresAreLogged();
    void aFullDiskIsNoticed();
};

void TestFileOutput::init()
{
    QDir(inApplicationDirectory("update")).removeRecursively();
}

void TestFileOutput::payloadsAreDecoded()
{
    // Plain text is decoded all the same, and each payload replaces the longer one before it.
    const std::pair<QByteArray, QByteArray> rows[] = {
        { "data:image/png;base64,aGVsbG8=", "hello" }, { "data:,aGVsbG8=", "hello" },
        { "aGVsbG8=", "hello" }, { "abcd", QByteArray::fromBase64("abcd") }, { "", "" }
    };
    for (const auto &[data, bytes] : rows) {
        const QString name = "update/深/new.png";
        QVERIFY(FileOutput::saveBesideExecutable(data, name));
        QFile file(inApplicationDirectory(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), bytes);
    }
}

void TestFileOutput::failuresAreLogged()
{
    QTest::ignoreMessage(QtWarningMsg, "Invalid data URL format");
    QVERIFY(!FileOutput::saveBesideExecutable("data:image/png;base64", "a.png"));

    QVERIFY(FileOutput::saveBesideExecutable("YQ==", "update/file"));
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression("^Failed to create directory: .*update/file/sub\"$"));
    QVERIFY(!FileOutput::saveBesideExecutable("YQ==", "update/file/sub/new"));

    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression("^Cannot open file for writing: .*update\" , error: \".+\"$"));
    QVERIFY(!FileOutput::saveBesideExecutable("YQ==", "update"));
}

void TestFileOutput::aFullDiskIsNoticed()
{
    if (!QFile::exists("/dev/full")) {
        QSKIP("this system has no device that is always full");
    }
    QVERIFY(FileOutput::saveBesideExecutable("", "update/other"));
    QVERIFY(QFile::link("/dev/full", inApplicationDirectory("update/full")));
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression("^Failed to write complete data to file: .*update/full\"$"));
    QVERIFY(!FileOutput::saveBesideExecutable("YQ==", "update/full"));
}

QTEST_GUILESS_MAIN(TestFileOutput)
#include "tst_fileoutput.moc"
