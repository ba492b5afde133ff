#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <variant>

#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/chemistry/solubility.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/shared/classified.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/kinds/shared/salts.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/paper/seeds.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

std::string formulaOf(const Pair& pair)
{
    return compoundFormula(*pair.cation, *pair.anion);
}

const SolubilityRule& ruleOf(const Pair& pair)
{
    return *ruleFor(*pair.anion);
}

int familyOf(const Pair& pair)
{
    return static_cast<int>(ruleOf(pair).family);
}

Spans verdictOn(const Pair& pair)
{
    return line(
        say(isSoluble(pair) ? Sentence::solubilityIsSoluble : Sentence::solubilityIsInsoluble,
            formula(formulaOf(pair))));
}

// What to ask of a pair before the rule is told.
Spans ruleHint(const Pair& pair)
{
    return line(
        say<Sentence::hintSolubilityRule>(nameOfFamily(*pair.anion), nameAlone(*pair.cation)));
}

Step ruleStep(const Pair& pair)
{
    return {line(sentenceOf(ruleOf(pair))), verdictOn(pair), ruleHint(pair)};
}

// ------------------------------------------------------------- levels 1 and 2: does it dissolve

// Level 1 has the pairs that follow their rule. Whether the answer is yes is drawn first, at level
// 2 together with whether the pair is an exception; then the rule, then the pair, by how common it
// is.
ClassKey classOf(const Pair& pair)
{
    const int group = (isSoluble(pair) ? 0 : 1) + (isException(pair) ? 2 : 0);
    return {group, familyOf(pair), weightOf(pair)};
}

Classified<Pair> pairsOf(bool withExceptions)
{
    std::vector<Pair> pairs;
    for (const Pair& pair : pairsForSolubility()) {
        if (withExceptions || !isException(pair)) {
            pairs.push_back(pair);
        }
    }
    return classified(pairs, classOf, allTheSame);
}

const Classified<Pair>& pairsOfLevel(int level)
{
    static const Classified<Pair> levels[] = {pairsOf(false), pairsOf(true)};
    return levels[level - 1];
}

Exercise oneCompound(const Place& place, const Pair& pair)
{
    Exercise exercise = {};
    exercise.place = place;
    exercise.prompt = line(say<Sentence::solubilityPrompt>(nameOf(*pair.cation, *pair.anion),
                                                           formula(formulaOf(pair))));
    exercise.ask.form = Form::solubility;
    exercise.ask.choices = {Sentence::answerYes, Sentence::answerNo};
    exercise.given = {GivenIon{pair.cation}, GivenIon{pair.anion}};
    exercise.key = {say(isSoluble(pair) ? Sentence::answerYes : Sentence::answerNo)};
    exercise.answer = SolubilityAnswer{isSoluble(pair), line(sentenceOf(ruleOf(pair)))};
    exercise.solution = {
        {line(say<Sentence::saltIons>(nameOf(*pair.cation, *pair.anion))),
         line(spanOf(*pair.cation), ", ", spanOf(*pair.anion)),
         line(say<Sentence::hintSolubilityIons>())},
        ruleStep(pair),
    };
    return exercise;
}

// ---------------------------------------------------------------- level 3: mixing two solutions

// Two salts in solution, and the pairs that they could exchange their ions to. At most the first
// of these is insoluble.
struct Mixture {
    Pair salts[2];
    Pair exchanged[2];
};

bool isAsked(const Pair& pair)
{
    return !whySolubilityIsNotAsked(pair);
}

bool hasPrecipitate(const Mixture& mixture)
{
    return !isSoluble(mixture.exchanged[0]);
}

bool isAlwaysSoluble(const IonRow& cation)
{
    constexpr IonSet ofSolubleSaltsOnly = {Ion::sodium, Ion::potassium, Ion::ammonium};
    return ofSolubleSaltsOnly.has(cation.id);
}

