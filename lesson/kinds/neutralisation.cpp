#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lesson/chemistry/composition.hpp"
#include "lesson/chemistry/elements.hpp"
#include "lesson/chemistry/neutralisation.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/kinds/shared/classified.hpp"
#include "lesson/kinds/shared/record.hpp"
#include "lesson/kinds/shared/salts.hpp"
#include "lesson/marking/equation.hpp"
#include "lesson/text/quotable.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

// ---- The pool

// Acids, their bases, and the cations of these. What every class does, the acid on limestone, is
// commoner than its ions tell.
//
// Left out is what does not neutralise plainly: silver and lead, whose chlorides, bromides and
// sulfates coat the solid, as calcium and barium sulfate do; chromium(III) oxide, which acids leave
// alone; iron(II) with nitric acid, which oxidises it; and what can hardly be had in a bottle.
struct PoolRow {
    AcidSet acids;
    BaseKindSet bases;
    IonSet cations;
    int times = 1; // commoner
};

constexpr IonSet alkaliMetals = {Ion::lithium, Ion::sodium, Ion::potassium};
constexpr IonSet earthMetals = {Ion::magnesium, Ion::calcium, Ion::barium};
constexpr IonSet laterMetals = {Ion::manganese2, Ion::cobalt2, Ion::nickel2, Ion::copper2,
                                Ion::zinc};

// clang-format off
constexpr PoolRow poolRows[] = {
    {{Acid::hydrochloric, Acid::hydrobromic}, {BaseKind::hydroxide}, alkaliMetals | earthMetals | laterMetals | IonSet{Ion::iron2, Ion::aluminium, Ion::chromium3, Ion::iron3}},
    {{Acid::hydrochloric, Acid::hydrobromic}, {BaseKind::oxide},     alkaliMetals | earthMetals | laterMetals | IonSet{Ion::iron2, Ion::aluminium, Ion::iron3}},
    {{Acid::hydrochloric, Acid::hydrobromic}, {BaseKind::carbonate}, alkaliMetals | laterMetals | IonSet{Ion::ammonium, Ion::magnesium, Ion::barium, Ion::iron2}},
    {{Acid::nitric},     {BaseKind::hydroxide}, alkaliMetals | earthMetals | laterMetals | IonSet{Ion::lead2, Ion::aluminium, Ion::chromium3, Ion::iron3}},
    {{Acid::nitric},     {BaseKind::oxide},     alkaliMetals | earthMetals | laterMetals | IonSet{Ion::silver, Ion::lead2, Ion::aluminium, Ion::iron3}},
    {{Acid::nitric},     {BaseKind::carbonate}, alkaliMetals | laterMetals | IonSet{Ion::ammonium, Ion::silver, Ion::magnesium, Ion::barium, Ion::lead2}},
    {{Acid::sulfuric},   {BaseKind::hydroxide}, alkaliMetals | earthMetals | laterMetals | IonSet{Ion::iron2, Ion::aluminium, Ion::chromium3, Ion::iron3}},
    {{Acid::sulfuric},   {BaseKind::oxide},     alkaliMetals | laterMetals | IonSet{Ion::magnesium, Ion::iron2, Ion::aluminium, Ion::iron3}},
    {{Acid::sulfuric},   {BaseKind::carbonate}, alkaliMetals | laterMetals | IonSet{Ion::ammonium, Ion::magnesium, Ion::iron2}},
    {{Acid::phosphoric}, {BaseKind::hydroxide}, {Ion::sodium, Ion::potassium, Ion::magnesium, Ion::calcium, Ion::aluminium}},
    {{Acid::phosphoric}, {BaseKind::oxide},     {Ion::magnesium, Ion::calcium}},
    {{Acid::ethanoic},   {BaseKind::hydroxide, BaseKind::oxide, BaseKind::carbonate}, alkaliMetals | earthMetals | laterMetals | IonSet{Ion::lead2}},
    {{Acid::hydrochloric, Acid::nitric, Acid::sulfuric}, {BaseKind::hydrogencarbonate}, {Ion::sodium, Ion::potassium}},
    {{Acid::hydrochloric, Acid::nitric}, {BaseKind::carbonate}, {Ion::calcium}, 3},
    {{Acid::hydrobromic}, {BaseKind::carbonate}, {Ion::calcium}},
    {{Acid::hydrochloric, Acid::hydrobromic, Acid::nitric, Acid::sulfuric}, {BaseKind::ammonia}, {Ion::ammonium}},
};
// clang-format on

struct Reaction {
    const AcidRow* acid;
    Base base;
    int times; // commoner than acid and ions tell
};

std::vector<Base> basesOf(const PoolRow& row)
{
    std::vector<Base> bases;
    for (const BaseKind kind : baseKinds) {
        for (const IonRow* const cation : cations()) {
            if (row.bases.has(kind) && row.cations.has(cation->id)) {
                bases.push_back(baseOf(kind, cation->id));
            }
        }
    }
    return bases;
}

