#pragma once

#include <QProcess>

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
