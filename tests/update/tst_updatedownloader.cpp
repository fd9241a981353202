#include "settings/update/updatedownloader.h"
#include "tests/update/localserver.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace
{

const QByteArray kPicture("picture\0with\0zeros", 18);
const QByteArray kUpdater = "#!/bin/sh\nprintf ran > \"$0.ran\"\n";

QString inApplication(const QString &name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

QByteArray contents(const QString &name)
{
    QFile file(inApplication(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

QVariantMap file(const QUrl &url, const QString &name, const QByteArray &body)
{
    const auto hash = QCryptographicHash::hash(body, QCryptographicHash::Sha256).toHex();
    return { { "url", url.toString() }, { "name", name }, { "sha256", QString::fromLatin1(hash) } };
}

QVariantMap offer(const QVariantList &files)
{
    return { { "files", files }, { "updater", "new/updater.sh" } };
}

} // namespace

/// Each file of an update comes from a real server on this machine.
class TestUpdateDownloader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void writesEveryFileAndStartsTheUpdater();
    void changesNothingWhenAFileIsWrong();
    void cancelDropsEverythingAndStartsAgain();
    void saysWhyAFileCannotBeWritten();
    void doesNotWriteThroughALink();
    void needsAnUpdater();
    void takesNoLongerThanItMay();
    void refusesAnOfferAtOnceWhereNothingCanBeUpdated();

private:
    [[nodiscard]] QVariantMap goodOffer() const;

    std::unique_ptr<LocalServer> m_server;
};

void TestUpdateDownloader::initTestCase()
{
    qRegisterMetaType<UpdateDownloader::State>();
}

void TestUpdateDownloader::init()
{
    QDir(inApplication("new")).removeRecursively();
    m_server = std::make_unique<LocalServer>();
    m_server->serve("/picture", kPicture);
    m_server->serve("/updater", kUpdater);
    m_server->redirect("/moved", m_server->url("/picture"));
}

QVariantMap TestUpdateDownloader::goodOffer() const
{
    return offer({ file(m_server->url("/moved"), "new/deep/picture.png", kPicture),
        file(m_server->url("/updater"), "new/updater.sh", kUpdater) });
}

void TestUpdateDownloader::writesEveryFileAndStartsTheUpdater()
{
    UpdateDownloader downloader;
    QList<double> steps;
    connect(&downloader, &UpdateDownloader::progressChanged, this,
        [&] { steps.append(downloader.progress()); });
    downloader.start(goodOffer());
    QCOMPARE(downloader.state(), UpdateDownloader::Downloading);
    QTRY_COMPARE(downloader.state(), UpdateDownloader::Finished);

    QCOMPARE(contents("new/deep/picture.png"), kPicture);
    QTRY_COMPARE(contents("new/updater.sh.ran"), QByteArray("ran"));
    QVERIFY(steps.size() >= 2);
    QVERIFY(std::is_sorted(steps.begin(), steps.end()));
    QCOMPARE(steps.last(), 1.0);
}

void TestUpdateDownloader::changesNothingWhenAFileIsWrong()
{
    m_server->serve("/other", kPicture + "!");
    m_server->serve("/dropped", kPicture, LocalServer::Dropped);
    m_server->serve("/stalled", kPicture, LocalServer::Stalled);
    m_server->serve("/endless", kPicture, LocalServer::Endless);
    m_server->redirect("/plain", QUrl("http://example.invalid/picture"));
    m_server->redirect("/circle", m_server->url("/circle"));
    for (const char *path :
        { "/other", "/missing", "/dropped", "/stalled", "/plain", "/circle", "/endless" }) {
        QDir(inApplication("new")).removeRecursively();
        UpdateDownloader downloader;
        downloader.setStallTimeoutMs(200);
        QVariantMap wrong = file(m_server->url(path), "new/picture.png", kPicture);
        wrong["size"] = kPicture.size();
        // The wrong one comes last: the good one before it must not stay behind.
        downloader.start(
            offer({ file(m_server->url("/updater"), "new/updater.sh", kUpdater), wrong }));
        QTRY_VERIFY2(downloader.state() == UpdateDownloader::Failed, path);
        QVERIFY2(downloader.reason().contains("new/picture.png"), qPrintable(downloader.reason()));
        QVERIFY2(!QFile::exists(inApplication("new")), path);
        QVERIFY2(!QFile::exists(inApplication(".update")), path);

        downloader.start(goodOffer());
        QTRY_COMPARE(downloader.state(), UpdateDownloader::Finished);
        QVERIFY(downloader.reason().isEmpty());
    }
}

void TestUpdateDownloader::cancelDropsEverythingAndStartsAgain()
{
    m_server->serve("/stalled", kPicture, LocalServer::Stalled);
    UpdateDownloader downloader;
    downloader.start(offer({ file(m_server->url("/updater"), "new/updater.sh", kUpdater),
        file(m_server->url("/stalled"), "new/picture.png", kPicture) }));
    QTRY_COMPARE(m_server->requests(), 2);
    downloader.cancel();
    QCOMPARE(downloader.state(), UpdateDownloader::Cancelled);
    QVERIFY(!QFile::exists(inApplication("new")));

    downloader.start(goodOffer());
    QTRY_COMPARE(downloader.state(), UpdateDownloader::Finished);
}

void TestUpdateDownloader::saysWhyAFileCannotBeWritten()
{
    QVERIFY(QDir().mkpath(inApplication("new/taken")));
    UpdateDownloader downloader;
    // A folder stands where the file should go.
    downloader.start(offer({ file(m_server->url("/picture"), "new/taken", kPicture),
        file(m_server->url("/updater"), "new/updater.sh", kUpdater) }));
    QTRY_COMPARE(downloader.state(), UpdateDownloader::Failed);
    QVERIFY2(downloader.reason().contains("new/taken"), qPrintable(downloader.reason()));
    QCOMPARE(contents("new/updater.sh.ran"), QByteArray("(no file)"));
}

void TestUpdateDownloader::doesNotWriteThroughALink()
{
    const QTemporaryDir elsewhere;
    QVERIFY(QDir().mkpath(inApplication("new")));
    QVERIFY(QFile::link(elsewhere.path(), inApplication("new/link")));
    UpdateDownloader downloader;
    downloader.start(offer({ file(m_server->url("/picture"), "new/link/picture.png", kPicture),
        file(m_server->url("/updater"), "new/updater.sh", kUpdater) }));
    QTRY_COMPARE(downloader.state(), UpdateDownloader::Failed);
    QVERIFY(QDir(elsewhere.path()).isEmpty());
}

void TestUpdateDownloader::needsAnUpdater()
{
    UpdateDownloader downloader;
    downloader.start(offer({ file(m_server->url("/picture"), "new/picture.png", kPicture) }));
    QTRY_COMPARE(downloader.state(), UpdateDownloader::Failed);
    QVERIFY2(downloader.reason().contains("new/updater.sh"), qPrintable(downloader.reason()));
}

void TestUpdateDownloader::takesNoLongerThanItMay()
{
    m_server->serve("/endless", kPicture, LocalServer::Endless);
    UpdateDownloader downloader;
    downloader.setTimeoutMs(300);
    downloader.start(offer({ file(m_server->url("/endless"), "new/picture.png", kPicture),
        file(m_server->url("/updater"), "new/updater.sh", kUpdater) }));
    QTRY_COMPARE(downloader.state(), UpdateDownloader::Failed);
    QVERIFY(!QFile::exists(inApplication(".update")));
}

void TestUpdateDownloader::refusesAnOfferAtOnceWhereNothingCanBeUpdated()
{
    QVERIFY(UpdateDownloader::refusal().isEmpty());
    QFile marker(inApplication("packaged"));
    QVERIFY(marker.open(QIODevice::WriteOnly));
    UpdateDownloader downloader;
    downloader.start(goodOffer());
    QVERIFY(marker.remove());
    QCOMPARE(downloader.state(), UpdateDownloader::Failed);
    QVERIFY2(downloader.reason().contains("软件包管理器"), qPrintable(downloader.reason()));
    QCOMPARE(m_server->requests(), 0);
}

QTEST_GUILESS_MAIN(TestUpdateDownloader)

#include "tst_updatedownloader.moc"
