#include "xvfbserver.h"

XvfbServer::XvfbServer()
{
    // The server picks a free display and writes its number when it is ready.
    m_process.start("Xvfb", { "-displayfd", "1", "-screen", "0", "800x600x24", "-noreset" });
    QByteArray number;
    while (!number.endsWith('\n') && m_process.waitForReadyRead(20000))
        number += m_process.readAllStandardOutput();
    if (!number.endsWith('\n'))
        return;
    m_display = ':' + number.trimmed();
    qputenv("DISPLAY", m_display);
    qputenv("QT_QPA_PLATFORM", "xcb");
}

XvfbServer::~XvfbServer()
{
    m_process.terminate();
    m_process.waitForFinished();
}
