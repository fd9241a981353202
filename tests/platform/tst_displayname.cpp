#include "platform/displayname.h"

#include <QHash>
#include <QTest>

using Environment = QHash<QByteArray, QString>;

class TestDisplayName : public QObject
{
    Q_OBJECT

private slots:
    void aDisplayHasOneName_data();
    void aDisplayHasOneName();
};

void TestDisplayName::aDisplayHasOneName_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<Environment>("environment");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *title, const Environment &environment, const QString &name,
                         const QStringList &words = {}) {
        QTest::newRow(title) << words << environment << name;
    };
    const Environment both{ { "DISPLAY", ":0" }, { "WAYLAND_DISPLAY", "wayland-0" },
        { "XDG_RUNTIME_DIR", "/run/user/7" } };
    row("none", {}, "");
    row("a server", { { "DISPLAY", ":0" } }, "x11 :0");
    row("a screen of it", { { "DISPLAY", ":0.1" } }, "x11 :0");
    row("by its kind of connection", { { "DISPLAY", "unix:0.0" } }, "x11 :0");
    row("over the network", { { "DISPLAY", "10.0.0.1:10.0" } }, "x11 10.0.0.1:10");
    row("over the network, newer", { { "DISPLAY", "fe80::1:10" } }, "x11 fe80::1:10");
    row("both: the X server is taken", both, "x11 :0");
    Environment chosen = both;
    chosen.insert("QT_QPA_PLATFORM", "xcb;wayland"); // what the program itself asks for then
    row("both, as the program asks", chosen, "x11 :0");
    row("both, the other chosen", both, "wayland /run/user/7/wayland-0",
        { "-platform", "wayland" });
    row("a session without an X server",
        { { "WAYLAND_DISPLAY", "/tmp/w" }, { "XDG_RUNTIME_DIR", "/run/user/7" } },
        "wayland /tmp/w");
    row("a named server", both, "x11 :5", { "--display=:5.0" });
    row("another platform", both, "offscreen", { "-platform", "offscreen:size=1" });
}

void TestDisplayName::aDisplayHasOneName()
{
    QFETCH(QStringList, words);
    QFETCH(Environment, environment);
    QFETCH(QString, name);
    QCOMPARE(displayName(QStringList{ "/opt/dravelin" } + words,
                 [&environment](const char *variable) { return environment.value(variable); }),
        name);
}

QTEST_APPLESS_MAIN(TestDisplayName)
#include "tst_displayname.moc"
