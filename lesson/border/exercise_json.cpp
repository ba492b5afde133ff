#include "lesson/border/exercise_json.hpp"

#include <string_view>
#include <utility>

#include "lesson/border/spans_json.hpp"
#include "lesson/kinds/kinds.hpp"
#include "lesson/numbers/decimal.hpp"
#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

std::string_view nameOf(Form form)
{
    switch (form) {
    case Form::number:
        return "number";
    case Form::formula:
        return "formula";
    case Form::ion:
        return "ion";
    case Form::equation:
        return "equation";
    case Form::solubility:
        break;
    }
    return "solubility";
}

std::string_view nameOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::correct:
        return "correct";
    case Verdict::figures:
        return "figures";
    case Verdict::slip:
        return "slip";
    case Verdict::powerOfTen:
        return "power-of-ten";
    case Verdict::close:
        return "close";
    case Verdict::wrong:
        return "wrong";
    case Verdict::unreadable:
        break;
    }
    return "unreadable";
}

// Empty where there is none.
std::string_view nameOf(VolumeRole role)
{
    switch (role) {
    case VolumeRole::none:
        break;
    case VolumeRole::titre:
        return "titre";
    case VolumeRole::aliquot:
        return "aliquot";
    }
    return "";
}

void add(Json& json, const Ask& ask, const Writing& writing)
{
    json.object([&] {
        json.member("form", nameOf(ask.form));
        if (ask.form == Form::number) {
            json.member("quantity", ask.quantity);
            json.member("of", ask.of);
            json.member("unit", unitIn(writing, ask.unit));
            json.member("figures", ask.figures);
        }
        if (!ask.choices.empty()) {
            json.key("choices").array(ask.choices, [&](Sentence choice) {
                json.text(plainText({say(choice)}, writing));
            });
        }
    });
}

void addMembers(Json& json, const GivenQuantity& given, const Writing& writing)
{
    json.member("quantity", given.quantity);
    json.member("of", given.of);
    json.member("value", given.value);
    json.member("unit", given.unit);
    json.member("shown", numberIn(writing, given.shown));
    json.member("shownUnit", unitIn(writing, given.shownUnit));
    if (!given.titres.empty()) {
        json.key("titres").array(given.titres, [&](int hundredths) {
            json.number(plainText({hundredths, -2}));
        });
    }
    if (given.role != VolumeRole::none) {
        json.member("role", nameOf(given.role));
    }
}

void addMembers(Json& json, const GivenIon& given, const Writing& writing)
{
    json.member("ion", given.ion->formula);
    json.member("charge", given.ion->charge);
    json.member("name", nameIn(*writing.language, nameOf(*given.ion)));
}

void addMembers(Json& json, const GivenCompound& given, const Writing& writing)
{
    json.member("compound", given.formula);
    json.member("name", nameIn(*writing.language, given.name));
}

void add(Json& json, const Given& given, const Writing& writing)
{
    json.object(
        [&] { std::visit([&](const auto& one) { addMembers(json, one, writing); }, given); });
}

using Species = std::pair<int, std::string>;

void add(Json& json, const std::vector<Species>& side)
{
    json.array(side, [&](const Species& species) {
        json.elements([&] {
            json.number(species.first);
            json.text(species.second);
        });
    });
}

void add(Json& json, const Equation& equation)
{
    json.object([&] {
        add(json.key("left"), equation.left);
        add(json.key("right"), equation.right);
    });
}

void add(Json& json, const Step& step)
{
    json.object([&] {
        add(json.key("say"), step.say);
        add(json.key("math"), step.math);
        add(json.key("hint"), step.hint);
    });
}

void add(Json& json, const Slip& slip)
{
    json.object([&] {
        json.member("text", slip.text);
        if (slip.value) {
            json.member("value", *slip.value);
        }
        add(json.key("sentence"), slip.sentence);
    });
}

void addKey(Json& json, const Exercise& exercise, const Writing& writing)
{
    json.key("key").object([&] {
        json.member("text", keyText(exercise, writing));
        add(json.key("spans"), exercise.key);
        if (const auto* const number = std::get_if<NumberAnswer>(&exercise.answer)) {
            json.member("value", number->value);
        }
    });
}

void addPlace(Json& json, Place place)
{
    if (place.paper != 0) {
        json.member("paper", static_cast<int>(place.paper));
        json.member("number", static_cast<int>(place.number));
    }
    json.member("kind", place.kind->slug);
    json.member("level", place.level);
}

template <typename Table>
void addEach(Json& json, std::string_view name, const Table& table)
{
    json.key(name).array(table, [&](const auto& element) { add(json, element); });
}

} // namespace

std::string exerciseJson(Exercise exercise, const Writing& writing)
{
    render(exercise, writing);
    Json json;
    json.object([&] {
        json.member("version", static_cast<int>(exercise.place.kind->version));
        addPlace(json, exercise.place);
        json.member("description", exercise.description);
        add(json.key("prompt"), exercise.prompt);
        add(json.key("ask"), exercise.ask, writing);
        json.key("given").array(exercise.given,
                                [&](const Given& given) { add(json, given, writing); });
        if (exercise.equation) {
            add(json.key("equation"), *exercise.equation);
        }
        addKey(json, exercise, writing);
        addEach(json, "solution", exercise.solution);
        addEach(json, "slips", exercise.slips);
    });
    return json.take();
}

std::string markJson(const Mark& mark, const Writing& writing)
{
    Json json;
    json.object([&] {
        json.member("verdict", nameOf(mark.verdict));
        add(json.key("sentence"), rendered(mark.sentence, writing));
    });
    return json.take();
}

std::string readJson(const std::optional<Spans>& read, const Writing& writing)
{
    Json json;
    json.object([&] { add(json.key("read"), rendered(read.value_or(Spans()), writing)); });
    return json.take();
}

} // namespace lesson
