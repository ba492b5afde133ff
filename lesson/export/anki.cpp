#include "lesson/export/anki.hpp"

#include <set>
#include <string_view>

#include "lesson/export/html.hpp"
#include "lesson/kinds/kind.hpp"
#include "lesson/words/render.hpp"

namespace lesson
{

namespace
{

std::string backOf(const Exercise& exercise)
{
    std::string html;
    addAll(html, {"<b>", htmlOfKey(exercise), "</b>"});
    for (const Step& step : exercise.solution) {
        addAll(html, {"<br>", htmlOf(step.say), " ", htmlOf(step.math)});
    }
    return html;
}

std::string tagsOf(const Place& place)
{
    std::string tags;
    addAll(tags, {place.kind->slug, " level-", std::to_string(place.level)});
    if (place.paper != 0) {
        addAll(tags, {" paper-", std::to_string(place.paper)});
    }
    return tags;
}

void addCard(std::string& cards, const Exercise& exercise, std::string_view front)
{
    addAll(cards, {front, "\t", backOf(exercise), "\t", tagsOf(exercise.place), "\n"});
}

// Anki passes over lines that begin with this sign and set nothing.
void addRemark(std::string& header, std::size_t count, std::string_view one, std::string_view more)
{
    if (count > 0) {
        addAll(header, {"# ", std::to_string(count), count == 1 ? one : more, "\n"});
    }
}

} // namespace

std::string ankiCards(const std::vector<Reference>& exercises, const Writing& writing)
{
    std::string cards;
    std::set<std::string> fronts;
    std::size_t others = 0;
    for (const Reference& reference : exercises) {
        Exercise exercise = exerciseOf(reference).exercise;
        render(exercise, writing);
        if (!exercise.place.kind->fitsCard) {
            ++others;
            continue;
        }
        const auto [front, isNew] = fronts.insert(htmlOf(exercise.prompt));
        if (isNew) {
            addCard(cards, exercise, *front);
        }
    }
    if (cards.empty()) {
        return cards;
    }
    std::string text = "#separator:Tab\n#html:true\n#notetype:Basic\n"
                       "#deck:Chemical calculations practice\n#tags column:3\n";
    addRemark(text, others, " calculation or equation is left out, since it fits no card.",
              " calculations and equations are left out, since they fit no card.");
    addRemark(text, exercises.size() - others - fronts.size(),
              " exercise is left out that an earlier card asks already.",
              " exercises are left out that earlier cards ask already.");
    return text + cards;
}

} // namespace lesson
