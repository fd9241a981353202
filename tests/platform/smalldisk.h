#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

/// A disk that a few bytes fill, or that nobody can write to; the administrator neither. Only the
/// test and what it starts see it.
class SmallDisk
{
public:
    static constexpr qint64 kPageBytes = 4096;

    /// To be called from initMain(), while the process has one thread. Where a machine lets nobody
    /// mount a disk, each test that wants one fails.
    static void prepare()
    {
        const uid_t user = ::geteuid();
        const gid_t group = ::getegid();
        if (::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) {
            put("/proc/self/setgroups", "deny");
            put("/proc/self/uid_map", "0 " + QByteArray::number(user) + " 1");
            put("/proc/self/gid_map", "0 " + QByteArray::number(group) + " 1");
        }
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
    }

    explicit SmallDisk(qint64 bytes) : SmallDisk(bytes, QString()) { }
    /// Lies over the folder `place`, if one is given.
    SmallDisk(qint64 bytes, const QString &place)
        : m_path(QFile::encodeName(place.isEmpty() ? m_own.path() : place)), m_bytes(bytes),
          m_isMounted(mount(0))
    {
    }
    ~SmallDisk()
    {
        if (m_isMounted)
            ::umount2(m_path.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    [[nodiscard]] bool isMounted() const { return m_isMounted; }
    [[nodiscard]] QString filePath(const QString &name) const
    {
        return QFile::decodeName(m_path) + '/' + name;
    }
    /// Leaves room for so many pages.
    void fill(int pages)
    {
        QFile filler(filePath("filler"));
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(kPageBytes, 'x')) == kPageBytes) { }
        QVERIFY(filler.resize(filler.size() - pages * kPageBytes));
    }
    void empty() { QVERIFY(QFile::remove(filePath("filler"))); }
    [[nodiscard]] bool refuseWrites() { return mount(MS_REMOUNT | MS_RDONLY); }

private:
    static void put(const char *path, const QByteArray &text)
    {
        QFile file(QString::fromLatin1(path));
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            file.write(text);
    }
    [[nodiscard]] bool mount(unsigned long flags)
    {
        const QByteArray size = "size=" + QByteArray::number(m_bytes);
        return ::mount("none", m_path.constData(), "tmpfs", flags, size.constData()) == 0;
    }

    QTemporaryDir m_own;
    QByteArray m_path;
    qint64 m_bytes;
    bool m_isMounted;
};
