// Runs two programs in turn and compares the CPU time that each needs for the same questions.
//
//   compare PROGRAM FLOOR QUESTIONS PAIRS
//
// Both are called with the number of a question kind and a number of questions. What counts is the
// user and system time of the process for so many questions, less that of the same process for
// none, so that neither its start nor the floor's preparation is in it. The two of a pair run one
// after the other, the order changing from pair to pair, since the machine's speed drifts.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{

enum class Sink { nullDevice, pipe };

[[noreturn]] void fail(const char* what)
{
    std::perror(what);
    std::exit(EXIT_FAILURE);
}

[[noreturn]] void runProgram(const std::string& program, int kind, int questions, int output)
{
    const int nothing = open("/dev/null", O_RDONLY);
    if (nothing < 0 || dup2(nothing, STDIN_FILENO) < 0 || dup2(output, STDOUT_FILENO) < 0) {
        fail("cannot redirect");
    }
    execl(program.c_str(), program.c_str(), std::to_string(kind).c_str(),
          std::to_string(questions).c_str(), nullptr);
    fail(program.c_str());
}

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// CPU time, in seconds, of one run whose output goes to the null device, or through a pipe that is
// read as fast as possible by this process.
double cpuTime(const std::string& program, int kind, int questions, Sink sink)
{
    std::array<int, 2> ends = {-1, -1}; // read, write
    if (sink == Sink::nullDevice) {
        ends[1] = open("/dev/null", O_WRONLY | O_CLOEXEC);
    } else if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        fail("pipe");
    }
    const pid_t child = fork();
    if (child == 0) {
        runProgram(program, kind, questions, ends[1]);
    }
    close(ends[1]);
    if (sink == Sink::pipe) {
        static std::array<char, 1 << 16> buffer;
        while (read(ends[0], buffer.data(), buffer.size()) > 0) {
        }
        close(ends[0]);
    }
    int status = 0;
    rusage used = {};
    if (wait4(child, &status, 0, &used) != child || status != 0) {
        std::fprintf(stderr, "%s failed\n", program.c_str());
        std::exit(EXIT_FAILURE);
    }
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

double timeForQuestions(const std::string& program, int kind, int questions, Sink sink)
{
    const double all = cpuTime(program, kind, questions, sink);
    return all - cpuTime(program, kind, 0, sink);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fputs("usage: compare PROGRAM FLOOR QUESTIONS PAIRS\n", stderr);
        return EXIT_FAILURE;
    }
    const std::string program = argv[1];
    const std::string floor = argv[2];
    const int questions = std::atoi(argv[3]);
    const int pairs = std::atoi(argv[4]);

    std::puts("output kind  us/question  floor    ratio: median (range)    pair by pair");
    for (const Sink sink : {Sink::nullDevice, Sink::pipe}) {
        for (int kind = 1; kind <= 4; ++kind) {
            std::vector<double> programTimes;
            std::vector<double> floorTimes;
            std::vector<double> ratios;
            for (int pair = 0; pair < pairs; ++pair) {
                const bool floorFirst = pair % 2 == 1;
                if (floorFirst) {
                    floorTimes.push_back(timeForQuestions(floor, kind, questions, sink));
                }
                programTimes.push_back(timeForQuestions(program, kind, questions, sink));
                if (!floorFirst) {
                    floorTimes.push_back(timeForQuestions(floor, kind, questions, sink));
                }
                ratios.push_back(programTimes.back() / floorTimes.back());
            }
            const auto [least, most] = std::minmax_element(ratios.begin(), ratios.end());
            std::printf("%-6s %4d  %11.2f  %5.2f    %.2f (%.2f to %.2f)         ",
                        sink == Sink::pipe ? "pipe" : "null", kind,
                        median(programTimes) / questions * 1e6,
                        median(floorTimes) / questions * 1e6, median(ratios), *least, *most);
            for (const double ratio : ratios) {
                std::printf(" %.2f", ratio);
            }
            std::puts("");
            std::fflush(stdout);
        }
    }
    return EXIT_SUCCESS;
}
