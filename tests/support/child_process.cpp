#include "support/child_process.hpp"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace
{

// Guards against hanging only: no test depends on how long anything takes. What is waited for comes
// within milliseconds, but for an emulator, which has to translate the program first, and on a
// machine that is busy with something else.
std::chrono::seconds patience()
{
    return std::chrono::seconds(hasLauncher() ? 120 : 30);
}

// A guard as well, for a program that prints without end what no test waits for.
constexpr std::size_t mostBytesUnread = 1 << 20;

int checked(int result, const char* call)
{
    if (result < 0) {
        throw std::system_error(errno, std::generic_category(), call);
    }
    return result;
}

void closeOnExec(const Descriptor& descriptor)
{
    checked(fcntl(descriptor.number(), F_SETFD, FD_CLOEXEC), "fcntl");
}

template <typename Condition>
void waitUntil(Condition isMet, const char* what)
{
    const auto deadline = std::chrono::steady_clock::now() + patience();
    while (!isMet()) {
        if (std::chrono::steady_clock::now() > deadline) {
            throw std::runtime_error(std::string("the program does not ") + what);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

void waitForData(int descriptor, short event, const char* complaint)
{
    pollfd state{descriptor, event, 0};
    if (poll(&state, 1, static_cast<int>(std::chrono::milliseconds(patience()).count())) <= 0) {
        throw std::runtime_error(complaint);
    }
}

// Adds to the text what can be read; false at the end, which a terminal reports as an error.
bool readMore(int descriptor, std::string& text)
{
    waitForData(descriptor, POLLIN, "the program prints nothing more");
    char bytes[4096];
    const ssize_t count = read(descriptor, bytes, sizeof bytes);
    if (count > 0) {
        text.append(bytes, static_cast<std::size_t>(count));
    }
    if (text.size() > mostBytesUnread) {
        throw std::runtime_error("the program prints on and on, from: " + text.substr(0, 200));
    }
    return count > 0;
}

std::vector<std::string> commandLine(const std::string& program)
{
    std::istringstream launcher(LAUNCHER);
    std::vector<std::string> words(std::istream_iterator<std::string>(launcher), {});
    words.push_back(program);
    return words;
}

void placeStream(int source, int stream)
{
    if (source < 0) {
        close(stream);
    } else {
        dup2(source, stream);
    }
}

// Has the system kill the child when the test ends without its own clean-up: killed for taking too
// long, or by a signal of its own.
void endWithParent(pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) { // It ended before that.
        _exit(127);
    }
}

// Gives the terminal of this session another foreground, which need not live, and has it refuse
// what the background writes. No shell could stop or continue a group whose parent is of another
// session, so the writes fail.
void goIntoBackground(int terminal)
{
    termios modes{};
    tcgetattr(terminal, &modes);
    modes.c_lflag |= TOSTOP;
    tcsetattr(terminal, TCSANOW, &modes);

    const pid_t foreground = fork();
    if (foreground == 0) {
        pause();
        _exit(0);
    }
    setpgid(foreground, foreground);
    tcsetpgrp(terminal, foreground);
    kill(foreground, SIGKILL);
    waitpid(foreground, nullptr, 0);
}

void takePlace(const Surroundings& surroundings)
{
    switch (surroundings.place) {
    case Place::besideTheTest:
        setpgid(0, 0);
        break;
    case Place::onItsTerminal:
        setsid();
        ioctl(surroundings.input, TIOCSCTTY, 0);
        break;
    case Place::inTheBackground:
        setsid();
        ioctl(surroundings.output, TIOCSCTTY, 0);
        goIntoBackground(surroundings.output);
        break;
    }
}

// Runs in the child.
[[noreturn]] void become(const std::vector<char*>& arguments, const Surroundings& surroundings,
                         int errors, pid_t parent)
{
    endWithParent(parent);
    takePlace(surroundings);
    placeStream(surroundings.input, STDIN_FILENO);
    placeStream(surroundings.output, STDOUT_FILENO);
    placeStream(errors, STDERR_FILENO);
    const auto action = surroundings.signalsIgnored ? SIG_IGN : SIG_DFL;
    std::signal(SIGPIPE, action);
    std::signal(SIGHUP, action);
    execvp(arguments[0], arguments.data());
    _exit(127);
}

bool isAsleep(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    return text.compare(text.rfind(')') + 2, 1, "S") == 0;
}

} // namespace

Descriptor::Descriptor(int number) : descriptor(number) {}

Descriptor::~Descriptor()
{
    close();
}

Descriptor::Descriptor(Descriptor&& other) noexcept
    : descriptor(std::exchange(other.descriptor, -1))
{
}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept
{
    std::swap(descriptor, other.descriptor);
    return *this;
}

int Descriptor::number() const
{
    return descriptor;
}

void Descriptor::close()
{
    if (descriptor >= 0) {
        ::close(std::exchange(descriptor, -1));
    }
}

Pipe makePipe()
{
    int ends[2];
    checked(pipe2(ends, O_CLOEXEC), "pipe2");
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

Terminal makeTerminal()
{
    int person = -1;
    int program = -1;
    checked(openpty(&person, &program, nullptr, nullptr, nullptr), "openpty");
    Terminal terminal{Descriptor(person), Descriptor(program)};
    closeOnExec(terminal.person);
    closeOnExec(terminal.program);
    return terminal;
}

ChildProcess::ChildProcess(const std::string& program, const Surroundings& surroundings)
    : errorPipe(makePipe())
{
    std::signal(SIGPIPE, SIG_IGN); // a child that ended early fails its test, not the test run
    std::vector<std::string> words = commandLine(program);
    std::vector<char*> arguments;
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    const pid_t parent = getpid();
    process = checked(fork(), "fork");
    if (process == 0) {
        become(arguments, surroundings, errorPipe.writeEnd.number(), parent);
    }
    errorPipe.writeEnd.close();
}

ChildProcess::~ChildProcess()
{
    if (!ended) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
}

pid_t ChildProcess::id() const
{
    return process;
}

void ChildProcess::send(int signal) const
{
    checked(kill(process, signal), "kill");
}

std::string ChildProcess::waitForEnd()
{
    int status = 0;
    waitUntil([&] { return waitpid(process, &status, WNOHANG) == process; }, "end");
    ended = true;
    return WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                               : "status " + std::to_string(WEXITSTATUS(status));
}

void ChildProcess::waitForStop() const
{
    const auto child = static_cast<id_t>(process);
    siginfo_t report{};
    waitUntil(
        [&] { return waitid(P_PID, child, &report, WSTOPPED | WNOHANG) == 0 && report.si_pid > 0; },
        "stop");
}

void ChildProcess::waitForSleep() const
{
    if (tellsOfProcesses()) {
        waitUntil([&] { return isAsleep(process); }, "wait");
    }
}

std::string ChildProcess::errors() const
{
    std::string text;
    while (readMore(errorPipe.readEnd.number(), text)) {
    }
    return text;
}

long ChildProcess::peakMemory() const
{
    std::ifstream file("/proc/" + std::to_string(process) + "/status");
    std::string name;
    while (file >> name && name != "VmHWM:") {
        file.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    long kibibytes = 0;
    if (!(file >> kibibytes)) {
        throw std::runtime_error("the memory of the program is not known");
    }
    return kibibytes;
}

void writeAll(int descriptor, const std::string& bytes)
{
    std::size_t written = 0;
    while (written < bytes.size()) {
        waitForData(descriptor, POLLOUT, "the program reads nothing more");
        // A pipe that can be written to takes a small piece at once.
        const std::size_t piece = std::min<std::size_t>(bytes.size() - written, 512);
        const ssize_t count = write(descriptor, bytes.data() + written, piece);
        written += static_cast<std::size_t>(checked(static_cast<int>(count), "write"));
    }
}

Output::Output(const Descriptor& source) : descriptor(source.number()) {}

std::string Output::bytes(std::size_t count)
{
    while (buffer.size() < count) {
        receive();
    }
    const std::string front = buffer.substr(0, count);
    buffer.erase(0, count);
    return front;
}

std::string Output::until(const std::string& text, int times)
{
    std::string front;
    for (; times > 0; --times) {
        std::size_t place = buffer.find(text);
        while (place == std::string::npos) {
            receive();
            place = buffer.find(text);
        }
        front += bytes(place + text.size());
    }
    return front;
}

bool Output::hasMore() const
{
    int count = 0;
    checked(ioctl(descriptor, FIONREAD, &count), "ioctl");
    return count > 0 || !buffer.empty();
}

void Output::receive()
{
    if (!readMore(descriptor, buffer)) {
        throw std::runtime_error("the output ended with: " + buffer);
    }
}

bool tellsOfProcesses()
{
    return access("/proc/self/stat", R_OK) == 0;
}

bool hasTerminals()
{
    return Descriptor(posix_openpt(O_RDWR | O_NOCTTY)).number() >= 0;
}

bool hasLauncher()
{
    return !std::string(LAUNCHER).empty();
}
