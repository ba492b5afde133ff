#include <cstddef>
#include <cstdlib>
#include <numeric>
#include <string>
#include <utility>

#include "lesson/chemistry/pairs_not_asked.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/shared/classified.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/kinds/shared/salts.hpp"
#include "lesson/marking/confusions.hpp"
#include "lesson/marking/formula.hpp"
#include "lesson/marking/ions_within.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// ---------------------------------------------------------------------------------- the draw

int levelOf(const Pair& pair)
{
    if (hasRomanNumeral(*pair.cation)) {
        return 3;
    }
    return pair.cation->isGroup || pair.anion->isGroup ? 2 : 1;
}

// The ratio of the ions is drawn first, then their charges, then the pair: else half of the
// formulas would be of one ion each. A ratio or charges that only rare compounds have come rarely.
ClassKey classOf(const Pair& pair)
{
    const int positive = cationsIn(*pair.cation, *pair.anion);
    const int negative = anionsIn(*pair.cation, *pair.anion);
    return {positive * 10 + negative, pair.cation->charge * 10 - pair.anion->charge,
            weightOf(pair)};
}

Classified<Pair> pairsOf(int level)
{
    std::vector<Pair> pairs;
    for (const Pair& pair : pairsForFormulas()) {
        if (levelOf(pair) == level) {
            pairs.push_back(pair);
        }
    }
    constexpr int enough = 200; // five or six common compounds
    return classified(pairs, classOf, enough);
}

const Classified<Pair>& pairsOfLevel(int level)
{
    static const Classified<Pair> levels[] = {pairsOf(1), pairsOf(2), pairsOf(3)};
    return levels[level - 1];
}

// ------------------------------------------------------------------------------ the solution

// "2(+3)", "(−2)"
std::string chargeTerm(int times, int charge)
{
    const std::string sign = charge < 0 ? "−" : "+";
    const std::string inBrackets = "(" + sign + std::to_string(std::abs(charge)) + ")";
    return times == 1 ? inBrackets : std::to_string(times) + inBrackets;
}

Spans ionsSentence(const IonRow& cation, const IonRow& anion)
{
    const Span ions = say<Sentence::saltIons>(nameOf(cation, anion));
    return hasRomanNumeral(cation) ? line(ions, " ", say<Sentence::markChargeOfMetal>())
                                   : line(ions);
}

Spans ionsHint(const IonRow& cation)
{
    return line(say<Sentence::hintCompoundFormulaName>(), " ",
                say(hasRomanNumeral(cation) ? Sentence::hintCompoundFormulaRomanNumeral
                                            : Sentence::hintCompoundFormulaCharges));
}

Sentence lastSentence(bool hasBracket, bool isOneEach)
{
    if (hasBracket) {
        return Sentence::markBracketForGroups;
    }
    return isOneEach ? Sentence::compoundFormulaNoCharges : Sentence::compoundFormulaSmallNumbers;
}

std::vector<Step> workedSolution(const IonRow& cation, const IonRow& anion)
{
    const int positive = cationsIn(cation, anion);
    const int negative = anionsIn(cation, anion);
    const bool isOneEach = positive == 1 && negative == 1;
    const bool hasBracket = repeatsGroup(cation, anion);
    return {
        {ionsSentence(cation, anion), line(spanOf(cation), ", ", spanOf(anion)), ionsHint(cation)},
        {line(say(isOneEach ? Sentence::compoundFormulaOneOfEach
                            : Sentence::compoundFormulaFewestIons)),
         line(chargeTerm(positive, cation.charge) + " + " + chargeTerm(negative, anion.charge) +
              " = 0"),
         line(say<Sentence::hintCompoundFormulaHowMany>())},
        {line(say(lastSentence(hasBracket, isOneEach))),
         line(formula(compoundFormula(cation, anion))),
         line(say(hasBracket ? Sentence::hintCompoundFormulaBracket
                             : Sentence::hintCompoundFormulaOrder))},
    };
}

// --------------------------------------------------------------------------------- the slips

// A part of a formula as a learner may write it.
struct Part {
    std::string ion;
    bool isGroup;
    int times;
};

std::string written(const Part& part)
{
    if (part.times == 1) {
        return part.ion;
    }
    return (part.isGroup ? "(" + part.ion + ")" : part.ion) + std::to_string(part.times);
}

// The slips of one exercise, kind by kind.
class Slips
{
public:
    Slips(Exercise& target, const IonRow& positive, const IonRow& negative)
        : exercise(target), cation(positive), anion(negative),
          right(spellingsOf(positive, negative)), first{std::string(cation.formula), cation.isGroup,
                                                        cationsIn(cation, anion)},
          second{std::string(anion.formula), anion.isGroup, anionsIn(cation, anion)}
    {
    }