std::vector<Reaction> everyReaction()
{
    std::vector<Reaction> all;
    for (const PoolRow& row : poolRows) {
        for (const AcidRow* const acid : acids()) {
            if (row.acids.has(acid->id)) {
                for (const Base& base : basesOf(row)) {
                    all.push_back({acid, base, row.times});
                }
            }
        }
    }
    return all;
}

// Moles of acid and of base.
using MoleRatio = std::pair<int, int>;

MoleRatio ratioOf(const Reaction& reaction)
{
    const Equation equation = neutralisationOf(*reaction.acid, reaction.base);
    return {equation.left[0].first, equation.left[1].first};
}

int levelOf(const Reaction& reaction)
{
    const auto [acid, base] = ratioOf(reaction);
    if (std::max(acid, base) > 2) {
        return 3;
    }
    return kindOf(reaction.base) == BaseKind::hydroxide ? 1 : 2;
}

int weightOf(const Reaction& reaction)
{
    constexpr int ofAmmonia = 6; // as of a common anion
    const auto& [cation, anion] = reaction.base;
    return reaction.times * reaction.acid->weight * cation->weight *
           (anion == nullptr ? ofAmmonia : anion->weight);
}

// The ratio is drawn before the acid and the base; one that only rare bases have comes rarely.
ClassKey classOf(const Reaction& reaction)
{
    const auto [acid, base] = ratioOf(reaction);
    return {acid * 10 + base, 0, weightOf(reaction)};
}

Classified<Reaction> poolOfLevel(int level)
{
    constexpr int enough = 600; // three or four common reactions
    std::vector<Reaction> reactions;
    for (const Reaction& reaction : everyReaction()) {
        if (levelOf(reaction) == level) {
            reactions.push_back(reaction);
        }
    }
    return classified(reactions, classOf, enough);
}

const Classified<Reaction>& poolFor(int level)
{
    static const Classified<Reaction> pools[] = {poolOfLevel(1), poolOfLevel(2), poolOfLevel(3)};
    return pools[level - 1];
}

// ---- The prompt

Spans promptFor(const AcidRow& acid, const Base& base)
{
    return line(say<Sentence::neutralisationPrompt>(nameOf(base), nameOf(acid),
                                                    nameOf(*base.cation, anionOf(acid))));
}

// ---- The worked solution

Equation withCoefficients(Equation equation, int (*change)(int coefficient))
{
    for (auto* const side : {&equation.left, &equation.right}) {
        for (auto& term : *side) {
            term.first = change(term.first);
        }
    }
    return equation;
}

// The formulas alone.
Equation skeletonOf(const Equation& equation)
{
    return withCoefficients(equation, [](int) { return 1; });
}

Equation doubled(const Equation& equation)
{
    return withCoefficients(equation, [](int coefficient) { return 2 * coefficient; });
}

// Balanced but for water and carbon dioxide.
Equation withSinglesBehindTheSalt(Equation equation)
{
    for (std::size_t i = 1; i < equation.right.size(); ++i) {
        equation.right[i].first = 1;
    }
    return equation;
}

Step ionsOfTheSalt(const AcidRow& acid, const Base& base)
{
    return {line(say<Sentence::neutralisationIonsOfSalt>()),
            line(spanOf(*base.cation), ", ", spanOf(anionOf(acid)), ": ",
                 formula(saltFormula(acid, base))),
            line(say(base.anion == nullptr ? Sentence::hintNeutralisationAmmonium
                                           : Sentence::hintNeutralisationSalt))};
}

Span productsHint(const Base& base)
{
    switch (kindOf(base)) {
    case BaseKind::ammonia:
        return say<Sentence::hintNeutralisationOfAmmonia>();
    case BaseKind::hydroxide:
        return say<Sentence::hintNeutralisationOfHydroxide>();
    case BaseKind::oxide:
        return say<Sentence::hintNeutralisationOfOxide>();
    case BaseKind::carbonate:
    case BaseKind::hydrogencarbonate:
        break;
    }
    return say<Sentence::hintNeutralisationOfCarbonate>(nameOf(*base.anion));
}

// Of a base that becomes water.
Spans waterHint(const Base& base)
{
    switch (kindOf(base)) {
    case BaseKind::ammonia:
        return {};
    case BaseKind::hydroxide:
        return line(say<Sentence::hintNeutralisationWaterOfHydroxide>());
    case BaseKind::oxide:
        return line(say<Sentence::hintNeutralisationWaterOfOxide>());
    case BaseKind::carbonate:
    case BaseKind::hydrogencarbonate:
        break;
    }
    return line(say<Sentence::hintNeutralisationWaterOfCarbonate>(nameOf(*base.anion)));
}

