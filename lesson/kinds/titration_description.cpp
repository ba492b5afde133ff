#include <cstddef>
#include <string>
#include <string_view>

#include "lesson/kinds/shared/quantities.hpp"
#include "lesson/kinds/titration.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

constexpr std::string_view acidWord = "acid";
constexpr std::string_view baseWord = "base";

std::string_view wordOf(Indicator indicator)
{
    return indicator == Indicator::phenolphthalein ? "phenolphthalein" : "methyl orange";
}

std::string acidOrBase(bool isAcid)
{
    return std::string(isAcid ? acidWord : baseWord);
}

bool isAcidIn(FieldReader& fields, std::string_view name)
{
    const std::string_view value = fields.text(name);
    if (value != acidWord && value != baseWord) {
        fields.fail(say<Sentence::errorAcidOrBase>(std::string(name), std::string(acidWord),
                                                   std::string(baseWord)));
    }
    return value == acidWord;
}

// "30.70", or with the rough one in front "31.20,30.70,30.75".
std::string titresText(const Titration& drawn)
{
    if (drawn.titres.empty()) {
        const Ratio hundredths = drawn.fromBurette * ratio(100000);
        return plainText({hundredths.numerator, -2});
    }
    std::string text;
    for (const int titre : drawn.titres) {
        text += (text.empty() ? "" : ",") + plainText({titre, -2});
    }
    return text;
}

constexpr int greatestReading = 5000; // hundredths of a millilitre, of a burette

// In hundredths of a millilitre.
std::vector<int> titresFrom(FieldReader& fields)
{
    std::vector<int> titres;
    for (const Ratio titre : fields.numbers("titre")) {
        const Ratio hundredths = titre * ratio(100);
        const bool isReading = hundredths.denominator == 1 && hundredths <= ratio(greatestReading);
        if (!isReading) {
            fields.fail(say<Sentence::errorTitre>());
        }
        titres.push_back(isReading ? static_cast<int>(hundredths.numerator) : 1);
    }
    const std::size_t count = titres.size();
    if (count == 0 || count == 2 || count > 4) {
        fields.fail(say<Sentence::errorTitreCount>());
        return {1};
    }
    return titres;
}

const TitrationRow& pairFrom(FieldReader& fields)
{
    const std::string_view acid = fields.text("acid");
    const std::string_view base = fields.text("base");
    for (const TitrationRow& row : titrations()) {
        if (rowOf(row.acid).formula == acid && formulaOf(baseOf(row)) == base) {
            return row;
        }
    }
    fields.failAsNotAsked("base", base);
    return titrations().front();
}

Indicator indicatorFrom(FieldReader& fields, const TitrationRow& pair)
{
    const std::string_view name = fields.text("indicator");
    for (const Indicator indicator : {Indicator::phenolphthalein, Indicator::methylOrange}) {
        const bool suits = pair.indicator == Indicator::either || pair.indicator == indicator;
        if (suits && name == wordOf(indicator)) {
            return indicator;
        }
    }
    fields.failAsNotAsked("indicator", name);
    return Indicator::phenolphthalein;
}

bool isAcidInBurette(FieldReader& fields, const TitrationRow& pair)
{
    const bool isAcid = isAcidIn(fields, "burette");
    const InBurette named = isAcid ? InBurette::acid : InBurette::base;
    if (pair.inBurette != InBurette::either && pair.inBurette != named) {
        fields.failAsNotAsked("burette", acidOrBase(isAcid));
    }
    return isAcid;
}

} // namespace

Description descriptionOf(const Titration& drawn)
{
    return Description()
        .with("acid", rowOf(drawn.pair->acid).formula)
        .with("base", formulaOf(baseOf(*drawn.pair)))
        .with("asked", acidOrBase(!drawn.isAcidKnown))
        .with("c", shown(drawn.concentration, askedFigures))
        .with("burette", acidOrBase(drawn.isAcidInBurette))
        .with("titre", titresText(drawn))
        .with("pipette", inMillilitres(drawn.inFlask))
        .with("indicator", wordOf(drawn.indicator));
}

Titration titrationFrom(FieldReader& fields)
{
    Titration made = {};
    made.pair = &pairFrom(fields);
    made.isAcidKnown = !isAcidIn(fields, "asked");
    made.concentration = fields.number("c");
    made.isAcidInBurette = isAcidInBurette(fields, *made.pair);
    const std::vector<int> titres = titresFrom(fields);
    if (titres.size() > 1) {
        made.titres = titres;
        made.fromBurette = meanTitre(titres);
    } else {
        made.fromBurette = ratio(titres.front(), 100000);
    }
    made.inFlask = fields.number("pipette") / ratio(1000);
    made.indicator = indicatorFrom(fields, *made.pair);
    made.answer = workedOut(made);
    if (!isAskable(made)) {
        fields.fail(say<Sentence::errorValuesNotAsked>());
    }
    return made;
}

int levelOf(const Titration& titration)
{
    return !titration.titres.empty() ? 3 : ratioOf(titration) == ratio(1) ? 1 : 2;
}

} // namespace lesson
