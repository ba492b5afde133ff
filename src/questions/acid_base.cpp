#include "questions/acid_base.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "chem/balance.hpp"
#include "questions/text.hpp"

namespace
{

bool isBaseAnion(const Ion& candidate)
{
    constexpr std::string_view names[] = {"hydroxide", "carbonate", "oxide", "bicarbonate"};
    return std::find(std::begin(names), std::end(names), candidate.name) != std::end(names);
}

bool hasAcidName(const Ion& candidate)
{
    return !candidate.acidName.empty();
}

// A coefficient or a subscript as equations and formulas show it: a 1 is not written.
std::string unlessOne(int number)
{
    return number > 1 ? std::to_string(number) : "";
}

} // namespace

Neutralisation neutralisationOf(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    Neutralisation reaction;
    reaction.acidName = acidNameOf(acidAnion);
    reaction.acidFormula = acidFormulaOf(acidAnion);
    reaction.baseName = joined(baseCation.name, " ", baseAnion.name);
    reaction.baseFormula = makeFormula(baseCation, baseAnion);
    reaction.saltFormula = makeFormula(baseCation, acidAnion);
    reaction.acidAnion = std::move(acidAnion);
    reaction.baseCation = std::move(baseCation);
    reaction.baseAnion = std::move(baseAnion);
    return reaction;
}

Neutralisation drawNeutralisation()
{
    Ion acidAnion = drawAcidAnion();
    Ion baseCation = randomPos();
    Ion baseAnion = randomNegWhere(isBaseAnion);
    return neutralisationOf(std::move(acidAnion), std::move(baseCation), std::move(baseAnion));
}

Ion drawAcidAnion()
{
    return randomNegWhere(hasAcidName);
}

std::string acidNameOf(const Ion& acidAnion)
{
    return acidAnion.acidName + " acid";
}

std::string acidFormulaOf(const Ion& acidAnion)
{
    return joined("H", unlessOne(acidAnion.charge), acidAnion.formula);
}

std::string equationLine(const Neutralisation& reaction, std::string_view excuse)
{
    if (!balance(reaction.acidAnion, reaction.baseCation, reaction.baseAnion)) {
        return joined(excuse, "\n");
    }
    const std::string carbonDioxide = nCO2 > 0 ? joined(" + ", unlessOne(nCO2), "CO2") : "";
    return joined(unlessOne(nacid), reaction.acidFormula, " + ", unlessOne(nbase),
                  reaction.baseFormula, " -> ", unlessOne(nsalt), reaction.saltFormula, " + ",
                  unlessOne(nH2O), "H2O", carbonDioxide, "\n");
}
