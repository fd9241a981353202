#include "help/helpdesk.h"
#include "help/helppage.h"
#include "help/helpsheet.h"
#include "tests/settings/throwawaystore.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

namespace
{

/// The interface's own documents: the page must tell what they offer.
QString document(const QString &name)
{
    QFile file(QStringLiteral(DRAVELIN_TEST_DIR "/../../qml/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<QStringList> findAll(const QString &text, const QString &pattern)
{
    QList<QStringList> found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext()) {
        found.append(matches.next().capturedTexts().mid(1));
    }
    return found;
}

/// The text of every element called `tag`; empty when the page is not well formed.
QStringList textsOf(const QString &page, const QString &tag)
{
    QXmlStreamReader reader(page);
    QStringList texts;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == tag) {
            texts.append(reader.readElementText(QXmlStreamReader::IncludeChildElements));
        }
    }
    return reader.hasError() ? QStringList() : texts;
}

} // namespace

/// Stands in for the browser.
class TestHelpPage : public QObject
{
    Q_OBJECT

public:
    static void initMain() { ThrowawayStore::use(); }

public slots:
    void browse(const QUrl &url) { m_browsed.append(url.toLocalFile()); }

private slots:
    void init();
    void cleanup() { QDesktopServices::unsetUrlHandler("file"); }
    void itTellsWhatThePaletteOffers();
    void itShowsTheKeysAsTheyAreSet_data();
    void itShowsTheKeysAsTheyAreSet();
    void sharedKeysAreMarked();
    void pagesAreWrittenForTheUserAlone();
    void aPageThatCannotBeShownIsTold();

private:
    QStringList m_browsed;
};

void TestHelpPage::init()
{
    ThrowawayStore::clear();
    m_browsed.clear();
    QDesktopServices::setUrlHandler("file", this, "browse");
}

void TestHelpPage::itTellsWhatThePaletteOffers()
{
    QStringList offered;
    for (const QStringList &list :
        findAll(document("palette/Flyouts.js"), R"(rows: icons\(\[([^]]*)\]\))")) {
        for (const QStringList &name : findAll(list.first(), R"x("(\w+)")x")) {
            offered += name;
        }
    }
    QCOMPARE(offered.size(), 27);

    QStringList told;
    QStringList words;
    const QList<HelpSheet::Tool> tools = HelpSheet::tools();
    for (const HelpSheet::Tool &tool : tools) {
        QVERIFY2(QFile::exists(QStringLiteral(":/icons/%1@3x.png").arg(tool.button.picture)),
            qPrintable(tool.button.picture));
        for (const HelpSheet::Choice &choice : tool.choices) {
            (choice.picture.isEmpty() ? words : told) += //
                choice.picture.isEmpty() ? choice.name : choice.picture;
        }
    }
    QCOMPARE(told, offered);
    const QString names = document("palette/ToolNames.qml");
    QVERIFY(names.contains(QStringLiteral("menu: [qsTr(\"%1\")]").arg(words.join("\"), qsTr(\""))));
    // The handle stands above the sheet.
    QCOMPARE(tools.size(), 1 + document("palette/PaletteSheet.qml").count("PaletteButton {"));
    QCOMPARE(textsOf(HelpPage::sheet({}), "h3").size(), tools.size());
}

void TestHelpPage::itShowsTheKeysAsTheyAreSet_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("tag");
    QTest::newRow("English") << "en_US"
                             << "en-US";
    QTest::newRow("Japanese") << "ja_JP"
                              << "ja-JP";
}

