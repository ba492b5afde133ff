// Part of each program where the lines and branches that tests reach are counted. The counts are
// written when a program returns from `main`; ours never does, so they are written when a signal
// ends it, too. It still dies by that signal.

#include <csignal>
#include <initializer_list>

extern "C" void __gcov_dump(); // NOLINT(bugprone-reserved-identifier)

namespace
{

using Handler = void (*)(int);

Handler replaceHandler(int signal, Handler handler, unsigned int flags)
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(flags);
    struct sigaction previous = {};
    sigaction(signal, &action, &previous);
    return previous.sa_handler;
}

void writeCounts(int signal)
{
    __gcov_dump();
    std::raise(signal); // Comes after the return, when the action is the default again.
}

const bool isPrepared = [] {
    for (const int signal : {SIGHUP, SIGINT, SIGPIPE, SIGTERM}) {
        if (replaceHandler(signal, writeCounts, SA_RESETHAND) == SIG_IGN) {
            replaceHandler(signal, SIG_IGN, 0);
        }
    }
    return true;
}();

} // namespace

// In place of the library's: a program that asks for the default action has its counts written too.
extern "C" Handler signal(int signal, Handler handler) noexcept
{
    return handler == SIG_DFL ? replaceHandler(signal, writeCounts, SA_RESETHAND)
                              : replaceHandler(signal, handler, 0);
}
