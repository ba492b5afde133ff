#include "lesson/marking/spellings.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view ethanoate = "CH3COO";

// Chemists write it from either end.
constexpr std::string_view ethanoates[] = {ethanoate, "CH3CO2", "C2H3O2",   "H3CCOO", "H3CCO2",
                                           "OOCCH3",  "O2CCH3", "CH3C(O)O", "H3C2O2"};

std::string joined(std::string_view a, std::string_view b)
{
    return std::string(a).append(b);
}

std::string bracketed(std::string_view group)
{
    return joined("(", group) + ")";
}

// Of one ethanoate and what `partner` is, either of them first.
void addPaired(std::vector<std::string>& spellings, std::string_view partner)
{
    for (const std::string_view group : ethanoates) {
        spellings.push_back(joined(partner, group));
        spellings.push_back(joined(group, partner));
        spellings.push_back(joined(partner, bracketed(group)));
        spellings.push_back(joined(bracketed(group), partner));
    }
}

// Of several, `number` telling how many.
void addBracketed(std::vector<std::string>& spellings, std::string_view partner,
                  std::string_view number)
{
    for (const std::string_view group : ethanoates) {
        const std::string repeated = joined(bracketed(group), number);
        spellings.push_back(joined(partner, repeated));
        spellings.push_back(joined(repeated, partner));
    }
}

} // namespace

std::vector<std::string> spellingsOf(std::string_view formula)
{
    std::vector<std::string> spellings = {std::string(formula)};
    if (formula == "OH") {
        spellings.emplace_back("HO");
    }
    const std::size_t place = formula.find(ethanoate);
    if (place == std::string_view::npos) {
        return spellings;
    }
    const std::string_view before = formula.substr(0, place);
    const std::string_view behind = formula.substr(place + ethanoate.size());
    if (before.empty() && behind.empty()) {
        spellings.insert(spellings.end(), std::begin(ethanoates), std::end(ethanoates));
    } else if (before.empty()) {
        addPaired(spellings, behind);
        if (behind == "H") { // the acid
            spellings.emplace_back("C2H4O2");
        }
    } else if (behind.empty()) {
        addPaired(spellings, before);
    } else {
        addBracketed(spellings, before.substr(0, before.size() - 1), behind.substr(1));
    }
    return spellings;
}

} // namespace lesson
