#include "platform/sideprocess.h"

#include <QDeadlineTimer>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

/// Sent last: without it the work ended halfway.
constexpr char kComplete = '.';

constexpr int kEndTimeoutMs = 500;
constexpr useconds_t kLookEveryUs = 200;

void dropMessage(
    QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
}

void writeAll(int pipe, const QByteArray &bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(pipe, bytes.constData() + done, bytes.size() - done);
        if (count < 0 && errno != EINTR) {
            return;
        }
        done += std::max<ssize_t>(count, 0);
    }
}

/// In the copy. It never returns into the program: neither destructors nor exit handlers run twice.
[[noreturn]] void runCopy(const std::function<QByteArray()> &work, int pipe, pid_t original)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != original) {
        ::_exit(1); // it ended before the line above
    }
    // Nobody can do anything with the remains of a crash that was reckoned with.
    ::prctl(PR_SET_DUMPABLE, 0);
    // A session manager would take this for a second program.
    qunsetenv("SESSION_MANAGER");
    qInstallMessageHandler(dropMessage);

    writeAll(pipe, work() + kComplete);
    ::close(pipe); // the reader need not wait until the memory is given back
    ::_exit(0);
}

class CopiedProcess : public SideProcess
{
public:
    CopiedProcess(pid_t process, int pipe) : m_process(process), m_pipe(pipe) { }
    Q_DISABLE_COPY_MOVE(CopiedProcess)
    ~CopiedProcess() override;

    [[nodiscard]] std::optional<QByteArray> result(int timeoutMs) override;

private:
    [[nodiscard]] bool waitForBytes(const QDeadlineTimer &deadline) const;

    pid_t m_process;
    int m_pipe;
};

CopiedProcess::~CopiedProcess()
{
    ::close(m_pipe);
    ::kill(m_process, SIGKILL);
    // Inside a driver that hangs, nothing kills it. What is left of it then goes with this program.
    const QDeadlineTimer deadline(kEndTimeoutMs);
    while (::waitpid(m_process, nullptr, WNOHANG) == 0 && !deadline.hasExpired()) {
        ::usleep(kLookEveryUs);
    }
}

std::optional<QByteArray> CopiedProcess::result(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    QByteArray bytes;
    std::array<char, 512> part{};
    while (waitForBytes(deadline)) {
        const ssize_t count = ::read(m_pipe, part.data(), part.size());
        if (count > 0) {
            bytes.append(part.data(), count);
        } else if (count == 0 || errno != EINTR) {
            break;
        }
    }
    if (!bytes.endsWith(kComplete)) {
        return std::nullopt;
    }
    bytes.chop(1);
    return bytes;
}

bool CopiedProcess::waitForBytes(const QDeadlineTimer &deadline) const
{
    pollfd waiting{ m_pipe, POLLIN, 0 };
    int ready = 0;
    do {
        ready = ::poll(&waiting, 1, static_cast<int>(deadline.remainingTime()));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

std::unique_ptr<SideProcess> SideProcess::start(const std::function<QByteArray()> &work)
{
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0) {
        return nullptr;
    }
    const pid_t original = ::getpid();
    const pid_t process = ::fork();
    if (process == 0) {
        ::close(pipe[0]);
        runCopy(work, pipe[1], original);
    }
    ::close(pipe[1]);
    if (process < 0) {
        ::close(pipe[0]);
        return nullptr;
    }
    return std::make_unique<CopiedProcess>(process, pipe[0]);
}