    void addAll()
    {
        addRomanNumeral();
        addBracket();
        addCharges();
        addOtherAnions();
        addOtherCations();
        addSymbols();
        addChargesLeftIn();
        addOxygens();
    }

private:
    void add(const Part& one, const Part& other, const Span& sentence)
    {
        addSlip(exercise, right, written(one) + written(other), sentence);
    }

    void addTimes(int positive, int negative, const Span& sentence)
    {
        add({first.ion, first.isGroup, positive}, {second.ion, second.isGroup, negative}, sentence);
    }

    void addRomanNumeral()
    {
        if (!hasRomanNumeral(cation)) {
            return;
        }
        constexpr int greatest = 7;
        for (int charge = 1; charge <= greatest; ++charge) {
            if (hasOtherCharge(cation, charge)) {
                addCharge(charge, say<Sentence::markChargeOfMetal>());
            }
        }
        addTimes(cation.charge, 1, say<Sentence::markRomanNumeral>());
        if (second.times > 1) {
            addTimes(cation.charge, second.times, say<Sentence::markRomanNumeral>());
        }
    }

    // As if the cation had another charge.
    void addCharge(int charge, const Span& sentence)
    {
        const int common = std::gcd(charge, anion.charge);
        addTimes(-anion.charge / common, charge / common, sentence);
    }

    void addBracket()
    {
        add({first.ion, false, first.times}, {second.ion, false, second.times},
            say<Sentence::markBracketMissing>());
        if (anion.isGroup && second.times == 1) {
            addSlip(exercise, right, written(first) + "(" + second.ion + ")",
                    say<Sentence::markBracketNotNeeded>());
        }
    }

    void addCharges()
    {
        if (first.times == 1 && second.times == 1) {
            addTimes(cation.charge, cation.charge, say<Sentence::markSimplify>());
            return;
        }
        addTimes(1, 1, say<Sentence::markChargesDoNotCancel>());
        addTimes(second.times, first.times, say<Sentence::markChargesDoNotCancel>());
    }

    void addOtherAnions()
    {
        for (const Confusion* const other : confusionsOf(anion)) {
            const int common = std::gcd(cation.charge, other->charge);
            add({first.ion, first.isGroup, -other->charge / common},
                {std::string(other->formula), other->isGroup, cation.charge / common},
                say(other->sentence));
        }
    }

    void addOtherCations()
    {
        for (const Confusion* const other : confusionsOf(cation)) {
            add({std::string(other->formula), other->isGroup, first.times}, second,
                say(other->sentence));
        }
    }

    void addSymbols()
    {
        for (const std::string_view symbol : wrongSymbolsOf(cation)) {
            add({std::string(symbol), false, first.times}, second,
                say<Sentence::markCheckSymbol>(formula(symbol)));
        }
        for (const std::string_view symbol : wrongSymbolsOf(anion)) {
            add(first, {std::string(symbol), false, second.times},
                say<Sentence::markCheckSymbol>(formula(symbol)));
        }
    }

    void addChargesLeftIn()
    {
        add({first.ion + "^" + chargeText(cation), true, first.times},
            {second.ion + "^" + chargeText(anion), true, second.times},
            say<Sentence::markChargesLeftIn>());
    }

    void addOxygens()
    {
        for (const int more : {-1, 1}) {
            const std::string other = withOxygens(anion, more);
            if (!other.empty()) {
                add(first, {other, true, second.times}, say<Sentence::markOxygens>());
            }
        }
    }

    Exercise& exercise;
    const IonRow& cation;
    const IonRow& anion;
    std::vector<std::string> right;
    Part first;
    Part second;
};

// ---------------------------------------------------------------------- draw, write, read, make

const Pair& draw(const Place& place)
{
    return memberFor(place, pairsOfLevel(place.level));
}

Description write(const Pair& pair)
{
    return describedPair(pair);
}

Pair read(FieldReader& fields)
{
    return pairFrom(fields, "cation", "anion", pairsForFormulas());
}

Exercise make(const Place& place, const Pair& pair)
{
    const IonRow& cation = *pair.cation;
    const IonRow& anion = *pair.anion;
    Exercise exercise = {};
    exercise.place = place;
    exercise.prompt = line(say<Sentence::compoundFormulaPrompt>(nameOf(cation, anion)));
    exercise.ask.form = Form::formula;
    exercise.given = {GivenIon{&cation}, GivenIon{&anion}};
    exercise.key = {formula(compoundFormula(cation, anion))};
    exercise.answer = FormulaAnswer{&cation, &anion};
    exercise.solution = workedSolution(cation, anion);
    Slips(exercise, cation, anion).addAll();
    return exercise;
}

} // namespace

const Kind compoundFormulaKind = {
    1,
    1,
    "compound-formula",
    Sentence::compoundFormulaTitle,
    {Sentence::compoundFormulaLevel1, Sentence::compoundFormulaLevel2,
     Sentence::compoundFormulaLevel3},
    true,
    drawnExercise<draw, write, levelOf, make>,
    describedExercise<read, write, levelOf, make>,
};

} // namespace lesson
