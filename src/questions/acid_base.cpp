#include "questions/acid_base.hpp"

#include <algorithm>
#include <iterator>

#include "chem/balance.hpp"

namespace
{

bool isBaseAnion(const Ion& candidate)
{
    const char* const names[] = {"hydroxide", "carbonate", "oxide", "bicarbonate"};
    return std::find(std::begin(names), std::end(names), candidate.name) != std::end(names);
}

Ion drawBaseAnion()
{
    Ion drawn;
    while (!isBaseAnion(drawn)) {
        drawn = randomNeg();
    }
    return drawn;
}

// A number as formulas and equations show it: a 1 is not written.
std::string unlessOne(int number)
{
    return number > 1 ? std::to_string(number) : "";
}

std::string term(int coefficient, const std::string& formula)
{
    return unlessOne(coefficient) + formula;
}

} // namespace

Ion drawAcidAnion()
{
    Ion drawn;
    while (drawn.acidName.empty()) {
        drawn = randomNeg();
    }
    return drawn;
}

AcidAndBase drawAcidAndBase()
{
    AcidAndBase pair;
    pair.acidAnion = drawAcidAnion();
    pair.baseCation = randomPos();
    pair.baseAnion = drawBaseAnion();
    return pair;
}

std::string acidName(const Ion& acidAnion)
{
    return acidAnion.acidName + " acid";
}

std::string acidFormula(const Ion& acidAnion)
{
    return "H" + unlessOne(acidAnion.charge) + acidAnion.formula;
}

std::string baseName(const AcidAndBase& pair)
{
    return pair.baseCation.name + " " + pair.baseAnion.name;
}

std::string baseFormula(const AcidAndBase& pair)
{
    return makeFormula(pair.baseCation, pair.baseAnion);
}

std::string equationLine(const AcidAndBase& pair, const std::string& excuse)
{
    if (!balance(pair.acidAnion, pair.baseCation, pair.baseAnion)) {
        return excuse + "\n";
    }
    const std::string saltFormula = makeFormula(pair.baseCation, pair.acidAnion);
    std::string line = term(nacid, acidFormula(pair.acidAnion)) + " + " +
                       term(nbase, baseFormula(pair)) + " -> " + term(nsalt, saltFormula) + " + " +
                       term(nH2O, "H2O");
    if (nCO2 > 0) {
        line += " + " + term(nCO2, "CO2");
    }
    return line + "\n";
}
