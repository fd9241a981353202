#pragma once

#include <QGuiApplication>
#include <QProcess>
#include <QTest>

/// An X server of the test's own, without a window manager. Make it before the application object:
/// it points DISPLAY and Qt's platform at itself.
class XvfbServer
{
public:
    XvfbServer();
    ~XvfbServer();
    Q_DISABLE_COPY_MOVE(XvfbServer)

    [[nodiscard]] bool isRunning() const { return !m_display.isEmpty(); }

private:
    QProcess m_process;
    QByteArray m_display;
};

/// Runs a test on such a server.
template <typename Test> int runOnXvfb(int argc, char **argv)
{
    const XvfbServer server;
    if (!server.isRunning()) {
        qCritical("Xvfb does not start: install the package xvfb");
        return 1;
    }
    const QGuiApplication app(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
