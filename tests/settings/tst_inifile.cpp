#include "settings/inifile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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

} // namespace

class TestIniFile : public QObject
{
    Q_OBJECT

private slots:
    void valuesKeepTheirGroups();
    void aDamagedFileKeepsItsOtherGroups();
    void anUnchangedValueLeavesTheFileAlone();
    void anUnwritableFolderChangesNothing();
};

void TestIniFile::valuesKeepTheirGroups()
{
    const QTemporaryDir folder;
    const IniFile file(folder.filePath("config.ini"));
    QCOMPARE(file.value("Network", "API"), QString());
    file.setValue("Network", "API", "https://服务.example/a?b=c;d");
    file.setValue("UPDATE", "API", "other");
    QCOMPARE(file.value("Network", "API"), "https://服务.example/a?b=c;d");
    QCOMPARE(file.value("UPDATE", "API"), "other");
    QCOMPARE(file.value("UPDATE", "missing"), QString());
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
        QCOMPARE(file.value("Network", "API"), "https://a.example");

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("damaged.*config.ini.broken-"));
        file.setValue("APP", "opengl", "software");
        QCOMPARE(file.value("APP", "opengl"), "software");
        QCOMPARE(file.value("Network", "API"), "https://a.example");
        QCOMPARE(file.value("UPDATE", "UpdateURL"), "https://b.example");

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
    QCOMPARE(file.value("APP", "opengl"), QString());
}

QTEST_GUILESS_MAIN(TestIniFile)
#include "tst_inifile.moc"