void TestHelpPage::itShowsTheKeysAsTheyAreSet()
{
    QFETCH(QString, language);
    QFETCH(QString, tag);
    QTranslator catalogue;
    QVERIFY(catalogue.load(":/translations/app_" + language + ".qm"));
    QVERIFY(QCoreApplication::installTranslator(&catalogue));

    // An empty one counts as none; a strange one must not become markup.
    const QVariantMap settings{ { "penKey", "Alt+Shift+F" }, { "undoKey", "<b>&\"F9\"" },
        { "circleKey", "" } };
    const QString page = HelpPage::sheet(settings);
    QVERIFY(page.contains("<html lang=\"" + tag + '"'));

    const QStringList keys = textsOf(page, "kbd");
    const QStringList actions = textsOf(page, "td");
    QCOMPARE(keys.size(), actions.size());
    const QList<QStringList> hotKeys = findAll(document("palette/PaletteHotkeys.qml"),
        R"x(name: qsTr\("(.+)"\)\n\s+sequence: root.keysOf\("(\w+)", "(.+)"\))x");
    QCOMPARE(hotKeys.size(), 12);
    for (const QStringList &key : hotKeys) {
        const QString name =
            QCoreApplication::translate("PaletteHotkeys", key.at(0).toUtf8().constData());
        QVERIFY2(name != key.at(0), qPrintable(name));
        QCOMPARE(actions.count(name), 1);
        const QString stored = settings.value(key.at(1)).toString();
        QCOMPARE(keys.at(actions.indexOf(name)), stored.isEmpty() ? key.at(2) : stored);
    }
    // Whoever reads the page has its language, and nothing of another.
    QVERIFY(!textsOf(page, "h1").first().contains("帮助"));
}

void TestHelpPage::sharedKeysAreMarked()
{
    QCOMPARE(textsOf(HelpPage::sheet({}), "sup").size(), 2); // a line and clearing, by default
    QCOMPARE(textsOf(HelpPage::sheet({ { "clearKey", "F8" } }), "sup").size(), 0);
}

void TestHelpPage::pagesAreWrittenForTheUserAlone()
{
    const QTemporaryDir home;
    qputenv("XDG_CACHE_HOME", home.filePath("cache").toLocal8Bit());
    const HelpDesk desk;
    QVERIFY(ThrowawayStore::Store().value("penKey").isNull());
    {
        ThrowawayStore::Store().setValue("penKey", "Ctrl+F7");
    }
    QCOMPARE(desk.openSheet(), QString());
    QCOMPARE(m_browsed.size(), 1);
    QVERIFY(m_browsed.first().startsWith(home.path()));
    QFile page(m_browsed.first());
    QVERIFY(page.open(QIODevice::ReadOnly));
    QCOMPARE(textsOf(QString::fromUtf8(page.readAll()), "kbd").first(), "Ctrl+F7");
    const auto others = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(!(QFile::permissions(QFileInfo(page).path()) & others));

    const QList<QStringList> licences =
        findAll(document("windows/AboutWindow.qml"), R"x(licence: ".+", text: "(.+)")x");
    QVERIFY(licences.size() >= 3);
    for (const QStringList &licence : licences) {
        QCOMPARE(desk.openLicence(licence.first()), QString());
        QFile text(m_browsed.last());
        QVERIFY(text.open(QIODevice::ReadOnly));
        QVERIFY(textsOf(QString::fromUtf8(text.readAll()), "pre").value(0).size() > 1000);
    }
}

void TestHelpPage::aPageThatCannotBeShownIsTold()
{
    const QTemporaryDir home;
    QFile obstacle(home.filePath("obstacle"));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    const QString run = home.filePath("run");
    QVERIFY(QDir().mkdir(run));
    QFile::setPermissions(run, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // Not even the system's administrator makes a folder below a file.
    qputenv("XDG_CACHE_HOME", obstacle.fileName().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", run.toLocal8Bit());
    const HelpDesk desk;
    QCOMPARE(desk.openSheet(), QString());
    QVERIFY(m_browsed.value(0).startsWith(run));

    QVERIFY(QDir(run).removeRecursively());
    for (const char *variable : { "XDG_RUNTIME_DIR", "TMPDIR" }) {
        qputenv(variable, obstacle.fileName().toLocal8Bit());
    }
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QStandardPaths"));
    QVERIFY(!desk.openSheet().isEmpty());
    QVERIFY(desk.openLicence("no such").contains("no such"));
    QCOMPARE(m_browsed.size(), 1);
}

QTEST_GUILESS_MAIN(TestHelpPage)
#include "tst_helppage.moc"