// With a precipitate the class is its rule. Without one it is how many of the cations have soluble
// salts only, so that such salts do not tell the answer.
ClassKey classOf(const Mixture& mixture)
{
    const int weight = std::min(weightOf(mixture.salts[0]), weightOf(mixture.salts[1]));
    if (hasPrecipitate(mixture)) {
        return {0, familyOf(mixture.exchanged[0]), weight};
    }
    const auto count =
        std::count_if(std::begin(mixture.salts), std::end(mixture.salts),
                      [](const Pair& salt) { return isAlwaysSoluble(*salt.cation); });
    return {1, static_cast<int>(count), weight};
}

std::vector<Pair> solublePairs()
{
    std::vector<Pair> pairs;
    std::copy_if(pairsForSolubility().begin(), pairsForSolubility().end(),
                 std::back_inserter(pairs), isSoluble);
    return pairs;
}

void addMixture(std::vector<Mixture>& mixtures, const Pair& a, const Pair& b)
{
    if (a.cation == b.cation || a.anion == b.anion) {
        return;
    }
    Mixture mixture = {{a, b}, {{a.cation, b.anion}, {b.cation, a.anion}}};
    if (!isAsked(mixture.exchanged[0]) || !isAsked(mixture.exchanged[1])) {
        return;
    }
    if (isSoluble(mixture.exchanged[0])) {
        std::swap(mixture.exchanged[0], mixture.exchanged[1]);
    }
    if (isSoluble(mixture.exchanged[1])) {
        mixtures.push_back(mixture);
    }
}

Classified<Mixture> makeMixtures()
{
    const std::vector<Pair> salts = solublePairs();
    std::vector<Mixture> mixtures;
    for (std::size_t i = 0; i < salts.size(); ++i) {
        for (std::size_t j = i + 1; j < salts.size(); ++j) {
            addMixture(mixtures, salts[i], salts[j]);
        }
    }
    return classified(
        mixtures, [](const Mixture& mixture) { return classOf(mixture); }, allTheSame);
}

const Classified<Mixture>& allMixtures()
{
    static const Classified<Mixture> mixtures = makeMixtures();
    return mixtures;
}

// What tells which of the new pairs dissolve.
Spans rulesFor(const Mixture& mixture)
{
    const Span first = sentenceOf(ruleOf(mixture.exchanged[0]));
    return hasPrecipitate(mixture) ? line(first)
                                   : line(first, " ", sentenceOf(ruleOf(mixture.exchanged[1])));
}

std::vector<Step> workedSolution(const Mixture& mixture)
{
    const auto& [a, b] = mixture.salts;
    const auto& [first, second] = mixture.exchanged;
    std::vector<Step> steps = {
        {line(say<Sentence::solubilityIonsTogether>()),
         line(spanOf(*a.cation), ", ", spanOf(*a.anion), ", ", spanOf(*b.cation), ", ",
              spanOf(*b.anion)),
         line(say<Sentence::hintSolubilityIonsTogether>())},
        {line(say<Sentence::solubilityPartners>()),
         line(formula(formulaOf(first)), ", ", formula(formulaOf(second))),
         line(say<Sentence::hintSolubilityPartners>())},
        ruleStep(second),
        ruleStep(first),
    };
    const Spans hint = line(say<Sentence::hintSolubilityPrecipitate>());
    if (hasPrecipitate(mixture)) {
        steps.push_back(
            {line(say<Sentence::solubilityPrecipitate>()), line(formula(formulaOf(first))), hint});
    } else {
        steps.push_back({line(say<Sentence::solubilityNoPrecipitate>()),
                         line(say<Sentence::answerNone>()), hint});
    }
    return steps;
}

void addSlips(Exercise& exercise, const Mixture& mixture)
{
    const Pair& precipitate = mixture.exchanged[0];
    const std::vector<std::string> right =
        hasPrecipitate(mixture) ? spellingsOf(*precipitate.cation, *precipitate.anion)
                                : std::vector<std::string>();
    for (const Pair& pair : mixture.exchanged) {
        addSlip(exercise, right, formulaOf(pair),
                line(say<Sentence::slipSolubilityStaysDissolved>(), " ", sentenceOf(ruleOf(pair))));
    }
    for (const Pair& pair : mixture.salts) {
        addSlip(exercise, right, formulaOf(pair), say<Sentence::slipSolubilityWasDissolved>());
    }
}