Span productsOf(const Base& base)
{
    switch (kindOf(base)) {
    case BaseKind::ammonia:
        return say<Sentence::neutralisationOfAmmonia>();
    case BaseKind::hydroxide:
        return say<Sentence::neutralisationOfHydroxide>();
    case BaseKind::oxide:
        return say<Sentence::neutralisationOfOxide>();
    case BaseKind::carbonate:
    case BaseKind::hydrogencarbonate:
        break;
    }
    return say<Sentence::neutralisationOfCarbonate>(nameOf(*base.anion));
}

Step writeFormulas(const Equation& equation, const Base& base)
{
    return {line(productsOf(base)), spansOf(skeletonOf(equation)), line(productsHint(base))};
}

// What of metal and anion takes a coefficient to balance; empty where neither does.
Spans balanceFirst(const Equation& equation, const AcidRow& acid, const Base& base)
{
    const bool isMetal = equation.left[1].first > 1 || equation.right[0].first > 1;
    const bool isAnion = equation.left[0].first > 1;
    const Name metal = nameAlone(*base.cation);
    const Name anion = nameOf(anionOf(acid));
    if (isMetal && isAnion) {
        return line(say<Sentence::neutralisationBalanceBoth>(metal, anion));
    }
    if (isMetal) {
        return line(say<Sentence::neutralisationBalance>(metal));
    }
    return isAnion ? line(say<Sentence::neutralisationBalance>(anion)) : Spans();
}

// "H 12, S 3, Al 2, O 18", oxygen last.
Spans countsOf(const Equation& equation)
{
    Atoms counts;
    for (const auto& [coefficient, species] : equation.left) {
        const Atoms atoms = compositionOf(species).atoms;
        for (const AtomCount& atom : atoms) {
            const auto known =
                std::find_if(counts.begin(), counts.end(), [&atom](const AtomCount& count) {
                    return count.element == atom.element;
                });
            if (known == counts.end()) {
                counts.push_back({atom.element, coefficient * atom.count});
            } else {
                known->count += coefficient * atom.count;
            }
        }
    }
    std::stable_partition(counts.begin(), counts.end(),
                          [](const AtomCount& count) { return count.element != elements::oxygen; });
    Spans spans;
    for (const AtomCount& count : counts) {
        append(spans, line(spans.empty() ? "" : ", ", formula(element(count.element).symbol), " ",
                           number(std::to_string(count.count))));
    }
    return spans;
}

Step balanceWater(const Equation& equation, const Base& base, bool isFirst)
{
    const bool isWithGas = givesCarbonDioxide(kindOf(base));
    const Sentence first = isWithGas ? Sentence::neutralisationBalanceWaterAndGas
                                     : Sentence::neutralisationBalanceWater;
    const Sentence then =
        isWithGas ? Sentence::neutralisationThenWaterAndGas : Sentence::neutralisationThenWater;
    return {line(say(isFirst ? first : then)), spansOf(equation), waterHint(base)};
}

std::vector<Step> solutionFor(const Equation& equation, const AcidRow& acid, const Base& base)
{
    std::vector<Step> steps = {ionsOfTheSalt(acid, base), writeFormulas(equation, base)};
    const Spans first = balanceFirst(equation, acid, base);
    if (!first.empty()) {
        steps.push_back({first, spansOf(withSinglesBehindTheSalt(equation)),
                         line(say<Sentence::hintNeutralisationBalance>())});
    }
    if (equation.right.size() > 1 && equation.right[1].first > 1) {
        steps.push_back(balanceWater(equation, base, first.empty()));
    }
    steps.push_back({line(say<Sentence::neutralisationCheck>()),
                     line(say<Sentence::neutralisationOnEachSide>(countsOf(equation))),
                     line(say<Sentence::hintNeutralisationCheck>())});
    return steps;
}

// ---- The slips

// What is left of an acid that keeps some of its protons, with cations of a charge.
struct AcidSaltRow {
    Acid acid;
    int cationCharge;
    Ion anion;
};
constexpr AcidSaltRow acidSalts[] = {
    {Acid::sulfuric, 1, Ion::hydrogensulfate},
    {Acid::phosphoric, 1, Ion::dihydrogenphosphate},
    {Acid::phosphoric, 2, Ion::hydrogenphosphate},
};

// With ions one to one where they do not stand so, and with both charges written as subscripts
// where they cancel.
std::string wrongSalt(const IonRow& cation, const IonRow& anion)
{
    const std::string formulaOfCation(cation.formula);
    const std::string formulaOfAnion(anion.formula);
    if (cation.charge + anion.charge != 0) {
        return formulaOfCation + formulaOfAnion;
    }
    const std::string subscript = std::to_string(cation.charge);
    return formulaOfCation + subscript +
           (anion.isGroup ? "(" + formulaOfAnion + ")" : formulaOfAnion) + subscript;
}

