#include "settings/inifile.h"
#include "tests/platform/smalldisk.h"

#include <QDir>
#include <QFile>

namespace
{

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString value(const IniFile &file, const QString &group, const QString &key)
{
    return file.value(group, key).value_or("(none)");
}

} // namespace

class TestIniFile : public QObject
{
    Q_OBJECT

public:
    static void initMain() { SmallDisk::prepare(); }

private slots:
    void valuesKeepTheirGroups();
    void aDamagedFileKeepsItsOtherGroups();
    void anUnchangedValueLeavesTheFileAlone();
    void anUnwritableFolderChangesNothing();
    void aFullDiskLosesNothing();
};

void TestIniFile::valuesKeepTheirGroups()
{
    const QTemporaryDir folder;
    const IniFile file(folder.filePath("config.ini"));
    QCOMPARE(value(file, "Network", "API"), "(none)");
    file.setValue("Network", "API", "https://服务.example/a?b=c;d");
    file.setValue("UPDATE", "API", "other");
    QCOMPARE(value(file, "Network", "API"), "https://服务.example/a?b=c;d");
    QCOMPARE(value(file, "UPDATE", "API"), "other");
    QCOMPARE(value(file, "UPDATE", "missing"), "(none)");
}

void TestIniFile::aDamagedFileKeepsItsOtherGroups()
{
    // A line without =, an unclosed group, bytes that are no text, zeros after a crash.
    for (const QByteArray &damage : { QByteArray("nonsense\n"), QByteArray("[broken\nx=1\n"),
             QByteArray("[g]\nname=\xb3\xc6\xba\xf4\n"), "[g]\n" + QByteArray(64, '\0') + "\n" }) {
        const QTemporaryDir folder;
        const QString path = folder.filePath("config.ini");
        const QByteArray content = "[Network]\nAPI=https://a.example\n" + damage
            + "[UPDATE]\nUpdateURL=https://b.example\n";
        write(path, content);
        const IniFile file(path);
        QCOMPARE(value(file, "Network", "API"), "https://a.example");

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("damaged.*config.ini.broken-"));
        file.setValue("APP", "opengl", "software");
        QCOMPARE(value(file, "APP", "opengl"), "software");
        QCOMPARE(value(file, "Network", "API"), "https://a.example");
        QCOMPARE(value(file, "UPDATE", "UpdateURL"), "https://b.example");

        const QDir directory(folder.path());
        const QStringList copies = directory.entryList({ "config.ini.broken-*" });
        QCOMPARE(copies.size(), 1);
        QCOMPARE(read(directory.filePath(copies.first())), content);

        // The file is sound again: no further copy, however often it is written.
        file.setValue("APP", "opengl", "hardware");
        file.setValue("APP", "opengl", "hardware");
        QCOMPARE(directory.entryList({ "config.ini.broken-*" }).size(), 1);
    }
}

void TestIniFile::anUnchangedValueLeavesTheFileAlone()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("config.ini");
    const QByteArray content = "; our server\n[APP]\nopengl=software\n";
    write(path, content);
    IniFile(path).setValue("APP", "opengl", "software");
    QCOMPARE(read(path), content);
}

void TestIniFile::anUnwritableFolderChangesNothing()
{
    const IniFile file("/proc/config.ini");
    file.setValue("APP", "opengl", "software");
    QCOMPARE(value(file, "APP", "opengl"), "(none)");
}

void TestIniFile::aFullDiskLosesNothing()
{
    SmallDisk disk(16 * SmallDisk::kPageBytes);
    QVERIFY(disk.isMounted());
    const IniFile file(disk.filePath("config.ini"));
    file.setValue("UPDATE", "UpdateURL", "https://b.example");
    // Somewhere there is room for a lock and for an empty file, but for nothing in it.
    for (int pages = 0; pages < 8; ++pages) {
        disk.fill(pages);
        file.setValue("APP", "opengl", QString::number(pages));
        QVERIFY(read(disk.filePath("config.ini")).contains("UpdateURL=https://b.example"));
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        QCOMPARE(QDir(disk.filePath("")).entryList(all), QStringList({ "config.ini", "filler" }));
        disk.empty();
    }
    file.setValue("APP", "opengl", "software");
    QCOMPARE(value(file, "APP", "opengl"), "software");
    QCOMPARE(value(file, "UPDATE", "UpdateURL"), "https://b.example");
}

QTEST_GUILESS_MAIN(TestIniFile)
#include "tst_inifile.moc"
