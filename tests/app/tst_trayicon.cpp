#include "app/trayicon.h"

#include <QAction>
#include <QApplication>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QTest>

namespace
{

QList<QAction *> menuActions()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *menu = qobject_cast<QMenu *>(widget)) {
            return menu->actions();
        }
    }
    return {};
}

} // namespace

class TestTrayIcon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theMenuHidesAndShowsTheWindow();
    void whatIsNoWindowIsIgnored();
};

void TestTrayIcon::initTestCase()
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QApplication::setQuitOnLastWindowClosed(false);
}

void TestTrayIcon::theMenuHidesAndShowsTheWindow()
{
    TrayIcon tray;
    QQuickWindow window;
    window.show();
    tray.adopt(&window);
    QCOMPARE(window.color(), QColor(Qt::transparent));
    const QList<QAction *> actions = menuActions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions.first()->text(), "隐藏");
    QCOMPARE(actions.last()->text(), "退出");

    actions.first()->trigger();
    QVERIFY(!window.isVisible());
    QCOMPARE(actions.first()->text(), "显示");
    tray.retranslate();
    QCOMPARE(actions.first()->text(), "显示");

    actions.first()->trigger();
    QVERIFY(window.isVisible());
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(actions.first()->text(), "隐藏");

    window.hide(); // by itself
    QCOMPARE(actions.first()->text(), "显示");
    tray.showWindow();
    QVERIFY(window.isVisible());
    QCOMPARE(actions.first()->text(), "隐藏");
}

void TestTrayIcon::whatIsNoWindowIsIgnored()
{
    TrayIcon tray;
    QObject object;
    tray.adopt(nullptr);
    tray.adopt(&object);
    menuActions().first()->trigger();
    tray.showWindow();
    {
        QQuickWindow window;
        window.show();
        tray.adopt(&window);
    }
    menuActions().first()->trigger();
    tray.showWindow();
}

QTEST_MAIN(TestTrayIcon)
#include "tst_trayicon.moc"
