#include "platform/terminationrequest.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

constexpr std::array kSignals{ SIGTERM, SIGINT, SIGHUP };

/// A signal handler may do little more than write; the event loop reads at the other end.
std::array<int, 2> s_sockets{ -1, -1 };

void writeToEventLoop(int /*signal*/)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(s_sockets[1], &byte, sizeof(byte));
}

void setHandlers(void (*handler)(int))
{
    struct sigaction action {
    };
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : kSignals) {
        ::sigaction(signal, &action, nullptr);
    }
}

} // namespace

TerminationRequest::TerminationRequest()
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, s_sockets.data())
        != 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(s_sockets[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (::read(s_sockets[0], &byte, sizeof(byte)) == sizeof(byte)) {
            emit received();
        }
    });
    setHandlers(writeToEventLoop);
}

TerminationRequest::~TerminationRequest()
{
    setHandlers(SIG_DFL);
    for (int &socket : s_sockets) {
        if (socket >= 0) {
            ::close(socket);
        }
        socket = -1;
    }
}
