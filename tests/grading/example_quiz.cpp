// An example of another front end: three fixed questions, typed answers, and the library's graders.
// All that it needs is to link chempractice::core.

#include <iostream>
#include <string>

#include "data/ion.hpp"
#include "grading/grading.hpp"

namespace
{

std::string ask(const std::string& question)
{
    std::cout << question << std::endl;
    std::string answer;
    std::getline(std::cin, answer);
    return answer;
}

} // namespace

int main()
{
    const Ion sodium("sodium", "Na", false, 1, false, "");
    const Ion silver("silver", "Ag", false, 1, false, "");
    const Ion chloride("chloride", "Cl", true, 1, false, "hydrochloric");
    const Ion sulphate("sulphate", "SO4", true, 2, true, "sulphuric");

    int score = 0;
    score += getResponse(sodium, sulphate, ask("What is the formula of sodium sulphate?"));
    score += sulphate.getResponse(ask("What is the formula of the sulphate ion?"));
    score += getSolResponse(silver, chloride, ask("Does silver chloride dissolve in water (y/n)?"));
    std::cout << score << " of 3 correct" << std::endl;
}
