#include "platform/wholefile.h"
#include "tests/platform/smalldisk.h"

#include <QDir>

namespace
{

const QByteArray kOld = "what was there before";

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

QString write(const QString &path, const QByteArray &bytes)
{
    return WholeFile::write(path, [&](QFileDevice &file) {
        return file.write(bytes) == bytes.size() ? QString() : file.errorString();
    });
}

} // namespace

class TestWholeFile : public QObject
{
    Q_OBJECT

public:
    static void initMain() { SmallDisk::prepare(); }

private slots:
    void aDiskWithoutRoomKeepsTheOlderFile();
    void aFolderThatTakesNoNewFileKeepsNoFileFromBeingWritten();
    void whatCannotBeReplacedStays();
    void linksAreFollowedAndPermissionsKept();
};

void TestWholeFile::aDiskWithoutRoomKeepsTheOlderFile()
{
    SmallDisk disk(16 * SmallDisk::kPageBytes);
    QVERIFY(disk.isMounted());
    const QString path = disk.filePath("picture");
    QCOMPARE(write(path, kOld), QString());
    for (int pages = 0; pages < 3; ++pages) {
        disk.fill(pages);
        // More than there is room for by a single byte; a short one waits in memory until the end.
        QVERIFY(!write(path, QByteArray(pages * SmallDisk::kPageBytes + 1, 'n')).isEmpty());
        QCOMPARE(content(path), kOld);
        QCOMPARE(QDir(disk.filePath("")).entryList(QDir::Files | QDir::Hidden).size(), 2);
        disk.empty();
    }
    QVERIFY(disk.refuseWrites());
    QVERIFY(!write(path, "new").isEmpty());
    QCOMPARE(content(path), kOld);
}

void TestWholeFile::aFolderThatTakesNoNewFileKeepsNoFileFromBeingWritten()
{
    SmallDisk folder(16 * SmallDisk::kPageBytes);
    SmallDisk disk(16 * SmallDisk::kPageBytes);
    QVERIFY(folder.isMounted() && disk.isMounted());
    const QString path = folder.filePath("file");
    const QString file = disk.filePath("file");
    QCOMPARE(write(path, "covered"), QString());
    QCOMPARE(write(file, "older and longer"), QString());
    QCOMPARE(::mount(qPrintable(file), qPrintable(path), nullptr, MS_BIND, nullptr), 0);
    QVERIFY(folder.refuseWrites());
    QCOMPARE(write(path, kOld), QString());
    QCOMPARE(content(file), kOld);
    QCOMPARE(write(path, "short"), QString());
    QCOMPARE(content(file), QByteArray("short"));
    for (int pages = 0; pages < 3; ++pages) {
        disk.fill(pages);
        QVERIFY(!write(path, QByteArray((pages + 1) * SmallDisk::kPageBytes + 1, 'n')).isEmpty());
        QCOMPARE(content(file), QByteArray("short"));
        disk.empty();
    }
    QVERIFY(!write(folder.filePath("new"), "new").isEmpty());
    ::umount(qPrintable(path));
}

void TestWholeFile::whatCannotBeReplacedStays()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("file");
    QCOMPARE(write(path, kOld), QString());
    const QString problem = WholeFile::write(path, [](QFileDevice &file) {
        file.write("half");
        return QStringLiteral("the reason");
    });
    QCOMPARE(problem, "the reason");
    QCOMPARE(content(path), kOld);

    QVERIFY(QDir(folder.path()).mkdir("taken"));
    QVERIFY(QFile::link("/dev/null", folder.filePath("device")));
    for (const char *name : { "taken", "device", "missing/file" })
        QVERIFY2(!write(folder.filePath(name), "new").isEmpty(), name);
    QVERIFY(!QFileInfo("/dev/null").isFile());
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System),
        QStringList({ "device", "file", "taken" }));
}

void TestWholeFile::linksAreFollowedAndPermissionsKept()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("script");
    QCOMPARE(write(path, kOld), QString());
    const QFileDevice::Permissions permissions =
        QFile::permissions(path) | QFileDevice::ExeOwner | QFileDevice::ExeUser;
    QVERIFY(QFile::setPermissions(path, permissions));
    QVERIFY(QFile::link(path, folder.filePath("link")));
    QCOMPARE(write(folder.filePath("link"), "new"), QString());
    QCOMPARE(content(path), QByteArray("new"));
    QCOMPARE(QFile::permissions(path), permissions);
    QVERIFY(QFileInfo(folder.filePath("link")).isSymLink());
}

QTEST_GUILESS_MAIN(TestWholeFile)
#include "tst_wholefile.moc"
