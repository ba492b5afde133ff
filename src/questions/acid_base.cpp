#include "questions/acid_base.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "chem/balance.hpp"

namespace
{

bool isBaseAnion(const Ion& candidate)
{
    constexpr std::string_view names[] = {"hydroxide", "carbonate", "oxide", "bicarbonate"};
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

} // namespace

Neutralisation neutralisationOf(const Ion& acidAnion, const Ion& baseCation, const Ion& baseAnion)
{
    Neutralisation reaction;
    reaction.acidAnion = acidAnion;
    reaction.baseCation = baseCation;
    reaction.baseAnion = baseAnion;
    reaction.acidName = acidNameOf(acidAnion);
    reaction.acidFormula = acidFormulaOf(acidAnion);
    reaction.baseName = baseCation.name + " " + baseAnion.name;
    reaction.baseFormula = makeFormula(baseCation, baseAnion);
    reaction.saltFormula = makeFormula(baseCation, acidAnion);
    return reaction;
}

Neutralisation drawNeutralisation()
{
    const Ion acidAnion = drawAcidAnion();
    const Ion baseCation = randomPos();
    const Ion baseAnion = drawBaseAnion();
    return neutralisationOf(acidAnion, baseCation, baseAnion);
}

Ion drawAcidAnion()
{
    Ion drawn;
    while (drawn.acidName.empty()) {
        drawn = randomNeg();
    }
    return drawn;
}

std::string acidNameOf(const Ion& acidAnion)
{
    return acidAnion.acidName + " acid";
}

std::string acidFormulaOf(const Ion& acidAnion)
{
    return "H" + unlessOne(acidAnion.charge) + acidAnion.formula;
}

void writeEquation(Text& text, const Neutralisation& reaction, std::string_view excuse)
{
    if (!balance(reaction.acidAnion, reaction.baseCation, reaction.baseAnion)) {
        text << excuse << "\n";
        return;
    }
    text << unlessOne(nacid) << reaction.acidFormula << " + " << unlessOne(nbase)
         << reaction.baseFormula << " -> " << unlessOne(nsalt) << reaction.saltFormula << " + "
         << unlessOne(nH2O) << "H2O";
    if (nCO2 > 0) {
        text << " + " << unlessOne(nCO2) << "CO2";
    }
    text << "\n";
}
