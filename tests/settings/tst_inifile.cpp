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

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class TestIniFile : public QObject
{
    Q_OBJECT

private slots:
    void valuesKeepTheirGroups();
    void aDamagedFileKeepsItsOtherGroups_data();
    void aDamagedFileKeepsItsOtherGroups();
    void anUnchangedValueLeavesTheFileAlone();
    void anUnwritableFolderChangesNothing();
};

void TestIniFile::valuesKeepTheirGroups()
{
    const QTemporaryDir folder;
    const IniFile file(folder.filePath(text("config.ini")));
    QCOMPARE(file.value(text("Network"), text("API")), QString());
    file.setValue(text("Network"), text("API"), text("https://服务.example/a?b=c;d"));
    file.setValue(text("UPDATE"), text("API"), text("other"));
    QCOMPARE(file.value(text("Network"), text("API")), text("https://服务.example/a?b=c;d"));
    QCOMPARE(file.value(text("UPDATE"), text("API")), text("other"));
    QCOMPARE(file.value(text("UPDATE"), text("missing")), QString());
}

void TestIniFile::aDamagedFileKeepsItsOtherGroups_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::newRow("a line without =") << QByteArray("nonsense\n");
    QTest::newRow("an unclosed group") << QByteArray("[broken\nx=1\n");
    QTest::newRow("bytes that are no text") << QByteArray("[g]\nname=\xb3\xc6\xba\xf4\n");
    QTest::newRow("zeros after a crash") << QByteArray("[g]\n") + QByteArray(64, '\0') + "\n";
}

void TestIniFile::aDamagedFileKeepsItsOtherGroups()
{
    QFETCH(QByteArray, damage);
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("config.ini"));
    const QByteArray content =
        "[Network]\nAPI=https://a.example\n" + damage + "[UPDATE]\nUpdateURL=https://b.example\n";
    write(path, content);
    const IniFile file(path);
    QCOMPARE(file.value(text("Network"), text("API")), text("https://a.example"));

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("damaged.*config.ini.broken-")));
    file.setValue(text("APP"), text("opengl"), text("software"));
    QCOMPARE(file.value(text("APP"), text("opengl")), text("software"));
    QCOMPARE(file.value(text("Network"), text("API")), text("https://a.example"));
    QCOMPARE(file.value(text("UPDATE"), text("UpdateURL")), text("https://b.example"));

    const QDir directory(folder.path());
    const QStringList copies = directory.entryList({ text("config.ini.broken-*") });
    QCOMPARE(copies.size(), 1);
    QCOMPARE(read(directory.filePath(copies.first())), content);

    // The file is sound again: no further copy, however often it is written.
    file.setValue(text("APP"), text("opengl"), text("hardware"));
    file.setValue(text("APP"), text("opengl"), text("hardware"));
    QCOMPARE(directory.entryList({ text("config.ini.broken-*") }).size(), 1);
}

void TestIniFile::anUnchangedValueLeavesTheFileAlone()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(text("config.ini"));
    const QByteArray content = "; our server\n[APP]\nopengl=software\n";
    write(path, content);
    IniFile(path).setValue(text("APP"), text("opengl"), text("software"));
    QCOMPARE(read(path), content);
}

void TestIniFile::anUnwritableFolderChangesNothing()
{
    const IniFile file(text("/proc/config.ini"));
    file.setValue(text("APP"), text("opengl"), text("software"));
    QCOMPARE(file.value(text("APP"), text("opengl")), QString());
}

QTEST_GUILESS_MAIN(TestIniFile)
#include "tst_inifile.moc"
