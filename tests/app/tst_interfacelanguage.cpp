#include "app/interfacelanguage.h"

#include "app/trayicon.h"
#include "settings/translation.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

/// A language chosen while the program runs reaches what is already on the screen.
class TestInterfaceLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void documentsAndTrayFollowEveryChange();

private:
    static QString exitText();
};

void TestInterfaceLanguage::initTestCase()
{
    QDir().mkpath(translationsDirectory());
    for (const char *name : { "/app_en_US.qm", "/app_ja_JP.qm" }) {
        const QString path = translationsDirectory() + QLatin1String(name);
        QFile::remove(path);
        QVERIFY(QFile::copy(QStringLiteral(":/translations") + QLatin1String(name), path));
    }
}

QString TestInterfaceLanguage::exitText()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *menu = qobject_cast<QMenu *>(widget)) {
            return menu->actions().last()->text();
        }
    }
    return {};
}

void TestInterfaceLanguage::documentsAndTrayFollowEveryChange()
{
    InterfaceLanguage language;
    TrayIcon tray;
    QQmlEngine engine;
    connect(&language, &InterfaceLanguage::textsChanged, &engine, &QQmlEngine::retranslate);
    connect(&language, &InterfaceLanguage::textsChanged, &tray, &TrayIcon::retranslate);
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQml
        QtObject { property string text: qsTranslate("main", "退出") })",
        QUrl());
    const std::unique_ptr<QObject> document(component.create());
    QVERIFY2(document, qPrintable(component.errorString()));

    const std::tuple<QString, QString, QString> steps[] = {
        { "en_US", "Exit", "Cancel" },
        { "ja_JP", "終了", "キャンセル" },
        // No catalogue: the source language of each.
        { "nosuch", "退出", "Cancel" },
        { "ja_JP", "終了", "キャンセル" },
    };
    for (const auto &[code, text, textOfQt] : steps) {
        QSignalSpy changes(&language, &InterfaceLanguage::textsChanged);
        loadTranslation(qApp, code);
        QVERIFY(changes.wait());
        QCOMPARE(document->property("text").toString(), text);
        QCOMPARE(exitText(), text);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), textOfQt);
        QCoreApplication::processEvents();
        QCOMPARE(changes.size(), 1);
    }
}

QTEST_MAIN(TestInterfaceLanguage)
#include "tst_interfacelanguage.moc"
