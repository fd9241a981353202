#include "settings/fileoutput.h"
#include "tests/platform/smalldisk.h"

#include <QCoreApplication>
#include <QDir>

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

public:
    static void initMain() { SmallDisk::prepare(); }

private slots:
    void init();
    void payloadsAreDecoded();
    void failuresAreLogged();
    void aFullDiskKeepsTheOlderFile();
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
        QRegularExpression(
            "^Cannot open file for writing: .*update\" , error: \"Is a directory\"$"));
    QVERIFY(!FileOutput::saveBesideExecutable("YQ==", "update"));
}

void TestFileOutput::aFullDiskKeepsTheOlderFile()
{
    QVERIFY(FileOutput::saveBesideExecutable("", "update/disk/other"));
    SmallDisk disk(8 * SmallDisk::kPageBytes, inApplicationDirectory("update/disk"));
    QVERIFY(disk.isMounted());
    QVERIFY(FileOutput::saveBesideExecutable("b2xk", "update/disk/file"));
    disk.fill(0);
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression("^Failed to write complete data to file: .*update/disk/file\"$"));
    QVERIFY(!FileOutput::saveBesideExecutable("bmV3", "update/disk/file"));
    QFile file(disk.filePath("file"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
}

QTEST_GUILESS_MAIN(TestFileOutput)
#include "tst_fileoutput.moc"
