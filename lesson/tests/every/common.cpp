#include "lesson/tests/every/common.hpp"

#include <algorithm>
#include <map>
#include <numeric>
#include <vector>

namespace
{

using Measure = std::pair<std::string, std::string>;

// How many of the unit behind `shown` make one of that of `value`.
Exact unitRatio(const std::string& shownUnit, const std::string& unit)
{
    return shownUnit == "mL" && unit == "L" ? Exact(1, 1000) : Exact(1);
}

// The numbers that the prompt may tell: those of the given quantities, titres one by one.
std::vector<Measure> givenMeasures(Problems& problems, const Json& exercise)
{
    std::vector<Measure> measures;
    for (const Json& given : exercise["given"]) {
        if (!given.contains("quantity")) {
            continue;
        }
        if (given.contains("titres")) {
            for (const Json& titre : given["titres"]) {
                measures.emplace_back(titre.get<std::string>(), "mL");
            }
        }
        if (isTold(given)) {
            const std::string shown = given["shown"];
            const std::string shownUnit = given["shownUnit"];
            const std::string unit = given["unit"];
            problems.expect(shownUnit == unit || (shownUnit == "mL" && unit == "L"),
                            "units are those of the table or millilitres", shownUnit + " " + unit);
            problems.expect(Exact::read(shown) * unitRatio(shownUnit, unit) == valueOf(given),
                            "a given value is what the prompt shows", given.dump());
            measures.emplace_back(shown, shownUnit);
        }
    }
    return measures;
}

bool isAmong(const std::vector<Measure>& measures, const Measure& measure)
{
    return std::find(measures.begin(), measures.end(), measure) != measures.end();
}

void checkPrompt(Problems& problems, const Json& exercise)
{
    const std::vector<Measure> given = givenMeasures(problems, exercise);
    const std::vector<Measure> told = measuresIn(exercise["prompt"]);
    const std::string prompt = textOf(exercise["prompt"]);
    for (const Measure& measure : told) {
        problems.expect(isAmong(given, measure), "every number in the prompt is among the given",
                        measure.first + " " + measure.second + " in " + prompt);
    }
    for (const Measure& measure : given) {
        problems.expect(isAmong(told, measure), "what is given as shown is in the prompt",
                        measure.first + " " + measure.second + " in " + prompt);
    }
    for (const Json& span : exercise["prompt"]) {
        problems.expect(!span.contains("text") || span["text"].get<std::string>().find_first_of(
                                                      "0123456789") == std::string::npos,
                        "the words of a prompt hold no numbers", prompt);
    }
}

void gatherFormulas(const Json& spans, std::vector<std::string>& formulas)
{
    for (const Json& span : spans) {
        if (span.contains("formula")) {
            formulas.push_back(span["formula"]);
        }
        if (span.contains("fraction")) {
            gatherFormulas(span["fraction"][0], formulas);
            gatherFormulas(span["fraction"][1], formulas);
        }
    }
}

bool isTidy(const std::string& words)
{
    return !words.empty() && words.find("  ") == std::string::npos;
}

// A typesetter gets no empty pieces, and words in one piece with one blank between them.
bool isInPieces(const Json& spans)
{
    bool isBehindText = false;
    for (const Json& span : spans) {
        const bool isText = span.contains("text");
        if (isText && (isBehindText || !isTidy(span["text"]))) {
            return false;
        }
        if (span.contains("fraction") &&
            !(isInPieces(span["fraction"][0]) && isInPieces(span["fraction"][1]))) {
            return false;
        }
        isBehindText = isText;
    }
    return true;
}

// What the tables leave out is not shown either.
void checkFormulas(Problems& problems, const Json& exercise)
{
    const auto& leftOut =
        exercise["kind"] == "solubility" ? formulasWithoutSolubility() : formulasLeftOut();
    std::vector<std::string> formulas = {exercise["key"]["text"]};
    gatherFormulas(exercise["prompt"], formulas);
    for (const Json& step : exercise["solution"]) {
        gatherFormulas(step["say"], formulas);
        gatherFormulas(step["math"], formulas);
    }
    for (const std::string& formula : formulas) {
        problems.expect(leftOut.count(formula) == 0, "nothing that is not asked appears", formula);
    }
}

// The last line of mathematics; for equations, the last one with an arrow, for the atoms are
// counted behind it.
std::string lastMathematics(const Json& exercise)
{
    const bool isEquation = exercise["ask"]["form"] == "equation";
    const Json& steps = exercise["solution"];
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        const std::string line = textOf((*step)["math"]);
        if (isEquation ? line.find("→") != std::string::npos : !line.empty()) {
            return line;
        }
    }
    return "";
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::string keyInMathematics(const Json& exercise)
{
    std::string key = exercise["key"]["text"];
    const std::size_t arrow = key.find("->");
    return arrow == std::string::npos ? key : key.replace(arrow, 2, "→");
}

void checkSteps(Problems& problems, const Json& exercise)
{
    const std::string form = exercise["ask"]["form"];
    const std::string last = lastMathematics(exercise);
    if (form != "solubility") {
        problems.expect(endsWith(last, keyInMathematics(exercise)),
                        "the last step of the solution shows the key",
                        last + " for " + keyInMathematics(exercise));
    }
    const char* const inPieces = "words come in one piece, and none is empty";
    problems.expect(isInPieces(exercise["prompt"]), inPieces, "the prompt");
    for (const Json& step : exercise["solution"]) {
        problems.expect(!step["say"].empty(), "each step says something", last);
        problems.expect(isInPieces(step["say"]) && isInPieces(step["math"]), inPieces, last);
    }
}

// Each of its slips is told by its own sentence, too; on so many papers, as that takes long.
void checkSlips(Problems& problems, const Json& exercise, const std::string& kind, unsigned paper,
                unsigned number)
{
    constexpr unsigned papersMarked = 1000;
    std::vector<std::string> texts;
    for (const Json& slip : exercise["slips"]) {
        const std::string text = slip["text"];
        problems.expect(!slip["sentence"].empty() && isInPieces(slip["sentence"]),
                        "each slip has a sentence, in pieces", slip.dump());
        problems.expect(text != exercise["key"]["text"], "no slip is the key", text);
        problems.expect(std::find(texts.begin(), texts.end(), text) == texts.end(),
                        "no slip comes twice", text);
        texts.push_back(text);
        if (paper <= papersMarked) {
            const Json mark = markOn(kind, paper, number, text);
            problems.expect(mark["verdict"] == "slip" && mark["sentence"] == slip["sentence"],
                            "a slip gets its sentence", slip.dump() + ": " + mark.dump());
        }
    }
}

using Side = std::vector<std::pair<int, std::string>>;

Side sideOf(const Json& species)
{
    Side side;
    for (const Json& one : species) {
        side.emplace_back(std::stoi(one[0].get<std::string>()), one[1]);
    }
    return side;
}

std::map<std::string, int> atomsOf(const Side& side)
{
    std::map<std::string, int> atoms;
    for (const auto& [coefficient, formula] : side) {
        for (const auto& [symbol, count] : atomsIn(formula)) {
            atoms[symbol] += coefficient * count;
        }
    }
    return atoms;
}

// "2HCl + Na2CO3"
std::string typed(const Side& side)
{
    std::string text;
    for (const auto& [coefficient, formula] : side) {
        text += text.empty() ? "" : " + ";
        text += (coefficient == 1 ? "" : std::to_string(coefficient)) + formula;
    }
    return text;
}

std::vector<std::string> formulasOf(const Side& side)
{
    std::vector<std::string> formulas;
    for (const auto& species : side) {
        formulas.push_back(species.second);
    }
    return formulas;
}

std::vector<std::string> productsOf(const TypedReaction& reaction)
{
    std::vector<std::string> products = {reaction.salt};
    if (reaction.givesWater) {
        products.emplace_back("H2O");
    }
    if (reaction.givesCarbonDioxide) {
        products.emplace_back("CO2");
    }
    return products;
}

} // namespace

