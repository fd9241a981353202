// Stands in for the recorder and behaves as FAKE_RECORDER says. It writes its arguments, one a
// line, to the file in its output folder that the test waits for before it goes on.

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

#include <unistd.h>

namespace
{

volatile std::sig_atomic_t g_stopRequested = 0;

void onStopRequest(int)
{
    g_stopRequested = 1;
}

void waitForStopRequest()
{
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    sigprocmask(SIG_BLOCK, &blocked, &before);
    while (!g_stopRequested)
        sigsuspend(&before);
}

void announce(int argc, char **argv)
{
    const std::string folder = argv[5];
    {
        std::ofstream out(folder + "arguments.part");
        for (int i = 1; i < argc; ++i)
            out << argv[i] << '\n';
    }
    std::rename((folder + "arguments.part").c_str(), (folder + "arguments").c_str());
}

} // namespace

int main(int argc, char **argv)
{
    const char *const setting = std::getenv("FAKE_RECORDER");
    const std::string_view mode = setting ? setting : "";
    if (mode == "ignores")
        std::signal(SIGTERM, SIG_IGN);
    else if (mode != "unprepared")
        std::signal(SIGTERM, onStopRequest);
    announce(argc, argv);

    if (mode == "exits")
        return 0;
    if (mode == "crashes")
        std::abort();
    if (mode == "explains") {
        std::ofstream(std::string(argv[5]) + "record.mp4") << "a header and a moof";
        std::fputs("warning[no-microphone]: There is no microphone.\nerror[disk-full]: Th", stderr);
        std::fputs("e disk is full.\n", stderr);
        std::printf("file: %srecord.mp4\n", argv[5]);
        return 1;
    }
    if (mode == "floods") {
        const std::string piece(1 << 20, 'x');
        for (int i = 0; i < 300; ++i) {
            std::fputs(piece.c_str(), stdout);
            std::fputs(piece.c_str(), stderr);
        }
        return 1;
    }
    if (mode == "babbles") {
        std::fputs("recorder.exe: cannot open shared object file", stderr);
        std::fputs("\n", stderr);
        return 127;
    }
    if (mode == "ignores" || mode == "unprepared") {
        while (true)
            pause();
    }
    waitForStopRequest();
    return mode == "fails" ? 3 : 0;
}