using Slips = std::vector<Slip>;

void add(Slips& slips, const Equation& wrong, const Piece& sentence)
{
    slips.push_back({textOf(wrong), std::nullopt, line(sentence)});
}

void addUnbalanced(Slips& slips, const Equation& equation, const EquationAnswer& answer)
{
    const Mark mark = markEquation(answer, textOf(skeletonOf(equation)));
    if (mark.verdict == Verdict::slip) { // else each formula is needed once
        add(slips, skeletonOf(equation), mark.sentence);
    }
}

void addForgotten(Slips& slips, Equation equation)
{
    equation.right.pop_back();
    add(slips, equation, say<Sentence::markOneMoreProduct>());
}

void addWrongSalt(Slips& slips, const Equation& equation, const IonRow& cation, const IonRow& anion)
{
    if (cation.charge == 1 && anion.charge == -1) {
        return;
    }
    Equation wrong = skeletonOf(equation);
    std::string& salt = wrong.right[0].second;
    salt = wrongSalt(cation, anion);
    const bool isNeutral = cation.charge + anion.charge == 0;
    add(slips, wrong,
        line(say<Sentence::markNotTheSalt>(formula(salt)), " ",
             say(isNeutral ? Sentence::markSimplify : Sentence::markCharges)));
}

// With carbonic acid or hydrogen for the water and what else would form.
void addWrongProduct(Slips& slips, Equation equation, bool isCarbonicAcid)
{
    equation.right.resize(2);
    equation.right[1].second = isCarbonicAcid ? "H2CO3" : "H2";
    add(slips, equation,
        say(isCarbonicAcid ? Sentence::markCarbonicAcid : Sentence::markHydrogenGas));
}

void addAcidSalt(Slips& slips, const AcidRow& acid, const Base& base)
{
    for (const AcidSaltRow& row : acidSalts) {
        if (row.acid == acid.id && row.cationCharge == base.cation->charge) {
            add(slips, neutralisationTo(rowOf(row.anion), acid, base),
                say<Sentence::markLessBase>());
        }
    }
}

Slips slipsFor(const Equation& equation, const EquationAnswer& answer)
{
    Slips slips;
    addUnbalanced(slips, equation, answer);
    if (equation.right.size() > 1) {
        addForgotten(slips, equation);
        addWrongProduct(slips, equation, givesCarbonDioxide(kindOf(answer.base)));
    }
    addWrongSalt(slips, equation, *answer.base.cation, anionOf(*answer.acid));
    add(slips, doubled(equation), say<Sentence::markSmallestNumbers>());
    addAcidSalt(slips, *answer.acid, answer.base);
    return slips;
}

// ---- Draw, write, read, make

const Reaction& draw(const Place& place)
{
    return memberFor(place, poolFor(place.level));
}

Description write(const Reaction& reaction)
{
    return Description()
        .with("acid", reaction.acid->formula)
        .with("base", formulaOf(reaction.base));
}

Reaction read(FieldReader& fields)
{
    const std::string_view acid = fields.text("acid");
    const std::string_view base = fields.text("base");
    for (int level = 1; level <= levelCount; ++level) {
        for (const Reaction& reaction : poolFor(level).members) {
            if (reaction.acid->formula == acid && formulaOf(reaction.base) == base) {
                return reaction;
            }
        }
    }
    fields.fail(say<Sentence::errorReaction>(quotable(acid), quotable(base)));
    return poolFor(1).members.front();
}

Exercise make(const Place& place, const Reaction& reaction)
{
    const AcidRow* const acid = reaction.acid;
    const Base& base = reaction.base;

    Exercise exercise = {};
    exercise.place = place;
    exercise.prompt = promptFor(*acid, base);
    exercise.ask.form = Form::equation;
    exercise.given = {
        GivenCompound{std::string(acid->formula), nameOf(*acid)},
        GivenCompound{formulaOf(base), nameOf(base)},
        GivenCompound{saltFormula(*acid, base), nameOf(*base.cation, anionOf(*acid))},
    };
    exercise.equation = neutralisationOf(*acid, base);
    exercise.key = spansOf(*exercise.equation);
    exercise.solution = solutionFor(*exercise.equation, *acid, base);
    exercise.slips = slipsFor(*exercise.equation, {acid, base});
    exercise.answer = EquationAnswer{acid, base};
    return exercise;
}

} // namespace

const Kind neutralisationKind = {
    6,
    1,
    "neutralisation",
    Sentence::neutralisationTitle,
    {Sentence::neutralisationLevel1, Sentence::neutralisationLevel2,
     Sentence::neutralisationLevel3},
    false,
    drawnExercise<draw, write, levelOf, make>,
    describedExercise<read, write, levelOf, make>,
};

} // namespace lesson
