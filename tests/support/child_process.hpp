#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>

// An open file descriptor, closed at the end.
class Descriptor
{
public:
    explicit Descriptor(int number = -1);
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;

    int number() const;
    void close();

private:
    int descriptor;
};

struct Pipe {
    Descriptor readEnd;
    Descriptor writeEnd;
};
Pipe makePipe();

struct Terminal {
    Descriptor person; // the side of the person: what is written here is typed
    Descriptor program;
};
Terminal makeTerminal();

// Where a program runs: in the session of the test, as a group that can be stopped; in a session of
// its own, which its input, a terminal, controls; in the background of a session that its output
// controls, a terminal that refuses whatever the background writes.
enum class Place { besideTheTest, onItsTerminal, inTheBackground };

// What a program is started with.
struct Surroundings {
    int input = -1; // closed, when negative
    int output = -1;
    Place place = Place::besideTheTest;
    bool signalsIgnored = false; // the parent has SIGPIPE and SIGHUP ignored
};

// A program that runs as a child of the test, behind the launcher of the build if it has one (an
// emulator, for a program of another architecture). Killed at the end if it still runs, also if the
// end is that of the whole test.
class ChildProcess
{
public:
    ChildProcess(const std::string& program, const Surroundings& surroundings);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t id() const;
    void send(int signal) const;

    // How it ended: "signal 13", "status 0".
    std::string waitForEnd();
    void waitForStop() const;

    // Waits until the program sleeps, as it does while it reads what nobody has typed yet or writes
    // what nobody has read yet. Returns at once on a system without /proc.
    void waitForSleep() const;

    // What it wrote to standard error until it ended.
    std::string errors() const;

    // The most memory that it had at a time, in KiB.
    long peakMemory() const;

private:
    pid_t process{-1};
    bool ended = false;
    Pipe errorPipe;
};

// Writes all bytes, as the reader makes room for them. Throws when it makes none for a while.
void writeAll(int descriptor, const std::string& bytes);

// What a program prints, read piece by piece. Throws when nothing comes for a while, when the
// output ends too early, and when it goes on and on without what is awaited.
class Output
{
public:
    explicit Output(const Descriptor& source);

    std::string bytes(std::size_t count);
    // Up to the text, as often as that, and nothing behind it.
    std::string until(const std::string& text, int times = 1);
    // Whether more was printed than was read here.
    bool hasMore() const;

private:
    void receive();

    int descriptor;
    std::string buffer;
};

// Whether the system has /proc, and whether it has pseudo-terminals. A bare chroot has neither.
bool tellsOfProcesses();
bool hasTerminals();

// Whether the tests start programs through a launcher.
bool hasLauncher();