void checkEquation(Problems& problems, const Json& exercise, const TypedReactions& reactions)
{
    const Side left = sideOf(exercise["equation"]["left"]);
    const Side right = sideOf(exercise["equation"]["right"]);
    const std::string equation = typed(left) + " -> " + typed(right);
    problems.expect(atomsOf(left) == atomsOf(right), "an equation conserves every atom", equation);
    int divisor = 0;
    for (const Side* side : {&left, &right}) {
        for (const auto& species : *side) {
            divisor = std::gcd(divisor, species.first);
            problems.expect(species.first > 0, "coefficients are above 0", equation);
        }
    }
    problems.expect(divisor == 1, "an equation is in lowest terms", equation);

    const auto found =
        left.size() == 2 ? reactions.find({left[0].second, left[1].second}) : reactions.end();
    problems.expect(found != reactions.end(), "acid and base are among those asked", equation);
    if (found != reactions.end()) {
        const TypedReaction& reaction = found->second;
        problems.expect(left[0].first == reaction.ofAcid && left[1].first == reaction.ofBase,
                        "acid and base react as their protons tell", equation);
        problems.expect(formulasOf(right) == productsOf(reaction),
                        "the products are the salt, water and carbon dioxide", equation);
    }
    if (exercise["ask"]["form"] == "equation") {
        problems.expect(exercise["key"]["text"] == equation, "the key is the equation", equation);
    }
}

