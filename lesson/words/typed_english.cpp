#include "lesson/words/typed.hpp"

namespace lesson
{

namespace
{

// clang-format off
// ---- whether a compound dissolves
constexpr std::string_view yes[] = {"y", "yes", "yep", "yup", "yeah", "yea"};
constexpr std::string_view no[] = {"n", "no", "nope", "nah"};
constexpr std::string_view soluble[] = {
    "soluble", "dissolves", "dissolve", "dissolved", "dissolvable", "does", "do",
};
constexpr std::string_view insoluble[] = {
    "insoluble", "insol", "unsoluble", "indissoluble", "undissolved", "nonsoluble",
};
constexpr std::string_view negations[] = {
    "not", "non", "doesn't", "doesnt", "don't", "dont", "isn't", "isnt", "won't", "wont", "cannot",
    "can't", "cant", "wouldn't", "wouldnt",
};
constexpr std::string_view verbs[] = {
    "is", "isn't", "isnt", "does", "doesn't", "doesnt", "dissolves", "will", "won't", "cannot",
};
constexpr std::string_view opinions[] = {"think"};
constexpr std::string_view everyOne[] = {"all"};
constexpr std::string_view behindClass[] = {"are"};
constexpr std::string_view fillers[] = {
    "it", "it's", "its", "this", "that", "they", "the", "a", "an", "i", "think", "answer", "salt",
    "compound", "solid", "is", "are", "will", "would", "can", "in", "water", "so", "at", "all",
    "very", "well", "easily", "readily", "highly", "freely", "fully", "completely", "quite",
    "practically", "almost", "nearly", "only", "definitely", "always", "they're", "theyre",
};
constexpr std::string_view degrees[] = {
    "at", "all", "very", "well", "easily", "readily", "highly", "freely", "fully", "completely",
    "quite", "practically", "almost", "nearly", "only", "definitely", "always", "so", "a", "an",
};
constexpr std::string_view notQuite[] = {"almost", "nearly", "practically"};
constexpr std::string_view pronouns[] = {"it", "it's", "its", "this", "they", "they're", "theyre"};
constexpr std::string_view reasons[] = {"because", "since", "as"};
constexpr Spelling inTwo[] = {{"in", "soluble"}};

// ---- that nothing precipitates
constexpr std::string_view none[] = {
    "n", "no", "none", "nothing", "nil", "neither", "neither is insoluble", "neither precipitates",
    "nr", "n.r", "n/a", "-", "--",
};
constexpr std::string_view noneAlone[] = {"none", "nothing"};
constexpr std::string_view alternatives[] = {"or"};
constexpr std::string_view noSuch[] = {"no"};
constexpr std::string_view denials[] = {"no", "none", "nothing", "nil"};
constexpr std::string_view everything[] = {
    "both", "all", "everything", "they", "they're", "theyre",
};
constexpr std::string_view inSolution[] = {
    "soluble", "dissolved", "dissolve", "dissolves", "solution",
};
constexpr std::string_view aqueous[] = {"aq", "aqueous"};
constexpr std::string_view precipitating[] = {
    "precipitate", "precipitates", "precipitated", "precipitation", "ppt", "ppte", "ppts", "form",
    "forms", "formed", "react", "reaction", "rxn", "solid", "solids", "product", "products",
    "crystals", "change",
};
constexpr std::string_view nouns[] = {
    "precipitate", "precipitates", "precipitation", "ppt", "ppte", "ppts", "reaction", "rxn",
    "solid", "solids", "product", "products", "salt", "salts", "crystals", "change",
};
constexpr std::string_view adjectives[] = {"visible", "new", "insoluble"};
constexpr std::string_view betweenDenial[] = {
    "of", "them", "these", "the", "is", "are", "be", "product", "products", "salt", "salts", "stay",
    "stays", "remain", "remains", "in", "will", "would", "do", "does",
};
constexpr std::string_view aroundNone[] = {
    "there", "there's", "theres", "is", "it", "are", "be", "will", "would", "does", "do", "so",
    "a", "the", "of", "them", "these", "salt", "salts", "stay", "stays", "remain", "remains",
    "remaining", "in", "occurs", "happens", "takes", "place", "visible", "insoluble", "new", "out",
    "here", "at", "because", "since", "as", "produced", "made", "appear", "appears",
};
constexpr std::string_view exceptions[] = {"but", "except", "other", "apart"};
constexpr std::string_view usualNones[] = {
    "none", "no", "nothing", "no precipitate", "no ppt", "no solid", "no reaction",
    "no precipitate forms", "nothing forms", "there is no precipitate", "there is none",
    "no precipitate is formed", "none forms", "nothing precipitates", "none is formed", "-",
};

// ---- around the formula of a precipitate, each before its own end
constexpr std::string_view beforePrecipitate[] = {
    "the ", "a ", "it is ", "it's ", "there is ", "precipitate", "ppt", "solid ", "answer", "of ",
    "is ", ":", "=", " ",
};
constexpr std::string_view behindPrecipitate[] = {
    " precipitates out", " precipitates", " is the precipitate", " precipitate", " is formed",
    " formed", " forms", " form", " (ppt)", " ppt", " solid", " is insoluble", " is a", " as a", " a",
    " will", ".", " ",
};

// ---- names, states, units, equations
constexpr std::string_view shortNames[] = {"acid", "base", "salt", "zinc", "iron", "lead", "gas"};
constexpr std::string_view ionNouns[] = {"ion"};
constexpr std::string_view noSubstances[] = {"heat", "energy", "light", "enthalpy"};
constexpr Spelling states[] = {
    {"aq.", "aq"}, {"solid", "s"}, {"liquid", "l"}, {"gas", "g"}, {"aqueous", "aq"},
};
constexpr Spelling units[] = {
    {"per", "/"},
    {"mole", "mol"}, {"moles", "mol"}, {"mols", "mol"},
    {"millimole", "mmol"}, {"millimoles", "mmol"},
    {"molar", "mol/l"}, {"millimolar", "mmol/l"},
    {"litre", "l"}, {"litres", "l"}, {"liter", "l"}, {"liters", "l"},
    {"ltr", "l"}, {"ltrs", "l"},
    {"millilitre", "ml"}, {"millilitres", "ml"}, {"milliliter", "ml"}, {"milliliters", "ml"},
    {"centimetre", "cm"}, {"centimetres", "cm"}, {"centimeter", "cm"}, {"centimeters", "cm"},
    {"decimetre", "dm"}, {"decimetres", "dm"}, {"decimeter", "dm"}, {"decimeters", "dm"},
    {"mls", "ml"}, {"cc", "cm3"}, {"ccm", "cm3"},
    {"gram", "g"}, {"grams", "g"}, {"gramme", "g"}, {"grammes", "g"}, {"gm", "g"}, {"gms", "g"},
    {"gr", "g"},
    {"milligram", "mg"}, {"milligrams", "mg"}, {"kilogram", "kg"}, {"kilograms", "kg"},
};
constexpr Spelling equations[] = {
    {"to", "->"}, {"gives", "->"}, {"give", "->"}, {"yields", "->"}, {"yield", "->"},
    {"makes", "->"}, {"make", "->"}, {"forms", "->"}, {"form", "->"}, {"produces", "->"},
    {"equals", "->"}, {"becomes", "->"}, {"arrow", "->"},
    {"and", "+"}, {"plus", "+"},
};
// clang-format on

} // namespace

// Each at the place of its name.
const TypedWords typedEnglish = {
    yes,
    no,
    soluble,
    insoluble,
    negations,
    verbs,
    opinions,
    everyOne,
    behindClass,
    fillers,
    degrees,
    notQuite,
    pronouns,
    reasons,
    inTwo,
    none,
    noneAlone,
    alternatives,
    noSuch,
    denials,
    everything,
    inSolution,
    aqueous,
    precipitating,
    nouns,
    adjectives,
    betweenDenial,
    aroundNone,
    exceptions,
    usualNones,
    beforePrecipitate,
    behindPrecipitate,
    shortNames,
    ionNouns,
    noSubstances,
    states,
    units,
    equations,
};

} // namespace lesson
