// Any answer about any two ions: what each grader prints and returns follows from the ions' charges
// and from a table of solubilities of this file's own. The first two bytes of an input choose the
// ions, the others are the answer.

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

#include "data/tables.hpp"
#include "grading/grading.hpp"
#include "support.hpp"
#include "support/captured_output.hpp"
#include "support/neutral_compound.hpp"

namespace
{

struct Verdict {
    int points;
    std::string line;

    bool operator==(const Verdict& other) const
    {
        return points == other.points && line == other.line;
    }
};

// The catalogue, and the ions by hand that the solubility rules know as well.
const std::vector<Ion>& ions()
{
    static const std::vector<Ion> all = [] {
        initIons();
        std::vector<Ion> extended = ion;
        extended.push_back(Ion("hydrogen", "H", false, 1, false, ""));
        extended.push_back(Ion("calcium", "Ca", false, 2, false, ""));
        extended.push_back(Ion("strontium", "Sr", false, 2, false, ""));
        extended.push_back(Ion("acetate", "CH3COO", true, 1, true, "acetic"));
        return extended;
    }();
    return all;
}

std::string charged(const Ion& one)
{
    const std::string size = one.charge == 1 ? "" : std::to_string(one.charge);
    return one.formula + size + (one.negative ? '-' : '+');
}

struct Solubility {
    std::string anion;
    bool soluble;
    std::string exceptions; // Cations, each between blanks.
};

const std::array<Solubility, 13> solubilities = {{
    {"CH3COO", true, ""},
    {"NO3", true, ""},
    {"Cl", true, " Ag Hg Pb "},
    {"Br", true, " Ag Hg Pb "},
    {"I", true, " Ag Hg Pb "},
    {"SO4", true, " Ba Pb Sr "},
    {"F", true, " Ba Be Ca Mg Mn Pb Sr "},
    {"CO3", false, " H K Li NH4 Na "},
    {"PO4", false, " H K Li NH4 Na "},
    {"OH", false, " H K Li NH4 Na "},
    {"S", false, " H K Li NH4 Na Ba Be Ca Mg Sr "},
    {"O", false, " H K Li NH4 Na Ba Ca "},
    {"", false, " H K Li NH4 Na "}, // Any other: not known to be insoluble.
}};

// "soluble", "insoluble", or "" where it is not known.
std::string solubility(const Ion& cation, const Ion& anion)
{
    const auto* const row =
        std::find_if(solubilities.begin(), solubilities.end() - 1,
                     [&anion](const Solubility& each) { return each.anion == anion.formula; });
    const bool excepted = row->exceptions.find(" " + cation.formula + " ") != std::string::npos;
    if (row->anion.empty() && !excepted) {
        return "";
    }
    return row->soluble != excepted ? "soluble" : "insoluble";
}

std::string capitals(std::string text)
{
    for (char& c : text) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return text;
}

Verdict gradedFormula(const std::string& expected, const std::string& answer)
{
    if (answer == expected) {
        return {1, "Correct.\n"};
    }
    const bool close = capitals(answer) == capitals(expected);
    return {0, (close ? "Close; correct answer is " : "Incorrect; correct answer is ") + expected +
                   "\n"};
}

Verdict gradedSolubility(const Ion& cation, const Ion& anion, const std::string& answer)
{
    const std::string word = solubility(cation, anion);
    const std::string accepted = word == "soluble" ? "Yy" : word == "insoluble" ? "Nn" : " ";
    if (!answer.empty() && accepted.find(answer[0]) != std::string::npos) {
        return {1, "Correct.\n"};
    }
    return {0, "Incorrect; " + neutralCompound(cation, anion) + " is " +
                   (word.empty() ? "<an error occurred>" : word) + "\n"};
}

template <class Grader>
Verdict given(const Grader& grader)
{
    Verdict verdict{};
    verdict.line = outputOf([&] { verdict.points = grader(); });
    return verdict;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2) {
        return 0;
    }
    const Ion cation = ions()[data[0] % ions().size()];
    const Ion anion = ions()[data[1] % ions().size()];
    const std::string answer = textOf(data + 2, size - 2);

    require(given([&] { return getResponse(cation, anion, answer); }) ==
                gradedFormula(neutralCompound(cation, anion), answer),
            "the verdict on a compound's formula");
    require(given([&] { return anion.getResponse(answer); }) ==
                gradedFormula(charged(anion), answer),
            "the verdict on an ion's formula");
    require(given([&] { return getSolResponse(cation, anion, answer); }) ==
                gradedSolubility(cation, anion, answer),
            "the verdict on a solubility");
    require(ucase(answer) == capitals(answer), "the answer in capitals");
    return 0;
}
