#include "settings/update/updateinstaller.h"
#include "tests/platform/smalldisk.h"

#include <QDir>
#include <QDirIterator>

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace
{

/// How many more times the names of files may change before the process dies, as if the power
/// failed; never when negative.
int s_changesLeft = -1;
/// Second names of files that no power failure takes back only once their folder was synced.
QList<QByteArray> s_unsynced;

void countChange()
{
    if (s_changesLeft == 0) {
        for (const QByteArray &name : std::as_const(s_unsynced))
            ::syscall(SYS_unlinkat, AT_FDCWD, name.constData(), 0);
        ::_exit(1);
    }
    --s_changesLeft;
}

} // namespace

// These take the place of the system's own in the whole process.
extern "C" int rename(const char *from, const char *to) noexcept
{
    countChange();
    return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

extern "C" int link(const char *from, const char *to) noexcept
{
    countChange();
    s_unsynced.append(to);
    return static_cast<int>(::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}

extern "C" int fsync(int file)
{
    const QByteArray folder =
        QFile::encodeName(QFile::symLinkTarget("/proc/self/fd/" + QString::number(file)));
    s_unsynced.removeIf([&](const QByteArray &name) {
        return name.startsWith(folder + '/') && name.lastIndexOf('/') == folder.size();
    });
    return static_cast<int>(::syscall(SYS_fsync, file));
}

extern "C" int unlink(const char *path) noexcept
{
    countChange();
    return static_cast<int>(::syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}

namespace
{

const QStringList kNames{ "program", "lib/core.so", "lib/new/plugin.so", "updater" };
using Tree = QMap<QString, QByteArray>;

void write(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QCOMPARE(file.write(content), content.size());
}

/// Every file and folder with its permissions, but for what the test itself fills a disk with and
/// what a lock leaves whose holder dies while it takes it over.
Tree tree(const QString &folder)
{
    Tree tree;
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (each.hasNext()) {
        QFile file(each.next());
        const QFileInfo info(file);
        if (info.fileName() == "filler" || info.suffix() == "rmlock")
            continue;
        QByteArray content = QByteArray::number(info.permissions().toInt(), 16);
        if (info.isFile() && file.open(QIODevice::ReadOnly))
            content += ' ' + file.readAll();
        tree[QDir(folder).relativeFilePath(info.filePath())] = content;
    }
    return tree;
}

} // namespace

class TestUpdateInstaller : public QObject
{
    Q_OBJECT

public:
    static void initMain() { SmallDisk::prepare(); }

private slots:
    void init();
    void allFilesTakeTheirPlaces();
    void aFailureChangesNothing();
    void aProgramThatDiesInBetweenIsPutRight();
    void onlyOneAtATime();

private:
    /// What the former program looks like, and the new one.
    void build();
    QString gather(UpdateInstaller &installer);
    [[nodiscard]] QString path(const QString &name = QString()) const
    {
        return m_disk->filePath(name);
    }

    std::unique_ptr<SmallDisk> m_disk;
    Tree m_former;
};

void TestUpdateInstaller::init()
{
    m_disk.reset();
    m_disk = std::make_unique<SmallDisk>(64 * SmallDisk::kPageBytes);
    QVERIFY(m_disk->isMounted());
    build();
}

void TestUpdateInstaller::build()
{
    for (const char *name : { "program", "lib/core.so", "config.ini" })
        write(path(name), QByteArray("old ") + name);
    QVERIFY(QFile::setPermissions(path("program"),
        QFile::permissions(path("program")) | QFileDevice::ExeOwner | QFileDevice::ExeUser));
    m_former = tree(path());
}

QString TestUpdateInstaller::gather(UpdateInstaller &installer)
{
    const QString problem = installer.begin();
    for (const QString &name : kNames)
        write(installer.stagedPath(name), "new " + name.toUtf8());
    return problem;
}

void TestUpdateInstaller::allFilesTakeTheirPlaces()
{
    {
        UpdateInstaller installer(path());
        QCOMPARE(gather(installer), QString());
        QCOMPARE(installer.install(kNames, "updater"), QString());
    }
    Tree expected = m_former;
    const Tree now = tree(path());
    for (const QString &name : kNames) {
        QVERIFY2(now[name].endsWith("new " + name.toUtf8()), qPrintable(name));
        expected[name] = now[name];
    }
    expected["lib/new"] = now["lib/new"];
    QCOMPARE(now, expected); // nothing else is there
    QVERIFY(QFileInfo(path("program")).isExecutable());
    QVERIFY(QFileInfo(path("updater")).isExecutable());
    QVERIFY(!QFileInfo(path("lib/core.so")).isExecutable());
}

void TestUpdateInstaller::aFailureChangesNothing()
{
    enum { FolderInPlace, FileAbove, LinkOut, ReadOnlyPart, NoRoomForTheJournal, MissingFile };
    for (const int trouble :
        { FolderInPlace, FileAbove, LinkOut, ReadOnlyPart, NoRoomForTheJournal, MissingFile }) {
        init();
        const QTemporaryDir elsewhere;
        std::unique_ptr<SmallDisk> part;
        if (trouble == FolderInPlace) {
            write(path("updater/precious"), "mine");
        } else if (trouble == FileAbove) {
            write(path("lib/new"), "a file");
        } else if (trouble == LinkOut) {
            QVERIFY(QFile::link(elsewhere.path(), path("lib/new")));
        } else if (trouble == ReadOnlyPart) {
            QVERIFY(QDir().mkpath(path("lib/new")));
            part = std::make_unique<SmallDisk>(4096, path("lib/new"));
            QVERIFY(part->refuseWrites());
        }
        m_former = tree(path());
        {
            UpdateInstaller installer(path());
            QCOMPARE(gather(installer), QString());
            if (trouble == NoRoomForTheJournal)
                m_disk->fill(0);
            else if (trouble == MissingFile)
                QVERIFY(QFile::remove(installer.stagedPath("updater")));
            const QString problem = installer.install(kNames, "updater");
            QVERIFY2(problem.endsWith("没有更改任何文件。"), qPrintable(problem));
        }
        QCOMPARE(tree(path()), m_former);
        QVERIFY(QDir(elsewhere.path()).isEmpty());
        part.reset();
    }
}

void TestUpdateInstaller::aProgramThatDiesInBetweenIsPutRight()
{
    int changes = 0;
    int halfway = 0;
    for (bool died = true; died; ++changes) {
        init();
        const pid_t child = ::fork();
        if (child == 0) {
            UpdateInstaller installer(path());
            gather(installer);
            s_changesLeft = changes;
            const QString problem = installer.install(kNames, "updater");
            s_changesLeft = -1;
            ::_exit(problem.isEmpty() ? 0 : 2);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) != 2);
        died = WEXITSTATUS(status) == 1;
        QVERIFY(QFile::exists(path("program"))); // or nobody could put it right
        const bool isJournalled = QFile::exists(path(".update/journal"));
        halfway += isJournalled ? 1 : 0;
        // The one that puts it right may die, too.
        const pid_t helper = ::fork();
        if (helper == 0) {
            s_changesLeft = changes % 5;
            UpdateInstaller::recover(path());
            ::_exit(0);
        }
        ::waitpid(helper, nullptr, 0);
        if (QFile::exists(path(".update/journal"))) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("did not come to its end"));
        }
        UpdateInstaller::recover(path());
        Tree now = tree(path());
        const bool isNew = now["program"].contains("new ");
        if (!isNew)
            QCOMPARE(now, m_former);
        for (const QString &name : kNames)
            QVERIFY2(now.value(name).contains("new ") == isNew, qPrintable(name));
        QVERIFY(!isJournalled || !isNew);
        QVERIFY(!QFile::exists(path(".update")));
    }
    QVERIFY2(halfway > 4, qPrintable(QString::number(halfway)));
}

void TestUpdateInstaller::onlyOneAtATime()
{
    {
        UpdateInstaller first(path());
        QCOMPARE(gather(first), QString());
        QVERIFY(!UpdateInstaller(path()).begin().isEmpty());
        // Nor does a start of the program in between take away what is gathered.
        QCOMPARE(UpdateInstaller::recover(path()), UpdateInstaller::Recovery::NotNeeded);
        QCOMPARE(first.install(kNames, "updater"), QString());
    }
    QVERIFY(m_disk->refuseWrites());
    QVERIFY(!UpdateInstaller(path()).begin().isEmpty());
}

QTEST_GUILESS_MAIN(TestUpdateInstaller)
#include "tst_updateinstaller.moc"
