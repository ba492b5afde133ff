#include "questions/acid_base.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "chem/balance.hpp"

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

} // namespace

Neutralisation neutralisationOf(Ion acidAnion, Ion baseCation, Ion baseAnion)
{
    Neutralisation reaction;
    reaction.acidName = acidNameOf(acidAnion);
    reaction.acidFormula = acidFormulaOf(acidAnion);
    reaction.baseName = baseCation.name + " " + baseAnion.name;
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
    Text formula;
    formula << "H" << Coefficient{acidAnion.charge} << acidAnion.formula;
    return std::move(formula.str);
}

void writeEquation(Text& text, const Neutralisation& reaction, std::string_view excuse)
{
    if (!balance(reaction.acidAnion, reaction.baseCation, reaction.baseAnion)) {
        text << excuse << "\n";
        return;
    }
    text << Coefficient{nacid} << reaction.acidFormula << " + " << Coefficient{nbase}
         << reaction.baseFormula << " -> " << Coefficient{nsalt} << reaction.saltFormula << " + "
         << Coefficient{nH2O} << "H2O";
    if (nCO2 > 0) {
        text << " + " << Coefficient{nCO2} << "CO2";
    }
    text << "\n";
}
