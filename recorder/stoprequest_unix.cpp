#include "recorder/stoprequest.h"

#include <QSocketNotifier>

#include <csignal>

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace
{

/// Where the signal handler, which may do next to nothing, leaves a byte for the event loop.
int s_pipe[2] = { -1, -1 };

void onSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(s_pipe[1], &byte, 1);
}

} // namespace

struct StopRequest::Platform {
    std::unique_ptr<QSocketNotifier> notifier;
};

StopRequest::StopRequest(QObject *parent)
    : QObject(parent), m_platform(std::make_unique<Platform>())
{
    if (::pipe2(s_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_platform->notifier = std::make_unique<QSocketNotifier>(s_pipe[0], QSocketNotifier::Read);
    connect(m_platform->notifier.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(s_pipe[0], &byte, 1) > 0) { }
        emit requested();
    });
    for (const int number : { SIGTERM, SIGINT, SIGHUP })
        std::signal(number, onSignal);
    // Nobody else would ever end a recording whose starter crashed.
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    // A recording outlives whoever listened to its notes.
    std::signal(SIGPIPE, SIG_IGN);
}

StopRequest::~StopRequest() = default;
