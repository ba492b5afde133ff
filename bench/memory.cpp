// Prints the peak memory of one process after 1,000 questions of a kind, and after 1,000,000. The
// questions go to standard output, the figures to standard error. Fails when the peak has risen.

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>

#include "console/practice.hpp"
#include "data/soluble.hpp"

namespace
{

long peakKilobytes()
{
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    return used.ru_maxrss;
}

void practise(QuestionType kind, int questions)
{
    for (int question = 0; question < questions; ++question) {
        practise(kind);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        return EXIT_FAILURE;
    }
    const auto kind = static_cast<QuestionType>(std::atoi(argv[1]));
    initSolubles();
    practise(kind, 1000);
    const long early = peakKilobytes();
    practise(kind, 999000);
    const long late = peakKilobytes();
    std::fprintf(stderr, "%4d  %17ld KiB  %20ld KiB\n", kind, early, late);
    return late == early ? EXIT_SUCCESS : EXIT_FAILURE;
}
