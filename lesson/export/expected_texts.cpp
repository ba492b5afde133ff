#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>
#include <variant>

#include "lesson/export/expected.hpp"
#include "lesson/export/spelt.hpp"
#include "lesson/marking/spellings.hpp"
#include "lesson/text/scan.hpp"
#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"
#include "lesson/words/typed.hpp"

namespace lesson
{

namespace
{

using Texts = std::vector<std::string>;

Texts rightIons(const IonRow& ion)
{
    Texts texts = spellingsOf(ion);
    for (std::string& text : texts) {
        text += "^" + chargeText(ion);
    }
    return texts;
}

// The key, and its formula in other orders: "CH3COO^-", "CH3CO2^-".
Texts rightFormulas(const Exercise& exercise, std::string_view key)
{
    if (const auto* const ion = std::get_if<IonAnswer>(&exercise.answer)) {
        return rightIons(*ion->ion);
    }
    if (const auto* const salt = std::get_if<FormulaAnswer>(&exercise.answer)) {
        return spellingsOf(*salt->cation, *salt->anion);
    }
    if (const auto* const solid = std::get_if<PrecipitateAnswer>(&exercise.answer)) {
        return spellingsOf(*solid->cation, *solid->anion);
    }
    return {std::string(key)};
}

// What is said of a solid may be said of a precipitate.
void addStates(Texts& texts)
{
    const std::size_t count = texts.size();
    for (std::size_t i = 0; i < count; ++i) {
        texts.push_back(texts[i] + "(s)");
        texts.push_back(texts[i] + " (s)");
    }
}

void addAll(Texts& texts, const Texts& more)
{
    texts.insert(texts.end(), more.begin(), more.end());
}

Texts rightTexts(const Exercise& exercise, std::string_view key, const TypedWords& words)
{
    if (isNone(exercise)) {
        return {words.usualNones.begin(), words.usualNones.end()};
    }
    Texts texts;
    for (const std::string& right : rightFormulas(exercise, key)) {
        addAll(texts, usualSpellings(right));
    }
    addAll(texts, rareSpellings(key));
    if (exercise.ask.form == Form::solubility) {
        addStates(texts);
    }
    return texts;
}

std::string inCapitals(std::string text)
{
    for (char& c : text) {
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return text;
}

// Each O of the key as a zero, or all of them: "SO4^2-" -> "S04^2-", "S042-".
Texts withZeros(std::string_view key)
{
    Texts texts;
    std::string all(key);
    for (std::size_t i = key.find('O'); i != std::string_view::npos; i = key.find('O', i + 1)) {
        std::string one(key);
        one[i] = all[i] = '0';
        texts.push_back(std::move(one));
    }
    texts.push_back(std::move(all));
    for (std::size_t i = texts.size(); i > 0; --i) {
        std::string plain = texts[i - 1];
        plain.erase(std::remove(plain.begin(), plain.end(), '^'), plain.end());
        texts.push_back(std::move(plain));
    }
    return texts;
}

// What shows a mistake, besides the slips: a charge below, capitals, and none where there is a
// precipitate.
Texts wrongTexts(const Exercise& exercise, std::string_view key, const TypedWords& words)
{
    Texts texts;
    for (const Slip& slip : exercise.slips) {
        const bool hasSeveralCharges = slip.text.find('^') != slip.text.rfind('^');
        addAll(texts, hasSeveralCharges ? Texts{slip.text} : usualSpellings(slip.text));
    }
    addAll(texts, withLoweredCharge(key));
    if (!isNone(exercise)) {
        texts.push_back(lowerCase(key));
        addAll(texts, usualSpellings(inCapitals(std::string(key))));
        texts.emplace_back(*words.usualNones.begin());
    }
    return texts;
}

class Answers
{
public:
    Answers(const Exercise& asked, const Writing& written) : exercise(asked), writing(written) {}

    // Those of the texts of which the marking says what is wanted, each once.
    void add(const Texts& texts, std::initializer_list<Verdict> wanted)
    {
        for (const std::string& text : texts) {
            const Mark mark = markAnswer(exercise, text);
            const bool isWanted =
                std::find(wanted.begin(), wanted.end(), mark.verdict) != wanted.end();
            if (isWanted && !isThere(text)) {
                expected.push_back(
                    {percentFor(mark.verdict), text, "", plainText(mark.sentence, writing)});
            }
        }
    }

    // Wrong ones that the marking does not know.
    void add(const Texts& texts, Sentence sentence)
    {
        for (const std::string& text : texts) {
            if (!isThere(text)) {
                expected.push_back({0, text, "", plainText({say(sentence)}, writing)});
            }
        }
    }

    std::vector<Expected> expected;

private:
    bool isThere(const std::string& text) const
    {
        return std::any_of(expected.begin(), expected.end(),
                           [&text](const Expected& one) { return one.text == text; });
    }

    const Exercise& exercise;
    const Writing& writing;
};

} // namespace

// The marking tells what each text gets, so that nothing here can contradict it.
std::vector<Expected> expectedTexts(const Exercise& exercise, const Writing& writing)
{
    const std::string key = keyText(exercise, writing);
    const TypedWords& words = typedWordsOf(*writing.language);
    Answers answers(exercise, writing);
    answers.add(rightTexts(exercise, key, words), {Verdict::correct});
    answers.add(wrongTexts(exercise, key, words), {Verdict::slip, Verdict::wrong});
    if (!isNone(exercise) && key.find('O') != std::string::npos) {
        const Texts zeros = withZeros(key);
        answers.add(zeros, {Verdict::slip});
        answers.add(zeros, Sentence::markZeroForLargeO); // those that the marking cannot read
    }
    return std::move(answers.expected);
}

} // namespace lesson
