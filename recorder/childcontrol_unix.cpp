#include "recorder/childcontrol.h"

#include <QProcess>

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

void ChildControl::prepare(QProcess *child)
{
    child->setChildProcessModifier([parent = ::getpid()] {
        // A group of its own: an interrupt typed at the terminal goes to this process alone, which
        // then passes on exactly one request.
        ::setpgid(0, 0);
        // The request of an ordinary end, so that the file is finished even then.
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (::getppid() != parent)
            ::raise(SIGTERM);
    });
}

void ChildControl::adopt(QProcess *)
{
}

void ChildControl::requestEnd(QProcess *child)
{
    // FFmpeg waits for its readers, and a reader for its pipe.
    child->closeWriteChannel();
    child->terminate();
}
