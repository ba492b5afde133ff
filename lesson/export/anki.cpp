#include "lesson/export/anki.hpp"

#include <set>
#include <string_view>

#include "lesson/export/html.hpp"
#include "lesson/kinds/kind.hpp"
#include "lesson/words/render.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

std::string backOf(const Exercise& exercise)
{
    std::string html;
    addAll(html, {"<b>", htmlOf(exercise.key), "</b>"});
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
void addRemark(std::string& header, std::size_t count, const Span& ofOne, const Span& ofSeveral,
               const Writing& writing)
{
    if (count > 0) {
        addAll(header, {"# ", plainText({count == 1 ? ofOne : ofSeveral}, writing), "\n"});
    }
}

std::string headerIn(const Writing& writing)
{
    std::string header;
    addAll(header, {"#separator:Tab\n#html:true\n#notetype:Basic\n#deck:",
                    plainText({say<Sentence::exportTitle>()}, writing), "\n#tags column:3\n"});
    return header;
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
    std::string text = headerIn(writing);
    const std::size_t again = exercises.size() - others - fronts.size();
    addRemark(text, others, say<Sentence::exportOneFitsNoCard>(),
              say<Sentence::exportSomeFitNoCard>(number(std::to_string(others))), writing);
    addRemark(text, again, say<Sentence::exportOneAskedAlready>(),
              say<Sentence::exportSomeAskedAlready>(number(std::to_string(again))), writing);
    return text + cards;
}

} // namespace lesson