std::string kindAt(const std::string& slug, int level)
{
    return slug + ":" + std::to_string(level);
}

const Json* givenQuantity(const Json& exercise, const std::string& symbol, const std::string& of)
{
    for (const Json& given : exercise["given"]) {
        if (given.contains("quantity") && given["quantity"] == symbol &&
            (of.empty() || given["of"] == of)) {
            return &given;
        }
    }
    return nullptr;
}

bool isTold(const Json& quantity)
{
    return !quantity["shown"].get<std::string>().empty();
}

Exact valueOf(const Json& quantity)
{
    return Exact::read(quantity["value"]);
}

Exact volumeOf(const Json& quantity)
{
    if (!quantity.contains("titres")) {
        return valueOf(quantity);
    }
    Exact sum;
    for (std::size_t i = 1; i < quantity["titres"].size(); ++i) {
        sum = sum + Exact::read(quantity["titres"][i]);
    }
    return sum / Exact(static_cast<std::int64_t>(quantity["titres"].size() - 1)) / 1000;
}

void checkWhatIsShown(Problems& problems, const Json& exercise, const std::string& kind,
                      unsigned paper, unsigned number)
{
    problems.at(kind, paper, number);
    const std::string drawn =
        exercise["kind"].get<std::string>() + ":" + exercise["level"].get<std::string>();
    problems.expect(drawn == kind, "an exercise tells its kind and level", drawn);
    problems.expect(exercise["paper"] == std::to_string(paper) &&
                        exercise["number"] == std::to_string(number),
                    "an exercise tells its place", exercise["number"]);
    checkPrompt(problems, exercise);
    checkFormulas(problems, exercise);
    checkSteps(problems, exercise);
    checkSlips(problems, exercise, kind, paper, number);
    problems.expect(verdictOn(kind, paper, number, exercise["key"]["text"]) == "correct",
                    "the key is marked correct", exercise["key"]["text"]);
}

bool passesFor(const Exact& typed, const Exact& value, int figures, bool isMolarMass)
{
    const Exact rounded = value.toFigures(figures);
    const Exact unit = rounded.lastPlace(figures);
    return (typed - rounded).magnitude() <= unit ||
           (!isMolarMass && (typed - value).magnitude() <= value / 200);
}

void checkNumber(Problems& problems, const Json& exercise, const Exact& key)
{
    const Json& ask = exercise["ask"];
    const int figures = std::stoi(ask["figures"].get<std::string>());
    const std::string unit = ask["unit"];
    const bool isMolarMass = ask["quantity"] == "M";
    problems.expect(figures == (isMolarMass ? 4 : 3), "three figures, four of a molar mass",
                    ask.dump());

    const std::string value = exercise["key"]["value"];
    problems.expect(Exact::read(value) == key ||
                        (figuresOf(value) >= 9 && Exact::read(value) == key.toFigures(12)),
                    "the key is that of the exact calculation", value + " for " + key.text());

    const std::string text = exercise["key"]["text"];
    const std::string typed = text.substr(0, text.find(' '));
    problems.expect(text == typed + " " + unit && Exact::read(typed) == key.toFigures(figures),
                    "the key's text is its value, rounded, in the asked unit", text);
    for (const Json& slip : exercise["slips"]) {
        const std::string wrong = slip["text"].get<std::string>();
        const std::string wrongNumber = wrong.substr(0, wrong.find(' '));
        problems.expect(wrong == wrongNumber + " " + unit &&
                            Exact::read(wrongNumber) ==
                                Exact::read(slip["value"]).toFigures(figures),
                        "a slip's text is its value, rounded, in the asked unit", wrong);
        problems.expect(!passesFor(Exact::read(wrongNumber), key, figures, isMolarMass),
                        "no slip agrees with the key", wrong + " for " + text);
    }
}
