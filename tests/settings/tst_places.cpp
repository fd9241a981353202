#include "platform/programfolder.h"
#include "platform/userhome.h"
#include "settings/deployment.h"
#include "settings/places.h"
#include "settings/settingskeys.h"
#include "settings/settingsstore.h"
#include "tests/platform/smalldisk.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <cstdio>

namespace
{

const QString kTell = QStringLiteral("--tell");
const QString kSavePath = QLatin1String(SettingsKeys::kScreenSavePath);

/// As a program that stands in a folder of its own: says where things go, on standard output.
int tell()
{
    UserHome::adopt();
    Deployment::setValue("APP", "opengl", "software");
    const QString stored = SettingsStore::loadAll().value(kSavePath).toString();
    const QJsonObject told{ { "writable", ProgramFolder::isWritable() }, { "captures", stored },
        { "storedCaptures", SettingsStore::read(kSavePath).toString() },
        { "recordings", Places::recordings(SettingsStore::read(kSavePath).toString()) },
        { "chosenRecordings", Places::recordings("/chosen") },
        { "opengl", Deployment::value("APP", "opengl") },
        { "url", Deployment::value("UPDATE", "UpdateURL") },
        { "home", qEnvironmentVariable("HOME") } };
    std::printf("%s", QJsonDocument(told).toJson().constData());
    return 0;
}

void write(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

class TestPlaces : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everythingStaysBesideAWritableProgram();
    void aReadOnlyFolderLeavesItToTheUsersFolders();
    void aPackagedProgramIsReadOnlyAlsoForTheAdministrator();
    void whatAnEarlierRunStoredIsNoChoice();
    void withoutAHomeNothingIsWritten();

private:
    [[nodiscard]] QJsonObject ask();
    [[nodiscard]] QString program(const QString &name) const { return m_program->filePath(name); }
    [[nodiscard]] QString home(const QString &name) const { return m_home->filePath(name); }

    std::unique_ptr<SmallDisk> m_program;
    std::unique_ptr<QTemporaryDir> m_home;
    QProcessEnvironment m_environment;
};

void TestPlaces::init()
{
    const QString self = QCoreApplication::applicationFilePath();
    m_program = std::make_unique<SmallDisk>(QFileInfo(self).size() + (1 << 20));
    QVERIFY(m_program->isMounted());
    QVERIFY(QFile::copy(self, program("copy")));
    write(program("config.ini"), "[APP]\nopengl=hardware\n[UPDATE]\nUpdateURL=https://u.example\n");
    m_home = std::make_unique<QTemporaryDir>();
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.remove("XDG_CONFIG_HOME");
    m_environment.insert("HOME", m_home->path());
}

QJsonObject TestPlaces::ask()
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(program("copy"), { kTell });
    process.waitForFinished();
    const QByteArray answer = process.readAllStandardOutput();
    if (process.exitCode() != 0)
        qWarning("%s", process.readAllStandardError().constData());
    return QJsonDocument::fromJson(answer).object();
}

void TestPlaces::everythingStaysBesideAWritableProgram()
{
    const QJsonObject told = ask();
    QCOMPARE(told["captures"].toString() + '/', program(""));
    QCOMPARE(told["storedCaptures"], told["captures"]);
    QCOMPARE(told["recordings"], told["captures"]);
    QCOMPARE(told["opengl"].toString(), "software");
    QVERIFY(!QFile::exists(home(".config/korvath/config.ini")));
    QCOMPARE(QDir(program("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList({ "config.ini", "copy" }));

    m_environment.insert("XDG_CONFIG_HOME", "/proc/none");
    const QJsonObject unstored = ask();
    QCOMPARE(unstored["storedCaptures"].toString(), QString());
    QCOMPARE(unstored["captures"], told["captures"]);
    QCOMPARE(unstored["recordings"], told["captures"]);
}

void TestPlaces::aReadOnlyFolderLeavesItToTheUsersFolders()
{
    QVERIFY(m_program->refuseWrites());
    write(home(".config/user-dirs.dirs"), "XDG_PICTURES_DIR=\"$HOME/图片\"\n");
    QJsonObject told = ask();
    QCOMPARE(told["writable"].toBool(true), false);
    QCOMPARE(told["captures"].toString(), home("图片"));
    QCOMPARE(told["storedCaptures"], told["captures"]);
    QCOMPARE(told["recordings"].toString(), home("Videos"));
    QCOMPARE(told["chosenRecordings"].toString(), "/chosen");
    QVERIFY(QDir(home("图片")).exists() && QDir(home("Videos")).exists());
    // Its own value, and the administrator's.
    QCOMPARE(told["opengl"].toString(), "software");
    QCOMPARE(told["url"].toString(), "https://u.example");

    write(home(".config/korvath/config.ini"), "[UPDATE]\nUpdateURL=https://mine.example\n");
    told = ask();
    QCOMPARE(told["url"].toString(), "https://mine.example");
    QCOMPARE(told["captures"].toString(), home("图片"));
}

void TestPlaces::aPackagedProgramIsReadOnlyAlsoForTheAdministrator()
{
    write(program("packaged"), "");
    const QJsonObject told = ask();
    QCOMPARE(told["captures"].toString(), home("Pictures"));
    QCOMPARE(told["recordings"].toString(), home("Videos"));
    QVERIFY(QFile::exists(home(".config/korvath/config.ini")));
}

void TestPlaces::whatAnEarlierRunStoredIsNoChoice()
{
    QCOMPARE(ask()["captures"].toString() + '/', program(""));
    write(program("packaged"), "");
    QCOMPARE(ask()["captures"].toString(), home("Pictures"));

    // A folder within is somebody's choice.
    const QString within = program("lessons");
    write(home(".config/korvath/settings.conf"),
        "[General]\nscreenSavePath=" + within.toUtf8() + '\n');
    QCOMPARE(ask()["captures"].toString(), within);
    QCOMPARE(ask()["recordings"].toString(), within);
}

void TestPlaces::withoutAHomeNothingIsWritten()
{
    write(program("packaged"), "");
    // The account has one, whatever the session forgot.
    m_environment.remove("HOME");
    write(m_home->filePath("passwd"), "root:x:0:0:root:" + m_home->path().toUtf8() + ":/bin/sh\n");
    QCOMPARE(::mount(qPrintable(home("passwd")), "/etc/passwd", nullptr, MS_BIND, nullptr), 0);
    QJsonObject told = ask();
    QCOMPARE(told["home"].toString(), m_home->path());
    QCOMPARE(told["captures"].toString(), home("Pictures"));

    write(home("passwd"), "root:x:0:0:root:/nonexistent:/bin/sh\n");
    for (const char *home : { "", "/nonexistent", "relative" }) {
        m_environment.insert("HOME", home);
        told = ask();
        QVERIFY(!told.isEmpty());
        QCOMPARE(told["captures"].toString(), QString());
        QCOMPARE(told["recordings"].toString(), QString());
        QCOMPARE(told["url"].toString(), "https://u.example");
    }
    ::umount("/etc/passwd");
    for (const char *path : { "/.config", "/Pictures", "/Videos", "/nonexistent" })
        QVERIFY2(!QFile::exists(path), path);
}

int main(int argc, char *argv[])
{
    SmallDisk::prepare();
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(kTell))
        return tell();
    TestPlaces test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_places.moc"