Exercise twoSolutions(const Place& place, const Mixture& mixture)
{
    const Pair& precipitate = mixture.exchanged[0];
    const auto& [a, b] = mixture.salts;
    Exercise exercise = {};
    exercise.place = place;
    exercise.prompt = line(say<Sentence::solubilityOfTwoSolutions>(nameOf(*a.cation, *a.anion),
                                                                   nameOf(*b.cation, *b.anion)));
    exercise.ask.form = Form::solubility;
    exercise.given = {GivenIon{a.cation}, GivenIon{a.anion}, GivenIon{b.cation}, GivenIon{b.anion}};
    exercise.key = {hasPrecipitate(mixture) ? formula(formulaOf(precipitate))
                                            : say<Sentence::answerNone>()};
    exercise.answer =
        PrecipitateAnswer{hasPrecipitate(mixture) ? precipitate.cation : nullptr,
                          hasPrecipitate(mixture) ? precipitate.anion : nullptr, rulesFor(mixture)};
    exercise.solution = workedSolution(mixture);
    addSlips(exercise, mixture);
    return exercise;
}

// ---------------------------------------------------------------------- draw, write, read, make

// A compound, or two solutions.
using Asked = std::variant<Pair, Mixture>;

Mixture drawMixture(const Place& place)
{
    Mixture mixture = memberFor(place, allMixtures());
    if (drawsFor(place).below(2) == 1) {
        std::swap(mixture.salts[0], mixture.salts[1]);
    }
    return mixture;
}

Asked draw(const Place& place)
{
    return place.level == 3 ? Asked(drawMixture(place))
                            : Asked(memberFor(place, pairsOfLevel(place.level)));
}

Description write(const Asked& asked)
{
    if (const Pair* const pair = std::get_if<Pair>(&asked)) {
        return describedPair(*pair);
    }
    const auto& [a, b] = std::get<Mixture>(asked).salts;
    return Description()
        .with("cation1", describedIon(*a.cation))
        .with("anion1", describedIon(*a.anion))
        .with("cation2", describedIon(*b.cation))
        .with("anion2", describedIon(*b.anion));
}

Mixture mixtureFrom(FieldReader& fields)
{
    const Pair a = pairFrom(fields, "cation1", "anion1", pairsForSolubility());
    const Pair b = pairFrom(fields, "cation2", "anion2", pairsForSolubility());
    for (Mixture mixture : allMixtures().members) {
        const auto& [first, second] = mixture.salts;
        if (first == b && second == a) {
            std::swap(mixture.salts[0], mixture.salts[1]);
        }
        if (first == a && second == b) {
            return mixture;
        }
    }
    fields.fail(say<Sentence::errorMixture>(formula(formulaOf(a)), formula(formulaOf(b))));
    return allMixtures().members.front();
}

Asked read(FieldReader& fields)
{
    return fields.has("cation1") ? Asked(mixtureFrom(fields))
                                 : Asked(pairFrom(fields, "cation", "anion", pairsForSolubility()));
}

int levelOf(const Asked& asked)
{
    const Pair* const pair = std::get_if<Pair>(&asked);
    return pair == nullptr ? 3 : isException(*pair) ? 2 : 1;
}

Exercise make(const Place& place, const Asked& asked)
{
    const Pair* const pair = std::get_if<Pair>(&asked);
    return pair == nullptr ? twoSolutions(place, std::get<Mixture>(asked))
                           : oneCompound(place, *pair);
}

} // namespace

const Kind solubilityKind = {
    3,
    1,
    "solubility",
    Sentence::solubilityTitle,
    {Sentence::solubilityLevel1, Sentence::solubilityLevel2, Sentence::solubilityLevel3},
    true,
    drawnExercise<draw, write, levelOf, make>,
    describedExercise<read, write, levelOf, make>,
};

} // namespace lesson
